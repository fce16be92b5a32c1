#include "dataset/dataset_test_support.hpp"

#include "fakes/test_paths.hpp"
#include "common/files.hpp"

namespace benchlog::testing {

std::string Fixture(const std::string& name) {
  return ReadWholeFile(TestData("dataset/" + name));
}

std::string CopyFixture(const TempFolder& folder, const std::string& name) {
  return folder.Write(name, Fixture(name));
}

}  // namespace benchlog::testing
