// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "model/WidgetKind.h"

namespace ambrelle::kyoto {

/// Kanji in the middle of the box, `size` points high, several one under the other, or side by side in a lying box.
/// `press` is by how much the brush is pressed harder than the typeface does, in points. An ornament, not recorded.
void kanji(Canvas& canvas, const Box& box, const QString& text, double size, const QColor& ink, double press = 0);

/// The sheet between its rods and silk borders; `seed` lays the fibres.
void scroll(Canvas& canvas, const Box& face, std::uint64_t seed);
/// The red square with its sign.
void seal(Canvas& canvas, const Box& box, const QColor& red);

/// A circle of one stroke: hairs beside each other that begin together, a little left of the foot, run clockwise and
/// dry up one after the other towards `fraction` of the whole. `width` is that of the brush, points.
void enso(Canvas& canvas, const Box& circle, double fraction, double width, const QColor& ink);
/// Its inner edge.
Box insideEnso(const Box& circle, double width);

QPainterPath circle(QPointF centre, double radius);
/// A line through close points: thin where it is level, broad where it is steep.
QPainterPath brushLine(const QPolygonF& points, double thin, double broad);
/// A stroke across the box from edge to edge, its ends frayed.
QPainterPath frayed(const Box& box);

/// A stroke set down on the foot of the box and drawn upwards until the brush leaves the paper.
QPainterPath dab(const Box& box);

/// A stalk of `count` pieces from the foot of the box upwards, `full` of them filled, with three leaves beside its top.
void bamboo(Canvas& canvas, const Box& box, int count, int full, const QColor& fill, const QColor& outline);

} // namespace ambrelle::kyoto
