#pragma once
// The Qt window of frmPlot: a menu bar (Plot, Print, Options with the label toggles and Font, Exit)
// over a canvas that paints the model's primitive list. The canvas keeps the model's client size
// current; it never starts a drawing itself, it only shows the last one again.
#include <QWidget>

#include "platform/qt/dialog_registry.hpp"
#include "plot/frm_plot.hpp"

class QAction;
class QMenuBar;

namespace benchlog::qt {

class PlotCanvasWidget : public QWidget {
 public:
  PlotCanvasWidget(frmPlot& model, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;

 private:
  frmPlot& model_;
};

class FrmPlotWindow : public ModelDialog {
 public:
  FrmPlotWindow(frmPlot& model, QWidget* parent = nullptr);

  // Caption, menu checks and the canvas from the model; places the window at its first show.
  void LoadFromModel() override;
  // The platform's printer dialog ("Select Printer", with print to PDF); the page, in landscape,
  // gets the canvas at the size it has on the screen, from the page's top left.
  void PrintPlot();

  PlotCanvasWidget* Canvas() const { return canvas_; }
  QAction* Action(const char* name) const;

 protected:
  void closeEvent(QCloseEvent* e) override;

 private:
  void BuildMenus(QMenuBar* bar);
  QAction* AddToggle(QMenu* menu, const char* name, const char* text, void (frmPlot::*toggle)(SettingsStore&));
  void ShowChecks();
  void TakePlacement();

  frmPlot& model_;
  PlotCanvasWidget* canvas_ = nullptr;
  bool placed_ = false;
};

// Registers the window of frmPlot with the Qt Ui.
void RegisterPlotWindow();

}  // namespace benchlog::qt
