#include "platform/qt/dialog_registry.hpp"

#include <map>
#include <typeindex>

namespace benchlog::qt {
namespace {

std::map<std::type_index, DialogFactory>& Factories() {
  static std::map<std::type_index, DialogFactory> factories;
  return factories;
}

std::map<const DialogModel*, ModelDialog*>& Windows() {
  static std::map<const DialogModel*, ModelDialog*> windows;
  return windows;
}

}  // namespace

void RegisterDialog(const std::type_info& modelType, DialogFactory factory) {
  Factories()[std::type_index(modelType)] = std::move(factory);
}

ModelDialog* DialogFor(DialogModel& model, QWidget* parent) {
  auto& window = Windows()[&model];
  if (window) return window;
  const auto factory = Factories().find(std::type_index(typeid(model)));
  if (factory == Factories().end()) {
    Windows().erase(&model);
    return nullptr;
  }
  window = factory->second(model, parent);
  QObject::connect(window, &QObject::destroyed, [key = &model] { Windows().erase(key); });
  return window;
}

void ForgetDialogs() { Windows().clear(); }

}  // namespace benchlog::qt
