// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/Units.h"

namespace ambrelle::neon {

// Of a tube with a loose contact, now and then.
constexpr double flickerPeriod = 9; // seconds
constexpr double flickerLength = 0.35;
constexpr double flickerRate = 28; // frames a second

/// A bent tube: light around it, the glass in its colour, the pale gas inside. `brightness` below 1: it flickers.
void tube(Canvas& canvas, const QPainterPath& path, const QColor& colour, double width, double brightness = 1);
/// A straight tube over its unlit glass, lit up to `fraction`.
void levelTube(Canvas& canvas, const Box& box, double fraction, const QColor& unlit, const QColor& colour);
struct TubePart {
    double fraction = 0; ///< of the whole
    QColor colour{};
};
/// Tubes end to end, the rest unlit.
void partTubes(Canvas& canvas, const Box& box, const QList<TubePart>& parts, const QColor& unlit);
/// A point of light.
void spark(Canvas& canvas, QPointF centre, double radius, const QColor& colour);

/// The tube around a plate, open at the lower left between two sockets; it flickers now and then, each seed at another
/// moment.
void signTube(Canvas& canvas, const Box& face, double corner, const QColor& colour, int seed);
/// A floor that runs to the horizon at the upper edge of the box.
void floorGrid(Canvas& canvas, const Box& box, const QColor& colour);
/// A chrome figure, kept as it is until it changes: its outlines are many.
void polished(Canvas& canvas, const Box& box, const Units::Pair& value, const FigureStyle& figure);
/// The bars of a setting sun, wider apart and fainter downwards.
void sunset(Canvas& canvas, const Box& box, const QColor& upper, const QColor& lower);
/// A box that leans to the right as the skin's figures do.
QPainterPath leaning(const Box& box, double radius, QPointF about);

} // namespace ambrelle::neon
