#include "plot/mark_photo.hpp"

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "platform/platform.hpp"
#include "plot/frm_image.hpp"
#include "session/session.hpp"

namespace benchlog {

void ShowMarkPhoto(Session& session, Platform& platform, const std::string& pid, const std::string& designation) {
  std::string folder = platform.settings.GetSetting("Settings", "PhotoDir", "");
  if (folder.empty()) folder = session.dataset.DatFilePath;
  for (const std::string& name : {pid, designation}) {
    const std::string path = folder + name + "ph.jpg";
    if (!FileExists(path)) continue;
    if (platform.pictures == nullptr) throw RuntimeFailure(481, "Invalid picture");
    frmImage& image = session.forms.Get<frmImage>();
    image.LoadPic(*platform.pictures, path);
    platform.ui.ShowModal(image);
    return;
  }
  platform.ui.MsgBox("Picture file name not found.", MsgButtons::Ok, MsgIcon::None, "View Picture");
}

}  // namespace benchlog
