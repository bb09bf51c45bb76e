// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"

#include <QList>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>
#include <QRegion>

namespace ambrelle {

/// A widget that a scene is drawn around.
struct SceneItem {
    WidgetKind kind = WidgetKind::clock;
    QRectF frame{}; ///< points of the screen, origin at its upper left corner, y down; may reach beyond its edges

    bool operator==(const SceneItem&) const = default;
};

/// The space between two neighbours.
struct SceneGutter {
    SceneItem before; ///< the left or the upper one
    SceneItem after;
    QRectF area; ///< where they face each other; empty of other items

    bool operator==(const SceneGutter&) const = default;
};

/// How the items of one screen lie. There is at least one item.
class SceneLayout {
public:
    SceneLayout(QList<SceneItem> items, const QSizeF& size);

    const QList<SceneItem>& items() const { return m_items; } ///< in the order of creation
    const QRectF& screen() const { return m_screen; } ///< its origin is 0, 0
    /// A measure that is given for items of 170 points' height, for the smallest item here. All of a scene's are.
    double scaled(double points) const { return points * m_unit; }

    const SceneItem& hero() const { return m_items[m_hero]; } ///< the largest; a clock among equals, then the first
    QList<SceneItem> satellites() const; ///< the others
    QRectF bounds() const; ///< of all items

    /// Items that stand beside each other, the upper row first, each from left to right. Each item is in one row.
    QList<QList<SceneItem>> rows() const;
    QList<QList<SceneItem>> columns() const; ///< likewise, from left to right and downwards
    /// Between neighbours that stand beside each other (horizontal) or above each other (vertical), face each other
    /// over half of the smaller one and are at most `widest` scaled points apart.
    QList<SceneGutter> gutters(Qt::Orientation direction, double widest = 120) const;
    /// All items from the hero on, next always the one whose centre is nearest to the last.
    QList<SceneItem> walk() const;
    /// A bow from the centre of the outermost item on the left to that on the right: up from the lower one and level
    /// into the other, or straight where they stand less than `flattest` points above each other.
    QPolygonF bow(double flattest) const;

    /// Inside the screen, and away from every item and all that was reserved.
    bool isFree(const QRectF& area) const;
    /// From now on nothing else is to stand there.
    void reserve(const QRectF& area) { m_reserved.append(area); }
    /// What is left of the line `fromItems` points away from items and reserved places, and `fromEdges` inside the
    /// screen. Stretches too short to be seen as a line are left out.
    QPainterPath outside(const QPainterPath& line, double fromItems, double fromEdges) const;
    QPainterPath onScreen(
        const QPainterPath& line, double fromEdges) const; ///< the same for what may pass behind items

    /// The whole points of a place on the screen that no item covers: for strong marks that reach up to the very edges
    /// of items, as if they lay behind them. Items whose faces leave their corners open give these, up to a pixel
    /// below the edge of the face; `corner` is the radius at a face's scale of 1.
    QRegion besideItems(const QRectF& place, double corner = 0) const;
    /// A measure of the item's own face at scale 1, in points of the screen.
    static double ofFace(const SceneItem& item, double points);

    /// The middle of a side of the item.
    static QPointF edge(const SceneItem& item, Qt::Edge side);
    /// Where the way from the item's centre to `towards` leaves it.
    static QPointF edge(const SceneItem& item, QPointF towards);

private:
    QList<QList<SceneItem>> bands(Qt::Orientation direction) const;
    qsizetype heroIndex() const;

    QList<SceneItem> m_items;
    QRectF m_screen;
    double m_unit = 1;
    qsizetype m_hero = 0;
    QList<QRectF> m_reserved;
};

/// A line through points, with round corners where it bends.
QPainterPath bentLine(const QPolygonF& points, double radius);
/// Whether the line comes nearer to the area than `reach`.
bool comesNear(const QPainterPath& line, const QRectF& area, double reach);

} // namespace ambrelle
