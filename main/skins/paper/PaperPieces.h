// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Readings.h"

namespace ambrelle::paper {

/// A clipping: what was torn off along a ruler below, with the fibres of cheap paper. Reaches 6 points beyond `box`.
void clipping(Canvas& canvas, const Box& box, const SkinStyle& style, std::uint64_t seed);

/// Rules along the upper edge of the box, on whole points so that hairlines stay sharp.
void rule(Canvas& canvas, const Box& box, const QColor& colour, double thickness);
/// A rule down the middle of the box.
void columnRule(Canvas& canvas, const Box& box, const QColor& colour, double thickness);
/// The heavy and the light rule under a headline; cuts them from the top of the box.
void doubleRule(Canvas& canvas, Box& content, const QColor& colour);
/// The line over a hairline at the lower edge of the box; cuts both with the gap above.
Box footLine(Canvas& canvas, const SkinStyle& style, Box& content);
/// What stands at the right end of the header line, small.
void headerNote(Canvas& canvas, const SkinStyle& style, const Box& face, const QString& text);

/// A mark in the colour of the accent or of a warning, with an edge of ink where it is too pale for the paper.
void mark(Canvas& canvas, const SkinStyle& style, const QPainterPath& shape, const QColor& colour);
QPainterPath diamond(QPointF centre, double size);

/// Ink for part `index` of a whole: solid, hatched, in colour.
void partInk(Canvas& canvas, const SkinStyle& style, const Box& box, qsizetype index);

/// A sky as a line engraving, hatched where it lies in shadow.
void engravedSky(Canvas& canvas, const Box& box, Sky sky, const QColor& ink);

} // namespace ambrelle::paper
