#include "app/app_commands.hpp"
#include "app/command_table.hpp"
#include "dataset/dataset_commands.hpp"
#include "dataset/dataset_file_commands.hpp"
#include "view/view_by_class.hpp"

namespace benchlog {

// Each subsystem registers its own menu commands here; a name that no subsystem registers yet
// answers with the not-yet-available message.
CommandTable BuildCommandTable() {
  CommandTable table;
  RegisterAppCommands(table);
  RegisterDatasetCommands(table);
  RegisterDatasetFileCommands(table);
  RegisterViewCommands(table);
  return table;
}

}  // namespace benchlog
