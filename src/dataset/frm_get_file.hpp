#pragma once
// frmGetFile: picks several dataset files of one folder, in the order the list shows them. The
// folder's "*.dat" files are listed by name; changing the folder reloads the list, resets the
// filter to "*.dat" and updates the folder label.
#include <string>
#include <vector>

#include "platform/dialog_model.hpp"

namespace benchlog {

class FrmGetFile : public DialogModel {
 public:
  std::string caption;
  std::string folder;  // the current folder, shown in lblFolder
  std::string filter = "*.dat";
  std::vector<std::string> files;  // file names in the folder, in list order
  std::vector<bool> selected;

  void SetFolder(const std::string& path);
  // The selected files' full paths, in list order.
  std::vector<std::string> SelectedPaths() const;
  void cmdOK_Click() { Tag = "Okay"; }
  void cmdCancel_Click() { Tag = "Canceled"; }
};

}  // namespace benchlog
