// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPolygonF>
#include <QRect>

namespace ambrelle {

/// How much of each pixel is covered by lines with round ends and corners whose width changes on the way. Far cheaper
/// than filling outlines where lines are long and made of many short pieces.
class InkMask {
public:
    explicit InkMask(const QRect& pixels);

    const QRect& pixels() const { return m_pixels; }
    /// Covers a line; all in device pixels, a width for each point.
    void add(const QPolygonF& points, const QList<double>& widths);
    /// 0 to 255 for each pixel of a row, from the left edge.
    const uchar* row(int y) const { return m_cover.constData() + static_cast<qsizetype>(y) * m_pixels.width(); }

private:
    void addPiece(QPointF from, QPointF to, double fromRadius, double toRadius);

    QRect m_pixels;
    QList<uchar> m_cover;
};

} // namespace ambrelle
