#pragma once
// The state of the main window's menu entries by command name ("mnuViewHcl"): caption, visible,
// enabled, checked. The menu tree declares every entry at start; commands change them and the
// window shows them.
#include <map>
#include <string>

namespace benchlog {

struct MenuItemState {
  std::string caption;
  bool visible = true;
  bool enabled = true;
  bool checked = false;
};

class MenuState {
 public:
  // Declares an entry, or sets it anew when it is declared already.
  void Declare(const std::string& name, MenuItemState state);
  // The declared entry of that name. A name the menu tree never declared is a misspelling in the
  // program: it throws std::out_of_range naming it, so the command fails with that text.
  MenuItemState& operator[](const std::string& name);
  const MenuItemState& At(const std::string& name) const;
  bool Has(const std::string& name) const { return items_.count(name) != 0; }
  const std::map<std::string, MenuItemState>& Items() const { return items_; }

 private:
  std::map<std::string, MenuItemState> items_;
};

}  // namespace benchlog
