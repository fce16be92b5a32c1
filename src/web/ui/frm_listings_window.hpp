#pragma once
// The Qt window of frmListings: the multiple-choice list lstChoices and the button "Ok" below it,
// placed by the model's layout whenever the window is resized. Ok hides the window; Esc and the
// close box unload the model, which empties the list.
#include "platform/qt/dialog_registry.hpp"
#include "web/frm_listings.hpp"

class QListWidget;
class QPushButton;

namespace benchlog::qt {

class FrmListingsWindow final : public ModelDialog {
 public:
  FrmListingsWindow(frmListings& model, QWidget* parent);
  void LoadFromModel() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void reject() override;

 private:
  void TakePosition();

  frmListings& model_;
  QListWidget* lstChoices_;
  QPushButton* cmdOkay_;
};

}  // namespace benchlog::qt
