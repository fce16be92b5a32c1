#pragma once
// Cutting the export's text into Descriptions. The text is read in place: lines are the pieces
// between CR LF pairs (a lone CR or LF stays inside its line; a final CR LF leaves an empty last
// line), and a Description is handed to the parser as the run of lines it reads.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

// Scans every line of `text`; a line whose first character is "1" opens a Description. For each
// one, `starts` receives the byte offset in `text` of the line after it and `pids` columns 2 to 7
// of that line, both appended in order (what they held before stays in front), and `count` grows
// by one. A "1" line that is the last line has no line after it: throws RuntimeFailure "Subscript
// out of range" (a text that ends in CR LF never has one there).
void FindDescriptions(std::string_view text, std::vector<std::size_t>& starts, std::vector<std::string>& pids,
                      std::size_t& count);

// The line of `text` that starts at byte `offset` (without its CR LF), and in `next` the offset
// of the line after it, or npos when it is the last line.
std::string_view LineAt(std::string_view text, std::size_t offset, std::size_t& next);

// The lines the parser reads for the Description of `pid` whose first line starts at byte
// `start`: the run of lines whose columns 2 to 7 are the PID (the first one always is, since the
// PID was taken from it), then the line after the run when there is one, which the parser reads
// only as the continuation of a wrapped note. Replaces what `lines` held.
void DescriptionLines(std::string_view text, std::size_t start, std::string_view pid,
                      std::vector<std::string_view>& lines);

}  // namespace benchlog
