#include "web/update_by_pid.hpp"

#include "common/text.hpp"
#include "session/frm_view.hpp"
#include "web/service_address.hpp"
#include "web/state_choice.hpp"
#include "web/web_transfers.hpp"

namespace benchlog {
namespace {

constexpr long kPidListHeight = 2000;  // twips

// The text typed into the viewer, "" when the user typed nothing.
std::string AskForPids(Session& session, Platform& platform) {
  frmView& view = ViewForm(session, platform);
  const WindowPlacement placement = view.placement;
  view.txtViewFile.clear();
  view.Tag.clear();  // no mark's pictures on offer
  view.Caption = "Enter list of PIDs (1000 Maximum):";
  view.placement.state = kNormal;
  view.placement.height = kPidListHeight;
  view.centreOnce = true;
  platform.ui.ShowModal(view);
  view.placement = placement;
  return view.txtViewFile;
}

bool NoDataset(const Session& session, Platform& platform) {
  if (!session.dataset.DatFile.empty()) return false;
  platform.ui.MsgBox("No mkdata file specified!");
  return true;
}

}  // namespace

void mnuUpdateByPID(Session& session, Platform& platform, const ReplacementOptions& options) {
  if (NoDataset(session, platform)) return;
  if (RefusedForReplacement(ReplaceCommand::kByPid, session.dataset.DatFile, platform.ui)) return;
  const std::string typed = AskForPids(session, platform);
  if (typed.empty()) return;
  std::vector<std::string> pids = Split(typed, kCrLf);
  platform.ui.SetHourglass(true);
  if (pids.size() > kMaxTypedPids) {
    platform.ui.SetHourglass(false);
    platform.ui.MsgBox("Too many PIDs!", MsgButtons::Ok, MsgIcon::None, "Get data from internet");
    return;
  }
  ReplaceDescriptionsOf(ReplaceCommand::kByPid, pids, 0, session.dataset, platform, options);
}

std::vector<std::string> CorsPidsOfAnswer(std::string_view answer) {
  std::vector<std::string> pids;
  for (const std::string& line : Split(UCase(answer), kCrLf))
    if (StartsWith(line, "<TR><TD>")) pids.push_back(ReplaceAll(ReplaceAll(line, "<TR><TD>", ""), "</TD></TR>", ""));
  return pids;
}

void UpdateCorsOfState(const std::string& stateCode, Session& session, Platform& platform,
                       const ReplacementOptions& options) {
  platform.ui.SetHourglass(true);
  std::string answer, errMsg;
  GetUrlRetry(platform, ServiceUrl(platform.settings, "/CORS-Proxy/get_cities/corspid?st=" + stateCode), answer,
              errMsg);
  if (!errMsg.empty()) {
    platform.ui.SetHourglass(false);
    platform.ui.MsgBox(errMsg, MsgButtons::Ok, MsgIcon::Critical, "Get Data From Internet");
    return;
  }
  ReplaceDescriptionsOf(ReplaceCommand::kCorsByState, CorsPidsOfAnswer(answer), 0, session.dataset, platform, options);
}

void mnuCORSbyST(Session& session, Platform& platform) {
  if (NoDataset(session, platform)) return;
  if (RefusedForReplacement(ReplaceCommand::kCorsByState, session.dataset.DatFile, platform.ui)) return;
  const std::string stateCode = Left(ChooseState(session, platform).cboChoices, 2);
  UpdateCorsOfState(stateCode, session, platform);
}

}  // namespace benchlog
