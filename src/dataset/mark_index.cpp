#include "dataset/mark_index.hpp"

namespace benchlog {

void MarkIndex::Assign(std::vector<std::string> elements) {
  elements_ = std::move(elements);
  joinedValid_ = false;
}

void MarkIndex::Clear() { Assign({}); }

void MarkIndex::Set(std::size_t i, std::string record) {
  if (elements_.size() <= i) elements_.resize(i + 1);
  elements_[i] = std::move(record);
  joinedValid_ = false;
}

const std::string& MarkIndex::Joined() const {
  if (!joinedValid_) {
    std::size_t total = elements_.size();
    for (const auto& e : elements_) total += e.size();
    joined_.clear();
    joined_.reserve(total);
    for (std::size_t i = 0; i < elements_.size(); ++i) {
      if (i) joined_ += ' ';
      joined_ += elements_[i];
    }
    joinedValid_ = true;
  }
  return joined_;
}

}  // namespace benchlog
