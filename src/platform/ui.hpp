#pragma once
// What the logic asks of the user interface. The logic never opens a window itself: it asks here,
// and tests answer from a script.
#include <cstdint>
#include <optional>
#include <string>

#include "platform/dialog_model.hpp"

namespace benchlog {

enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgResult { Ok, Cancel, Yes, No };

struct MessageRequest {
  std::string text;
  MsgButtons buttons = MsgButtons::Ok;
  MsgIcon icon = MsgIcon::None;
  std::string title = "Benchlog";  // the application title, as the classic message box has it
  int defaultButton = 1;           // 1 the first button, 2 the second, 3 the third
};

// A file dialog. `filter` is the classic text "Description (*.ext)|*.ext|..." pairs.
struct FileDialogRequest {
  bool save = false;
  std::string filter;
  std::string title;
  std::string initDir;
  std::string fileName;
  std::string defaultExt;
};

struct FontChoice {
  std::string name;
  double size = 10;
  bool bold = false;
  bool italic = false;
};

class Ui {
 public:
  virtual ~Ui() = default;

  virtual MsgResult MsgBox(const MessageRequest& request) = 0;
  MsgResult MsgBox(const std::string& text, MsgButtons buttons = MsgButtons::Ok, MsgIcon icon = MsgIcon::None,
                   const std::string& title = "Benchlog", int defaultButton = 1) {
    return MsgBox(MessageRequest{text, buttons, icon, title, defaultButton});
  }
  // The text typed, or "" when the user cancelled.
  virtual std::string InputBox(const std::string& prompt, const std::string& title,
                               const std::string& defaultText) = 0;
  // The chosen path; a cancelled dialog throws RuntimeFailure 32755.
  virtual std::string FileDialog(const FileDialogRequest& request) = 0;
  // The chosen colour as 0x00BBGGRR, nothing when cancelled.
  virtual std::optional<std::uint32_t> ColorDialog(const std::string& title, std::uint32_t initial) = 0;
  virtual std::optional<FontChoice> FontDialog(const FontChoice& initial) = 0;
  virtual bool PrinterDialog() = 0;  // false when cancelled

  // Opens the program's manual (an HTML file) in the help window.
  virtual void ShowHelp(const std::string& helpFile) = 0;

  virtual void SetHourglass(bool on) = 0;
  virtual void DoEvents() = 0;  // lets pending window events run
  virtual void ShowModal(DialogModel& model) = 0;
  virtual void ShowModeless(DialogModel& model) = 0;
  virtual void Hide(DialogModel& model) = 0;
};

}  // namespace benchlog
