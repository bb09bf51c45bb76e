// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SeededRandom.h"

#include <QList>
#include <QPen>
#include <QPolygonF>

namespace ambrelle {

/// The lines that strokes by hand are made of. Points.

/// A line as the hand draws it: points, and the width at each of them.
struct HandLine {
    QPolygonF points;
    QList<double> widths;
};

/// The points without those that follow each other more closely than `apart` on a curve; corners stay.
QPolygonF thinned(const QPolygonF& points, double apart);
/// The stretches of a line that a dashed pen draws; the line itself of a solid one.
QList<QPolygonF> dashes(const QPolygonF& points, const QPen& pen);
/// The line with points every three points at most, each up to about `amount` beside it.
QPolygonF wavered(const QPolygonF& line, double amount, SeededRandom& random);

HandLine evenLine(const QPolygonF& points, double width);
/// `extent`: the size of the drawing that the line is part of; small ones are drawn more steadily.
HandLine markerLine(const QPolygonF& line, double width, double extent, SeededRandom& random);
/// The line itself, then the hairs that leave the last of the ink.
QList<HandLine> brushLines(const QPolygonF& line, double width, SeededRandom& random);

} // namespace ambrelle
