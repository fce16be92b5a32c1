#include "handheld/ui/dlg_delim_and_type_window.hpp"

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/text_codec.hpp"
#include "platform/window_placement.hpp"

namespace benchlog::qt {

DlgDelimAndTypeWindow::DlgDelimAndTypeWindow(dlgDelimAndType& model, Platform& platform, QWidget* parent)
    : ModelDialog(parent), model_(model), platform_(platform) {
  setObjectName("dlgDelimAndType");
  setWindowTitle(dlgDelimAndType::kCaption);
  txtSampleData_ = new QLineEdit(this);
  txtSampleData_->setObjectName("txtSampleData");
  txtSampleData_->setReadOnly(true);
  cboDelimChar_ = Combo("cboDelimChar", &model_.cboDelimChar);
  auto* top = new QFormLayout;
  top->addRow("Sample Data", txtSampleData_);
  top->addRow("Delimiting Character:", cboDelimChar_);

  auto* fraColumns = new QGroupBox("Identify Columns:", this);
  fraColumns->setObjectName("fraColumns");
  auto* columns = new QFormLayout(fraColumns);
  for (std::size_t i = 0; i < cboDataType_.size(); ++i) {
    auto* box = new QComboBox(this);
    box->setObjectName(QString("cboDataType(%1)").arg(i));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->lineEdit()->installEventFilter(this);
    connect(box, &QComboBox::currentTextChanged, this, [this, i](const QString& text) {
      if (filling_) return;
      model_.SetDataType(i, FromQt(text));
      fraSPC_->setVisible(model_.fraSPCVisible);
    });
    columns->addRow(QString("Col %1:").arg(i + 1), box);
    cboDataType_[i] = box;
  }

  auto* fraAttributes = new QGroupBox("Select Attributes", this);
  fraAttributes->setObjectName("fraAttributes");
  auto* grid = new QGridLayout(fraAttributes);
  const char* heads[] = {"Order:", "Datum:", "Source:", "Technique:"};
  for (int c = 0; c < 4; ++c) grid->addWidget(new QLabel(heads[c], this), 0, c + 1);
  grid->addWidget(new QLabel("Horiz", this), 1, 0);
  grid->addWidget(new QLabel("Ortho Ht", this), 2, 0);
  cboHOrder_ = Combo("cboHOrder", &model_.cboHOrder);
  cboHDatum_ = Combo("cboHDatum", &model_.cboHDatum);
  cboHSource_ = Combo("cboHSource", &model_.cboHSource);
  cboHTech_ = Combo("cboHTech", &model_.cboHTech);
  cboVOrder_ = Combo("cboVOrder", &model_.cboVOrder);
  cboVDatum_ = Combo("cboVDatum", &model_.cboVDatum);
  cboOHtSource_ = Combo("cboOHtSource", &model_.cboOHtSource);
  cboVTech_ = Combo("cboVTech", &model_.cboVTech);
  const std::array<QComboBox*, 8> attributes{cboHOrder_, cboHDatum_, cboHSource_, cboHTech_,
                                             cboVOrder_, cboVDatum_, cboOHtSource_, cboVTech_};
  for (int i = 0; i < 8; ++i) grid->addWidget(attributes[static_cast<std::size_t>(i)], 1 + i / 4, 1 + i % 4);

  fraSPC_ = new QGroupBox("SPC", this);
  fraSPC_->setObjectName("fraSPC");
  auto* spc = new QFormLayout(fraSPC_);
  cboUnits_ = Combo("cboUnits", &model_.cboUnits);
  cboSPCZone_ = new QComboBox(this);
  cboSPCZone_->setObjectName("cboSPCZone");
  connect(cboSPCZone_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
    if (filling_) return;
    model_.SetSpcZone(FromQt(text), platform_.paths.supportPath);
    filling_ = true;
    cboUnits_->setCurrentText(ToQt(model_.cboUnits));
    filling_ = false;
  });
  spc->addRow("Units:", cboUnits_);
  spc->addRow("Zone:", cboSPCZone_);

