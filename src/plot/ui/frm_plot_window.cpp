#include "plot/ui/frm_plot_window.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>
#include <cmath>

#include "common/runtime_failure.hpp"
#include "platform/platform.hpp"
#include "platform/qt/screen_fit.hpp"
#include "platform/qt/text_codec.hpp"
#include "plot/ui/plot_painter.hpp"

namespace benchlog::qt {

PlotCanvasWidget::PlotCanvasWidget(frmPlot& model, QWidget* parent) : QWidget(parent), model_(model) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(80, 60);
  setMouseTracking(true);
}

void PlotCanvasWidget::paintEvent(QPaintEvent*) {
  const double ratio = devicePixelRatioF();
  const QSize pixels = size() * ratio;
  if (drawing_.size() != pixels || drawnGeneration_ != model_.canvas.Generation()) {
    drawing_ = QImage(pixels, QImage::Format_RGB32);
    drawing_.setDevicePixelRatio(ratio);
    // Labels take the same size in points as on the screen.
    drawing_.setDotsPerMeterX(static_cast<int>(std::lround(logicalDpiX() / 0.0254)));
    drawing_.setDotsPerMeterY(static_cast<int>(std::lround(logicalDpiY() / 0.0254)));
    QPainter onCopy(&drawing_);
    PaintPlot(onCopy, model_.canvas, QRectF(rect()));
    drawnGeneration_ = model_.canvas.Generation();
  }
  QPainter painter(this);
  painter.drawImage(0, 0, drawing_);
  PaintOverlay(painter, model_.canvas, model_.Overlay(), QRectF(rect()));
}

QPointF PlotCanvasWidget::WorldOf(QPointF pixel) const {
  const PlotScale& s = model_.canvas.Scale();
  return {s.left + pixel.x() * (s.right - s.left) / std::max(1, width()),
          s.top + pixel.y() * (s.bottom - s.top) / std::max(1, height())};
}

void PlotCanvasWidget::Forward(MouseAct act, QMouseEvent* e) {
  const MouseButton button = e->button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left;
  if (act != MouseAct::Move && e->button() != Qt::LeftButton && e->button() != Qt::RightButton) return;
  if (onMouse) onMouse(act, button, WorldOf(e->position()), e->globalPosition().toPoint());
}

void PlotCanvasWidget::mouseMoveEvent(QMouseEvent* e) { Forward(MouseAct::Move, e); }
void PlotCanvasWidget::mousePressEvent(QMouseEvent* e) { Forward(MouseAct::Press, e); }
void PlotCanvasWidget::mouseReleaseEvent(QMouseEvent* e) { Forward(MouseAct::Release, e); }

void PlotCanvasWidget::resizeEvent(QResizeEvent* e) {
  model_.clientWidth = width();
  model_.clientHeight = height();
  QWidget::resizeEvent(e);
}

FrmPlotWindow::FrmPlotWindow(frmPlot& model, QWidget* parent) : ModelDialog(parent), model_(model) {
  setObjectName("frmPlot");
  setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* bar = new QMenuBar(this);
  BuildMenus(bar);
  layout->setMenuBar(bar);
  canvas_ = new PlotCanvasWidget(model_, this);
  layout->addWidget(canvas_);
  canvas_->onMouse = [this](MouseAct act, MouseButton button, QPointF world, QPoint global) {
    OnMouse(act, button, world, global);
  };
  BuildPopup();
  model_.onOverlayChanged = [this] { canvas_->update(); };
  model_.onBeep = [] { QApplication::beep(); };
}

FrmPlotWindow::~FrmPlotWindow() {
  model_.onOverlayChanged = nullptr;
  model_.onBeep = nullptr;
}

void FrmPlotWindow::Run(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const RuntimeFailure& failure) {
    if (model_.platform) model_.platform->ui.MsgBox(failure.description);
  }
  setWindowTitle(ToQt(model_.Caption));
  canvas_->setCursor(model_.crossPointer ? Qt::CrossCursor : Qt::ArrowCursor);
  canvas_->update();
}

void FrmPlotWindow::OnMouse(MouseAct act, MouseButton button, QPointF world, QPoint global) {
  const auto x = static_cast<float>(world.x()), y = static_cast<float>(world.y());
  Run([&] {
    if (act == MouseAct::Move) model_.MouseMove(x, y);
    else if (act == MouseAct::Press) model_.MouseDown(button, x, y);
    else model_.MouseUp(button, x, y);
  });
  if (act == MouseAct::Press && button == MouseButton::Right) mnuGoto_->popup(global);
}

QAction* FrmPlotWindow::AddCommand(QWidget* menu, const char* name, const char* text, void (frmPlot::*command)()) {
  auto* action = new QAction(text, menu);
  action->setObjectName(name);
  menu->addAction(action);
  connect(action, &QAction::triggered, this, [this, command] { Run([&] { (model_.*command)(); }); });
  return action;
}

