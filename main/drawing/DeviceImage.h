// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <functional>

namespace ambrelle {

/// Pictures kept in the pixels of the device they are drawn on, so that they can be put back one to one.

/// The whole device pixels that `area`, in the painter's coordinates, touches.
QRect devicePixels(const QPainter& target, const QRectF& area);
/// The pixels that can be painted on: those of the device, inside the painter's clip.
QRect paintedPixels(const QPainter& target);
/// A transparent picture of these pixels; `draw` gets a painter with the target's coordinates.
QImage deviceImage(const QPainter& target, const QRect& pixels, const std::function<void(QPainter&)>& draw);
/// Lays the picture over the target with its upper left corner at the device pixel `at`. A plain copy: nothing is
/// scaled or smoothed, and no other thread is woken for it.
void paintDeviceImage(QPainter& target, QPoint at, const QImage& image, double opacity = 1);
/// Lays over the target what of the picture lies within `shape`, in device pixels, with a smooth edge.
void paintDeviceImage(QPainter& target, QPoint at, const QImage& image, const QPainterPath& shape);

} // namespace ambrelle
