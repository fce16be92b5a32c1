#pragma once
// The Qt window of frmOutputOptions: which marks, which outputs, the map options, the plotting
// scale (shown only with the Microstation box), the units of coordinates and elevations and the
// state plane zone, with Okay and Cancel. Every edit goes straight into the model.
#include <map>
#include <string>

#include "export/frm_output_options.hpp"
#include "platform/qt/dialog_registry.hpp"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QRadioButton;

namespace benchlog::qt {

class FrmOutputOptionsWindow final : public ModelDialog {
 public:
  FrmOutputOptionsWindow(frmOutputOptions& model, QWidget* parent);
  void LoadFromModel() override;

  // The control of that name ("chkHoriz", "optFeet", "cboProjZone", "fraScale", "cmdOkay").
  QWidget* Control(const std::string& name) const;

 protected:
  void reject() override;  // Esc and the close box cancel

 private:
  QCheckBox* Check(QWidget* parent, const char* name, const char* caption, int frmOutputOptions::*value);
  QRadioButton* Option(QWidget* parent, const char* name, const char* caption);
  void TakeOptions();
  void TakePosition();
  void Finish(bool okay);

  frmOutputOptions& model_;
  std::map<std::string, QWidget*> controls_;
  std::map<QCheckBox*, int frmOutputOptions::*> checks_;
  QRadioButton *optAllSta_, *optSelectedSta_, *optFeet_, *optMeters_, *optUTM_, *optElFeet_, *optElM_;
  QButtonGroup *stations_, *units_, *elevations_;
  QGroupBox* fraScale_;
  QComboBox *cboScale_, *cboProjZone_;
  bool filling_ = false;
};

}  // namespace benchlog::qt
