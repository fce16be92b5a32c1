#include "plot/ui/map_image_view.hpp"

#include <QLabel>
#include <QMainWindow>
#include <QPixmap>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "platform/qt/qt_picture_reader.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {

ScrolledPictureWidget::ScrolledPictureWidget(ScrolledPicture& model, QWidget* parent)
    : QWidget(parent), model_(model) {
  picture1_ = new QWidget(this);
  picture1_->setObjectName("Picture1");
  picture2_ = new QLabel(picture1_);
  picture2_->setObjectName("Picture2");
  hScroll_ = new QScrollBar(Qt::Horizontal, this);
  hScroll_->setObjectName("HScroll1");
  vScroll_ = new QScrollBar(Qt::Vertical, this);
  vScroll_->setObjectName("VScroll1");
  connect(hScroll_, &QScrollBar::valueChanged, this, [this](int v) {
    model_.HScroll1_Change(v);
    picture2_->move(model_.picture2Left, model_.picture2Top);
  });
  connect(vScroll_, &QScrollBar::valueChanged, this, [this](int v) {
    model_.VScroll1_Change(v);
    picture2_->move(model_.picture2Left, model_.picture2Top);
  });
}

int ScrolledPictureWidget::VBarWidth() const { return style()->pixelMetric(QStyle::PM_ScrollBarExtent); }
int ScrolledPictureWidget::HBarHeight() const { return style()->pixelMetric(QStyle::PM_ScrollBarExtent); }

void ScrolledPictureWidget::ShowPicture(PictureReader* reader) {
  QImage image;
  if (auto* qtReader = dynamic_cast<QtPictureReader*>(reader)) image = qtReader->Picture(model_.picture);
  if (image.isNull() && !model_.picture.empty()) image.load(ToQt(model_.picture));
  picture2_->setPixmap(QPixmap::fromImage(image));
}

void ScrolledPictureWidget::Arrange() {
  const int w = std::max(model_.picture1Width, 0), h = std::max(model_.picture1Height, 0);
  picture1_->setGeometry(0, 0, w, h);
  picture2_->setGeometry(model_.picture2Left, model_.picture2Top, model_.picture2Width, model_.picture2Height);
  picture2_->setVisible(model_.picture2Visible);
  hScroll_->setGeometry(0, h, w, HBarHeight());
  vScroll_->setGeometry(w, 0, VBarWidth(), h);
  for (auto [bar, state] : {std::pair{hScroll_, &model_.HScroll1}, std::pair{vScroll_, &model_.VScroll1}}) {
    const QSignalBlocker quiet(bar);
    bar->setRange(0, std::max(state->Max, 0));  // a picture smaller than the viewport does not scroll
    bar->setSingleStep(state->SmallChange);
    bar->setPageStep(state->LargeChange);
    bar->setValue(state->Value);
    bar->setVisible(model_.scrollBarsVisible);
  }
}

MapImageView::MapImageView(MapImage& model, Platform& platform, QWidget* parent)
    : ModelDialog(parent), model_(model), platform_(platform) {
  setObjectName("MapImage");
  picture_ = new ScrolledPictureWidget(model_.view, this);
  if (auto* main = qobject_cast<QMainWindow*>(parent)) {
    setWindowFlags(Qt::Widget);
    main->setCentralWidget(this);
  }
}

void MapImageView::LoadFromModel() {
  picture_->ShowPicture(platform_.pictures);
  Layout();
}

void MapImageView::Layout() {
  picture_->setGeometry(rect());
  model_.Resize(true, width(), height(), picture_->VBarWidth(), picture_->HBarHeight());
  picture_->Arrange();
}

void MapImageView::resizeEvent(QResizeEvent* e) {
  ModelDialog::resizeEvent(e);
  Layout();
}

}  // namespace benchlog::qt
