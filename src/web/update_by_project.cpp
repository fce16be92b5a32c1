#include "web/update_by_project.hpp"

#include "common/text.hpp"
#include "web/dlg_type_control.hpp"
#include "web/keep_rule.hpp"
#include "web/mark_list_lines.hpp"
#include "web/replacement_sequence.hpp"
#include "web/service_address.hpp"
#include "web/station_choice.hpp"
#include "web/web_transfers.hpp"

namespace benchlog {
namespace {

// Every record of the project list (PID at 7-12, order codes at 14 and 16) through the keep rule.
KeptPids KeptProjectMarks(const MarkIndex& markIndex, const std::string& answer) {
  KeptPids kept;
  for (const std::string_view line : SplitViews(answer, "\n")) {
    if (!IsProjectRecord(line)) continue;
    const std::string pid = Mid(line, 7, 6);
    if (KeepRuleFetches(markIndex, pid, Mid(line, 14, 1), Mid(line, 16, 1))) kept.pids.push_back(pid);
    else ++kept.notUpdated;
  }
  return kept;
}

// The message ends the run with the pointer normal (the list's transfer left the hourglass on).
void EndWith(Platform& platform, const std::string& text, MsgIcon icon = MsgIcon::None,
             const std::string& title = "Benchlog") {
  platform.ui.SetHourglass(false);
  platform.ui.MsgBox(text, MsgButtons::Ok, icon, title);
}

}  // namespace

void mnuUpdtbyProj(Session& session, Platform& platform) {
  if (RefusedForReplacement(ReplaceCommand::kProject, session.dataset.DatFile, platform.ui)) return;
  const std::string project = UCase(platform.ui.InputBox(std::string("Enter Project ID:") + kCrLf + "Example: L26500",
                                                         "Import From Internet by Project ID", ""));
  if (project.empty()) return;

  auto& types = session.forms.Get<dlgTypeControl>();
  platform.ui.ShowModal(types);
  if (types.Tag == "Canceled") return;
  platform.ui.SetHourglass(true);
  std::string answer, ErrMsg;
  GetUrlOnce(platform,
             ServiceUrl(platform.settings, "/cgi-bin/get_mark_list.prl?1=PROJECT&2=" + project + "&3=N&4=" + types.Tag),
             answer, ErrMsg);
  if (!ErrMsg.empty()) return EndWith(platform, ErrMsg);

  const KeptPids kept = KeptProjectMarks(session.dataset.markIndex, answer);
  if (kept.pids.size() > kMaxUpdatedStations)
    return EndWith(platform, std::string("Over 1000 stations found.") + kCrLf + "Select a smaller project!");
  if (kept.pids.empty()) return EndWith(platform, "No stations found!", MsgIcon::Critical, "Import From Internet");
  platform.ui.SetHourglass(false);
  if (platform.ui.MsgBox(StationsFound(kept.pids.size()) + kCrLf + "Continue?", MsgButtons::YesNo, MsgIcon::None,
                         kConfirmTitle) == MsgResult::No)
    return;
  ReplaceDescriptions(session, platform, kept.pids, UpdateCommand::Project, kept.notUpdated);
}

}  // namespace benchlog
