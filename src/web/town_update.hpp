#pragma once
// "Get Towns via www": the towns of a state from the service, added to "Towns.txt" in the support
// folder (format in support_files/towns_file.hpp), which the plot draws on.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// The text a line of the service's town answer (already in capitals) adds to the file, CR LF
// included: for a line that starts, after leading blanks, with "<TR><TD>", the cells (town,
// latitude with hemisphere letter, longitude with hemisphere letter, an unused fourth) give the
// town, a tab to column 30, then the latitude and the longitude without their first character. A
// name past column 29 puts the positions on a line of their own, as a print position does. ""
// for any other line.
std::string TownTextOfRow(std::string_view line);

struct MergedTowns {
  std::vector<std::string> lines;  // sorted, without LFs, one of each town
  std::size_t dropped = 0;         // lines left out as the same town as the line before
};

// The file's text with new town text behind it, as it is written back: split on CR LF (nothing
// behind the last CR LF), LFs removed, sorted from column 1, and a line left out when its first
// 32 characters equal those of the line last kept (an empty line counts as such at the start).
MergedTowns MergeTowns(std::string_view text);

// Fetches the towns of `stateCode` and merges them into the file; shows "<n> New towns added.",
// where n is the rows fetched less every line left out, old duplicates included (so it can be
// negative). A failure of the transfer is shown (critical, "Get Towns From OCO").
void GetTownsOfState(const std::string& stateCode, Platform& platform);

// mnuGetTownOCO: the state from frmOptions (Esc ends it), then GetTownsOfState.
void mnuGetTownOCO(Session& session, Platform& platform);

}  // namespace benchlog
