#include "view/character_check.hpp"

#include <array>
#include <cstdio>
#include <memory>
#include <vector>

#include "common/files.hpp"
#include "common/format.hpp"
#include "common/line_writer.hpp"
#include "common/paths.hpp"
#include "common/print_line.hpp"
#include "common/runtime_failure.hpp"
#include "platform/platform.hpp"
#include "session/frm_view.hpp"
#include "session/session.hpp"

namespace benchlog {
namespace {

constexpr const char* kCountPattern = "###,###,##0";
constexpr std::size_t kBytesPerStep = 1000;
constexpr std::size_t kReadBlock = 1 << 20;

// The control characters 0 to 31 by value; LF and CR are only counted.
constexpr std::array<const char*, 32> kControlTypes = {
    "Null",          "Start of heading",  "Start of text",        "End of text",
    "Other",         "Other",             "Acknowledge",          "Bell",
    "Backspace",     "Horizontal tab",    nullptr,                "Vertical tab",
    "Form feed",     nullptr,             "Shift out",            "Shift in",
    "Data link escape", "Device control 1", "Device control 2",   "Device control 3",
    "Device control 4", "Negative acknowledge", "Synchronous idic", "End of transmission block",
    "Cancel",        "End of medium",     "Substitute",           "Escape",
    "File separator", "Group separator",  "Record separator",     "Unit separator"};

std::string Count(std::uint64_t n) { return Format(static_cast<double>(n), kCountPattern); }

// The columns of the head line and of every reported byte.
std::string ReportLine(const std::string& count, const std::string& line, const std::string& column,
                       const std::string& value, const std::string& type) {
  return PrintLine().Write(count).Tab(14).Write(line).Tab(25).Write(column).Tab(34).Write(value).Tab(42).Write(type).Finish();
}

std::string SummaryLine(std::uint64_t n, const char* text) { return PrintLine().Write(Count(n)).Tab(13).Write(text).Finish(); }

const char* Verdict(std::uint64_t carriageReturns, std::uint64_t linefeeds) {
  if (carriageReturns == 0) return linefeeds > 0 ? "This is a UNIX file." : "This may be a binary file.";
  if (carriageReturns == linefeeds) return "This is a DOS file.";
  return "This file is not a text file or file is corrupted.";
}

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};

// The running state of one check.
struct Tally {
  std::uint64_t bytes = 0, carriageReturns = 0, linefeeds = 0, nulls = 0;
  std::uint64_t line = 1, column = 0;
};

// The bar's step at every thousandth byte, while the bar is below its maximum.
void Step(Progress& progress, Ui& ui) {
  if (progress.value >= progress.max) return;
  ++progress.value;
  progress.Refresh();
  ui.DoEvents();
}

}  // namespace

const char* CharacterType(unsigned char byte) {
  if (byte < 32) return kControlTypes[byte];
  if (byte <= 125) return nullptr;
  if (byte == 126) return "Other";
  if (byte == 127) return "Delete";
  if (byte == 176) return "Degree symbol";
  return "Extended ASCII character";
}

std::string CharacterReportName(const std::string& fileName) { return WithoutExtension(fileName) + "-rpt.txt"; }

void CheckFileBytes(const std::string& fileName, const std::string& reportName, Progress& progress, Ui& ui) {
  std::unique_ptr<std::FILE, FileCloser> in(std::fopen(fileName.c_str(), "rb"));
  if (!in || !FileExists(fileName)) throw FileNotFound();
  LineWriter report(reportName);
  report.Write(ReportLine("Character#", "Line#", "Column#", "ASCII#", "Character Type"));

  Tally t;
  std::size_t untilStep = kBytesPerStep;
  std::vector<unsigned char> block(kReadBlock);
  for (std::size_t got; (got = std::fread(block.data(), 1, block.size(), in.get())) > 0;) {
    for (std::size_t i = 0; i < got; ++i) {
      const unsigned char byte = block[i];
      ++t.bytes;
      if (--untilStep == 0) {
        untilStep = kBytesPerStep;
        Step(progress, ui);
      }
      ++t.column;
      if (byte >= 32 && byte <= 125) continue;  // plain text: only its column counts
      if (byte == 10) {
        t.column = 1;
        ++t.line;
        ++t.linefeeds;
      } else if (byte == 13) {
        ++t.carriageReturns;
      } else if (byte == 0) {
        ++t.nulls;
      }
      if (const char* type = CharacterType(byte))
        report.Write(ReportLine(Count(t.bytes), Count(t.line), Count(t.column), Count(byte), type));
    }
  }
  if (std::ferror(in.get())) throw PathFileAccessError();

  report.Write("\r\n");
  report.Write(SummaryLine(t.bytes, "Characters checked."));
  report.Write(SummaryLine(t.carriageReturns, "Carriage returns found."));
  report.Write(SummaryLine(t.linefeeds, "Linefeeds found."));
  report.Write(SummaryLine(t.nulls, "Nulls found."));
  report.WriteLine(Verdict(t.carriageReturns, t.linefeeds));
  report.Close();
}

void mnuFindProbChar(Session& session, Platform& platform) {
  FileDialogRequest request;
  request.filter =
      "Text Files (*.txt;*.dat;*.rpt)|*.txt;*.dat;*.rpt|Unified Description Files (*.ha;*.lst)|*.ha;*.lst|"
      "All Files (*.*)|*.*";
  request.title = "Open Text File";
  request.fileName = platform.settings.GetSetting("Settings", "LastDesFullName", "");
  request.initDir = platform.settings.GetSetting("Settings", "LastDesDirectory", "");
  request.defaultExt = "txt";
  const std::string fileName = platform.ui.FileDialog(request);

  platform.ui.SetHourglass(true);
  const std::string reportName = CharacterReportName(fileName);
  const std::uint64_t length = FileExists(fileName) ? FileLength(fileName) : 0;
  Progress& progress = platform.dlgProcessing;
  if (length > kBytesPerStep) {
    progress.lblProcessing = "Checking file byte-by-byte";
    progress.lblInfo = "This may take some time - be patient...";
    progress.value = 1;
    progress.max = static_cast<int>(length / kBytesPerStep);
    progress.Show();
  }
  CheckFileBytes(fileName, reportName, progress, platform.ui);
  progress.Hide();
  platform.ui.DoEvents();

  frmView& view = ViewForm(session, platform);
  view.txtViewFile = ReadWholeFile(reportName);
  view.Caption = reportName;
  platform.ui.SetHourglass(false);
  platform.ui.ShowModal(view);
}

}  // namespace benchlog
