#pragma once
// The towns the simulator gives for a state: from a file in the layout of "Towns.txt" (which has no
// state column, so every state gets all its towns), or, without one, made from the dataset: one
// town for each USGS quad of the state's marks (quads bear the names of towns), placed at the first
// such mark.
#include <string>
#include <vector>

#include "sim_dataset.hpp"

namespace ocosim {

struct SimTown {
  std::string name;
  std::string latitude;   // hemisphere letter and DDMMSS: "N360342"
  std::string longitude;  // hemisphere letter and DDDMMSS: "W0790718"
  std::string county;     // the fourth value of the answer, "NULL" when unknown
};

// Name from columns 1-29, latitude DDMMSS from 30, longitude DDDMMSS from 36, north and west.
// Throws benchlog::RuntimeFailure "File not found" when the file cannot be read.
std::vector<SimTown> TownsFromFile(const std::string& path);

std::vector<SimTown> TownsFromDataset(const SimDataset& dataset, const std::string& state);

}  // namespace ocosim
