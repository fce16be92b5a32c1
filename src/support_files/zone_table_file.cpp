#include "support_files/zone_table_file.hpp"

#include <string_view>

#include "common/line_input.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

bool Matches(std::string_view line, std::size_t start, std::size_t length, const std::string& text) {
  return !text.empty() && Mid(line, start, length) == text;
}

}  // namespace

void FindZoneLine(const std::string& zoneKey, const std::string& zoneNumber, std::string& line,
                  const std::string& supportPath) {
  line.clear();
  LineReader reader(supportPath + kZoneTableFile);
  std::string_view candidate;
  while (reader.ReadLine(candidate)) {
    if (Matches(candidate, 1, 5, zoneKey) || Matches(candidate, 7, 4, zoneNumber)) {
      line = std::string(candidate);
      return;
    }
  }
}

}  // namespace benchlog
