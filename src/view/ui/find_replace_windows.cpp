#include "view/ui/find_replace_windows.hpp"

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

QHBoxLayout* OkCancel(QDialog* dialog, const std::function<void(bool)>& finish) {
  auto* okay = new QPushButton("OK", dialog);
  okay->setObjectName("OKButton");
  okay->setDefault(true);
  auto* cancel = new QPushButton("Cancel", dialog);
  cancel->setObjectName("CancelButton");
  QObject::connect(okay, &QPushButton::clicked, dialog, [finish] { finish(true); });
  QObject::connect(cancel, &QPushButton::clicked, dialog, [finish] { finish(false); });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(okay);
  buttons->addWidget(cancel);
  return buttons;
}

QLineEdit* Entry(QWidget* parent, const char* name) {
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(name);
  return edit;
}

}  // namespace

DlgTextWindow::DlgTextWindow(dlgText& model, QWidget* parent) : ModelDialog(parent), model_(model) {
  setObjectName("dlgText");
  label_ = new QLabel(this);
  txtEntry_ = Entry(this, "txtEntry");
  txtEntry_->installEventFilter(this);
  connect(txtEntry_, &QLineEdit::textChanged, this, [this](const QString& text) { model_.txtEntry = FromQt(text); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label_);
  layout->addWidget(txtEntry_);
  layout->addLayout(OkCancel(this, [this](bool okay) { Finish(okay); }));
}

void DlgTextWindow::LoadFromModel() {
  setWindowTitle(ToQt(model_.Caption));
  label_->setText(ToQt(model_.Label));
  txtEntry_->setText(ToQt(model_.txtEntry));
  txtEntry_->setFocus();
}

// Keys that type a character go through the model's filter; the others (arrows, Enter, Esc)
// stay with the edit and the dialog.
bool DlgTextWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != txtEntry_ || event->type() != QEvent::KeyPress) return ModelDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  int typed = 0;
  if (key->key() == Qt::Key_Backspace) typed = 8;
  else if (key->text().size() == 1 && key->text()[0].isPrint()) typed = static_cast<unsigned char>(FromQt(key->text())[0]);
  if (typed == 0) return false;
  const int passed = dlgText::filterKey(typed);
  if (passed == 0) QApplication::beep();
  if (passed == typed) return false;
  if (passed != 0) txtEntry_->insert(ToQt(std::string(1, static_cast<char>(passed))));
  return true;
}

void DlgTextWindow::Finish(bool okay) {
  if (okay) model_.OKButton_Click();
  else model_.CancelButton_Click();
  hide();
  done(okay ? Accepted : Rejected);
}

void DlgTextWindow::reject() { Finish(false); }

DiaReplaceWindow::DiaReplaceWindow(diaReplace& model, QWidget* parent) : ModelDialog(parent), model_(model) {
  setObjectName("diaReplace");
  setWindowTitle("Replace");
  txtFind_ = Entry(this, "txtFind");
  txtReplace_ = Entry(this, "txtReplace");
  optReplaceOnce_ = new QRadioButton("Replace Once", this);
  optReplaceOnce_->setObjectName("optReplaceOnce");
  optReplaceAll_ = new QRadioButton("Replace All", this);
  optReplaceAll_->setObjectName("optReplaceAll");
  connect(txtFind_, &QLineEdit::textChanged, this, [this](const QString& text) { model_.txtFind = FromQt(text); });
  connect(txtReplace_, &QLineEdit::textChanged, this, [this](const QString& text) { model_.txtReplace = FromQt(text); });
  connect(optReplaceOnce_, &QRadioButton::toggled, this, [this](bool on) { model_.optReplaceOnce = on; });
  auto* fields = new QFormLayout;
  fields->addRow("Find:", txtFind_);
  fields->addRow("Replace:", txtReplace_);
  auto* options = new QHBoxLayout;
  options->addWidget(optReplaceOnce_);
  options->addWidget(optReplaceAll_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(fields);
  layout->addLayout(options);
  layout->addLayout(OkCancel(this, [this](bool okay) { Finish(okay); }));
}

void DiaReplaceWindow::LoadFromModel() {
  txtFind_->setText(ToQt(model_.txtFind));
  txtReplace_->setText(ToQt(model_.txtReplace));
  (model_.optReplaceOnce ? optReplaceOnce_ : optReplaceAll_)->setChecked(true);
  txtFind_->setFocus();
}

void DiaReplaceWindow::Finish(bool okay) {
  if (okay) model_.OKButton_Click();
  else model_.CancelButton_Click();
  hide();
  done(okay ? Accepted : Rejected);
}

void DiaReplaceWindow::reject() { Finish(false); }

}  // namespace benchlog::qt
