#pragma once
// The Qt window of frmGetFile: the current folder with a button to change it, and the folder's
// dataset files in a multi-selection list.
#include "dataset/frm_get_file.hpp"
#include "platform/qt/dialog_registry.hpp"

class QLabel;
class QListWidget;

namespace benchlog::qt {

class FrmGetFileWindow final : public ModelDialog {
 public:
  FrmGetFileWindow(FrmGetFile& model, QWidget* parent);
  void LoadFromModel() override;
  // Moves the list to another folder, as choosing one in the folder dialog does.
  void ChangeFolder(const QString& folder);

 protected:
  void reject() override;

 private:
  void Finish(bool okay);

  FrmGetFile& model_;
  QLabel* lblFolder_;
  QListWidget* lstFiles_;
};

}  // namespace benchlog::qt

namespace benchlog {
// Registers the dataset subsystem's windows.
void RegisterDatasetDialogs();
}  // namespace benchlog
