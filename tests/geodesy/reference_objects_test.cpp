// The reference-object report of four box scores (tests/data/geodesy/reference_objects, made by
// make_reports.py there with positions and distances from GeographicLib's GeodSolve): reference
// marks, an azimuth mark without a distance, "APPROX." rows, rows without a PID that end or split the
// box, the names "FARM 1" and "JONES RM", nearby marks of the dataset added, and the high-latitude lines
// of several hundred metres.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "fakes/fakes.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"
#include "geodesy/reference_objects.hpp"

namespace benchlog {
namespace {

std::vector<NearbyMark> NearbyMarks() {
  std::vector<NearbyMark> marks;
  for (const auto& row : testing::ReadRows("geodesy/reference_objects/nearby.txt", 10, '|'))
    marks.push_back({row[0], row[1], row[2], row[3], row[4]});
  return marks;
}

TEST(ReferenceObjects, ReportsMatchTheWorkedOutReports) {
  const double e2 = 0.00669438002290;
  const Ellipsoid grs80{6378137.0, e2, e2 / (1 - e2)};
  const std::vector<NearbyMark> nearby = NearbyMarks();
  const std::pair<const char*, const char*> stations[] = {
      {"RO0001", "HILLTOP"}, {"RO0101", "NCCH"}, {"RO0201", "TANANA"}, {"RO0301", "MILLPOND"}};
  for (const auto& [pid, name] : stations) {
    const std::string folder = testing::TestData("geodesy/reference_objects/") + pid;
    testing::FakePlatform fake;
    const std::string paddedName = (std::string(name) + std::string(30, ' ')).substr(0, 30);
    const std::string report = ReferenceObjectReport(pid, paddedName, SplitCrLf(ReadWholeFile(folder + ".dat")),
                                                     nearby, grs80, fake.platform.ui);
    EXPECT_EQ(report, ReadWholeFile(folder + ".report")) << pid;
  }
}

}  // namespace
}  // namespace benchlog
