#pragma once
// The Qt window of dlgLatLonRad, "Import By Location": the boxes Text1(0) to Text1(2) under their
// labels, OK and Cancel. Typed keys go through the model's key filter (Enter moves on to the next
// box); a box that gets the focus selects all but its hemisphere letter. Esc and the close box are
// Cancel.
#include <array>

#include "platform/qt/dialog_registry.hpp"
#include "web/dlg_lat_lon_rad.hpp"

class QLineEdit;

namespace benchlog::qt {

class DlgLatLonRadWindow final : public ModelDialog {
 public:
  DlgLatLonRadWindow(dlgLatLonRad& model, QWidget* parent);
  void LoadFromModel() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;  // the focus of a box
  void reject() override;

 private:
  void Finish(bool okay);

  dlgLatLonRad& model_;
  std::array<QLineEdit*, 3> Text1_{};
  bool filling_ = false;
};

}  // namespace benchlog::qt
