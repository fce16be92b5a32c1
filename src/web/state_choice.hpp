#pragma once
// The choices the web commands ask for in frmOptions: a state (every state of "Country.dat", the
// configured state preset, caption "Select State:"), or a county of it.
#include <string>
#include <vector>

#include "platform/platform.hpp"
#include "session/session.hpp"
#include "web/frm_options.hpp"

namespace benchlog {

// Fills the dialog with `choices`, presets the box with `text`, and shows it with its tag emptied first;
// the reader takes the box's text and the tag.
frmOptions& ShowOptions(Session& session, Platform& platform, const std::vector<std::string>& choices,
                        const std::string& text, const std::string& caption);

// ShowOptions with the states; the reader takes the box's text (its first two
// characters are the state code) and the tag ("Okay" after Ok or Enter, "" after Esc).
frmOptions& ChooseState(Session& session, Platform& platform);

}  // namespace benchlog
