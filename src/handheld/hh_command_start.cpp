#include "handheld/hh_command_start.hpp"

#include "common/files.hpp"
#include "common/text.hpp"

namespace benchlog {

bool MayWriteOutput(Ui& ui, const std::string& outputPath, const std::string& title) {
  if (!FileExists(outputPath)) return true;
  return ui.MsgBox(std::string("File exists.") + kCrLf + "Overwrite?", MsgButtons::YesNo, MsgIcon::None, title) ==
         MsgResult::Yes;
}

std::string AskAgencySymbol(Platform& platform, const std::string& title, const std::string& fallback) {
  const std::string stored = platform.settings.GetSetting("Settings", "RecAgcy", fallback);
  const std::string agency = UCase(platform.ui.InputBox("Enter Agency Symbol:", title, stored));
  platform.settings.SaveSetting("Settings", "RecAgcy", agency);
  return agency;
}

std::string OpenInputFile(Platform& platform, const std::string& title, const std::string& filter,
                          const std::string& defaultExt) {
  FileDialogRequest request;
  request.title = title;
  request.filter = filter;
  request.defaultExt = defaultExt;
  request.initDir = platform.settings.GetSetting("Settings", "LastDesDirectory", "");
  return platform.ui.FileDialog(request);
}

}  // namespace benchlog
