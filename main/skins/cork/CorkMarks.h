// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Readings.h"

namespace ambrelle::cork {

/// What is written and drawn on the papers, with markers, crayons and highlighters.

/// A circle drawn in one go that runs on beyond its beginning.
QPainterPath drawnRound(QPointF centre, double radius, double turns = 1.15);
/// A scribble that fills a ring clockwise from twelve o'clock up to `fraction`.
QPainterPath scribbledRing(QPointF centre, double inner, double outer, double fraction);
/// A broad stroke of a highlighter.
void highlight(Canvas& canvas, const Box& box, const QColor& colour, unsigned seed = 1);
/// The head of an arrow that comes from `back` to `tip`.
QPainterPath arrowHead(QPointF tip, QPointF back, double size);
/// An upright arrow in the box.
void drawnArrow(Canvas& canvas, const Box& box, bool upwards, const QColor& colour, double width);
/// Two lines below what was written, the second one shorter.
void twiceUnderlined(Canvas& canvas, QPointF from, double length, const QColor& colour);
/// A sky in crayon: loose fills within dark lines.
void crayonSky(Canvas& canvas, const Box& square, Sky sky, const SkinStyle& style);

} // namespace ambrelle::cork
