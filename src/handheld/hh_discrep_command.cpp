// "HH Discrepancies via www": every record of an HH file asked of the service, what disagrees with
// the agency's database written to a report beside the file and shown in the editor.
#include <optional>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/line_writer.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "handheld/handheld_commands.hpp"
#include "handheld/hh_discrepancies.hpp"
#include "handheld/hh_record.hpp"
#include "view/frm_edit.hpp"
#include "web/service_address.hpp"
#include "web/web_transfers.hpp"

namespace benchlog {
namespace {

constexpr const char* kTitle = "HH Discrepancies";

std::string ChooseHhFile(Platform& platform) {
  FileDialogRequest request;
  request.title = kTitle;
  request.filter = "Text Files (*.txt)|*.txt";
  request.defaultExt = "txt";
  request.initDir = platform.settings.GetSetting("Settings", "LastDatDirectory", "C:\\");
  return platform.ui.FileDialog(request);
}

// The upper bound of the text split at CR LF: the number of line ends, 0 for an empty text.
int CountLines(const std::string& text) { return static_cast<int>(Split(text, kCrLf).size()) - 1; }

void ShowProgress(Progress& progress, int lines) {
  progress.lblProcessing = "Checking OCO IDB";
  progress.lblInfo = "Please wait...";
  progress.barVisible = true;
  progress.value = 0;
  progress.max = lines;
  progress.Show();
}

// Asks the service about each record and writes the report. False when a request failed.
bool WriteReport(Platform& platform, const std::string& hhPath, LineWriter& report) {
  Progress& progress = platform.dlgProcessing;
  LineReader input(hhPath);
  report.WriteLine(kDiscrepancyReportHead);
  report.WriteLine("");
  std::string line;
  while (input.ReadLine(line)) {
    if (progress.max > progress.value) ++progress.value;
    progress.Refresh();
    const std::vector<std::string> fields = HhFields(line);
    if (fields.size() < 5 || !IsPid(fields[0])) {
      report.WriteLine(fields[0] + " - Invalid PID");
      continue;
    }
    std::string answer, ErrMsg;
    GetUrlRetry(platform, ServiceUrl(platform.settings, DiscrepancyQuery(fields[0])), answer, ErrMsg);
    if (!ErrMsg.empty()) return false;
    report.Write(RecordProblems(fields, answer));
  }
  return true;
}

}  // namespace

void mnuHHDiscrep(Session& session, Platform& platform) {
  Ui& ui = platform.ui;
  Progress& progress = platform.dlgProcessing;
  std::optional<LineWriter> report;
  try {
    const std::string hhPath = ChooseHhFile(platform);
    ShowProgress(progress, CountLines(ReadWholeFile(hhPath)));
    const std::string reportPath = DiscrepancyReportPath(hhPath);
    report.emplace(reportPath);
    const bool answered = WriteReport(platform, hhPath, *report);
    report->Close();
    progress.Hide();
    if (!answered) {
      // The service's own failure text is not shown: the run ends with an empty message.
      ui.MsgBox("");
      return;
    }
    frmEdit& edit = EditForm(session, platform);
    if (!edit.ViewFile(ui, reportPath, false)) return;
    edit.Caption = "HH Script Problems";
    ui.ShowModal(edit);
  } catch (const RuntimeFailure& failure) {
    if (report) report->Abandon();
    progress.Hide();
    ui.SetHourglass(false);
    if (failure.number != kCancelError) ui.MsgBox(failure.description);
  }
}

}  // namespace benchlog
