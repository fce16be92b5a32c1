#include "web/ui/dlg_type_control_window.hpp"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <functional>

namespace benchlog::qt {
namespace {

// A frame of option buttons named name(0), name(1), ...; a click reports its index.
template <std::size_t N>
QGroupBox* Frame(QWidget* parent, const char* title, const char* name,
                 const std::array<dlgTypeControl::Choice, N>& choices, std::vector<QRadioButton*>& buttons,
                 std::function<void(std::size_t)> chosen) {
  auto* frame = new QGroupBox(title, parent);
  auto* layout = new QVBoxLayout(frame);
  auto* group = new QButtonGroup(frame);
  for (std::size_t i = 0; i < N; ++i) {
    auto* button = new QRadioButton(choices[i].caption, frame);
    button->setObjectName(QString("%1(%2)").arg(name).arg(i));
    group->addButton(button);
    layout->addWidget(button);
    buttons.push_back(button);
    QObject::connect(button, &QRadioButton::clicked, frame, [chosen, i] { chosen(i); });
  }
  return frame;
}

void ShowOptions(const std::vector<QRadioButton*>& buttons, const auto& options) {
  QButtonGroup* group = buttons.front()->group();
  group->setExclusive(false);
  for (std::size_t i = 0; i < buttons.size(); ++i) buttons[i]->setChecked(options[i]);
  group->setExclusive(true);
}

}  // namespace

DlgTypeControlWindow::DlgTypeControlWindow(dlgTypeControl& model, QWidget* parent)
    : ModelDialog(parent), model_(model) {
  setObjectName("dlgTypeControl");
  setWindowTitle(dlgTypeControl::kCaption);
  auto* types = Frame(this, dlgTypeControl::kTypeFrame, "Option1", dlgTypeControl::kTypes, Option1_,
                      [this](std::size_t i) { model_.SetOption1(i); });
  auto* stabilities = Frame(this, dlgTypeControl::kStabilityFrame, "Option2", dlgTypeControl::kStabilities, Option2_,
                            [this](std::size_t i) { model_.SetOption2(i); });
  auto* okay = new QPushButton("Okay", this);
  okay->setObjectName("cmdOkay");
  okay->setDefault(true);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName("CancelButton");
  connect(okay, &QPushButton::clicked, this, [this] { Finish(true); });
  connect(cancel, &QPushButton::clicked, this, [this] { Finish(false); });

  auto* buttons = new QVBoxLayout;
  buttons->addWidget(stabilities);
  buttons->addStretch();
  buttons->addWidget(okay);
  buttons->addWidget(cancel);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(types);
  layout->addLayout(buttons);
}

void DlgTypeControlWindow::LoadFromModel() {
  ShowOptions(Option1_, model_.Option1);
  ShowOptions(Option2_, model_.Option2);
  model_.Visible = true;
}

void DlgTypeControlWindow::Finish(bool okay) {
  if (okay) model_.cmdOkay_Click();
  else model_.CancelButton_Click();
  hide();
  done(okay ? Accepted : Rejected);
}

void DlgTypeControlWindow::reject() { Finish(false); }

}  // namespace benchlog::qt
