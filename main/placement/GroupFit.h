// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

namespace ambrelle {

/// Fits a group of widgets to another screen as a layout is fitted: all of it shrinks by one factor and keeps its
/// proportions, so that nothing comes to lie over its neighbour.
namespace GroupFit {

/// A widget as it stands on the screen it comes from.
struct Member {
    QRectF frame; ///< from that screen's lower left corner, y up
    QSizeF exactSize; ///< its size before it was rounded to whole points
};

struct Result {
    double factor = 1; ///< of every widget's size; never above 1
    QList<QPointF> origins; ///< in the order of the members; whole points, so that edges in line stay in line
};

/// The group in `area`, as large as it fits in there, as near to the area's edges as it was to those of the screen of
/// `before` points in proportion. Members that did not overlap do not then either, with their
/// sizes rounded to whole points, unless the area has hardly any room at all.
Result fitted(const QList<Member>& members, const QSizeF& before, const QRectF& area);

/// Whether two widgets lie over one another; edges that touch do not.
bool overlap(const QRectF& one, const QRectF& other);

} // namespace GroupFit

} // namespace ambrelle
