#pragma once
// The hand-over from a command that chose its PIDs to the download and the replacement of their
// Descriptions in the dataset. The steps differ by command (backup, length test, compression,
// final message), so the command is named.
#include <string>
#include <vector>

#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

enum class UpdateCommand { County, Radius, Project };

// `pids[0]` is the PID numbered 1, at most 1,000 of them; `notUpdated` counts the marks the keep
// rule refused, for the final message.
void ReplaceDescriptions(Session& session, Platform& platform, const std::vector<std::string>& pids,
                         UpdateCommand command, std::size_t notUpdated);

}  // namespace benchlog
