// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

#include <xcb/xcb.h>

#include <vector>

namespace ambrelle {

/// A rounded rectangle of pixels as the rectangles a window's shape is made of: one a row in the corners, one between.
std::vector<xcb_rectangle_t> roundedRows(const QRect& area, double corner);

} // namespace ambrelle
