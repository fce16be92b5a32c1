#include "town_list.hpp"

#include <set>

#include "common/line_input.hpp"
#include "common/text.hpp"

namespace ocosim {

std::vector<SimTown> TownsFromFile(const std::string& path) {
  std::vector<SimTown> towns;
  benchlog::LineReader reader(path);
  std::string line;
  while (reader.ReadLine(line)) {
    if (benchlog::IsBlank(line)) continue;
    towns.push_back({benchlog::Trim(benchlog::Left(line, 29)), "N" + benchlog::Mid(line, 30, 6),
                     "W" + benchlog::Mid(line, 36, 7), "NULL"});
  }
  return towns;
}

std::vector<SimTown> TownsFromDataset(const SimDataset& dataset, const std::string& state) {
  std::vector<SimTown> towns;
  std::set<std::string> seen;
  for (const SimMark& mark : dataset.Marks()) {
    if (mark.state != state || mark.quad.empty() || !mark.hasPosition || !seen.insert(mark.quad).second) continue;
    towns.push_back({mark.quad, benchlog::Left(mark.latitude, 7), benchlog::Left(mark.longitude, 8), mark.county});
  }
  return towns;
}

}  // namespace ocosim
