// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Pictogram.h"

namespace ambrelle::aero {

/// The tints of wet gel of one colour: where light gathers, itself, and its depth.
struct Tints {
    QColor light;
    QColor body;
    QColor shade;

    explicit Tints(const QColor& colour);
};

/// The outline of the sky that is mirrored in the upper part of a pane of glass.
QPainterPath glossPath(const Box& pane, double corner);
/// A pane of glass that is let into the plate: dark, with light on its lower edge.
void well(Canvas& canvas, const Box& box, double radius);
/// Liquid in the shape, deeper downwards within the box.
void liquid(Canvas& canvas, const QPainterPath& shape, const Box& box, const QColor& colour);

/// A cushion of gel with round ends and light on it.
void gel(Canvas& canvas, const Box& box, const QColor& colour);
/// Gel in its glass, up to `fraction`; returns its place, empty for nothing.
Box gelBar(Canvas& canvas, const Box& box, double fraction, const QColor& colour);
/// A ring of gel in its glass, clockwise from the top.
void gelRing(Canvas& canvas, const Box& square, double width, double fraction, const QColor& colour);
/// A drop of gel.
void orb(Canvas& canvas, QPointF centre, double radius, const QColor& colour);

/// The picture of a sky in glossy gradients, the sun with its halo.
void glossySky(Canvas& canvas, const SkinStyle& style, const Box& square, Sky weather);

/// A bubble of air.
void bubble(Canvas& canvas, QPointF centre, double radius);
/// Bubbles that rise through gel one after the other; at time 0 they rest. `seed` tells one bar of a face from another.
void risingBubbles(Canvas& canvas, const Box& gel, int seed);

} // namespace ambrelle::aero
