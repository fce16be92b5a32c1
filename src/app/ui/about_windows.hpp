#pragma once
// The Qt windows of frmAbout and frmOCOSplash.
#include <QWidget>

#include "app/frm_about.hpp"
#include "platform/platform.hpp"
#include "platform/qt/dialog_registry.hpp"

namespace benchlog::qt {

class FrmAboutWindow final : public ModelDialog {
 public:
  FrmAboutWindow(FrmAbout& model, Platform& platform, QWidget* parent);
  void LoadFromModel() override;

 private:
  FrmAbout& model_;
};

// The splash: shown without blocking while the program starts.
class FrmOCOSplashWindow final : public QWidget {
 public:
  explicit FrmOCOSplashWindow(const FrmOCOSplash& model);
};

// Registers the main window's dialogs; `platform` outlives them.
void RegisterAppDialogs(Platform& platform);

}  // namespace benchlog::qt
