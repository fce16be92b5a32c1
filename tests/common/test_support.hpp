#pragma once
// Helper of the common tests: the failure number an action throws.
#include "common/runtime_failure.hpp"

namespace benchlog {

// The number of the RuntimeFailure that `action` throws, 0 when it throws none.
template <typename Action>
int FailureOf(Action action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return failure.number;
  }
  return 0;
}

}  // namespace benchlog
