#include "web/ui/frm_login_window.hpp"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/qt/qt_settings_store.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

QLineEdit* TextBox(QWidget* parent, const char* name) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(name);
  box->setMinimumWidth(220);
  return box;
}

}  // namespace

FrmLoginWindow::FrmLoginWindow(frmLogin& model, Platform& platform, QWidget* parent)
    : ModelDialog(parent), model_(model), platform_(platform), txtUserName_(TextBox(this, "txtUserName")),
      txtPassword_(TextBox(this, "txtPassword")), chkRember_(new QCheckBox("Remember password", this)) {
  setObjectName("frmLogin");
  setWindowTitle(frmLogin::kCaption);
  if (parent) setWindowIcon(parent->windowIcon());
  // The model lives for one request only, so its window goes as soon as the modal show ends.
  setAttribute(Qt::WA_DeleteOnClose);

  txtPassword_->setEchoMode(QLineEdit::Password);
  txtPassword_->setStyleSheet("lineedit-password-character: 42");  // "*"
  chkRember_->setObjectName("chkRember");
  for (QLineEdit* box : {txtUserName_, txtPassword_}) box->installEventFilter(this);
  connect(txtUserName_, &QLineEdit::textEdited, this, [this](const QString& text) { model_.txtUserName = FromQt(text); });
  connect(txtPassword_, &QLineEdit::textEdited, this, [this](const QString& text) { model_.txtPassword = FromQt(text); });
  connect(chkRember_, &QCheckBox::toggled, this, [this](bool on) { model_.chkRember = on ? 1 : 0; });

  auto* ok = new QPushButton("OK", this);
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName("cmdCancel");
  connect(ok, &QPushButton::clicked, this, &FrmLoginWindow::Ok);
  connect(cancel, &QPushButton::clicked, this, &FrmLoginWindow::Cancel);

  auto* grid = new QGridLayout;
  auto* userLabel = new QLabel("&User Name:", this);
  auto* passwordLabel = new QLabel("&Password:", this);
  userLabel->setBuddy(txtUserName_);
  passwordLabel->setBuddy(txtPassword_);
  grid->addWidget(userLabel, 0, 0);
  grid->addWidget(txtUserName_, 0, 1);
  grid->addWidget(passwordLabel, 1, 0);
  grid->addWidget(txtPassword_, 1, 1);
  grid->addWidget(chkRember_, 2, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(grid);
  layout->addLayout(buttons);
}

void FrmLoginWindow::LoadFromModel() {
  txtUserName_->setText(ToQt(model_.txtUserName));
  txtPassword_->setText(ToQt(model_.txtPassword));
  chkRember_->setChecked(model_.chkRember == 1);
  txtUserName_->setFocus();
}

bool FrmLoginWindow::eventFilter(QObject* watched, QEvent* event) {
  // Selected after the focus has settled, so that the click that gave it does not undo the selection.
  if (event->type() == QEvent::FocusIn)
    if (auto* box = qobject_cast<QLineEdit*>(watched)) QTimer::singleShot(0, box, &QLineEdit::selectAll);
  return ModelDialog::eventFilter(watched, event);
}

void FrmLoginWindow::Ok() {
  model_.cmdOK_Click(platform_.settings);
  if (model_.chkRember == 1)
    if (auto* store = dynamic_cast<QtSettingsStore*>(&platform_.settings)) store->KeepToOwner();
  done(Accepted);
}

void FrmLoginWindow::Cancel() {
  model_.cmdCancel_Click();
  done(Rejected);
}

void FrmLoginWindow::reject() {
  model_.Escape();
  done(Rejected);
}

}  // namespace benchlog::qt
