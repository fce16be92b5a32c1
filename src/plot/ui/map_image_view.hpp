#pragma once
// The scrolled picture on screen (a viewport with the picture at its natural size and two scroll
// bars), and the map view that fills the main window's client area with it.
#include <QImage>
#include <QWidget>

#include "platform/platform.hpp"
#include "platform/qt/dialog_registry.hpp"
#include "plot/map_image.hpp"

class QLabel;
class QScrollBar;

namespace benchlog::qt {

class ScrolledPictureWidget : public QWidget {
 public:
  ScrolledPictureWidget(ScrolledPicture& model, QWidget* parent);
  // The picture of the model, taken from the reader that read it (or decoded again).
  void ShowPicture(PictureReader* reader);
  // Places the viewport, the picture and the bars as the model has them.
  void Arrange();
  int VBarWidth() const;
  int HBarHeight() const;
  QScrollBar* HScroll1() const { return hScroll_; }
  QScrollBar* VScroll1() const { return vScroll_; }
  QLabel* Picture2() const { return picture2_; }

 private:
  ScrolledPicture& model_;
  QWidget* picture1_;
  QLabel* picture2_;
  QScrollBar* hScroll_;
  QScrollBar* vScroll_;
};

// The map behind the main window: made the first time a map is shown, it becomes the main
// window's central widget and follows its size.
class MapImageView : public ModelDialog {
 public:
  MapImageView(MapImage& model, Platform& platform, QWidget* parent);
  void LoadFromModel() override;
  ScrolledPictureWidget* Picture() const { return picture_; }

 protected:
  void resizeEvent(QResizeEvent* e) override;

 private:
  void Layout();
  MapImage& model_;
  Platform& platform_;
  ScrolledPictureWidget* picture_;
};

}  // namespace benchlog::qt
