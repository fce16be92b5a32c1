#pragma once
#include "platform/shell.hpp"

namespace benchlog::qt {

class QtShell final : public Shell {
 public:
  bool OpenWithSystem(const std::string& path) override;
  bool MoveToTrash(const std::string& path) override;
  bool RunSystemInformation() override;
};

}  // namespace benchlog::qt
