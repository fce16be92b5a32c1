#include "web/ui/frm_listings_window.hpp"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>

#include "platform/qt/text_codec.hpp"
#include "platform/window_placement.hpp"

namespace benchlog::qt {
namespace {

QRect Pixels(const TwipsRect& place) {
  return QRect(static_cast<int>(place.left / kTwipsPerPixel), static_cast<int>(place.top / kTwipsPerPixel),
               static_cast<int>(place.width / kTwipsPerPixel), static_cast<int>(place.height / kTwipsPerPixel));
}

}  // namespace

FrmListingsWindow::FrmListingsWindow(frmListings& model, QWidget* parent)
    : ModelDialog(parent), model_(model), lstChoices_(new QListWidget(this)), cmdOkay_(new QPushButton("Ok", this)) {
  setObjectName("frmListings");
  lstChoices_->setObjectName("lstChoices");
  lstChoices_->setSelectionMode(QAbstractItemView::MultiSelection);
  QFont fixed("Monospace");
  fixed.setStyleHint(QFont::TypeWriter);
  lstChoices_->setFont(fixed);
  cmdOkay_->setObjectName("cmdOkay");
  connect(cmdOkay_, &QPushButton::clicked, this, [this] {
    for (int i = 0; i < lstChoices_->count(); ++i)
      model_.selected[static_cast<std::size_t>(i)] = lstChoices_->item(i)->isSelected();
    TakePosition();
    model_.cmdOkay_Click();
    hide();
    done(Accepted);
  });
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
    if (!model_.Loaded) return;
    TakePosition();
    model_.Unload(!isMinimized() && !isMaximized());
  });
}

void FrmListingsWindow::LoadFromModel() {
  setWindowTitle(ToQt(model_.caption));
  lstChoices_->clear();
  for (std::size_t i = 0; i < model_.lstChoices.size(); ++i) {
    lstChoices_->addItem(ToQt(model_.lstChoices[i]));
    lstChoices_->item(static_cast<int>(i))->setSelected(model_.Selected(i));
  }
  const QRect screen = (this->screen() ? this->screen() : QGuiApplication::primaryScreen())->availableGeometry();
  const int width = model_.Width > 0 ? static_cast<int>(model_.Width / kTwipsPerPixel) : this->width();
  const int height = model_.HeightPixels > 0 ? static_cast<int>(model_.HeightPixels) : this->height();
  resize(width, height);
  move(screen.left() + (screen.width() - width) / 2, static_cast<int>(model_.Top / kTwipsPerPixel));
  model_.Visible = true;
}

void FrmListingsWindow::resizeEvent(QResizeEvent* event) {
  ModelDialog::resizeEvent(event);
  const long innerWidth = width() * kTwipsPerPixel;
  const long innerHeight = height() * kTwipsPerPixel;
  lstChoices_->setGeometry(Pixels(frmListings::ListPlace(innerWidth, innerHeight)));
  cmdOkay_->setGeometry(Pixels(frmListings::ButtonPlace(innerWidth, innerHeight)));
}

void FrmListingsWindow::TakePosition() {
  model_.Top = pos().y() * kTwipsPerPixel;
  model_.Left = pos().x() * kTwipsPerPixel;
}

void FrmListingsWindow::reject() {
  TakePosition();
  model_.filterKey(kKeyEscape);
  hide();
  done(Rejected);
}

}  // namespace benchlog::qt
