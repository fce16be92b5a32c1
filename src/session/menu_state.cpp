#include "session/menu_state.hpp"

#include <stdexcept>

namespace benchlog {
namespace {

[[noreturn]] void NoSuchEntry(const std::string& name) {
  throw std::out_of_range("The menu has no entry named \"" + name + "\".");
}

}  // namespace

void MenuState::Declare(const std::string& name, MenuItemState state) { items_[name] = std::move(state); }

MenuItemState& MenuState::operator[](const std::string& name) {
  const auto found = items_.find(name);
  if (found == items_.end()) NoSuchEntry(name);
  return found->second;
}

const MenuItemState& MenuState::At(const std::string& name) const {
  const auto found = items_.find(name);
  if (found == items_.end()) NoSuchEntry(name);
  return found->second;
}

}  // namespace benchlog
