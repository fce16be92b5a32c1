#pragma once
// The lines of the service's answer that belong in the dataset. The answer is the Descriptions
// wrapped in the service's page: tags, headings, timing lines, rules and indented notes. Those are
// left out by how a line starts; everything else is kept as it came (CR characters included).
#include <string_view>

namespace benchlog {

// False for a line of the page around the Descriptions: one that starts with "<", "DATABASE",
// " Elapsed", " ***", " -", " >", a tab or two blanks, or is empty or all blanks.
bool IsDescriptionLine(std::string_view line);

}  // namespace benchlog
