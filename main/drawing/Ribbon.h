// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>
#include <QPolygonF>

#include <functional>

namespace ambrelle {

/// The outline of a line through `points` that changes its width on the way: `widthOf` is asked with the part of the
/// line's length, 0 at its start and 1 at its end. Filling it costs a third of stroking.
QPainterPath ribbon(
    const QPolygonF& points, const std::function<double(double along)>& widthOf, bool roundEnds = false);
/// A line of one width.
QPainterPath ribbon(const QPolygonF& points, double width, bool roundEnds = false);

} // namespace ambrelle
