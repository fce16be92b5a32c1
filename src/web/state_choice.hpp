#pragma once
// The choice of a state in frmOptions, as the CORS and town commands ask for it: every state of
// "Country.dat", the configured state preset, caption "Select State:".
#include "platform/platform.hpp"
#include "session/session.hpp"
#include "web/frm_options.hpp"

namespace benchlog {

// Shows the dialog with its tag emptied first; the reader takes the box's text (its first two
// characters are the state code) and the tag ("Okay" after Ok or Enter, "" after Esc).
frmOptions& ChooseState(Session& session, Platform& platform);

}  // namespace benchlog
