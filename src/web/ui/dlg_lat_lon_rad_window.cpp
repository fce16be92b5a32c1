#include "web/ui/dlg_lat_lon_rad_window.hpp"

#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/qt/text_codec.hpp"
#include "web/ui/key_typing.hpp"

namespace benchlog::qt {

DlgLatLonRadWindow::DlgLatLonRadWindow(dlgLatLonRad& model, QWidget* parent) : ModelDialog(parent), model_(model) {
  setObjectName("dlgLatLonRad");
  setWindowTitle(dlgLatLonRad::kCaption);
  auto* boxes = new QFormLayout;
  for (std::size_t i = 0; i < Text1_.size(); ++i) {
    auto* box = new QLineEdit(this);
    box->setObjectName(QString("Text1(%1)").arg(i));
    boxes->addRow(dlgLatLonRad::kLabels[i], box);
    box->installEventFilter(this);
    connect(box, &QLineEdit::textChanged, this, [this, i](const QString& text) {
      if (!filling_) model_.Text1[i] = FromQt(text);
    });
    new KeyTyping(box, [this](int key) { return model_.filterKey(key); }, [this](const KeyOutcome& outcome) {
      if (outcome.nextControl) focusNextChild();
    });
    Text1_[i] = box;
  }
  Text1_[2]->setToolTip(dlgLatLonRad::kRadiusTip);

  auto* okay = new QPushButton("OK", this);
  okay->setObjectName("OKButton");
  okay->setAutoDefault(false);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName("CancelButton");
  cancel->setAutoDefault(false);
  connect(okay, &QPushButton::clicked, this, [this] { Finish(true); });
  connect(cancel, &QPushButton::clicked, this, [this] { Finish(false); });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(okay);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(boxes);
  layout->addLayout(buttons);
}

void DlgLatLonRadWindow::LoadFromModel() {
  filling_ = true;
  for (std::size_t i = 0; i < Text1_.size(); ++i) Text1_[i]->setText(ToQt(model_.Text1[i]));
  filling_ = false;
  model_.Visible = true;
}

bool DlgLatLonRadWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    auto* box = qobject_cast<QLineEdit*>(watched);
    // After the edit's own selection on focus, which would select everything.
    if (box) QTimer::singleShot(0, box, [box] {
        const auto [start, length] = dlgLatLonRad::SelectionOnFocus(FromQt(box->text()));
        box->setSelection(start, length);
      });
  }
  return ModelDialog::eventFilter(watched, event);
}

void DlgLatLonRadWindow::Finish(bool okay) {
  if (okay) model_.OKButton_Click();
  else model_.CancelButton_Click();
  hide();
  done(okay ? Accepted : Rejected);
}

void DlgLatLonRadWindow::reject() { Finish(false); }

}  // namespace benchlog::qt
