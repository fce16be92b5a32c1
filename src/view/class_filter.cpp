#include "view/class_filter.hpp"

#include "common/text.hpp"

namespace benchlog {
namespace {

std::string Column(const std::string& element, int column) { return Mid(element, static_cast<std::size_t>(column), 1); }

bool IsRecovered(const std::string& element) {
  const std::string condition = Column(element, 126);
  return condition == "G" || condition == "S" || condition == "P";
}

}  // namespace

bool PassesClassTest(const std::string& element, int classCode) {
  switch (classCode) {
    case kHorizontalFirstAndBetter: {
      const std::string order = Column(element, 8);
      return order == "1" || order == "0" || order == "A" || order == "B";
    }
    case kVerticalFirstOnly: return Column(element, 10) == "1";
    case kBoundaryMonuments: return InStr(element, "BOUNDARY", 43) > 0 || InStr(element, "BDRY MON", 43) > 0;
    case kLandmarks: return Column(element, 110) == "L";
    case kGpsSuitable: return Column(element, 106) == "Y";
    case kRecoveredNotPositioned:
    case kRecoveredNotPhotographed: return Column(element, classCode) == " " && IsRecovered(element);
    default: return Column(element, classCode) != " ";
  }
}

}  // namespace benchlog
