#pragma once
// The main window's menu tree in display order: every command name, caption, separator and
// submenu, and which entries start hidden.
#include <string>
#include <vector>

#include "session/menu_state.hpp"

namespace benchlog {

enum class MenuKind { TopLevel, Submenu, Command, Separator };

struct MenuEntry {
  std::string name;     // command name, e.g. "mnuViewHcl"; recent files are "mnuFileMRUItem(1)".."(8)"
  std::string caption;  // "&" marks the access key; empty for separators
  std::string parent;   // name of the top-level menu or submenu it lies in; empty for top level
  MenuKind kind = MenuKind::Command;
  bool initiallyVisible = true;
};

const std::vector<MenuEntry>& MainMenuTree();

// The name of recent-file entry n (1 to 8).
std::string MruItemName(int n);

// Captions, visibility and enabling of every entry as at the start.
void InitMenuState(MenuState& menu);

}  // namespace benchlog
