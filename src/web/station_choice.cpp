#include "web/station_choice.hpp"

#include "common/text.hpp"
#include "web/keep_rule.hpp"

namespace benchlog {

KeptPids KeptSelection(const MarkIndex& markIndex, const frmListings& listings) {
  KeptPids kept;
  for (std::size_t i = 0; i < listings.lstChoices.size(); ++i) {
    if (!listings.Selected(i)) continue;
    const std::string& entry = listings.lstChoices[i];
    if (KeepRuleFetches(markIndex, Left(entry, 6), Mid(entry, 8, 1), Mid(entry, 10, 1)))
      kept.pids.push_back(Left(entry, 6));
    else
      ++kept.notUpdated;
  }
  return kept;
}

std::string StationsFound(std::size_t count) { return " " + std::to_string(count) + " stations found."; }

void ChooseStationsAndReplace(Session& session, Platform& platform, const std::vector<std::string>& entries,
                              UpdateCommand command) {
  auto& listings = session.forms.Get<frmListings>();
  if (!listings.Loaded) listings.Load(platform.settings);
  listings.Clear();
  for (const std::string& entry : entries) listings.AddItem(entry);
  listings.SetUpForRun();
  platform.ui.SetHourglass(false);
  platform.ui.ShowModal(listings);
  if (listings.lstChoices.empty()) return;

  const KeptPids kept = KeptSelection(session.dataset.markIndex, listings);
  if (kept.pids.size() > kMaxUpdatedStations) {
    platform.ui.MsgBox(StationsFound(kept.pids.size()) + kCrLf + "Select fewer stations!");
    platform.ui.SetHourglass(false);
    return;
  }
  // The answer is not looked at: No goes on as Yes does.
  platform.ui.MsgBox(StationsFound(kept.pids.size()) + kCrLf + "Continue?", MsgButtons::YesNo, MsgIcon::None,
                     kConfirmTitle);
  ReplaceDescriptions(session, platform, kept.pids, command, kept.notUpdated);
}

}  // namespace benchlog
