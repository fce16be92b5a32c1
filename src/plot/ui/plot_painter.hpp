#pragma once
// Paints a plot canvas's primitive list with QPainter into a target rectangle (the window's client
// area, an off-screen image or a printed page), antialiased. The world scale of the canvas is mapped
// onto the rectangle; texts keep their point size, so they read alike on any device.
#include <QPainter>
#include <QRectF>
#include <vector>

#include "plot/plot_canvas.hpp"

namespace benchlog::qt {

void PaintPlot(QPainter& painter, const PlotCanvas& canvas, const QRectF& target);

// Paints `figures` over what the target already shows, in the canvas's world scale, without
// clearing it: the rubber bands and lines over a painted plot.
void PaintOverlay(QPainter& painter, const PlotCanvas& canvas, const std::vector<PlotPrimitive>& figures,
                  const QRectF& target);

}  // namespace benchlog::qt
