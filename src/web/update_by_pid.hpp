#pragma once
// Updating the dataset from the service by a typed list of PIDs, and with all CORS stations of a
// state; both end in the replacement of Descriptions.
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.hpp"
#include "session/session.hpp"
#include "web/replacement_sequence.hpp"

namespace benchlog {

inline constexpr std::size_t kMaxTypedPids = 1000;

// mnuUpdateByPID: the PIDs typed one a line into the viewer (caption "Enter list of PIDs (1000
// Maximum):"), taken as typed: no capitals made, and an empty line is an entry of its own. More
// than 1,000 lines are refused with "Too many PIDs!".
void mnuUpdateByPID(Session& session, Platform& platform, const ReplacementOptions& options = {});

// The PIDs of the service's CORS answer: the answer in capitals, split on CR LF; every line that
// starts with "<TR><TD>" gives the line without "<TR><TD>" and "</TD></TR>".
std::vector<std::string> CorsPidsOfAnswer(std::string_view answer);

// The CORS stations of the state `stateCode` (two letters): their list from the service, then the
// replacement. A failure of the list is shown (critical, "Get Data From Internet") and ends it.
void UpdateCorsOfState(const std::string& stateCode, Session& session, Platform& platform,
                       const ReplacementOptions& options = {});

// mnuCORSbyST: the read-only and line-end refusals, the state from frmOptions, then
// UpdateCorsOfState.
void mnuCORSbyST(Session& session, Platform& platform);

}  // namespace benchlog
