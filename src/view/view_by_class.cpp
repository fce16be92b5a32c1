#include "view/view_by_class.hpp"

#include <utility>
#include <vector>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/description_file.hpp"
#include "view/class_filter.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kMaxViewedPids = 10000;

// The viewer with the Descriptions' text, maximised, over the main window.
void ShowDescriptions(Session& session, Platform& platform, const std::string& text, const std::string& pid) {
  frmView& view = ViewForm(session, platform);
  view.txtViewFile = text;
  view.BackColor = session.shell.backColor;
  view.Caption = "View Description(s)";
  view.Tag = pid;
  view.placement.state = kMaximized;
  view.strFileType = "dat";
  platform.ui.ShowModal(view);
}

// The PIDs of the selected items in list order, as far as the first empty one.
std::vector<std::string> SelectedPids(const FrmSelectPoints& list) {
  std::vector<std::string> pids;
  for (std::size_t i = 0; i < list.lstPoints.size(); ++i) {
    if (!list.Selected(i)) continue;
    if (pids.size() == kMaxViewedPids) throw SubscriptOutOfRange();
    pids.push_back(FrmSelectPoints::PidOfItem(list.lstPoints[i]));
  }
  return pids;
}

}  // namespace

void ViewDescriptionsByClass(Session& session, Platform& platform, int classCode) {
  auto& list = session.forms.Get<FrmSelectPoints>();
  list.Clear();
  list.caption = "Select Point(s) to View";
  list.backColor = session.shell.backColor;
  list.foreColor = session.shell.foreColor;
  if (session.dataset.markIndex.Empty()) throw SubscriptOutOfRange();
  for (const auto& element : session.dataset.markIndex.Elements())
    if (PassesClassTest(element, classCode)) list.AddItem(SelectionItemOfRecord(element));

  list.Tag = "Canceled";
  platform.ui.ShowModal(list);
  platform.ui.Hide(list);
  if (list.Tag == "Canceled" || list.lstPoints.empty()) return;

  const std::vector<std::string> pids = SelectedPids(list);
  if (pids.empty() || pids.back().empty()) return;
  std::string text;
  for (const auto& pid : pids) {
    if (pid.empty()) break;
    std::string description;
    const std::string error = GetDescription(session.dataset.markIndex, session.dataset.DatFile, pid, description);
    if (!error.empty()) {
      platform.ui.MsgBox(error);
      return;
    }
    text += description;
  }
  ShowDescriptions(session, platform, text, pids.front());
}

void mnuLocByPid(Session& session, Platform& platform) {
  const std::string pid = UCase(platform.ui.InputBox("Enter PID:", "Get Description by PID", ""));
  if (pid.empty()) return;
  std::string text;
  const std::string error = GetDescription(session.dataset.markIndex, session.dataset.DatFile, pid, text);
  if (!error.empty()) {
    platform.ui.MsgBox(error);
    return;
  }
  ShowDescriptions(session, platform, text, pid);
}

}  // namespace benchlog
