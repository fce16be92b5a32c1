#pragma once
// The Qt windows of the editor's two small dialogs: dlgText (a label, the one-line txtEntry whose
// keys the model filters, OK and Cancel) and diaReplace (Find, Replace, Replace Once or All, OK
// and Cancel). Esc and the close box are Cancel.
#include "platform/qt/dialog_registry.hpp"
#include "view/dia_replace.hpp"
#include "view/dlg_text.hpp"

class QLabel;
class QLineEdit;
class QRadioButton;

namespace benchlog::qt {

class DlgTextWindow final : public ModelDialog {
 public:
  DlgTextWindow(dlgText& model, QWidget* parent);
  void LoadFromModel() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void reject() override;

 private:
  void Finish(bool okay);

  dlgText& model_;
  QLabel* label_ = nullptr;
  QLineEdit* txtEntry_ = nullptr;
};

class DiaReplaceWindow final : public ModelDialog {
 public:
  DiaReplaceWindow(diaReplace& model, QWidget* parent);
  void LoadFromModel() override;

 protected:
  void reject() override;

 private:
  void Finish(bool okay);

  diaReplace& model_;
  QLineEdit* txtFind_ = nullptr;
  QLineEdit* txtReplace_ = nullptr;
  QRadioButton* optReplaceOnce_ = nullptr;
  QRadioButton* optReplaceAll_ = nullptr;
};

}  // namespace benchlog::qt
