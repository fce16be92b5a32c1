#pragma once
// The menu commands of the hand-held files.
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// "Convert Delimited Text File to HH": a delimited file of positions, its columns told in
// dlgDelimAndType, to an HH file beside it.
void mnuConvDelimtoHH(Session& session, Platform& platform);
// "Convert .gpx File to HH": the waypoints of a GPX file with a comment, quality "HH2".
void mnuConvgpxToHH(Session& session, Platform& platform);
// "Convert Garmin to HH": the waypoints of a receiver's tab-delimited text export.
void mnuConvertGarminToHH(Session& session, Platform& platform);
// "Find Goegraphic Pos in Text": positions stated in the Descriptions' text near their published
// positions, to an HH file and a report.
void mnuLatLoninTxt(Session& session, Platform& platform);
// "HH Discrepancies via www": each record of an HH file against the agency's database, through the
// service, to a report shown in the editor.
void mnuHHDiscrep(Session& session, Platform& platform);

}  // namespace benchlog
