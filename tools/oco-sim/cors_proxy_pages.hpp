#pragma once
// The answers of the /CORS-Proxy paths: HTML tables, one row a line, lines ending in CR LF.
//   corspid?st=      the CORS PIDs of a state:  <TR><TD>PID</TD></TR>
//   stcity?ST=       the towns of a state, each row indented:
//                    <TR><TD>name</TD><TD>N360342</TD><TD>W0790718</TD><TD>county</TD></TR>
//   discrep_for_one?PID=  what the agency's database holds of one mark, a key and a value a row:
//                    UID (0 for a PID it does not hold, all else then "NULL"), DESIGNATION,
//                    NAD 83 LAT, NAD 83 LON (packed, hemisphere first), POS SOURCE, POS QUALITY,
//                    POS TECH. The rows stand on one line with nothing between them, so that a
//                    value read up to the next "<TR>" holds no line end.
#include <string>
#include <vector>

#include "http_answer.hpp"
#include "sim_dataset.hpp"
#include "town_list.hpp"

namespace ocosim {

HttpAnswer CorsPidsPage(const SimDataset& dataset, const std::string& state);
HttpAnswer TownsPage(const std::vector<SimTown>& towns, const std::string& state);
HttpAnswer DiscrepancyPage(const SimDataset& dataset, const std::string& pid);

}  // namespace ocosim
