// SPDX-License-Identifier: MIT

#pragma once

#include <QPolygonF>
#include <QRect>

#include <xcb/xcb.h>

#include <vector>

namespace ambrelle {

/// A rounded rectangle of pixels as the rectangles a window's shape is made of: one a row in the corners, one between.
std::vector<xcb_rectangle_t> roundedRows(const QRect& area, double corner);

/// A shape likewise, to the nearest pixel.
std::vector<xcb_rectangle_t> shapeRows(const QPolygonF& shape);

} // namespace ambrelle
