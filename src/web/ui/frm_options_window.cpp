#include "web/ui/frm_options_window.hpp"

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/qt/text_codec.hpp"
#include "platform/window_placement.hpp"
#include "web/ui/key_typing.hpp"

namespace benchlog::qt {

FrmOptionsWindow::FrmOptionsWindow(frmOptions& model, QWidget* parent)
    : ModelDialog(parent), model_(model), cboChoices_(new QComboBox(this)) {
  setObjectName("frmOptions");
  cboChoices_->setObjectName("cboChoices");
  cboChoices_->setEditable(true);
  cboChoices_->setInsertPolicy(QComboBox::NoInsert);
  cboChoices_->setMinimumWidth(280);
  auto* okay = new QPushButton("Ok", this);
  okay->setObjectName("cmdOkay");
  okay->setAutoDefault(false);

  connect(cboChoices_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
    if (!filling_) model_.cboChoices = FromQt(text);
  });
  new KeyTyping(cboChoices_->lineEdit(), [this](int key) { return model_.filterKey(key); },
                [this](const KeyOutcome&) { CloseIfHidden(); });
  connect(okay, &QPushButton::clicked, this, [this] {
    model_.cmdOkay_Click();
    CloseIfHidden();
  });

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(cboChoices_);
  layout->addWidget(okay);

  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
    if (!model_.Loaded) return;
    TakePosition();
    model_.Unload(!isMinimized() && !isMaximized());
  });
}

void FrmOptionsWindow::LoadFromModel() {
  setWindowTitle(ToQt(model_.caption));
  filling_ = true;
  cboChoices_->clear();
  for (const auto& item : model_.cboChoicesList) cboChoices_->addItem(ToQt(item));
  cboChoices_->setEditText(ToQt(model_.cboChoices));
  filling_ = false;
  adjustSize();
  model_.Visible = true;
}

void FrmOptionsWindow::showEvent(QShowEvent* event) {
  ModelDialog::showEvent(event);
  const QRect screen = (this->screen() ? this->screen() : QGuiApplication::primaryScreen())->availableGeometry();
  const int top = model_.Top ? static_cast<int>(*model_.Top / kTwipsPerPixel)
                             : screen.top() + (screen.height() - frameGeometry().height()) / 2;
  move(screen.left() + (screen.width() - frameGeometry().width()) / 2, top);
}

void FrmOptionsWindow::TakePosition() {
  model_.Top = pos().y() * kTwipsPerPixel;
  model_.Left = pos().x() * kTwipsPerPixel;
}

void FrmOptionsWindow::CloseIfHidden() {
  if (model_.Visible) return;
  TakePosition();
  hide();
  done(Accepted);
}

void FrmOptionsWindow::reject() {
  TakePosition();
  model_.filterKey(kKeyEscape);
  hide();
  done(Rejected);
}

}  // namespace benchlog::qt
