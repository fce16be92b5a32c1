#pragma once
// The main window's own commands: opening a dataset or a county file, the recent files, the
// colours, help, about and exit.
#include "app/command_table.hpp"

namespace benchlog {

void RegisterAppCommands(CommandTable& table);

}  // namespace benchlog
