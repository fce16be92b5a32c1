#pragma once
// Shared ground of the geodesy tests: GRS 80 as the configured ellipsoid, the committed zone table,
// and the reference vectors made from PROJ and GeographicLib (tools/make_geodesy_vectors.py).
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

// The whitespace-separated fields of each data line of a vector file; "#" lines are comments.
inline std::vector<std::vector<std::string>> ReadVectors(const std::string& name) {
  std::ifstream in(std::string(BENCHLOG_TEST_DATA) + "/geodesy/" + name);
  std::vector<std::vector<std::string>> rows;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    std::vector<std::string> row;
    for (std::string field; fields >> field;) row.push_back(field);
    rows.push_back(row);
  }
  return rows;
}

// Largest error seen, with the case that gave it, for the figures a test prints.
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
