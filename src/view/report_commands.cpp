#include "view/report_commands.hpp"

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "common/number_text.hpp"
#include "common/rounding.hpp"
#include "common/text.hpp"
#include "plot/frm_image.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"
#include "view/mark_reports.hpp"

namespace benchlog {
namespace {

void RunReport(Session& session, Platform& platform, const MarkReport& report) {
  const std::vector<std::string> lines = ReportLines(session.dataset.markIndex, report.test);
  if (lines.empty()) {
    platform.ui.MsgBox("None found!", MsgButtons::Ok, MsgIcon::None, report.noneTitle);
    return;
  }
  frmView& view = ViewForm(session, platform);
  view.txtViewFile = ReportText(report.title, lines);
  view.Caption = report.caption;
  platform.ui.ShowModal(view);
  platform.ui.SetHourglass(false);
}

// A file in the viewer at font size 8, which listings need; back to 10 afterwards.
void ViewFileAtSize8(Session& session, Platform& platform, const std::string& path, const std::string& captionHead,
                     const char* missing) {
  frmView& view = ViewForm(session, platform);
  view.FontSize = 8;
  view.Tag = "View listing";
  if (FileExists(path)) {
    view.txtViewFile = ReadWholeFile(path);
    view.Caption = captionHead + path;
    platform.ui.ShowModal(view);
  } else {
    platform.ui.MsgBox(missing);
  }
  view.FontSize = 10;
}

// The marks whose flag column holds "Y", picked in frmSelectPoints; the picture of the first
// selected one in frmImage when its file exists.
void ViewPicture(Session& session, Platform& platform, std::size_t flagColumn, const char* suffix) {
  auto& list = session.forms.Get<FrmSelectPoints>();
  list.Clear();
  list.caption = "Select Photo to View";
  for (const auto& element : session.dataset.markIndex.Elements())
    if (Mid(element, flagColumn, 1) == "Y") list.AddItem(SelectionItemOfRecord(element));
  list.Tag = "Canceled";
  platform.ui.ShowModal(list);
  platform.ui.Hide(list);
  if (list.Tag == "Canceled") return;
  for (std::size_t i = 0; i < list.lstPoints.size(); ++i) {
    if (!list.Selected(i)) continue;
    const std::string path = session.dataset.DatFilePath + FrmSelectPoints::PidOfItem(list.lstPoints[i]) + suffix;
    if (!FileExists(path)) return;
    if (!platform.pictures) throw RuntimeFailure(481, "Invalid picture");
    frmImage& image = session.forms.Get<frmImage>();
    image.LoadPic(*platform.pictures, path);
    platform.ui.ShowModal(image);
    return;
  }
}

}  // namespace

void mnuViewPhotoList(Session& s, Platform& p) { RunReport(s, p, PhotoReport()); }
void mnuViewSketchList(Session& s, Platform& p) { RunReport(s, p, SketchReport()); }
void mnuPostedHts(Session& s, Platform& p) { RunReport(s, p, PostedHeightsReport()); }
void mnuBmNotGPSed(Session& s, Platform& p) { RunReport(s, p, NotPositionedReport()); }
void mnuRecNotPhoto(Session& s, Platform& p) { RunReport(s, p, NotPhotographedReport()); }

void mnuNotSearched(Session& session, Platform& platform) {
  const std::string answer = platform.ui.InputBox("Enter number of years (1-100):", "Marks Not Searched For", "10");
  const int years = CInt(Val(answer));
  if (years == 0) return;
  RunReport(session, platform, NotSearchedReport(years, platform.clock.CurrentYear()));
}

void mnuPrintNRList(Session& session, Platform& platform) {
  const std::string agency = UCase(Trim(platform.ui.InputBox(
      "Enter agency symbol:  Ex: OCO\r\nor blank for all not recovered marks", "Not Recovered List", "")));
  RunReport(session, platform, NotRecoveredReport(agency));
}

void mnuViewError(Session& session, Platform& platform) {
  ViewFileAtSize8(session, platform, session.outputs.ErrFile, "Err File - ", "File not found!");
}

void mnuViewPhoto(Session& session, Platform& platform) { ViewPicture(session, platform, 112, "ph.jpg"); }
void mnuViewSketch(Session& session, Platform& platform) { ViewPicture(session, platform, 114, "sk.jpg"); }

void mnuViewText(Session& session, Platform& platform) {
  FileDialogRequest request;
  request.filter = "*.txt|*.txt";
  const std::string path = platform.ui.FileDialog(request);
  if (!FileExists(path)) {
    platform.ui.MsgBox("File not found!");
    return;
  }
  frmView& view = ViewForm(session, platform);
  view.txtViewFile = ReadWholeFile(path);
  view.Caption = "Text File";
  view.placement.state = kMaximized;
  platform.ui.ShowModal(view);
}

}  // namespace benchlog
