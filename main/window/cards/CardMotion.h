// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPersistentModelIndex>

namespace ambrelle {

/// What moves in a grid: the badges of a card come and go with the pointer, and pictures appear. Times are milliseconds
/// on a clock that never jumps.
class CardMotion {
public:
    explicit CardMotion(int hoverTime = 120, int arrivalTime = 250);
    void setTimes(int hoverTime, int arrivalTime); ///< 0: at once

    /// The pointer is over this card, or over none.
    void hover(const QModelIndex& index, qint64 now);
    /// A card was painted without its picture; the picture will fade in.
    void await(const QModelIndex& index);
    /// A card is painted with its picture.
    void arrive(const QModelIndex& index, qint64 now);

    double hovering(const QModelIndex& index) const; ///< 0 to 1
    double arrived(const QModelIndex& index) const; ///< 0 to 1; 1 also where nobody waited
    QModelIndex hovered() const { return m_hovered; }

    /// Moves everything to `now`; the cards to paint again.
    QList<QModelIndex> advance(qint64 now);
    bool isMoving() const;
    void clear();

private:
    struct Fade {
        QPersistentModelIndex index;
        qint64 start = 0;
        double from = 0;
        double to = 1;
        double value = 0;
        bool isOver = false;
    };

    static void step(Fade& fade, int time, qint64 now);

    int m_hoverTime;
    int m_arrivalTime;
    QPersistentModelIndex m_hovered;
    QList<Fade> m_hovers;
    QList<Fade> m_arrivals;
    QList<QPersistentModelIndex> m_awaiting;
};

} // namespace ambrelle
