#include "session/frm_view.hpp"

#include <charconv>
#include <stdexcept>
#include <string>
#include <utility>

#include "platform/platform.hpp"
#include "session/session.hpp"
#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "session/dataset_paths.hpp"

namespace benchlog {
namespace {

constexpr const char* kSection = "frmView";

// A setting that is no whole number (edited by hand) gives the default.
long SettingNumber(const SettingsStore& settings, const char* key, long defaultValue) {
  const std::string text = settings.GetSetting(kSection, key, std::to_string(defaultValue));
  long value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end != text.data() ? value : defaultValue;
}

}  // namespace

void frmView::Load(const SettingsStore& settings) {
  placement.state = static_cast<int>(SettingNumber(settings, "Windowstate", 0));
  placement.top = SettingNumber(settings, "Top", 0);
  placement.left = SettingNumber(settings, "Left", 0);
  placement.height = SettingNumber(settings, "Height", 8475);
  placement.width = SettingNumber(settings, "Width", 9255);
  loaded = true;
}

void frmView::Unload(SettingsStore& settings) {
  settings.SaveSetting(kSection, "Windowstate", std::to_string(placement.state));
  if (placement.state == kNormal) {
    if (placement.top >= 0) settings.SaveSetting(kSection, "Top", std::to_string(placement.top));
    if (placement.left >= 0) settings.SaveSetting(kSection, "Left", std::to_string(placement.left));
    settings.SaveSetting(kSection, "Height", std::to_string(placement.height));
    settings.SaveSetting(kSection, "Width", std::to_string(placement.width));
  }
  loaded = false;
  Close();
  mnuViewDescVisible = false;
  mnuViewPhotoVisible = false;
}

void frmView::SetPictureCommands(const std::string& folder, const std::string& pid) {
  PhotoPath = PhotoPathFor(folder, pid);
  SketchPath = SketchPathFor(folder, pid);
  HasPhoto = FileExists(PhotoPath) ? 1 : 0;
  HasSketch = FileExists(SketchPath) ? 1 : 0;
  mnuViewPhotoVisible = HasPhoto == 1;
  mnuViewSketchVisible = HasSketch == 1;
}

void frmView::Activate(const std::string& datFilePath) {
  mnuViewDescVisible = false;
  SetPictureCommands(datFilePath, Tag);
  SelStart = 0;
}

void frmView::mnuViewDesc() {
  PhotoFlag = 0;
  txtViewFileVisible = true;
  imgPhotoVisible = false;
  mnuViewPhotoVisible = HasPhoto == 1;
  mnuViewSketchVisible = HasSketch == 1;
  mnuViewDescVisible = false;
  Caption = "View Description for point " + Tag;
}

bool frmView::ShowPicture(Ui& ui, const std::string& path, const PictureCheck& check) {
  const std::string failure = check ? check(path) : (FileExists(path) ? "" : FileNotFound().description);
  if (!failure.empty()) {
    ui.MsgBox(failure);
    return false;
  }
  imgPhoto = path;
  txtViewFileVisible = false;
  imgPhotoVisible = true;
  mnuViewDescVisible = true;
  return true;
}

void frmView::mnuViewPhoto(Ui& ui, const PictureCheck& check) {
  if (HasPhoto != 1 || !ShowPicture(ui, PhotoPath, check)) return;
  PhotoFlag = 1;
  mnuViewSketchVisible = HasSketch == 1;
  mnuViewPhotoVisible = false;
  Caption = "View Photo for point " + Tag;
}

void frmView::mnuViewSketch(Ui& ui, const PictureCheck& check) {
  if (HasSketch != 1 || !ShowPicture(ui, SketchPath, check)) return;
  mnuViewPhotoVisible = HasPhoto == 1;
  mnuViewSketchVisible = false;
  Caption = "View Sketch for point";
}

void frmView::FollowClick(const std::string& datFilePath) {
  if (Tag == "View listing") return;
  const std::string slice = SelStart < 80 ? Left(txtViewFile, 152) : Mid(txtViewFile, SelStart - 79, 100);
  const std::string pid = Mid(slice, InStr(slice, kCrLf) + 3, 6);
  Caption = "Description for " + pid;
  SetPictureCommands(datFilePath, pid);
  Tag = pid;
}

std::string frmView::SaveAsFilter(const std::string& fileType) {
  if (fileType == "dat") return "MkData Files (*.dat)|*.dat";
  if (fileType == "hcl") return "Horiz Listing (*.hcl)|*.hcl";
  if (fileType == "vcl") return "Vertical Listing (*.vcl)|*.vcl";
  if (fileType == "txt") return "Text File (*.txt)|*.txt";
  if (fileType == "ndx") return "Index File (*.ndx)|*.ndx";
  if (fileType == "rpt") return "Report File (*.rpt)|*.rpt";
  return "";
}

void frmView::mnuFileSaveAs(Ui& ui) {
  FileDialogRequest request;
  request.save = true;
  request.filter = SaveAsFilter(strFileType);
  request.title = "Save file as:";
  try {
    const std::string path = ui.FileDialog(request);
    if (FileExists(path) &&
        ui.MsgBox("File exists.  Overwrite?", MsgButtons::YesNo, MsgIcon::None, "File Save As", 2) == MsgResult::No)
      return;
    WriteWholeFile(path, txtViewFile);
  } catch (const RuntimeFailure& failure) {
    if (failure.number != kCancelError) ui.MsgBox(failure.description);
  }
}

namespace {
ViewerPrint& InstalledViewerPrint() {
  static ViewerPrint print;
  return print;
}
}  // namespace

void SetViewerPrint(ViewerPrint print) { InstalledViewerPrint() = std::move(print); }

void frmView::mnuPrintDesc(Ui& ui) {
  const ViewerPrint& print = InstalledViewerPrint();
  if (!print || !session || !platform) throw std::logic_error("The viewer's printing is not set up");
  try {
    print(*this, *session, *platform);
  } catch (const RuntimeFailure& failure) {
    platform->dlgProcessing.Hide();
    if (failure.number != kCancelError) ui.MsgBox(failure.description);
  }
}

void frmView::Close() {
  PhotoFlag = 0;
  txtViewFileVisible = true;
  imgPhoto.clear();
  imgPhotoVisible = false;
  Tag.clear();
}

frmView& ViewForm(Session& session, Platform& platform) {
  frmView& view = session.forms.Get<frmView>();
  view.session = &session;
  view.platform = &platform;
  if (!view.loaded) view.Load(platform.settings);  // first use: before the command sets its state
  return view;
}

}  // namespace benchlog
