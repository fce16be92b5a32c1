#include "app/ui/about_windows.hpp"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/frm_about.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

QLabel* Label(QWidget* parent, const char* name, const std::string& text, int pointSize = 0) {
  auto* label = new QLabel(ToQt(text), parent);
  label->setObjectName(name);
  label->setWordWrap(true);
  if (pointSize) {
    QFont font = label->font();
    font.setPointSize(pointSize);
    font.setBold(true);
    label->setFont(font);
  }
  return label;
}

// The description as rich text, so that the address is never broken at its hyphen or its "@".
QLabel* DescriptionLabel(QWidget* parent, const std::string& text) {
  QString html = ToQt(text).toHtmlEscaped().replace("\r\n", "<br>");
  const QString address = QString(kMaintainerAddress).toHtmlEscaped();
  html.replace(address, "<span style=\"white-space:nowrap\">" + address + "</span>");
  QLabel* label = Label(parent, "lblDescription", "");
  label->setTextFormat(Qt::RichText);
  label->setText(html);
  return label;
}

}  // namespace

FrmAboutWindow::FrmAboutWindow(FrmAbout& model, Platform& platform, QWidget* parent)
    : ModelDialog(parent), model_(model) {
  setObjectName("frmAbout");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Label(this, "lblTitle", model.lblTitle, 16));
  layout->addWidget(Label(this, "lblVersion", model.lblVersion));
  layout->addWidget(DescriptionLabel(this, model.lblDescription));
  auto* buttons = new QDialogButtonBox(this);
  auto* ok = buttons->addButton("OK", QDialogButtonBox::AcceptRole);
  ok->setObjectName("cmdOK");
  auto* sysInfo = buttons->addButton("&System Info...", QDialogButtonBox::ActionRole);
  sysInfo->setObjectName("cmdSysInfo");
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(sysInfo, &QPushButton::clicked, this, [this, &platform] { model_.cmdSysInfo_Click(platform); });
  layout->addWidget(buttons);
  setMinimumWidth(480);
}

void FrmAboutWindow::LoadFromModel() { setWindowTitle(ToQt(model_.caption)); }

FrmOCOSplashWindow::FrmOCOSplashWindow(const FrmOCOSplash& model)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName("frmOCOSplash");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Label(this, "lblProductName", model.lblProductName, 22));
  layout->addWidget(Label(this, "lblVersion", model.lblVersion));
  auto* disclaimer = new QPlainTextEdit(ToQt(model.txtDisclaimer), this);
  disclaimer->setObjectName("txtDisclaimer");
  disclaimer->setReadOnly(true);
  layout->addWidget(disclaimer);
  resize(520, 320);
}

void RegisterAppDialogs(Platform& platform) {
  RegisterDialog(typeid(FrmAbout), [&platform](DialogModel& model, QWidget* parent) -> ModelDialog* {
    return new FrmAboutWindow(static_cast<FrmAbout&>(model), platform, parent);
  });
}

}  // namespace benchlog::qt
