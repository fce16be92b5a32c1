#include "handheld/hh_record.hpp"

#include "common/number_text.hpp"
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

bool IsPid(std::string_view text) {
  const auto capital = [](char c) { return c >= 'A' && c <= 'Z'; };
  return text.size() == 6 && capital(text[0]) && capital(text[1]) && IsNumeric(text.substr(2));
}

}  // namespace benchlog
