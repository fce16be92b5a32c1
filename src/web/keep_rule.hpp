#pragma once
// Which marks of a list may have their Description fetched: a "." in the list says that the
// service's Description has no such order, and a local Description that has one is richer and is
// kept. A mark that is not in the open index is always fetched.
#include <string>

#include "session/mark_index.hpp"

namespace benchlog {

// `listHorz` and `listVert` are the list's order codes of `pid`; the local ones are those of its
// record, found by the index's text search (one blank each when it is not there). True when both
// hold: the list's horizontal code is not "." or the local one is a blank, and likewise vertical.
bool KeepRuleFetches(const MarkIndex& markIndex, const std::string& pid, const std::string& listHorz,
                     const std::string& listVert);

}  // namespace benchlog
