#include "description_pages.hpp"

namespace ocosim {

HttpAnswer DescriptionsPage(const SimDataset& dataset, const std::vector<std::string>& pids) {
  std::vector<std::string> lines = {
      "DATABASE = OCO Integrated Database,  PROGRAM = datasheet,  VERSION = 1.0",
      "",
      " *** Retrieval of " + std::to_string(pids.size()) + " data sheet(s) ***",
      "\tOrbis Control Office, data sheet service",
      "  Data sheets follow in the order asked.",
      " ----------------------------------------------------------------------",
  };
  for (const std::string& pid : pids) {
    if (const SimMark* mark = dataset.Find(pid)) {
      lines.insert(lines.end(), mark->lines.begin(), mark->lines.end());
      lines.push_back(" > end of " + pid);
    } else {
      lines.push_back(" *** " + pid + " - PID not found in the OCO database ***");
    }
    lines.push_back("");
  }
  lines.push_back(" ----------------------------------------------------------------------");
  lines.push_back(" Elapsed Time = 00:00:01");
  return HtmlPage("OCO data sheets", lines);
}

}  // namespace ocosim
