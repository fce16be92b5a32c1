#pragma once
// The answers of /cgi-bin/get_mark_list.prl: the marks of a county, around a point or of a project,
// one fixed-column line each, inside a page of headings and rules as the agency's lists come.
//
// A record line (81 columns): 1-6 "|....|" (a radius list: "|", the distance in miles in four
// columns, "|"); 7-12 the PID; 14 and 16 the horizontal and vertical order codes, "." where the
// Description has none; 18-28 the packed latitude, cut to 11; 29-30 "|N"; 32-43 the packed
// longitude, cut to 12; 51 "|"; 52-81 the designation. Headings and rules never start with
// "|....|", never have "|N" in columns 29-30, and start with "|-" or have "P" in column 7.
#include <string>

#include "http_answer.hpp"
#include "sim_dataset.hpp"
#include "support_files/country_file.hpp"

namespace ocosim {

// A type code starting with "COR" keeps the CORS only; any other code keeps every mark.
bool TypeKeeps(const std::string& typeCode, const SimMark& mark);

// Marks whose state is `state` and whose county's FIPS code, looked up in the country file by its
// name, is `fips`.
HttpAnswer CountyListPage(const SimDataset& dataset, const benchlog::FipsIndex& fips, const std::string& state,
                          const std::string& fipsCode, const std::string& typeCode);

// Marks within `miles` of the point; latitude and longitude as the program sends them, hemisphere
// letter first and packed ("N391544", "W0771234.5": the degrees are what stands before the last
// four digits in front of the point).
HttpAnswer RadiusListPage(const SimDataset& dataset, const std::string& latitude, const std::string& longitude,
                          const std::string& miles, const std::string& typeCode);

// A project is the marks whose PID starts with the project id's first two characters (the sample
// datasets carry no project numbers): "FY1234" lists every FY mark.
HttpAnswer ProjectListPage(const SimDataset& dataset, const std::string& projectId, const std::string& typeCode);

// A packed angle text with its hemisphere letter, in degrees: north and west positive.
double PackedDegrees(const std::string& text);

}  // namespace ocosim
