#pragma once
// "Benchlog.ini" beside the program: the support folder, the help file, the ellipsoid and the
// defaults. Read once at start by CheckLoadFiles; nothing in the program writes it.
#include <string>

namespace benchlog {

struct Configuration {
  std::string helpFile;
  double ellipsoidA = 0;
  double ellipsoidE2 = 0;
  double ellipsoidEp2 = 0;  // second eccentricity squared, derived from E2
  std::string country, state, group, agency, cop, units, hemi1, hemi2;
};

}  // namespace benchlog
