#pragma once
// The fixtures of tests/data/dataset, read or copied into a test's scratch folder.
#include <string>

#include "common/files.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::testing {

inline std::string Fixture(const std::string& name) { return ReadWholeFile(TestData("dataset/" + name)); }

// Copies the fixture into the folder and returns its path there.
inline std::string CopyFixture(const TempFolder& folder, const std::string& name) {
  return folder.Write(name, Fixture(name));
}

}  // namespace benchlog::testing
