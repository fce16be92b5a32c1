#include "platform/qt/qt_ui.hpp"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <stdexcept>

#include "common/runtime_failure.hpp"
#include "platform/file_filter.hpp"
#include "platform/qt/dialog_registry.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

constexpr int kTitleBarButtons = 140;  // pixels for the icon and the close, minimise and maximise buttons

QMessageBox::Icon QtIcon(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::Critical: return QMessageBox::Critical;
    case MsgIcon::Question: return QMessageBox::Question;
    case MsgIcon::Exclamation: return QMessageBox::Warning;
    case MsgIcon::Information: return QMessageBox::Information;
    case MsgIcon::None: break;
  }
  return QMessageBox::NoIcon;
}

// A message box sizes itself by its text, and the desktop cuts a title that is wider than the box:
// a row of the title's width (with room for the title bar's buttons) keeps the whole title shown.
void WidenForTitle(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (!grid) return;
  QFont titleFont = QApplication::font("QMdiSubWindowTitleBar");
  titleFont.setBold(true);  // many desktops draw titles in bold
  const int width = QFontMetrics(titleFont).horizontalAdvance(box.windowTitle()) + kTitleBarButtons;
  grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Minimum), grid->rowCount(), 0, 1,
                grid->columnCount());
}

ModelDialog* WindowOf(DialogModel& model, QWidget* owner) {
  ModelDialog* window = DialogFor(model, owner);
  if (!window) throw std::logic_error(std::string("No window is registered for ") + typeid(model).name());
  return window;
}

}  // namespace

QStringList QtNameFilters(const std::string& classicFilter) {
  QStringList filters;
  for (const auto& f : ParseFileFilter(classicFilter)) {
    QString name = ToQt(f.description);
    const qsizetype paren = name.indexOf('(');
    if (paren >= 0) name = name.left(paren).trimmed();
    QStringList patterns;
    for (const auto& p : f.patterns) patterns << ToQt(p);
    filters << (patterns.isEmpty() ? name : name + " (" + patterns.join(' ') + ")");
  }
  return filters;
}

std::uint32_t ColorNumber(const QColor& color) {
  return static_cast<std::uint32_t>(color.red()) | static_cast<std::uint32_t>(color.green()) << 8 |
         static_cast<std::uint32_t>(color.blue()) << 16;
}

QColor ColorOfNumber(std::uint32_t number) {
  return QColor(static_cast<int>(number & 0xFF), static_cast<int>((number >> 8) & 0xFF),
                static_cast<int>((number >> 16) & 0xFF));
}

MsgResult QtUi::MsgBox(const MessageRequest& request) {
  QMessageBox box(QtIcon(request.icon), ToQt(request.title), ToQt(request.text), QMessageBox::NoButton, owner_);
  std::vector<std::pair<QPushButton*, MsgResult>> buttons;
  auto add = [&](const char* text, QMessageBox::ButtonRole role, MsgResult result) {
    buttons.emplace_back(box.addButton(text, role), result);
  };
  switch (request.buttons) {
    case MsgButtons::Ok: add("OK", QMessageBox::AcceptRole, MsgResult::Ok); break;
    case MsgButtons::OkCancel:
      add("OK", QMessageBox::AcceptRole, MsgResult::Ok);
      add("Cancel", QMessageBox::RejectRole, MsgResult::Cancel);
      break;
    case MsgButtons::YesNo:
      add("&Yes", QMessageBox::YesRole, MsgResult::Yes);
      add("&No", QMessageBox::NoRole, MsgResult::No);
      break;
    case MsgButtons::YesNoCancel:
      add("&Yes", QMessageBox::YesRole, MsgResult::Yes);
      add("&No", QMessageBox::NoRole, MsgResult::No);
      add("Cancel", QMessageBox::RejectRole, MsgResult::Cancel);
      break;
  }
  WidenForTitle(box);
  const std::size_t preferred = static_cast<std::size_t>(std::max(1, request.defaultButton)) - 1;
  box.setDefaultButton(buttons[std::min(preferred, buttons.size() - 1)].first);
  box.exec();
  for (const auto& [button, result] : buttons)
    if (box.clickedButton() == button) return result;
  // Closed by Esc or the close box: the classic box answers Cancel, or No without a Cancel button.
  return request.buttons == MsgButtons::YesNo ? MsgResult::No
         : request.buttons == MsgButtons::Ok  ? MsgResult::Ok
                                              : MsgResult::Cancel;
}

std::string QtUi::InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) {
  bool ok = false;
  const QString text =
      QInputDialog::getText(owner_, ToQt(title), ToQt(prompt), QLineEdit::Normal, ToQt(defaultText), &ok);
  return ok ? FromQt(text) : std::string();
}

std::string QtUi::FileDialog(const FileDialogRequest& request) {
  QFileDialog dialog(owner_, ToQt(request.title), ToQt(request.initDir));
  dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // The program asks for itself whether an existing file may be overwritten.
  dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
  const QStringList filters = QtNameFilters(request.filter);
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  if (!request.defaultExt.empty()) dialog.setDefaultSuffix(ToQt(request.defaultExt));
  if (!request.fileName.empty()) dialog.selectFile(ToQt(request.fileName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) throw CancelError();
  return FromQt(dialog.selectedFiles().front());
}

std::optional<std::uint32_t> QtUi::ColorDialog(const std::string& title, std::uint32_t initial) {
  const QColor color = QColorDialog::getColor(ColorOfNumber(initial), owner_, ToQt(title));
  if (!color.isValid()) return std::nullopt;
  return ColorNumber(color);
}

std::optional<FontChoice> QtUi::FontDialog(const FontChoice& initial) {
  bool ok = false;
  QFont font(ToQt(initial.name), static_cast<int>(initial.size));
  font.setBold(initial.bold);
  font.setItalic(initial.italic);
  const QFont chosen = QFontDialog::getFont(&ok, font, owner_);
  if (!ok) return std::nullopt;
  return FontChoice{FromQt(chosen.family()), chosen.pointSizeF(), chosen.bold(), chosen.italic()};
}

bool QtUi::PrinterDialog() {
  QPrinter printer;
  QPrintDialog dialog(&printer, owner_);
  return dialog.exec() == QDialog::Accepted;
}

void QtUi::ShowHelp(const std::string& helpFile) {
  if (!help_) help_ = new HelpWindow(owner_);
  help_->setWindowFlag(Qt::Window);
  help_->ShowPage(ToQt(helpFile));
}

void QtUi::SetHourglass(bool on) {
  if (on == hourglass_) return;
  hourglass_ = on;
  if (on) QApplication::setOverrideCursor(Qt::WaitCursor);
  else QApplication::restoreOverrideCursor();
}

// Paints and timers run; the user's input waits, so that no second command starts inside a running one.
void QtUi::DoEvents() { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void QtUi::ShowModal(DialogModel& model) {
  ModelDialog* window = WindowOf(model, owner_);
  window->LoadFromModel();
  window->exec();
}

void QtUi::ShowModeless(DialogModel& model) {
  ModelDialog* window = WindowOf(model, owner_);
  window->LoadFromModel();
  window->show();
  window->raise();
}

void QtUi::Hide(DialogModel& model) {
  if (ModelDialog* window = DialogFor(model, owner_)) window->hide();
}

}  // namespace benchlog::qt
