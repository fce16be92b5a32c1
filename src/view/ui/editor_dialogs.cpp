#include "view/ui/editor_dialogs.hpp"

#include "platform/qt/dialog_registry.hpp"
#include "view/ui/frm_edit_window.hpp"
#include "view/ui/find_replace_windows.hpp"

namespace benchlog {

void RegisterEditorDialogs() {
  qt::RegisterDialog<frmEdit, qt::FrmEditWindow>();
  qt::RegisterDialog<dlgText, qt::DlgTextWindow>();
  qt::RegisterDialog<diaReplace, qt::DiaReplaceWindow>();
}

}  // namespace benchlog
