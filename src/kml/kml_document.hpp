#pragma once
// The KML 2.2 document of an index: the styles, a view over the middle of the marks, and one
// placemark for each mark whose position can be read, in the order of the index.
#include <string>
#include <string_view>

#include "session/mark_index.hpp"

namespace benchlog {

// The whole file text, CR LF line ends, UTF-8. `dataSheetUrl` is the address of the data sheet
// page up to the PID (".../cgi-bin/ds_mark.prl?PidBox="); a mark with a name links to it.
// Throws SubscriptOutOfRange for an index with no element.
std::string KmlDocument(const MarkIndex& markIndex, std::string_view dataSheetUrl);

// The placemark of one index record, or "" when its latitude or longitude cannot be read.
std::string KmlPlacemark(std::string_view record, std::string_view dataSheetUrl);

}  // namespace benchlog
