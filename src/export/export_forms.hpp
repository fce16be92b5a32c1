#pragma once
// The export's two dialogs as the session keeps them: made and loaded from the settings at their
// first use, then kept for the rest of the run.
#include "session/session.hpp"
#include "export/frm_cdt.hpp"
#include "export/frm_output_options.hpp"
#include "platform/platform.hpp"

namespace benchlog {

frmOutputOptions& OutputOptionsForm(Session& session, Platform& platform);
frmCDT& CdtForm(Session& session, Platform& platform);

}  // namespace benchlog