// The right button's menu on the picked mark.
void FrmPlotWindow::BuildPopup() {
  mnuGoto_ = new QMenu("Goto", this);
  mnuGoto_->setObjectName("mnuGoto");
  AddCommand(mnuGoto_, "mnuPhoto", "&Photo", &frmPlot::mnuPhoto);
  AddCommand(mnuGoto_, "mnuDSht", "&D-Sheet", &frmPlot::mnuDSht);
  AddCommand(mnuGoto_, "mnuInverse", "&Inverse", &frmPlot::mnuInverse);
  mnuGoto_->addSeparator();
  AddCommand(mnuGoto_, "mnuDelete", "Delete", &frmPlot::mnuDelete);
}

QAction* FrmPlotWindow::AddToggle(QMenu* menu, const char* name, const char* text,
                                  void (frmPlot::*toggle)(SettingsStore&)) {
  QAction* action = menu->addAction(text);
  action->setObjectName(name);
  action->setCheckable(true);
  connect(action, &QAction::triggered, this, [this, toggle] {
    if (model_.platform) (model_.*toggle)(model_.platform->settings);
    ShowChecks();
  });
  return action;
}

void FrmPlotWindow::BuildMenus(QMenuBar* bar) {
  QAction* plot = bar->addAction("Plot");
  plot->setObjectName("mnuPlot");
  connect(plot, &QAction::triggered, this, [this] { Run([this] { model_.PlotAll(); }); });
  AddCommand(bar, "mnuZoomIn", "Zoom In", &frmPlot::mnuZoomIn);
  AddCommand(bar, "mnuZoomOut", "Zoom Out", &frmPlot::mnuZoomOut);
  AddCommand(bar, "mnuFind", "&Find", &frmPlot::mnuFind);
  QAction* print = bar->addAction("Print");
  print->setObjectName("mnuPrint");
  connect(print, &QAction::triggered, this, &FrmPlotWindow::PrintPlot);
  QMenu* options = bar->addMenu("&Options");
  QMenu* labels = options->addMenu("Plot");
  AddToggle(labels, "mnuPltNum", "Point Numbers", &frmPlot::TogglePointNumbers);
  AddToggle(labels, "mnuPltPID", "PID's", &frmPlot::TogglePids);
  AddToggle(labels, "mnuPltDes", "Designations", &frmPlot::ToggleDesignations);
  AddToggle(labels, "mnuPlotGridTks", "Grid Ticks", &frmPlot::ToggleGridTicks);
  AddToggle(labels, "mnuPltTitle", "Title", &frmPlot::ToggleTitle);
  AddToggle(labels, "mnuPlotCities", "Cities and Towns", &frmPlot::ToggleCities);
  QAction* font = options->addAction("&Font");
  font->setObjectName("mnuOptFont");
  connect(font, &QAction::triggered, this, [this] {
    if (model_.platform) model_.mnuOptFont(model_.platform->ui, model_.platform->settings);
  });
  AddCommand(bar, "mnuHelp", "&Help", &frmPlot::mnuHelp);
  QAction* exit = bar->addAction("E&xit");
  exit->setObjectName("mnuExit");
  connect(exit, &QAction::triggered, this, &QWidget::close);
}

QAction* FrmPlotWindow::Action(const char* name) const { return findChild<QAction*>(name); }

void FrmPlotWindow::ShowChecks() {
  const std::pair<const char*, bool> checks[] = {
      {"mnuPltNum", model_.mnuPltNum},           {"mnuPltPID", model_.mnuPltPID},
      {"mnuPltDes", model_.mnuPltDes},           {"mnuPlotGridTks", model_.mnuPlotGridTks},
      {"mnuPltTitle", model_.mnuPltTitle},       {"mnuPlotCities", model_.mnuPlotCities},
  };
  for (const auto& [name, checked] : checks)
    if (QAction* action = Action(name)) action->setChecked(checked);
}

void FrmPlotWindow::LoadFromModel() {
  if (!placed_) {
    const WindowPlacement& p = model_.placement;
    PlaceOnScreen(this, PixelsOfTwips(p.left, p.top, p.width, p.height));
    placed_ = true;
  }
  setWindowTitle(ToQt(model_.Caption));
  ShowChecks();
  canvas_->update();
}

void FrmPlotWindow::PrintPlot() {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, this);
  dialog.setWindowTitle("Select Printer");
  if (dialog.exec() != QDialog::Accepted) return;
  printer.setPageOrientation(QPageLayout::Landscape);
  QPainter painter;
  if (!painter.begin(&printer)) {
    QMessageBox::warning(this, "Benchlog", "The printer could not be opened.");
    return;
  }
  const double scale = double(printer.logicalDpiX()) / canvas_->logicalDpiX();
  PaintPlot(painter, model_.canvas, QRectF(0, 0, canvas_->width() * scale, canvas_->height() * scale));
  painter.end();
}

// Closing unloads the window: its placement is saved, and the next Plot command reads the
// settings again and lays the view out afresh.
void FrmPlotWindow::closeEvent(QCloseEvent* e) {
  TakePlacement(*this, model_.placement);
  if (model_.platform) model_.Unload(model_.platform->settings);
  placed_ = false;
  e->accept();
  ModelDialog::closeEvent(e);
}

void RegisterPlotWindow() { RegisterDialog<frmPlot, FrmPlotWindow>(); }

}  // namespace benchlog::qt
