#pragma once
// Which Qt window renders which model. Each subsystem's ui folder registers its windows once at
// start; the Qt Ui then makes one window per model on first show and keeps it, as the program's
// one-instance windows are kept loaded and hidden.
#include <QDialog>
#include <functional>
#include <typeinfo>

#include "platform/dialog_model.hpp"

namespace benchlog::qt {

// A window that renders a model: it fills itself from the model before each show and writes the
// user's edits back into the model as they happen, so the model is current when the show ends.
class ModelDialog : public QDialog {
 public:
  using QDialog::QDialog;
  virtual void LoadFromModel() = 0;
};

using DialogFactory = std::function<ModelDialog*(DialogModel& model, QWidget* parent)>;

void RegisterDialog(const std::type_info& modelType, DialogFactory factory);

template <class Model, class Window>
void RegisterDialog() {
  RegisterDialog(typeid(Model), [](DialogModel& model, QWidget* parent) -> ModelDialog* {
    return new Window(static_cast<Model&>(model), parent);
  });
}

// The window of a model, made on first use with `parent`; nullptr when no window is registered.
ModelDialog* DialogFor(DialogModel& model, QWidget* parent);
// Forgets the window of a model (the window deletes itself with its parent).
void ForgetDialogs();

}  // namespace benchlog::qt
