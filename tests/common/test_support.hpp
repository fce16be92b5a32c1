#pragma once
// Helpers of the common tests: a scratch folder and the failure number an action throws.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

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

// A fresh folder for one test's files, removed with everything in it at the end.
class TempFolder {
 public:
  TempFolder() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    path_ = std::filesystem::path(testing::TempDir()) /
            (std::string("benchlog_") + test->test_suite_name() + "_" + test->name());
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() { std::filesystem::remove_all(path_); }
  std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace benchlog
