// SPDX-License-Identifier: MIT

#include "placement/InstructionPlace.h"

#include <cmath>
#include <optional>
#include <utility>

namespace ambrelle {

namespace {

constexpr double placeStep = 10;

double covered(const QRectF& place, const QList<QRectF>& widgets)
{
    double area = 0;
    for (const QRectF& widget : widgets) {
        const QRectF common = place & widget;
        area += common.width() * common.height();
    }
    return area;
}

} // namespace

QRectF instructionPlace(const QSizeF& size, const QRectF& room, const QList<QRectF>& widgets)
{
    QRectF middle({}, size);
    middle.moveCenter(room.center());
    using Rank = std::pair<double, double>; // what is hidden, then how far from the middle
    std::optional<Rank> best;
    QRectF found = middle;
    const int across = static_cast<int>(std::max(0.0, room.width() - size.width()) / 2 / placeStep);
    const int down = static_cast<int>(std::max(0.0, room.height() - size.height()) / 2 / placeStep);
    for (int row = -down; row <= down; ++row) {
        for (int column = -across; column <= across; ++column) {
            const QRectF place = middle.translated(column * placeStep, row * placeStep);
            const Rank rank(covered(place, widgets), std::hypot(column, row));
            if (!best || rank < *best) {
                best = rank;
                found = place;
            }
        }
    }
    return found;
}

} // namespace ambrelle
