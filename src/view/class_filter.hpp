#pragma once
// The classes of marks the Descriptions menu offers, answered from the index records alone. A
// class code is either a column of the index record or a negative code.
#include <string>

namespace benchlog {

enum ClassCode : int {
  kAllHorizontal = 8,
  kHorizontalFirstAndBetter = -3,
  kAllVertical = 10,
  kVerticalFirstOnly = -4,
  kBoundaryMonuments = -1,
  kLandmarks = -2,
  kCors = 104,
  kBaseNetwork = 100,
  kAirport = 102,
  kTidal = 98,
  kGpsSuitable = 106,
  kHeightMod = 108,
  kRecoveredNotPositioned = 21,
  kRecoveredNotPhotographed = 112,
};

// Whether an element of the index is listed for the class. "Not a blank" is meant exactly: an
// element too short to have the column passes, so an empty element is listed.
bool PassesClassTest(const std::string& element, int classCode);

}  // namespace benchlog
