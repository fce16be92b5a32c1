#pragma once
// The Qt window of dlgDelimAndType, "Import Delimited File": the sample line, the delimiter, the ten
// column slots, the attributes and the state plane frame, OK and Cancel. Every key typed in a box
// goes through the model's key filter; Esc and the close box are Cancel.
#include <array>

#include "handheld/dlg_delim_and_type.hpp"
#include "platform/platform.hpp"
#include "platform/qt/dialog_registry.hpp"

class QComboBox;
class QGroupBox;
class QLineEdit;

namespace benchlog::qt {

class DlgDelimAndTypeWindow final : public ModelDialog {
 public:
  DlgDelimAndTypeWindow(dlgDelimAndType& model, Platform& platform, QWidget* parent);
  void LoadFromModel() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;  // the key filter
  void reject() override;

 private:
  QComboBox* Combo(const char* name, std::string* text);
  void Fill(QComboBox* box, const std::vector<std::string>& items, const std::string& text);
  void CloseIfHidden();

  dlgDelimAndType& model_;
  Platform& platform_;
  QLineEdit* txtSampleData_;
  QComboBox* cboDelimChar_;
  std::array<QComboBox*, dlgDelimAndType::kSlots> cboDataType_{};
  QComboBox *cboHOrder_, *cboHDatum_, *cboHSource_, *cboHTech_, *cboVOrder_, *cboVDatum_, *cboOHtSource_, *cboVTech_;
  QGroupBox* fraSPC_;
  QComboBox *cboUnits_, *cboSPCZone_;
  bool filling_ = false;
};

void RegisterHandheldDialogs(Platform& platform);

}  // namespace benchlog::qt
