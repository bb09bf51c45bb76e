// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/FaceRenderer.h"

namespace ambrelle::groove {

/// The rainbow in the lower right corner of a plate, and how far above the inset what is as wide as the plate ends, so
/// that it stays clear of it.
struct Rainbow {
    double radius = 40; ///< of its outer edge, points
    double width = 6; ///< of its stripes, points; half of it lies between them
    double lift = 0; ///< points

    static Rainbow of(const FaceContext& face);
    /// What is left of it of a line at the lower edge of that face.
    Box beside(Box line, const FaceContext& face) const;
    void draw(Canvas& canvas, const SkinStyle& style, const Box& plate, double corner) const;
};

/// A history without its spikes, so that stripes run smoothly beside each other.
History softened(const History& history);
/// Stripes with round ends that follow a line of straight pieces, the first one's edge on it, the others below it, or
/// above it where they run `upwards`.
void waves(Canvas& canvas, const QPainterPath& line, const QList<QColor>& colours, bool upwards = false);
/// How high so many stripes are.
double waveDepth(int count);

/// A sun with twelve round rays.
void sunburst(Canvas& canvas, QPointF centre, double radius, const QColor& disc, const QColor& rays);
/// A fat picture of a sky in the largest square of the box.
void skyPicture(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky);
/// A flower with eight petals.
QPainterPath flower(QPointF centre, double radius);

/// A text on a mustard pill at the left end of the line; cuts its place. Nothing without a text.
void label(Canvas& canvas, const SkinStyle& style, Box& line, const QString& text);
/// A process on a pill that is filled up to where the values stand, which take `values` points. The name can be read on
/// the fill and beside it.
void processPill(Canvas& canvas, const SkinStyle& style, const Box& pill, const ProcessesReading::Row& process,
    const QColor& fill, double values);

} // namespace ambrelle::groove
