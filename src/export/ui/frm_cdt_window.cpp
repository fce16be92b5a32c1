#include "export/ui/frm_cdt_window.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <cstring>

#include "export/ui/model_controls.hpp"
#include "platform/qt/text_codec.hpp"
#include "platform/window_placement.hpp"
#include "platform/qt/screen_fit.hpp"

namespace benchlog::qt {
namespace {

constexpr int kColumnsOfBoxes = 3;
constexpr std::size_t kSupersededBoxes = 6;  // the last boxes of frmCDT::Boxes()

}  // namespace

FrmCdtWindow::FrmCdtWindow(frmCDT& model, QWidget* parent) : ModelDialog(parent), model_(model) {
  setObjectName("frmCDT");
  setWindowTitle(frmCDT::kCaption);

  auto* fraMarks = new QGroupBox("Control", this);
  OptHoriz_ = Option(fraMarks, "OptHoriz", "Horizontal Control Only");
  Optvert_ = Option(fraMarks, "Optvert", "Vertical Control Only");
  optBoth_ = Option(fraMarks, "optBoth", "All Control");
  marks_ = Group(this, {OptHoriz_, Optvert_, optBoth_});
  auto* marksLayout = new QHBoxLayout(fraMarks);
  for (QRadioButton* button : {OptHoriz_, Optvert_, optBoth_}) marksLayout->addWidget(button);
  connect(OptHoriz_, &QRadioButton::clicked, this, [this] { model_.OptHoriz_Click(); ShowModel(); });
  connect(Optvert_, &QRadioButton::clicked, this, [this] { model_.Optvert_Click(); ShowModel(); });
  connect(optBoth_, &QRadioButton::clicked, this, [this] { model_.optBoth_Click(); ShowModel(); });

  auto* fraColumns = new QGroupBox("Columns", this);
  auto* columns = new QGridLayout(fraColumns);
  auto* fraSuper = new QGroupBox("Superseded Data", this);
  auto* superseded = new QGridLayout(fraSuper);
  const auto& all = frmCDT::Boxes();
  for (std::size_t i = 0; i < all.size(); ++i) {
    const bool isSuperseded = i + kSupersededBoxes >= all.size();
    auto* box = new QCheckBox(all[i].caption, isSuperseded ? fraSuper : fraColumns);
    box->setObjectName(all[i].name);
    if (std::strcmp(all[i].name, "chkMarkCode") == 0) box->setToolTip("*80* & *86* records");
    controls_[all[i].name] = box;
    boxes_[box] = &all[i];
    const int place = static_cast<int>(isSuperseded ? i + kSupersededBoxes - all.size() : i);
    (isSuperseded ? superseded : columns)->addWidget(box, place / kColumnsOfBoxes, place % kColumnsOfBoxes);
    connect(box, &QCheckBox::stateChanged, this, [this, value = all[i].value](int state) {
      if (!filling_) model_.*value = CheckValueOf(state);
    });
  }

  auto* fraUnits = new QGroupBox("Units", this);
  optUSFt_ = Option(fraUnits, "optUSFt", "US Survey Feet");
  optMeters_ = Option(fraUnits, "optMeters", "Meters");
  optIFt_ = Option(fraUnits, "optIFt", "International Feet");
  units_ = Group(this, {optUSFt_, optMeters_, optIFt_});
  auto* unitsLayout = new QHBoxLayout(fraUnits);
  for (QRadioButton* button : {optUSFt_, optMeters_, optIFt_}) {
    unitsLayout->addWidget(button);
    connect(button, &QRadioButton::toggled, this, [this] {
      if (!filling_) model_.SetUnits(optUSFt_->isChecked(), optMeters_->isChecked(), optIFt_->isChecked());
    });
  }
  cboSPCZone_ = Combo(fraUnits, "cboSPCZone", false, controls_);
  cboUTMZone_ = Combo(fraUnits, "cboUTMZone", false, controls_);
  unitsLayout->addWidget(new QLabel("SPC Zone", fraUnits));
  unitsLayout->addWidget(cboSPCZone_);
  unitsLayout->addWidget(new QLabel("UTM Zone", fraUnits));
  unitsLayout->addWidget(cboUTMZone_);
  connect(cboSPCZone_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
    if (!filling_) model_.cboSPCZone = FromQt(text);
  });
  connect(cboUTMZone_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
    if (!filling_) model_.cboUTMZone = FromQt(text);
  });

  auto* checkAll = Button(this, "cmdCheckAll", "Check All", controls_);
  auto* clearAll = Button(this, "cmdClearAll", "Clear All", controls_);
  auto* okay = Button(this, "cmdOkay", "&Okay", controls_);
  auto* cancel = Button(this, "cmdCancel", "&Cancel", controls_);
  okay->setDefault(true);
  connect(checkAll, &QPushButton::clicked, this, [this] { model_.cmdCheckAll_Click(); ShowModel(); });
  connect(clearAll, &QPushButton::clicked, this, [this] { model_.cmdClearAll_Click(); ShowModel(); });
  connect(okay, &QPushButton::clicked, this, [this] { Finish(true); });
  connect(cancel, &QPushButton::clicked, this, [this] { Finish(false); });

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(checkAll);
  buttons->addWidget(clearAll);
  buttons->addStretch();
  buttons->addWidget(okay);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(fraMarks);
  layout->addWidget(fraColumns);
  layout->addWidget(fraSuper);
  layout->addWidget(fraUnits);
  layout->addLayout(buttons);

  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
    TakePosition();
    if (model_.settingsStore) model_.Unload(*model_.settingsStore);
  });
}

QRadioButton* FrmCdtWindow::Option(QWidget* parent, const char* name, const char* caption) {
  auto* button = new QRadioButton(caption, parent);
  button->setObjectName(name);
  controls_[name] = button;
  return button;
}

QWidget* FrmCdtWindow::Control(const std::string& name) const {
  const auto found = controls_.find(name);
  return found == controls_.end() ? nullptr : found->second;
}

void FrmCdtWindow::LoadFromModel() {
  ShowModel();
  filling_ = true;
  FillCombo(cboSPCZone_, model_.cboSPCZoneList, model_.cboSPCZone);
  FillCombo(cboUTMZone_, model_.cboUTMZoneList, model_.cboUTMZone);
  filling_ = false;
  if (model_.Top || model_.Left)
    PlaceOnScreen(this, QRect(PixelsOfTwips(model_.Left, model_.Top, 0, 0).topLeft(), size()));
}

void FrmCdtWindow::ShowModel() {
  filling_ = true;
  SetOptions(marks_, {model_.OptHoriz, model_.Optvert, model_.optBoth});
  SetOptions(units_, {model_.optUSFt, model_.optMeters, model_.optIFt});
  for (const auto& [box, info] : boxes_) {
    box->setCheckState(CheckStateOf(model_.*(info->value)));
    box->setVisible(model_.BoxVisible(*info));
  }
  filling_ = false;
}

void FrmCdtWindow::TakePosition() {
  model_.Top = pos().y() * kTwipsPerPixel;
  model_.Left = pos().x() * kTwipsPerPixel;
}

void FrmCdtWindow::Finish(bool okay) {
  TakePosition();
  if (okay) model_.cmdOkay_Click();
  else model_.cmdCancel_Click();
  hide();
  done(okay ? Accepted : Rejected);
}

void FrmCdtWindow::reject() { Finish(false); }

}  // namespace benchlog::qt
