// SPDX-License-Identifier: MIT

#include "placement/GroupFit.h"

#include "model/Composition.h"

#include <algorithm>
#include <cmath>

namespace ambrelle::GroupFit {

namespace {

constexpr double touching = 0.01; // points: places went through decimal text
constexpr double leastFactor = 0.05; // on an area without room the widgets stay visible
constexpr double rounding = 1.5; // points by which neighbours of rounded sizes and places may come nearer

/// The group along one axis: where it begins and how long it is, and how much is free before and behind it.
struct Extent {
    double start;
    double length;
    double before;
    double behind;

    Extent(double from, double to, double whole)
        : start(from)
        , length(to - from)
        , before(std::max(0.0, from))
        , behind(std::max(0.0, whole - to))
    {
    }
    /// The largest factor with which it fits in `room`, no nearer to its edges than layouts or than it was.
    double factor(double room, double margin) const
    {
        return (room - std::min(margin, before) - std::min(margin, behind)) / length;
    }
    /// Where a point of it comes to lie in a room that begins at `low`.
    double placed(double point, double factor, double low, double room) const
    {
        const double share = before + behind > 0 ? before / (before + behind) : 0.5;
        return low + share * (room - factor * length) + factor * (point - start);
    }
};

/// The factor with which no widget's rounded size exceeds its share of the shrunk group: the last resort of a group
/// whose members touch one another.
double carefulFactor(const QList<Member>& members, double factor)
{
    double least = factor;
    for (const auto& [frame, exactSize] : members) {
        least = std::min({least, (factor * frame.width() - rounding) / exactSize.width(),
            (factor * frame.height() - rounding) / exactSize.height()});
    }
    return std::max(leastFactor, least);
}

bool meetAnewOrStickOut(const QList<Member>& members, const Result& result, const QRectF& area)
{
    const auto frame = [&](qsizetype i) {
        const QSizeF size = members[i].exactSize * result.factor;
        return QRectF(result.origins[i], QSizeF(std::round(size.width()), std::round(size.height())));
    };
    for (qsizetype i = 0; i < members.size(); ++i) {
        if (!area.contains(frame(i)))
            return true;
        for (qsizetype other = 0; other < i; ++other) {
            if (overlap(frame(i), frame(other)) && !overlap(members[i].frame, members[other].frame))
                return true;
        }
    }
    return false;
}

} // namespace

Result fitted(const QList<Member>& members, const QSizeF& before, const QRectF& area)
{
    QRectF all;
    for (const Member& member : members)
        all |= member.frame;
    const Extent x(all.left(), all.right(), before.width());
    const Extent y(all.top(), all.bottom(), before.height());
    const double factor = std::max(leastFactor,
        std::min({1.0, x.factor(area.width(), Composition::marginX), y.factor(area.height(), Composition::marginY)}));
    Result result{factor, {}};
    for (const Member& member : members) {
        result.origins += {std::round(x.placed(member.frame.left(), factor, area.left(), area.width())),
            std::round(y.placed(member.frame.top(), factor, area.top(), area.height()))};
    }
    if (factor < 1 && meetAnewOrStickOut(members, result, area))
        result.factor = carefulFactor(members, factor);
    return result;
}

bool overlap(const QRectF& one, const QRectF& other)
{
    const QRectF common = one & other;
    return common.width() > touching && common.height() > touching;
}

} // namespace ambrelle::GroupFit
