#pragma once
// Shared ground of the geodesy tests: GRS 80 as the configured ellipsoid, the committed zone table,
// the reference vectors made from PROJ and GeographicLib (tools/make_geodesy_vectors.py) and the
// case tables of tests/data/geodesy.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "geodesy/ellipsoid.hpp"
#include "geodesy/lambert.hpp"

namespace benchlog::testing {

// "ELLIPSOID A=6378137" and "ELLIPSOID E2=0.00669438002290", the second eccentricity as the
// configuration derives it.
inline Ellipsoid Grs80() {
  const double e2 = 0.00669438002290;
  const double ratio = std::sqrt(e2) / std::sqrt(1.0 - e2);
  return {6378137.0, e2, ratio * ratio};
}

class GeodesyTest : public ::testing::Test {
 protected:
  Ellipsoid ellipsoid = Grs80();
  LambertZoneConstants lambert;
};

inline std::string SupportPath() { return std::string(BENCHLOG_SOURCE_DIR) + "/support/"; }

// The fields of each data line of tests/data/geodesy/`name` ("#" lines are comments), split at
// `separator`, or at runs of blanks when it is ' '. Fails the test unless there are `expectedRows`
// lines, so that an empty or cut file cannot pass.
inline std::vector<std::vector<std::string>> ReadRows(const std::string& name, std::size_t expectedRows,
                                                      char separator = ' ') {
  std::ifstream in(std::string(BENCHLOG_TEST_DATA) + "/geodesy/" + name);
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    std::vector<std::string> row;
    if (separator == ' ') {
      for (std::string field; fields >> field;) row.push_back(field);
    } else {
      for (std::string field; std::getline(fields, field, separator);) row.push_back(field);
    }
    rows.push_back(row);
  }
  EXPECT_EQ(rows.size(), expectedRows) << name;
  return rows;
}

// Largest error seen, with the case that gave it.
struct Worst {
  double value = 0;
  std::string where;
  void Note(double error, const std::string& at) {
    if (error > value) {
      value = error;
      where = at;
    }
  }
};

}  // namespace benchlog::testing