  auto* okay = new QPushButton("OK", this);
  okay->setObjectName("OKButton");
  okay->setAutoDefault(false);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName("CancelButton");
  cancel->setAutoDefault(false);
  connect(okay, &QPushButton::clicked, this, [this] {
    model_.Top = pos().y() * kTwipsPerPixel;
    model_.Left = pos().x() * kTwipsPerPixel;
    model_.OKButton_Click(platform_.ui, platform_.settings);
    CloseIfHidden();
  });
  connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(okay);
  buttons->addWidget(cancel);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(fraColumns);
  layout->addWidget(fraAttributes);
  layout->addWidget(fraSPC_);
  layout->addLayout(buttons);
}

QComboBox* DlgDelimAndTypeWindow::Combo(const char* name, std::string* text) {
  auto* box = new QComboBox(this);
  box->setObjectName(name);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->lineEdit()->installEventFilter(this);
  connect(box, &QComboBox::currentTextChanged, this, [this, text](const QString& value) {
    if (!filling_) *text = FromQt(value);
  });
  return box;
}

void DlgDelimAndTypeWindow::Fill(QComboBox* box, const std::vector<std::string>& items, const std::string& text) {
  box->clear();
  for (const auto& item : items) box->addItem(ToQt(item));
  box->setCurrentText(ToQt(text));
}

void DlgDelimAndTypeWindow::LoadFromModel() {
  filling_ = true;
  txtSampleData_->setText(ToQt(model_.txtSampleData));
  Fill(cboDelimChar_, dlgDelimAndType::kDelimiters, model_.cboDelimChar);
  for (std::size_t i = 0; i < cboDataType_.size(); ++i)
    Fill(cboDataType_[i], dlgDelimAndType::kDataTypes, model_.cboDataType[i]);
  Fill(cboHOrder_, model_.cboHOrderList, model_.cboHOrder);
  Fill(cboHDatum_, model_.cboHDatumList, model_.cboHDatum);
  Fill(cboHSource_, model_.cboHSourceList, model_.cboHSource);
  Fill(cboHTech_, model_.cboHTechList, model_.cboHTech);
  Fill(cboVOrder_, model_.cboVOrderList, model_.cboVOrder);
  Fill(cboVDatum_, model_.cboVDatumList, model_.cboVDatum);
  Fill(cboOHtSource_, model_.cboOHtSourceList, model_.cboOHtSource);
  Fill(cboVTech_, model_.cboVTechList, model_.cboVTech);
  Fill(cboUnits_, model_.cboUnitsList, model_.cboUnits);
  Fill(cboSPCZone_, model_.cboSPCZoneList, model_.cboSPCZone);
  fraSPC_->setVisible(model_.fraSPCVisible);
  filling_ = false;
  if (model_.Top && model_.Left)
    move(static_cast<int>(*model_.Left / kTwipsPerPixel), static_cast<int>(*model_.Top / kTwipsPerPixel));
  model_.Visible = true;
}

bool DlgDelimAndTypeWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return ModelDialog::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  const QString text = key->text();
  if (text.size() != 1) return ModelDialog::eventFilter(watched, event);
  const int ascii = text.at(0).unicode() == '\r' ? 13 : text.at(0).unicode();
  const DialogKey outcome = model_.filterKey(ascii);
  if (!model_.Visible) {
    reject();
    return true;
  }
  if (outcome.key == ascii) return ModelDialog::eventFilter(watched, event);  // typed as it is
  if (outcome.beep) QApplication::beep();
  if (outcome.nextControl) focusNextChild();
  if (outcome.key != 0) {
    if (auto* edit = qobject_cast<QLineEdit*>(watched)) edit->insert(QString(QChar(outcome.key)));
  }
  return true;
}

void DlgDelimAndTypeWindow::CloseIfHidden() {
  if (model_.Visible) return;
  hide();
  done(Accepted);
}

void DlgDelimAndTypeWindow::reject() {
  model_.CancelButton_Click();
  hide();
  done(Rejected);
}

void RegisterHandheldDialogs(Platform& platform) {
  RegisterDialog(typeid(dlgDelimAndType), [&platform](DialogModel& model, QWidget* parent) -> ModelDialog* {
    return new DlgDelimAndTypeWindow(static_cast<dlgDelimAndType&>(model), platform, parent);
  });
}

}  // namespace benchlog::qt
