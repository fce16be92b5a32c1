#pragma once
// The viewer's Print command: what the viewer shows decides how it prints, by its caption.
#include "platform/platform.hpp"
#include "session/frm_view.hpp"
#include "session/session.hpp"

namespace benchlog {

// In this order: reference-object positions ("View Positions") as an array at margin 5, width 80;
// a photo (PhotoFlag 1) as a picture on a landscape page; Descriptions ("View Desc", "Desc")
// without their 8-column PID prefix at margin 10, width 71; the horizontal or vertical listing
// ("Hcl File", "Vcl File") under the title "<county> COUNTY <state> HORIZONTAL (VERTICAL) CONTROL"
// at margin 5, width 136, with no printer dialog; anything else at margin 5, width 80. The state and
// the county are asked for when the session has none, and kept for the next print.
void PrintViewerText(frmView& view, Session& session, Platform& platform);

}  // namespace benchlog
