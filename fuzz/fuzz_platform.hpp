#pragma once
// The platform of the readers that show their failures: the test doubles, kept for the process and
// emptied of what they recorded before each input, so that a long run does not grow them.
#include "fakes/fakes.hpp"

namespace benchlog::fuzz {

inline testing::FakePlatform& FreshPlatform() {
  static testing::FakePlatform fake;
  fake.ui.messages.clear();
  fake.progressHistory.clear();
  return fake;
}

}  // namespace benchlog::fuzz
