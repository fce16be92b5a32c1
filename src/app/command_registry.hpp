#pragma once
// Every menu command of the program by its menu name.
#include "session/command_table.hpp"

namespace benchlog {

// The table of every command. Each name is an entry of the main menu tree; a name that is not
// (a misspelling) throws std::logic_error naming it, so the program cannot start with it.
CommandTable BuildCommandTable();

}  // namespace benchlog
