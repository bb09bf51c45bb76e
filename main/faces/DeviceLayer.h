// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPainter>

#include <functional>

namespace ambrelle {

/// A picture of a part of what a painter shows, pixel for pixel: drawing it is the same as drawing what is in it.
class DeviceLayer {
public:
    DeviceLayer() = default;
    /// `draw` gets a painter with the coordinates of `target`; `area` is in them too.
    DeviceLayer(const QPainter& target, const QRectF& area, const std::function<void(QPainter&)>& draw);

    bool isEmpty() const { return m_image.isNull(); }
    /// Whether it may stand for `area` in this painter.
    bool covers(const QPainter& target, const QRectF& area) const;
    void paint(QPainter& target, double opacity = 1) const;

private:
    /// Device pixels by which the target is shifted against the one that this was drawn for.
    QPointF shift(const QPainter& target) const;

    QTransform m_device;
    QRect m_pixels;
    QImage m_image;
};

} // namespace ambrelle
