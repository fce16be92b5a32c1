#pragma once
// The desktop shell: opening a file with the program the system associates with it, and moving a
// file to the trash.
#include <string>

namespace benchlog {

class Shell {
 public:
  virtual ~Shell() = default;
  virtual bool OpenWithSystem(const std::string& path) = 0;
  virtual bool MoveToTrash(const std::string& path) = 0;
  // Starts the system's information tool; false when the system has none.
  virtual bool RunSystemInformation() = 0;
};

}  // namespace benchlog
