#pragma once
// MarkIndex: one text record per Description, read by column everywhere. Loaded from the ".ndx"
// file or built from the dataset; the two fillings lay the array out differently (see the
// builder), and readers tolerate empty elements.
#include <string>
#include <vector>

namespace benchlog {

class MarkIndex {
 public:
  const std::vector<std::string>& Elements() const { return elements_; }
  std::size_t Size() const { return elements_.size(); }
  bool Empty() const { return elements_.empty(); }
  const std::string& operator[](std::size_t i) const { return elements_[i]; }

  void Assign(std::vector<std::string> elements);
  void Clear();
  // Sets element i, extending the array with empty elements as needed.
  void Set(std::size_t i, std::string record);

  // All elements joined by one blank, the text the look-up by PID searches. Made again only
  // after the index changed.
  const std::string& Joined() const;

 private:
  std::vector<std::string> elements_;
  mutable std::string joined_;
  mutable bool joinedValid_ = false;
};

}  // namespace benchlog
