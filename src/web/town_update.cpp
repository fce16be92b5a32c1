#include "web/town_update.hpp"

#include "common/files.hpp"
#include "common/line_writer.hpp"
#include "common/print_line.hpp"
#include "common/sort_by_column.hpp"
#include "common/text.hpp"
#include "common/text_checks.hpp"
#include "support_files/towns_file.hpp"
#include "web/replacement_rules.hpp"
#include "web/service_address.hpp"
#include "web/state_choice.hpp"
#include "web/web_transfers.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kPositionColumn = 30;
constexpr std::size_t kIdentityWidth = 32;
constexpr const char* kTitle = "Get Towns From OCO";

void ShowCaptions(Progress& progress, const char* processing) {
  progress.lblProcessing = processing;
  progress.lblInfo = "Please wait...";
  progress.Refresh();
}

}  // namespace

std::string TownTextOfRow(std::string_view line) {
  const std::string row = LTrim(line);
  if (!StartsWith(row, "<TR><TD>")) return "";
  const std::vector<std::string> cells = Split(StripHtmlTags(ReplaceAll(row, "</TD><TD>", "|")), "|");
  const auto cell = [&cells](std::size_t i) { return i < cells.size() ? cells[i] : std::string(); };
  return PrintLine().Write(cell(0)).Tab(kPositionColumn).Write(Mid(cell(1), 2)).Write(Mid(cell(2), 2)).Finish();
}

MergedTowns MergeTowns(std::string_view text) {
  MergedTowns merged;
  std::vector<std::string> lines = Split(text, kCrLf);
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  for (std::string& line : lines) line = ReplaceAll(line, "\n", "");
  SortByColumn(lines, 1);
  std::string last;
  for (std::string& line : lines) {
    if (Left(line, kIdentityWidth) == Left(last, kIdentityWidth)) {
      ++merged.dropped;
      continue;
    }
    last = line;
    merged.lines.push_back(std::move(line));
  }
  return merged;
}

void GetTownsOfState(const std::string& stateCode, Platform& platform) {
  Progress& progress = platform.dlgProcessing;
  progress.barVisible = false;
  progress.lblProcessing = "Retrieving data ...";
  progress.lblInfo = "Please wait...";
  progress.Show();
  platform.ui.SetHourglass(true);
  std::string answer, errMsg;
  GetUrlRetry(platform, ServiceUrl(platform.settings, "/CORS-Proxy/get_cities/stcity?ST=" + stateCode), answer,
              errMsg);
  if (answer.empty() && errMsg.empty()) errMsg = kNoDataReturned;
  if (!errMsg.empty()) {
    platform.ui.MsgBox(errMsg, MsgButtons::Ok, MsgIcon::Critical, kTitle);
    progress.Hide();
    return;
  }
  ShowCaptions(progress, "Saving data to file");
  const std::string path = platform.paths.supportPath + kTownsFileName;
  std::string text = FileExists(path) ? ReadWholeFile(path) : std::string();
  long count = 0;
  for (const std::string& line : Split(UCase(answer), kCrLf)) {
    const std::string town = TownTextOfRow(line);
    if (town.empty()) continue;
    text += town;
    ++count;
  }
  const MergedTowns merged = MergeTowns(text);
  LineWriter out(path);  // the whole file anew, beside the old one until it is whole
  for (const std::string& line : merged.lines) out.WriteLine(line);
  out.Close();
  count -= static_cast<long>(merged.dropped);
  platform.ui.SetHourglass(false);
  progress.Hide();
  platform.ui.MsgBox(std::to_string(count) + " New towns added.");
}

void mnuGetTownOCO(Session& session, Platform& platform) {
  const frmOptions& states = ChooseState(session, platform);
  if (states.Tag.empty()) return;
  GetTownsOfState(Left(states.cboChoices, 2), platform);
}

}  // namespace benchlog
