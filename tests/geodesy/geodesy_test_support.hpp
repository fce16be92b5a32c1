#pragma once
// Shared ground of the geodesy tests: GRS 80 as the configured ellipsoid, the committed zone table,
// the reference vectors made from PROJ and GeographicLib (tools/make_geodesy_vectors.py) and the
// case tables of tests/data/geodesy.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "geodesy/ellipsoid.hpp"
#include "geodesy/lambert.hpp"
#include "fakes/fakes.hpp"
#include "fakes/test_rows.hpp"
#include "support_files/zone_table_file.hpp"

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
  ScriptedUi ui;
};

inline std::string SupportPath() { return std::string(BENCHLOG_SOURCE_DIR) + "/support/"; }

// The committed zone table's line for `key`.
inline std::string Zone(const std::string& key) {
  std::string line;
  FindZoneLine(key, "", line, SupportPath());
  return line;
}

// A projection's outputs, -1 until written.
struct Grid {
  double north = -1, east = -1, convergence = -1, scale = -1;
  bool Untouched() const { return north == -1 && east == -1 && convergence == -1 && scale == -1; }
};

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
