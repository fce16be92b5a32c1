#include "export/ui/frm_output_options_window.hpp"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "export/ui/model_controls.hpp"
#include "platform/qt/text_codec.hpp"
#include "platform/window_placement.hpp"
#include "platform/qt/screen_fit.hpp"

namespace benchlog::qt {

FrmOutputOptionsWindow::FrmOutputOptionsWindow(frmOutputOptions& model, QWidget* parent)
    : ModelDialog(parent), model_(model) {
  setObjectName("frmOutputOptions");
  setWindowTitle("Output Options");

  auto* fraStations = new QGroupBox("Stations", this);
  optAllSta_ = Option(fraStations, "optAllSta", "All");
  optSelectedSta_ = Option(fraStations, "optSelectedSta", "Selected");
  stations_ = Group(this, {optAllSta_, optSelectedSta_});
  auto* stationsLayout = new QHBoxLayout(fraStations);
  stationsLayout->addWidget(optAllSta_);
  stationsLayout->addWidget(optSelectedSta_);

  auto* fraFiles = new QGroupBox("Output Files", this);
  auto* filesLayout = new QVBoxLayout(fraFiles);
  filesLayout->addWidget(Check(fraFiles, "chkHoriz", "Horizontal List", &frmOutputOptions::chkHoriz));
  filesLayout->addWidget(Check(fraFiles, "chkVert", "Vertical List", &frmOutputOptions::chkVert));
  filesLayout->addWidget(Check(fraFiles, "chkDB", "&Database", &frmOutputOptions::chkDB));
  filesLayout->addWidget(Check(fraFiles, "chkStreetAtlas", "Street Atlas", &frmOutputOptions::chkStreetAtlas));
  QCheckBox* microstation = Check(fraFiles, "chkMicrostation", "Microstation Script", &frmOutputOptions::chkMicrostation);
  filesLayout->addWidget(microstation);
  filesLayout->addWidget(Check(fraFiles, "chkNRMarks", "Plot Not Rec Marks", &frmOutputOptions::chkNRMarks));
  filesLayout->addWidget(Check(fraFiles, "chkLandmarks", "Plot Landmarks", &frmOutputOptions::chkLandmarks));

  fraScale_ = new QGroupBox("Plotting Scale", this);
  controls_["fraScale"] = fraScale_;
  cboScale_ = Combo(fraScale_, "cboScale", true, controls_);
  (new QVBoxLayout(fraScale_))->addWidget(cboScale_);
  // toggled comes before stateChanged, so the model takes the new value here before its click.
  connect(microstation, &QCheckBox::toggled, this, [this](bool checked) {
    if (filling_) return;
    model_.chkMicrostation = checked ? 1 : 0;
    model_.chkMicrostation_Click();
    fraScale_->setVisible(model_.fraScaleVisible);
  });
  connect(cboScale_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
    if (!filling_) model_.cboScale = FromQt(text);
  });

  auto* fraUnits = new QGroupBox("Coordinates", this);
  optFeet_ = Option(fraUnits, "optFeet", "SPCS Feet");
  optMeters_ = Option(fraUnits, "optMeters", "SPCS Meters");
  optUTM_ = Option(fraUnits, "optUTM", "UTM Meters");
  units_ = Group(this, {optFeet_, optMeters_, optUTM_});
  auto* unitsLayout = new QVBoxLayout(fraUnits);
  for (QRadioButton* button : {optFeet_, optMeters_, optUTM_}) unitsLayout->addWidget(button);

  auto* fraElevations = new QGroupBox("Elevations", this);
  optElFeet_ = Option(fraElevations, "optElFeet", "Feet");
  optElM_ = Option(fraElevations, "optElM", "Meters");
  elevations_ = Group(this, {optElFeet_, optElM_});
  auto* elevationsLayout = new QVBoxLayout(fraElevations);
  for (QRadioButton* button : {optElFeet_, optElM_}) elevationsLayout->addWidget(button);

