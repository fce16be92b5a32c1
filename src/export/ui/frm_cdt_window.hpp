#pragma once
// The Qt window of frmCDT, "Create Microsoft Access Database": the three choices of marks, the
// column boxes, the superseded frame, units and zones, and Check All, Clear All, Okay and Cancel.
// Every edit goes straight into the model; after a button the window shows the model again.
#include <map>
#include <string>

#include "export/frm_cdt.hpp"
#include "platform/qt/dialog_registry.hpp"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QRadioButton;

namespace benchlog::qt {

class FrmCdtWindow final : public ModelDialog {
 public:
  FrmCdtWindow(frmCDT& model, QWidget* parent);
  void LoadFromModel() override;

  // The control of that name ("chkUTM", "Optvert", "cboUTMZone", "cmdCheckAll").
  QWidget* Control(const std::string& name) const;

 protected:
  void reject() override;  // Esc and the close box cancel

 private:
  QRadioButton* Option(QWidget* parent, const char* name, const char* caption);
  void ShowModel();
  void TakePosition();
  void Finish(bool okay);

  frmCDT& model_;
  std::map<std::string, QWidget*> controls_;
  std::map<QCheckBox*, const frmCDT::Box*> boxes_;
  QRadioButton *OptHoriz_, *Optvert_, *optBoth_, *optUSFt_, *optMeters_, *optIFt_;
  QButtonGroup *marks_, *units_;
  QComboBox *cboSPCZone_, *cboUTMZone_;
  bool filling_ = false;
};

}  // namespace benchlog::qt
