#pragma once
// The Qt window of frmImage: File with Print and Exit, the scrolled picture, and the combo box of
// the dataset folder's photos that F10 shows. Escape closes it.
#include "platform/platform.hpp"
#include "platform/qt/dialog_registry.hpp"
#include "plot/frm_image.hpp"
#include "plot/ui/map_image_view.hpp"

class QAction;
class QComboBox;

namespace benchlog::qt {

class FrmImageWindow : public ModelDialog {
 public:
  FrmImageWindow(frmImage& model, Platform& platform, QWidget* parent = nullptr);
  void LoadFromModel() override;

  ScrolledPictureWidget* Picture() const { return picture_; }
  QComboBox* cboPicViewer() const { return cboPicViewer_; }
  QAction* mnuPrint() const { return mnuPrint_; }

 protected:
  void keyPressEvent(QKeyEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void done(int result) override;

 private:
  void Layout();
  void ShowCombo();
  void Choose(int index);
  void Print();

  frmImage& model_;
  Platform& platform_;
  QWidget* client_;
  ScrolledPictureWidget* picture_;
  QComboBox* cboPicViewer_;
  QAction* mnuPrint_;
  bool placed_ = false;
};

// Registers the picture window and the map view with the Qt Ui.
void RegisterImageWindows(Platform& platform);

}  // namespace benchlog::qt
