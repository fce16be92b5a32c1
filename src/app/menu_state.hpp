#pragma once
// The state of the main window's menu entries by command name ("mnuViewHcl"): caption, visible,
// enabled, checked. Commands change it; the window shows it.
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
  MenuItemState& operator[](const std::string& name) { return items_[name]; }
  const MenuItemState& At(const std::string& name) const { return items_.at(name); }
  bool Has(const std::string& name) const { return items_.count(name) != 0; }
  const std::map<std::string, MenuItemState>& Items() const { return items_; }

 private:
  std::map<std::string, MenuItemState> items_;
};

}  // namespace benchlog
