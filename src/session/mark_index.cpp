#include "session/mark_index.hpp"

#include <algorithm>
#include <bitset>
#include <cstring>
#include <vector>

#include "common/text.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kPidLength = 6;

std::uint64_t PackPid(const char* p) {
  std::uint64_t key = 0;
  std::memcpy(&key, p, kPidLength);
  return key;
}

std::size_t FirstTwo(const char* p) {
  return static_cast<std::size_t>(static_cast<unsigned char>(p[0])) << 8 | static_cast<unsigned char>(p[1]);
}

}  // namespace

void MarkIndex::Invalidate() {
  joinedValid_ = false;
  firstPidValid_ = false;
}

void MarkIndex::Assign(std::vector<std::string> elements) {
  elements_ = std::move(elements);
  Invalidate();
}

void MarkIndex::Clear() { Assign({}); }

void MarkIndex::Set(std::size_t i, std::string record) {
  if (elements_.size() <= i) elements_.resize(i + 1);
  elements_[i] = std::move(record);
  Invalidate();
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

// One pass over the joined text finds where each record's PID first occurs, anywhere (a PID
// can stand inside an earlier record's name). A table of the PIDs' first two characters skips
// most positions without a hash look-up.
void MarkIndex::IndexFirstPidPositions() const {
  const std::string& text = Joined();
  firstPidPosition_.clear();
  std::bitset<1 << 16> startsAPid;
  for (const auto& e : elements_) {
    if (e.size() < kPidLength) continue;
    firstPidPosition_.emplace(PackPid(e.data()), std::string::npos);
    startsAPid[FirstTwo(e.data())] = true;
  }
  std::size_t unresolved = firstPidPosition_.size();
  for (std::size_t i = 0; unresolved > 0 && i + kPidLength <= text.size(); ++i) {
    if (!startsAPid[FirstTwo(text.data() + i)]) continue;
    const auto found = firstPidPosition_.find(PackPid(text.data() + i));
    if (found == firstPidPosition_.end() || found->second != std::string::npos) continue;
    found->second = i;
    --unresolved;
  }
  firstPidValid_ = true;
}

std::size_t MarkIndex::Find(std::string_view text) const {
  if (text.size() == kPidLength) {
    if (!firstPidValid_) IndexFirstPidPositions();
    const auto found = firstPidPosition_.find(PackPid(text.data()));
    if (found != firstPidPosition_.end()) return found->second + 1;
  }
  return InStr(Joined(), text);
}

}  // namespace benchlog
