#pragma once
// Cutting the export's text into Descriptions.
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

// Scans every line; a line whose first character is "1" opens a Description. For each one,
// `starts` receives the (0-based) index of the line after it and `pids` columns 2 to 7 of that
// line, both appended in order (what they held before stays in front), and `count` grows by one.
// A "1" line that is the last line has no line after it: throws RuntimeFailure "Subscript out of
// range", as the export's text, which ends in CR LF, never has one there.
void FindDescriptions(std::span<const std::string_view> lines, std::vector<std::size_t>& starts,
                      std::vector<std::string>& pids, std::size_t& count);

// Splits a text at every CR LF into views of it; a final CR LF leaves an empty last element.
std::vector<std::string_view> SplitCrLfViews(std::string_view text);

}  // namespace benchlog
