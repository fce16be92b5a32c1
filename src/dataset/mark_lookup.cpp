#include "dataset/mark_lookup.hpp"

#include "common/number_text.hpp"
#include "common/rounding.hpp"
#include "dataset/dataset_text.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kStartBehind = 134;
constexpr std::size_t kNextBehind = 281;
constexpr std::size_t kOffsetWidth = 9;

// The number in the 9 characters at `position`, rounded to a whole number as a 32-bit integer
// takes it (a slice of other text can hold a fraction, or overflow).
std::int64_t NumberAt(const std::string& joined, std::size_t position) {
  return CLng(Val(Columns(joined, position, kOffsetWidth)));
}

}  // namespace

MarkLocation LocateMark(const MarkIndex& markIndex, const std::string& pid) {
  MarkLocation location;
  location.position = markIndex.Find(pid);
  if (location.position == 0) return location;
  const std::string& joined = markIndex.Joined();
  location.start = NumberAt(joined, location.position + kStartBehind);
  location.next = NumberAt(joined, location.position + kNextBehind);
  return location;
}

std::string GetOrdersByPid(const MarkIndex& markIndex, const std::string& pid, std::string& horzOrder,
                           std::string& vertOrder) {
  horzOrder = " ";
  vertOrder = " ";
  const std::size_t position = markIndex.Find(pid);
  if (position == 0) return "Pid Not Found!";
  const std::string& joined = markIndex.Joined();
  horzOrder = std::string(Columns(joined, position + 7, 1));
  vertOrder = std::string(Columns(joined, position + 9, 1));
  return "";
}

}  // namespace benchlog
