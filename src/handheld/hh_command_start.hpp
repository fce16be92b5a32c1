#pragma once
// The steps every command that writes an HH file shares: the overwrite question and the agency
// symbol.
#include <string>

#include "platform/platform.hpp"

namespace benchlog {

// True when `outputPath` may be written: it does not exist, or the user answered Yes to
// "File exists." CR LF "Overwrite?" under `title`.
bool MayWriteOutput(Ui& ui, const std::string& outputPath, const std::string& title);

// The agency symbol asked by an input box ("Enter Agency Symbol:") with the setting "RecAgcy" of
// section "Settings" as default, or `fallback` when it is absent. Capitalised and stored, also
// when empty.
std::string AskAgencySymbol(Platform& platform, const std::string& title, const std::string& fallback);

// The open dialog of a conversion, starting in the setting "LastDesDirectory".
std::string OpenInputFile(Platform& platform, const std::string& title, const std::string& filter,
                          const std::string& defaultExt);

}  // namespace benchlog
