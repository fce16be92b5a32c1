#pragma once
// Where the tests of the support files find them: the committed files in support/, the small
// hand-made fixtures in tests/data/support/, and the public source tables beside the repository.
#include <string>

namespace benchlog::test {

inline std::string CommittedSupport() { return std::string(BENCHLOG_SOURCE_DIR) + "/support/"; }
inline std::string FixtureSupport() { return std::string(BENCHLOG_TEST_DATA) + "/support/"; }
inline std::string SampleDataset() { return CommittedSupport() + "samples/sample.dat"; }
inline std::string SourceTables() { return std::string(BENCHLOG_SOURCE_DIR) + "/../shared/data/"; }

}  // namespace benchlog::test
