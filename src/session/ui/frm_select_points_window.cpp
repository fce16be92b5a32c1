#include "session/ui/frm_select_points_window.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/qt_ui.hpp"
#include "platform/qt/text_codec.hpp"
#include "platform/qt/screen_fit.hpp"

namespace benchlog::qt {
namespace {

QPushButton* Button(QWidget* parent, const char* name, const char* text, const char* tip) {
  auto* button = new QPushButton(text, parent);
  button->setObjectName(name);
  if (tip) button->setToolTip(tip);
  return button;
}

}  // namespace

FrmSelectPointsWindow::FrmSelectPointsWindow(FrmSelectPoints& model, QWidget* parent)
    : ModelDialog(parent), model_(model), lblPoints_(new QLabel(this)), lstPoints_(new QListWidget(this)) {
  setObjectName("frmSelectPoints");
  lblPoints_->setObjectName("lblPoints");
  lblPoints_->setAlignment(Qt::AlignHCenter);
  lstPoints_->setObjectName("lstPoints");
  lstPoints_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  QFont fixed("Monospace");
  fixed.setStyleHint(QFont::TypeWriter);
  lstPoints_->setFont(fixed);

  selectAll_ = Button(this, "cmdSelectAll", "Select All", nullptr);
  auto* cancel = Button(this, "cmdCancel", "Cancel", "Cancel viewing or printing.");
  auto* okay = Button(this, "cmdOkay", "Okay", "View or print select points.");
  okay->setDefault(true);
  connect(selectAll_, &QPushButton::clicked, this, [this] {
    StoreSelection();
    model_.cmdSelectAll_Click();
    ShowSelection();
  });
  connect(okay, &QPushButton::clicked, this, [this] { Finish(true); });
  connect(cancel, &QPushButton::clicked, this, [this] { Finish(false); });
  connect(lstPoints_, &QListWidget::itemDoubleClicked, this, [this] { Finish(true); });

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(selectAll_);
  buttons->addStretch();
  buttons->addWidget(okay);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lblPoints_);
  layout->addWidget(lstPoints_, 1);
  layout->addLayout(buttons);
}

void FrmSelectPointsWindow::LoadFromModel() {
  setWindowTitle(ToQt(model_.caption));
  lblPoints_->setText(ToQt(model_.lblPoints));
  selectAll_->setVisible(model_.cmdSelectAllVisible);
  lstPoints_->clear();
  for (const auto& item : model_.lstPoints) lstPoints_->addItem(ToQt(item));
  ShowSelection();
  const WindowPlacement& p = model_.placement;
  if (p.top || p.left) PlaceOnScreen(this, PixelsOfTwips(p.left, p.top, p.width, p.height));
  else resize(PixelsOfTwips(0, 0, p.width, p.height).size());
}

void FrmSelectPointsWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
    QPalette colors = lstPoints_->palette();
    colors.setColor(QPalette::Base, ColorOfNumber(model_.backColor));
    colors.setColor(QPalette::Text, ColorOfNumber(model_.foreColor));
    lstPoints_->setPalette(colors);
  }
  ModelDialog::changeEvent(event);
}

void FrmSelectPointsWindow::StoreSelection() {
  for (int i = 0; i < lstPoints_->count(); ++i)
    model_.selected[static_cast<std::size_t>(i)] = lstPoints_->item(i)->isSelected();
}

void FrmSelectPointsWindow::ShowSelection() {
  for (int i = 0; i < lstPoints_->count(); ++i) lstPoints_->item(i)->setSelected(model_.Selected(static_cast<std::size_t>(i)));
}

void FrmSelectPointsWindow::Finish(bool okay) {
  StoreSelection();
  if (okay) model_.cmdOkay_Click();
  else model_.cmdCancel_Click();
  model_.placement.top = pos().y() * kTwipsPerPixel;
  model_.placement.left = pos().x() * kTwipsPerPixel;
  model_.placement.height = height() * kTwipsPerPixel;
  model_.placement.width = width() * kTwipsPerPixel;
  hide();
  done(okay ? Accepted : Rejected);
}

void FrmSelectPointsWindow::reject() { Finish(false); }

}  // namespace benchlog::qt
