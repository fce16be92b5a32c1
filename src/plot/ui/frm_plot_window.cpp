#include "plot/ui/frm_plot_window.hpp"

#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>

#include "platform/platform.hpp"
#include "platform/qt/screen_fit.hpp"
#include "platform/qt/text_codec.hpp"
#include "plot/ui/plot_painter.hpp"

namespace benchlog::qt {

PlotCanvasWidget::PlotCanvasWidget(frmPlot& model, QWidget* parent) : QWidget(parent), model_(model) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(80, 60);
}

void PlotCanvasWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintPlot(painter, model_.canvas, QRectF(rect()));
}

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
  connect(plot, &QAction::triggered, this, [this] {
    model_.PlotAll();
    LoadFromModel();
  });
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

void FrmPlotWindow::TakePlacement() {
  WindowPlacement& p = model_.placement;
  p.state = isMaximized() ? kMaximized : isMinimized() ? kMinimized : kNormal;
  if (p.state != kNormal) return;
  const QRect frame = frameGeometry();
  p.top = frame.top() * kTwipsPerPixel;
  p.left = frame.left() * kTwipsPerPixel;
  p.height = height() * kTwipsPerPixel;
  p.width = width() * kTwipsPerPixel;
}

// Closing unloads the window: its placement is saved, and the next Plot command reads the
// settings again and lays the view out afresh.
void FrmPlotWindow::closeEvent(QCloseEvent* e) {
  TakePlacement();
  if (model_.platform) model_.Unload(model_.platform->settings);
  placed_ = false;
  e->accept();
  ModelDialog::closeEvent(e);
}

void RegisterPlotWindow() { RegisterDialog<frmPlot, FrmPlotWindow>(); }

}  // namespace benchlog::qt
