#pragma once
// The agency's paths as the simulator serves them, from one dataset. A request that lacks a field
// of its query answers "INPUT INCOMPLETE", as the agency's service does; an unknown path 404.
#include <optional>
#include <string>
#include <vector>

#include "http_answer.hpp"
#include "http_request.hpp"
#include "sim_dataset.hpp"
#include "support_files/country_file.hpp"
#include "town_list.hpp"

namespace ocosim {

struct ServiceData {
  SimDataset dataset;
  benchlog::FipsIndex fips;
  std::optional<std::vector<SimTown>> townsFile;  // from --towns; else towns come from the dataset
};

HttpAnswer AnswerServicePath(const ServiceData& data, const HttpRequest& request);

}  // namespace ocosim
