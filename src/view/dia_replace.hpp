#pragma once
// diaReplace: what to find, what to put in its place, and whether once or everywhere. The editor
// reads the fields after the modal show; the tag is "Okay" or "Canceled".
#include <string>

#include "platform/dialog_model.hpp"

namespace benchlog {

class diaReplace : public DialogModel {
 public:
  std::string txtFind;
  std::string txtReplace;
  bool optReplaceOnce = true;  // false: optReplaceAll

  void OKButton_Click() { Tag = "Okay"; }
  void CancelButton_Click() { Tag = "Canceled"; }
};

}  // namespace benchlog
