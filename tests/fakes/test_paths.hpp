#pragma once
// Where the tests find their files: the support folder of the source tree, the fixtures of
// tests/data, the sample dataset and the public source tables beside the repository.
#include <string>

namespace benchlog::testing {

inline std::string SourceSupport() { return BENCHLOG_SOURCE_DIR "/support/"; }
inline std::string TestData(const std::string& name) { return BENCHLOG_TEST_DATA "/" + name; }
inline std::string SampleDataset() { return SourceSupport() + "samples/sample.dat"; }
inline std::string SourceTables() { return BENCHLOG_SOURCE_DIR "/../shared/data/"; }

}  // namespace benchlog::testing
