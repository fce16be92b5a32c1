// "Find Goegraphic Pos in Text": the search over the current dataset, its HH file and its report.
#include "common/files.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "handheld/handheld_commands.hpp"
#include "handheld/text_position_search.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {

constexpr std::uint64_t kBytesPerStep = 5000;

void ShowReport(Session& session, Platform& platform, const std::string& reportPath) {
  frmView& view = ViewForm(session, platform);
  struct FontBack {
    frmView& view;
    ~FontBack() { view.FontSize = 10; }
  } fontBack{view};
  if (!FileExists(reportPath)) {
    platform.ui.MsgBox("No positions in text found!");
    return;
  }
  view.mnuViewDescVisible = view.mnuViewPhotoVisible = view.mnuViewSketchVisible = false;
  view.txtViewFile = ReadWholeFile(reportPath);
  view.Caption = "Handheld File";
  view.FontSize = 8;
  view.Tag = "View listing";
  platform.ui.ShowModal(view);
}

}  // namespace

void mnuLatLoninTxt(Session& session, Platform& platform) {
  Ui& ui = platform.ui;
  Progress& progress = platform.dlgProcessing;
  try {
    FileDialogRequest request;
    request.save = true;
    request.title = "Create HH Input File";
    request.filter = "Text Files (*.txt)|*.txt";
    request.defaultExt = "txt";
    request.initDir = session.dataset.DatFilePath;
    const std::string hhPath = ui.FileDialog(request);
    const std::string reportPath = WithoutExtension(hhPath) + "GeoPos.Rpt";
    const std::string& datFile = session.dataset.DatFile;

    progress.lblProcessing = "Searching text for geographic positions";
    progress.lblInfo = "Please wait...";
    progress.barVisible = true;
    progress.value = 1;
    progress.max = static_cast<int>(FileLength(datFile) / kBytesPerStep);
    progress.Show();
    ui.SetHourglass(true);
    SearchTextPositions(datFile, hhPath, reportPath, progress);
    progress.Hide();
    ui.SetHourglass(false);
    ui.DoEvents();
    if (FileLength(hhPath) == 0) DeleteFileIfExists(hhPath);
    ShowReport(session, platform, reportPath);
  } catch (const RuntimeFailure& failure) {
    progress.Hide();
    ui.SetHourglass(false);
    if (failure.number != kCancelError) ui.MsgBox(failure.description);
  }
}

}  // namespace benchlog
