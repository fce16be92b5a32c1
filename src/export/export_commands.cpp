#include "export/export_commands.hpp"

#include <memory>
#include <string>
#include <vector>

#include "common/files.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "dataset/description_file.hpp"
#include "export/export_files.hpp"
#include "export/export_forms.hpp"
#include "dataset/text_blocks.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kMaxSelectedPids = 10000;
constexpr std::size_t kMaxExportedPids = 9999;

// The PIDs of the rows selected in the list, in list order; more than 10000 fail on the bound.
std::vector<std::string> SelectedPids(const FrmSelectPoints& list) {
  std::vector<std::string> pids;
  for (std::size_t i = 0; i < list.lstPoints.size(); ++i) {
    if (!list.Selected(i)) continue;
    if (pids.size() == kMaxSelectedPids) throw SubscriptOutOfRange();
    pids.push_back(FrmSelectPoints::PidOfItem(list.lstPoints[i]));
  }
  return pids;
}

// The Descriptions of the marks the user picks from the whole index, one after another; false
// when the choice was cancelled or came to nothing.
bool SelectedDescriptions(Session& session, Platform& platform, std::string& text) {
  FrmSelectPoints& list = session.forms.Get<FrmSelectPoints>();
  list.Clear();
  list.caption = "Select Point(s) to export:";
  for (const auto& element : session.dataset.markIndex.Elements()) list.AddItem(SelectionItemOfRecord(element));
  list.Tag = "Canceled";
  platform.ui.ShowModal(list);
  platform.ui.Hide(list);
  if (list.Tag == "Canceled" || list.lstPoints.empty()) return false;
  const std::vector<std::string> pids = SelectedPids(list);
  if (pids.empty()) return false;
  for (std::size_t k = 0; k < pids.size() && k < kMaxExportedPids; ++k) {
    if (pids[k].empty()) break;
    std::string description;
    if (GetDescription(session.dataset.markIndex, session.dataset.DatFile, pids[k], description).empty()) text += description;
  }
  return true;
}

void RunExportCommand(Session& session, Platform& platform) {
  if (!FileExists(session.dataset.DatFile)) {
    platform.ui.MsgBox("No mkdata file open!");
    return;
  }
  frmOutputOptions& options = OutputOptionsForm(session, platform);
  platform.ui.ShowModal(options);
  if (options.Tag == "Canceled") return;
  platform.ui.DoEvents();

  // All marks: the dataset, read from the file as the export goes. Chosen marks: their
  // Descriptions one after another.
  std::unique_ptr<TextBlocks> text;
  std::string chosen;
  if (!options.optSelectedSta) {
    text = std::make_unique<TextBlocks>(TextFile{session.dataset.DatFile});
  } else if (SelectedDescriptions(session, platform, chosen)) {
    text = std::make_unique<TextBlocks>(chosen);
  } else {
    return;
  }
  if (options.chkDB == 1) {
    frmCDT& cdt = CdtForm(session, platform);
    platform.ui.ShowModal(cdt);
    if (cdt.Tag == "Canceled") return;
  }

  FileDialogRequest request;
  request.save = true;
  request.title = "Choose Output File Name";
  request.fileName = FileNameOf(WithoutExtension(session.dataset.DatFile));
  request.initDir = platform.settings.GetSetting("Settings", "LastDatDirectory", "c:\\");
  const std::string outFileName = platform.ui.FileDialog(request);

  std::string ErrMsg;
  ExportFiles(session, platform, *text, outFileName, ErrMsg);
  platform.dlgProcessing.Hide();
  if (!ErrMsg.empty()) platform.ui.MsgBox(ErrMsg, MsgButtons::Ok, MsgIcon::None, "Export Files");
}

// A listing in the viewer at font size 8, which its columns need; back to 10 afterwards.
void ViewListing(Session& session, Platform& platform, const std::string& path, const char* captionHead,
                 const char* fileType, const char* missing) {
  frmView& view = ViewForm(session, platform);
  struct FontBack {
    frmView& view;
    ~FontBack() { view.FontSize = 10; }
  } fontBack{view};
  view.FontSize = 8;
  view.Tag = "View listing";
  if (!FileExists(path)) {
    platform.ui.MsgBox(missing);
    return;
  }
  view.txtViewFile = ReadWholeFile(path);
  view.Caption = captionHead + path;
  view.strFileType = fileType;
  platform.ui.ShowModal(view);
}

}  // namespace

void mnuExport(Session& session, Platform& platform) {
  try {
    RunExportCommand(session, platform);
  } catch (const RuntimeFailure&) {
    // The command's run-time failures, a cancelled save dialog among them, end it without a report.
    platform.dlgProcessing.Hide();
  }
}

void mnuViewHcl(Session& session, Platform& platform) {
  ViewListing(session, platform, session.outputs.HclFile, "Hcl File - ", "hcl", "Hcl file not found!");
}

void mnuViewVcl(Session& session, Platform& platform) {
  ViewListing(session, platform, session.outputs.VclFile, "Vcl File - ", "vcl", "File not found!");
}

}  // namespace benchlog
