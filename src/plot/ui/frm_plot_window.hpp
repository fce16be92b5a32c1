#pragma once
// The Qt window of frmPlot: a menu bar (Plot, Zoom In, Zoom Out, Find, Print, Options with the label
// toggles and Font, Help, Exit) over a canvas that paints the model's primitive list. The canvas
// keeps the model's client size current; it never starts a drawing itself, it only shows the last
// one again. Mouse acts on the canvas go to the model in world metres; a right press opens the
// popup of the picked mark.
#include <QImage>
#include <QWidget>
#include <cstdint>
#include <functional>

#include "platform/qt/dialog_registry.hpp"
#include "plot/frm_plot.hpp"

class QAction;
class QMenu;
class QMenuBar;

namespace benchlog::qt {

enum class MouseAct { Move, Press, Release };

// Paints the drawing from a copy kept while the canvas's list and size stay the same, and the
// model's overlays over that copy, so rubber bands cost no drawing and leave no trace.
class PlotCanvasWidget : public QWidget {
 public:
  PlotCanvasWidget(frmPlot& model, QWidget* parent);
  // The world position (metres) under a point of the widget.
  QPointF WorldOf(QPointF pixel) const;
  std::function<void(MouseAct, MouseButton, QPointF world, QPoint global)> onMouse;

 protected:
  void paintEvent(QPaintEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;

 private:
  void Forward(MouseAct act, QMouseEvent* e);
  frmPlot& model_;
  QImage drawing_;
  std::uint64_t drawnGeneration_ = 0;
};

class FrmPlotWindow : public ModelDialog {
 public:
  FrmPlotWindow(frmPlot& model, QWidget* parent = nullptr);
  ~FrmPlotWindow() override;

  // Caption, menu checks and the canvas from the model; places the window at its first show.
  void LoadFromModel() override;
  // The platform's printer dialog ("Select Printer", with print to PDF); the page, in landscape,
  // gets the canvas at the size it has on the screen, from the page's top left.
  void PrintPlot();

  PlotCanvasWidget* Canvas() const { return canvas_; }
  QMenu* Popup() const { return mnuGoto_; }
  QAction* Action(const char* name) const;

 protected:
  void closeEvent(QCloseEvent* e) override;

 private:
  void BuildMenus(QMenuBar* bar);
  void BuildPopup();
  QAction* AddCommand(QWidget* menu, const char* name, const char* text, void (frmPlot::*command)());
  void OnMouse(MouseAct act, MouseButton button, QPointF world, QPoint global);
  // Runs a model operation; a failure's text is shown, and the window shows the model again.
  void Run(const std::function<void()>& operation);
  QAction* AddToggle(QMenu* menu, const char* name, const char* text, void (frmPlot::*toggle)(SettingsStore&));
  void ShowChecks();

  frmPlot& model_;
  PlotCanvasWidget* canvas_ = nullptr;
  QMenu* mnuGoto_ = nullptr;
  bool placed_ = false;
};

// Registers the window of frmPlot with the Qt Ui.
void RegisterPlotWindow();

}  // namespace benchlog::qt
