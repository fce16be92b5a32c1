#include "session/command_table.hpp"

#include <stdexcept>

#include "common/runtime_failure.hpp"

namespace benchlog {

void CommandTable::Register(const std::string& name, Command command) { commands_[name] = std::move(command); }

bool CommandTable::Has(const std::string& name) const { return commands_.count(name) != 0; }

std::vector<std::string> CommandTable::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : commands_) names.push_back(entry.first);
  return names;
}

void CommandTable::Run(const std::string& name, Session& session, Platform& platform) const {
  const auto found = commands_.find(name);
  if (found == commands_.end()) throw std::logic_error("No command is registered as \"" + name + "\".");
  try {
    session.supportFiles.Refresh(platform.paths.supportPath, platform.clock.Now());
    found->second(session, platform);
  } catch (const RuntimeFailure& failure) {
    platform.ui.SetHourglass(false);
    platform.dlgProcessing.Hide();
    if (failure.number != kCancelError) platform.ui.MsgBox(failure.description);
  } catch (const std::exception& failure) {
    platform.ui.SetHourglass(false);
    platform.dlgProcessing.Hide();
    platform.ui.MsgBox(failure.what());
  }
}

}  // namespace benchlog