  auto* fraZone = new QGroupBox("SPC Projection Zone", this);
  cboProjZone_ = Combo(fraZone, "cboProjZone", false, controls_);
  (new QVBoxLayout(fraZone))->addWidget(cboProjZone_);
  connect(cboProjZone_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
    if (!filling_) model_.cboProjZone = FromQt(text);
  });

  auto* okay = Button(this, "cmdOkay", "&Okay", controls_);
  auto* cancel = Button(this, "cmdCancel", "&Cancel", controls_);
  okay->setDefault(true);
  connect(okay, &QPushButton::clicked, this, [this] { Finish(true); });
  connect(cancel, &QPushButton::clicked, this, [this] { Finish(false); });

  auto* grid = new QGridLayout;
  grid->addWidget(fraStations, 0, 0);
  grid->addWidget(fraUnits, 0, 1);
  grid->addWidget(fraFiles, 1, 0, 2, 1);
  grid->addWidget(fraElevations, 1, 1);
  grid->addWidget(fraZone, 2, 1);
  grid->addWidget(fraScale_, 3, 0);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(okay);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(grid);
  layout->addStretch();
  layout->addLayout(buttons);

  // The form is unloaded only when the program ends: its position is saved then.
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
    TakePosition();
    if (model_.settingsStore) model_.Unload(*model_.settingsStore);
  });
}

QCheckBox* FrmOutputOptionsWindow::Check(QWidget* parent, const char* name, const char* caption,
                                         int frmOutputOptions::*value) {
  auto* box = new QCheckBox(caption, parent);
  box->setObjectName(name);
  controls_[name] = box;
  checks_[box] = value;
  connect(box, &QCheckBox::stateChanged, this, [this, value](int state) {
    if (!filling_) model_.*value = CheckValueOf(state);
  });
  return box;
}

QRadioButton* FrmOutputOptionsWindow::Option(QWidget* parent, const char* name, const char* caption) {
  auto* button = new QRadioButton(caption, parent);
  button->setObjectName(name);
  controls_[name] = button;
  connect(button, &QRadioButton::toggled, this, [this] {
    if (!filling_) TakeOptions();
  });
  return button;
}

QWidget* FrmOutputOptionsWindow::Control(const std::string& name) const {
  const auto found = controls_.find(name);
  return found == controls_.end() ? nullptr : found->second;
}

void FrmOutputOptionsWindow::LoadFromModel() {
  filling_ = true;
  SetOptions(stations_, {model_.optAllSta, model_.optSelectedSta});
  SetOptions(units_, {model_.optFeet, model_.optMeters, model_.optUTM});
  SetOptions(elevations_, {model_.optElFeet, model_.optElM});
  for (const auto& [box, value] : checks_) box->setCheckState(CheckStateOf(model_.*value));
  FillCombo(cboScale_, model_.cboScaleList, model_.cboScale);
  FillCombo(cboProjZone_, model_.cboProjZoneList, model_.cboProjZone);
  fraScale_->setVisible(model_.fraScaleVisible);
  filling_ = false;
  if (model_.Top || model_.Left)
    PlaceOnScreen(this, QRect(PixelsOfTwips(model_.Left, model_.Top, 0, 0).topLeft(), size()));
}

void FrmOutputOptionsWindow::TakeOptions() {
  model_.optAllSta = optAllSta_->isChecked();
  model_.optSelectedSta = optSelectedSta_->isChecked();
  model_.SetUnits(optFeet_->isChecked(), optMeters_->isChecked(), optUTM_->isChecked());
  model_.SetElevationUnits(optElFeet_->isChecked(), optElM_->isChecked());
}

void FrmOutputOptionsWindow::TakePosition() {
  model_.Top = pos().y() * kTwipsPerPixel;
  model_.Left = pos().x() * kTwipsPerPixel;
}

void FrmOutputOptionsWindow::Finish(bool okay) {
  TakePosition();
  if (okay) model_.cmdOkay_Click();
  else model_.cmdCancel_Click();
  hide();
  done(okay ? Accepted : Rejected);
}

void FrmOutputOptionsWindow::reject() { Finish(false); }

}  // namespace benchlog::qt
