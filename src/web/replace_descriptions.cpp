#include "web/replace_descriptions.hpp"

#include "web/replacement_sequence.hpp"

namespace benchlog {

void ReplaceDescriptions(Session& session, Platform& platform, const std::vector<std::string>& pids,
                         UpdateCommand command, std::size_t notUpdated) {
  static constexpr ReplaceCommand kCommands[] = {ReplaceCommand::kCounty, ReplaceCommand::kRadius,
                                                 ReplaceCommand::kProject};
  ReplaceDescriptionsOf(kCommands[static_cast<int>(command)], pids, notUpdated, session.dataset, platform);
}

}  // namespace benchlog
