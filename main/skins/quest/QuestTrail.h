// SPDX-License-Identifier: MIT

#pragma once

#include "scenes/SceneLayout.h"

#include <QList>
#include <QPoint>

namespace ambrelle::quest {

/// Ways between items over the squares of a grid that belongs to the screen. They keep out of all items, and go where
/// there is a way already rather than beside it.
class QuestTrail {
public:
    /// `pitch`: side of a square; `half`: of what stands in its middle, to either side. Points.
    QuestTrail(const SceneLayout& layout, double pitch, double half);
    /// Nothing stands there.
    void block(const QRectF& area);

    /// The squares from beside the one frame to beside the other; none where no way is free but a long way round.
    QList<QPoint> link(const QRectF& from, const QRectF& to);
    QPointF centre(QPoint cell) const { return (QPointF(cell) + QPointF(0.5, 0.5)) * m_pitch; }

private:
    enum class Ground : unsigned char { open, blocked, trodden };

    qsizetype indexOf(QPoint cell) const { return static_cast<qsizetype>(cell.y()) * m_columns + cell.x(); }
    /// The squares whose middles lie at most `reach` outside the frame.
    QRect cells(const QRectF& frame, double reach) const;

    double m_pitch;
    double m_half;
    int m_columns;
    int m_rows;
    QList<Ground> m_ground;
};

} // namespace ambrelle::quest
