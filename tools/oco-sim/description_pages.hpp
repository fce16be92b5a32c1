#pragma once
// The answer of /cgi-bin/ds_pids.prl (and of the single data sheet link /cgi-bin/ds_mark.prl): the
// Descriptions of the PIDs asked for, in the order asked, LF-separated, wrapped in the page text
// the program leaves out when it stores them: lines that start with "<", "DATABASE", " Elapsed",
// " ***", " -", " >", a tab or two blanks, and empty lines.
#include <string>
#include <vector>

#include "http_answer.hpp"
#include "sim_dataset.hpp"

namespace ocosim {

// A PID the dataset does not hold answers with one " *** ... not found" line in its place.
HttpAnswer DescriptionsPage(const SimDataset& dataset, const std::vector<std::string>& pids);

}  // namespace ocosim
