// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPolygonF>
#include <QRect>

#include <array>

namespace ambrelle {

/// How much of each pixel is covered by lines with round ends and corners whose width changes on the way. Far cheaper
/// than filling outlines where lines are long and made of many short pieces.
class InkMask {
public:
    /// At the sides of a line the cover falls to nothing within `edge` pixels, half of them inside the line.
    explicit InkMask(const QRect& pixels, double edge = 1)
        : InkMask(pixels, edge, pixels)
    {
    }
    /// Only the part of it that is `seen`, which is as in the whole.
    InkMask(const QRect& pixels, double edge, const QRect& seen);

    const QRect& pixels() const { return m_pixels; }
    /// Covers a line; all in device pixels, a width for each point.
    void add(const QPolygonF& points, const QList<double>& widths);
    /// 0 to 255 for each pixel of a row, from the left edge.
    const uchar* row(int y) const { return m_cover.constData() + static_cast<qsizetype>(y) * m_pixels.width(); }
    /// A picture of it in one colour, the opacity of each cover looked up.
    QImage tinted(const QColor& colour, const std::array<double, 256>& opacities) const;

private:
    void addPiece(QPointF from, QPointF to, double fromRadius, double toRadius);

    QPoint m_origin; ///< lines are counted from there, whatever is seen: sums round alike
    QRect m_pixels;
    double m_edge;
    QList<uchar> m_cover;
};

} // namespace ambrelle
