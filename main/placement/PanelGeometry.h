// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

namespace ambrelle {

/// How a widget's face and its toolbar stand in the widget's window. Widgets and windows are in global points, y up;
/// areas inside the window are in window points, y down.
namespace PanelGeometry {

inline constexpr double toolbarHeight = 32;
inline constexpr double toolbarWidth = 196;
/// Between the face and the left, lower and (at least) right edge of the window.
inline constexpr double margin = 30;

QRectF panelFrame(const QRectF& widget);
QPointF widgetOrigin(QPointF panelOrigin);
QRectF faceArea(const QSizeF& widget);
/// The strip directly above the face; where `room` (global, y up; empty: unlimited) ends before the strip does, it lies
/// below the face, and where there is no room either, over it, as far as the window reaches.
QRectF toolbarArea(const QRectF& widget, const QRectF& room = {});
/// Whether what stands in the face would shine through that strip.
bool coversFace(const QRectF& toolbar, const QSizeF& widget);

} // namespace PanelGeometry

} // namespace ambrelle
