#pragma once
// The Qt windows of the text editor and its two dialogs, registered once at start.
namespace benchlog {

// Registers the windows of frmEdit, dlgText and diaReplace.
void RegisterEditorDialogs();

}  // namespace benchlog
