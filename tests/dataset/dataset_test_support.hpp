#pragma once
// Shared pieces of the dataset tests: a scratch folder per test and the fixtures of
// tests/data/dataset.
#include <string>

#include "fakes/temp_folder.hpp"

namespace benchlog::testing {

// The text of tests/data/dataset/<name>.
std::string Fixture(const std::string& name);

// Copies tests/data/dataset/<name> into the folder and returns its path there.
std::string CopyFixture(const TempFolder& folder, const std::string& name);

}  // namespace benchlog::testing
