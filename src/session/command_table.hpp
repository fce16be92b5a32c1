#pragma once
// The menu commands by name. The main window's menu only asks the table to run a command; the
// table traps failures at the command level as the program does everywhere: a cancelled file
// dialog ends the command silently, any other failure hides the progress dialog and shows its text.
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "session/session.hpp"
#include "platform/platform.hpp"

namespace benchlog {

using Command = std::function<void(Session&, Platform&)>;

class CommandTable {
 public:
  void Register(const std::string& name, Command command);
  bool Has(const std::string& name) const;
  std::vector<std::string> Names() const;
  // Runs the named command; a name that has none is a wiring fault (std::logic_error).
  void Run(const std::string& name, Session& session, Platform& platform) const;

 private:
  std::map<std::string, Command> commands_;
};

}  // namespace benchlog
