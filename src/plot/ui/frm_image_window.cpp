#include "plot/ui/frm_image_window.hpp"

#include <QAction>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

#include "common/runtime_failure.hpp"
#include "platform/qt/screen_fit.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {

FrmImageWindow::FrmImageWindow(frmImage& model, Platform& platform, QWidget* parent)
    : ModelDialog(parent), model_(model), platform_(platform) {
  setObjectName("frmImage");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* bar = new QMenuBar(this);
  layout->setMenuBar(bar);
  QMenu* file = bar->addMenu("&File");
  mnuPrint_ = file->addAction("&Print");
  mnuPrint_->setObjectName("mnuPrint");
  QAction* exit = file->addAction("E&xit");
  exit->setObjectName("mnuExit");
  connect(mnuPrint_, &QAction::triggered, this, [this] { Print(); });
  connect(exit, &QAction::triggered, this, [this] { reject(); });

  client_ = new QWidget(this);
  layout->addWidget(client_);
  picture_ = new ScrolledPictureWidget(model_.view, client_);
  cboPicViewer_ = new QComboBox(client_);
  cboPicViewer_->setObjectName("cboPicViewer");
  cboPicViewer_->hide();
  connect(cboPicViewer_, &QComboBox::activated, this, [this](int index) { Choose(index); });
}

void FrmImageWindow::LoadFromModel() {
  if (!placed_) {
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    model_.Load(platform_.settings, screen.width() * kTwipsPerPixel, screen.height() * kTwipsPerPixel);
    PlaceOnScreen(this, PixelsOfTwips(model_.placement.left, model_.placement.top, model_.placement.width,
                                      model_.placement.height));
    placed_ = true;
  }
  picture_->ShowPicture(platform_.pictures);
  Layout();
  ShowCombo();
}

void FrmImageWindow::Layout() {
  picture_->setGeometry(client_->rect());
  model_.Resize(client_->width(), client_->height(), picture_->VBarWidth(), picture_->HBarHeight());
  picture_->Arrange();
  cboPicViewer_->setGeometry(0, 0, std::min(client_->width(), 480), cboPicViewer_->sizeHint().height());
}

void FrmImageWindow::ShowCombo() {
  cboPicViewer_->clear();
  for (const auto& path : model_.cboPicViewer) cboPicViewer_->addItem(ToQt(path));
  cboPicViewer_->setVisible(model_.cboPicViewerVisible);
  if (model_.cboPicViewerVisible) cboPicViewer_->raise();
}

void FrmImageWindow::Choose(int index) {
  try {
    model_.cboPicViewer_Click(*platform_.pictures, static_cast<std::size_t>(index));
    picture_->ShowPicture(platform_.pictures);
    Layout();
  } catch (const RuntimeFailure& failure) {
    platform_.ui.MsgBox(failure.description);
  }
}

void FrmImageWindow::Print() {
  try {
    if (platform_.printer) model_.mnuPrint(*platform_.printer);
  } catch (const RuntimeFailure& failure) {
    if (failure.number != kCancelError) platform_.ui.MsgBox(failure.description);
  }
}

void FrmImageWindow::keyPressEvent(QKeyEvent* e) {
  if (e->key() == Qt::Key_F10) {
    model_.KeyF10(platform_.settings.GetSetting("Settings", "LastDatDirectory", "C:\\"));
    ShowCombo();
    return;
  }
  ModelDialog::keyPressEvent(e);  // Escape closes
}

void FrmImageWindow::resizeEvent(QResizeEvent* e) {
  ModelDialog::resizeEvent(e);
  Layout();
}

// Closing: the placement is saved only from the normal state; the combo box is emptied.
void FrmImageWindow::done(int result) {
  model_.placement.state = isMaximized() ? kMaximized : isMinimized() ? kMinimized : kNormal;
  if (model_.placement.state == kNormal) {
    const QRect frame = frameGeometry();
    model_.placement.top = frame.top() * kTwipsPerPixel;
    model_.placement.left = frame.left() * kTwipsPerPixel;
    model_.placement.height = frame.height() * kTwipsPerPixel;
    model_.placement.width = frame.width() * kTwipsPerPixel;
  }
  model_.Unload(platform_.settings);
  ShowCombo();
  ModelDialog::done(result);
}

void RegisterImageWindows(Platform& platform) {
  RegisterDialog(typeid(frmImage), [&platform](DialogModel& model, QWidget* parent) -> ModelDialog* {
    return new FrmImageWindow(static_cast<frmImage&>(model), platform, parent);
  });
  RegisterDialog(typeid(MapImage), [&platform](DialogModel& model, QWidget* parent) -> ModelDialog* {
    return new MapImageView(static_cast<MapImage&>(model), platform, parent);
  });
}

}  // namespace benchlog::qt
