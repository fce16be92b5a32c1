#pragma once
// The Qt window of frmSelectPoints: a multi-selection list that fills the dialog, the label above
// it and the Select All, Cancel and Okay buttons below.
#include "platform/qt/dialog_registry.hpp"
#include "session/frm_select_points.hpp"

class QLabel;
class QListWidget;
class QPushButton;

namespace benchlog::qt {

class FrmSelectPointsWindow final : public ModelDialog {
 public:
  FrmSelectPointsWindow(FrmSelectPoints& model, QWidget* parent);
  void LoadFromModel() override;

 protected:
  void changeEvent(QEvent* event) override;
  void reject() override;  // Esc and the close box cancel

 private:
  void StoreSelection();
  void ShowSelection();
  void Finish(bool okay);

  FrmSelectPoints& model_;
  QLabel* lblPoints_;
  QListWidget* lstPoints_;
  QPushButton* selectAll_ = nullptr;
};

}  // namespace benchlog::qt
