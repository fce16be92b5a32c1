#include "app/app_commands.hpp"

namespace benchlog {

void RegisterAppCommands(CommandTable&) {}

}  // namespace benchlog
