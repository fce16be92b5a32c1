#include "platform/qt/progress_window.hpp"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {

ProgressWindow::ProgressWindow(Progress& model, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint),
      lblProcessing_(new QLabel(this)),
      lblInfo_(new QLabel(this)),
      Prgb_(new QProgressBar(this)) {
  setObjectName("dlgProcessing");
  lblProcessing_->setObjectName("lblProcessing");
  lblInfo_->setObjectName("lblInfo");
  Prgb_->setObjectName("Prgb");
  setModal(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lblProcessing_);
  layout->addWidget(lblInfo_);
  layout->addWidget(Prgb_);
  setMinimumWidth(360);
  model.observer = [this](const Progress& p) { Mirror(p); };
}

void ProgressWindow::Mirror(const Progress& model) {
  setWindowTitle(ToQt(model.caption));
  lblProcessing_->setText(ToQt(model.lblProcessing));
  lblInfo_->setText(ToQt(model.lblInfo));
  Prgb_->setRange(model.min, std::max(model.min, model.max));
  Prgb_->setValue(std::clamp(model.value, model.min, std::max(model.min, model.max)));
  Prgb_->setVisible(model.barVisible);
  if (model.Visible() != isVisible()) setVisible(model.Visible());
  if (isVisible()) repaint();
}

}  // namespace benchlog::qt
