#pragma once
// dlgText: the small dialog that asks for one line of capital-letter text (a string to search
// for). Its tag tells the result: the text typed on OK, "Canceled" on Cancel.
#include <string>

#include "platform/dialog_model.hpp"

namespace benchlog {

class dlgText : public DialogModel {
 public:
  std::string Caption;
  std::string Label;
  std::string txtEntry;

  // What a key typed in txtEntry becomes: backspace, blank, "+", "-", "/", digits and capitals
  // pass, a lower-case letter becomes its capital; 0 drops any other key, with a beep.
  static int filterKey(int keyAscii);

  void OKButton_Click() { Tag = txtEntry; }
  void CancelButton_Click() { Tag = "Canceled"; }
};

}  // namespace benchlog
