#include "web/ui/frm_service_address_window.hpp"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {

FrmServiceAddressWindow::FrmServiceAddressWindow(FrmServiceAddress& model, Platform& platform, QWidget* parent)
    : ModelDialog(parent), model_(model), platform_(platform), txtAddress_(new QLineEdit(this)),
      txtTimeout_(new QLineEdit(this)) {
  setObjectName("frmServiceAddress");
  setWindowTitle(FrmServiceAddress::kCaption);
  txtAddress_->setObjectName("txtAddress");
  txtAddress_->setMinimumWidth(320);
  txtTimeout_->setObjectName("txtTimeout");
  txtTimeout_->setMaximumWidth(80);
  connect(txtAddress_, &QLineEdit::textEdited, this, [this](const QString& text) { model_.txtAddress = FromQt(text); });
  connect(txtTimeout_, &QLineEdit::textEdited, this, [this](const QString& text) { model_.txtTimeout = FromQt(text); });

  auto* ok = new QPushButton("OK", this);
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName("cmdCancel");
  connect(ok, &QPushButton::clicked, this, &FrmServiceAddressWindow::Ok);
  connect(cancel, &QPushButton::clicked, this, &FrmServiceAddressWindow::reject);

  auto* form = new QFormLayout;
  form->addRow("Service &address:", txtAddress_);
  form->addRow("Request &time-out (seconds):", txtTimeout_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addLayout(buttons);
}

void FrmServiceAddressWindow::LoadFromModel() {
  txtAddress_->setText(ToQt(model_.txtAddress));
  txtTimeout_->setText(ToQt(model_.txtTimeout));
}

void FrmServiceAddressWindow::Ok() {
  if (!model_.cmdOK_Click(platform_.settings, platform_.ui)) return;
  hide();
  done(Accepted);
}

void FrmServiceAddressWindow::reject() {
  model_.cmdCancel_Click();
  hide();
  done(Rejected);
}

}  // namespace benchlog::qt
