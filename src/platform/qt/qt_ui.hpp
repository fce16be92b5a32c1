#pragma once
// The Ui on this system: Qt message boxes, input box, file, colour, font and printer dialogs, the
// hourglass, the help window and the model windows of the dialog registry.
#include <QPointer>

#include "platform/qt/help_window.hpp"
#include "platform/ui.hpp"

class QWidget;

namespace benchlog::qt {

class QtUi final : public Ui {
 public:
  // `owner` is the main window: dialogs are shown over it. It may be set after construction.
  void SetOwner(QWidget* owner) { owner_ = owner; }

  using Ui::MsgBox;
  MsgResult MsgBox(const MessageRequest& request) override;
  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) override;
  std::string FileDialog(const FileDialogRequest& request) override;
  std::optional<std::uint32_t> ColorDialog(const std::string& title, std::uint32_t initial) override;
  std::optional<FontChoice> FontDialog(const FontChoice& initial) override;
  bool PrinterDialog() override;
  void ShowHelp(const std::string& helpFile) override;
  void SetHourglass(bool on) override;
  void DoEvents() override;
  void ShowModal(DialogModel& model) override;
  void ShowModeless(DialogModel& model) override;
  void Hide(DialogModel& model) override;

 private:
  QWidget* owner_ = nullptr;
  QPointer<HelpWindow> help_;
  bool hourglass_ = false;
};

// "Data Files (*.dat)|*.dat" as Qt's name filters: "Data Files (*.dat)".
QStringList QtNameFilters(const std::string& classicFilter);
// 0x00BBGGRR, the colour number the settings keep.
std::uint32_t ColorNumber(const QColor& color);
QColor ColorOfNumber(std::uint32_t number);

}  // namespace benchlog::qt
