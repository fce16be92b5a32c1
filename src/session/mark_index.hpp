#pragma once
// MarkIndex: one text record per Description, read by column everywhere. Loaded from the ".ndx"
// file or built from the dataset; the two fillings lay the array out differently (see the
// builder), and readers tolerate empty elements.
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
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

  // 1-based position of the first occurrence of `text` in Joined(), 0 when absent; an empty text
  // is found at 1. Case-sensitive. The first occurrence of every record's own six-character PID
  // is worked out once per change of the index, so a look-up of a PID costs no search of the text.
  std::size_t Find(std::string_view text) const;

 private:
  void Invalidate();
  void IndexFirstPidPositions() const;

  std::vector<std::string> elements_;
  mutable std::string joined_;
  mutable bool joinedValid_ = false;
  mutable std::unordered_map<std::uint64_t, std::size_t> firstPidPosition_;  // 0-based, by packed PID
  mutable bool firstPidValid_ = false;
};

}  // namespace benchlog
