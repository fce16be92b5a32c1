#pragma once
// The positions of a station's reference objects: the box score of its data sheet, rebuilt with
// the dataset's nearby marks, each reference mark's position from its distance and azimuth, and
// the distances between the reference marks, as one report text.
#include <string>
#include <vector>

#include "geodesy/ellipsoid.hpp"
#include "platform/ui.hpp"

namespace benchlog {

// A mark of the dataset with a horizontal order, as its index record gives it.
struct NearbyMark {
  std::string pid;
  std::string designation;  // 30 characters
  std::string latitude;     // the index's angle texts
  std::string longitude;
  std::string stabilityCode;  // "L" for a landmark
};

// The report of the station `pid` named `name` (30 characters) from the lines of its Description
// (without line ends). Each box score on the sheet, where it ends, gets the nearby marks between 1 m
// and 10 km added (landmarks from 1 km up as "APPROX." rows in kilometres), is sorted by azimuth and
// written with the positions of its reference marks (rows whose name holds "RM") by the forward
// computation (millimetres within a few hundred metres, see geographic.hpp). Rows are kept from one
// box to the next. The mark-to-mark distances of reference marks 1 to 10 close the report; lines
// end in CR LF. Throws RuntimeFailure Subscript out of range for a reference mark numbered above 10
// or below 0.
std::string ReferenceObjectReport(const std::string& pid, const std::string& name,
                                  const std::vector<std::string>& descriptionLines,
                                  const std::vector<NearbyMark>& nearbyMarks, const Ellipsoid& ellipsoid, Ui& ui);

}  // namespace benchlog
