#include "handheld/hh_record.hpp"

#include "common/paths.hpp"
#include "common/text.hpp"

namespace benchlog {

std::string FormatHhRecord(const HhRecord& record) {
  std::string line;
  line.reserve(record.pid.size() + record.designation.size() + record.latitude.size() + record.longitude.size() +
               record.quality.size() + record.agency.size() + 5);
  for (const std::string* field : {&record.pid, &record.designation, &record.latitude, &record.longitude,
                                   &record.quality}) {
    line.append(*field).push_back('|');
  }
  return line.append(record.agency);
}

std::vector<std::string> HhFields(std::string_view line) { return Split(line, "|"); }

std::string HhPathFor(std::string_view inputPath) { return WithoutExtension(inputPath) + "_hh.txt"; }

std::string HhQuality(std::string_view technique) { return technique == "X" ? "HH1" : "HH2"; }

}  // namespace benchlog
