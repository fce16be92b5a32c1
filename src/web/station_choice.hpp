#pragma once
// The end shared by the county and radius commands: the user picks stations from the list, the keep
// rule sorts them, and the PIDs that pass go on to the replacement after a confirmation.
#include <string>
#include <vector>

#include "platform/platform.hpp"
#include "session/session.hpp"
#include "web/frm_listings.hpp"
#include "web/replace_descriptions.hpp"

namespace benchlog {

inline constexpr std::size_t kMaxUpdatedStations = 1000;
inline constexpr const char* kConfirmTitle = "Get Descriptions from OCO";

// " 12 stations found.": the count with the blank a number's sign takes.
std::string StationsFound(std::size_t count);

// The PIDs the keep rule lets through, in order, and how many it refused.
struct KeptPids {
  std::vector<std::string> pids;
  std::size_t notUpdated = 0;
};

// The selected entries of `listings` (PID at 1-6, order codes at 8 and 10) through the keep rule.
KeptPids KeptSelection(const MarkIndex& markIndex, const frmListings& listings);

// Shows frmListings with `entries` (choice entries: PID at 1-6, order codes at 8 and 10), the
// pointer normal. An empty list ends the run. The selected entries pass the keep rule; more than
// 1,000 that pass end the run with a message. The confirmation is asked, and whatever the answer,
// the PIDs go on to ReplaceDescriptions.
void ChooseStationsAndReplace(Session& session, Platform& platform, const std::vector<std::string>& entries,
                              UpdateCommand command);

}  // namespace benchlog
