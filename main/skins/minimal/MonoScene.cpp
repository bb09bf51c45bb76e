// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "skins/minimal/MinimalLook.h"
#include "skins/SceneRecipes.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double gridWidth = 0.6; // of its hairlines, points
constexpr double gridInk = 0.16;
constexpr double intoBorder = 0.5; // of a plate: the hairline goes on where the border ends
constexpr double overhang = 40; // beyond the items
constexpr double leastApart = 20; // of hairlines
constexpr double numeralSize = 9;
constexpr double widestNumeral = 1.5; // in parts of its size
constexpr double aboveHairline = 4;
constexpr double besideItems = 6;

/// Where each of the bands begins. Of two that begin near each other one is told.
QList<double> beginnings(const QList<QList<SceneItem>>& bands, double (QRectF::*edge)() const, double apart)
{
    QList<double> places;
    for (const QList<SceneItem>& band : bands) {
        double first = (band.first().frame.*edge)();
        for (const SceneItem& item : band)
            first = std::min(first, (item.frame.*edge)());
        places.append(first);
    }
    std::ranges::sort(places);
    QList<double> kept;
    for (const double place : std::as_const(places)) {
        if (kept.isEmpty() || place - kept.last() >= apart)
            kept.append(place);
    }
    return kept;
}

/// The numbers of the rows at the left ends of their hairlines, where there is room before the first items.
void rowNumerals(SceneOrnament& on, const MinimalLook& look, const QList<double>& tops, double x)
{
    const double size = std::max(numeralSize, on.scaled(numeralSize));
    const double start = std::max(x, on.scaled(besideItems));
    const double room = on.bounds().left() - on.scaled(besideItems) - start;
    if (room < widestNumeral * size)
        return;
    const TextStyle figures{.face = look.body, .size = size, .colour = look.soft};
    for (qsizetype row = 0; row < tops.size(); ++row) {
        const Box line(start, tops[row] - on.scaled(aboveHairline) - size, room, size);
        on.label(u"numeral"_s, line, u"%1"_s.arg(row + 1, 2, 10, '0'_L1), figures);
    }
}

} // namespace

/// The grid that the plates stand on: a hairline where each row and each column begins.
Scene monoScene(SceneOrnament on)
{
    const MinimalLook look = MinimalLook::original(Skin::mono);
    const double reach = on.scaled(overhang);
    const QRectF room = on.bounds().adjusted(-reach, -reach, reach, reach);
    const QList<double> tops = beginnings(on.rows(), &QRectF::top, on.scaled(leastApart));
    rowNumerals(on, look, tops, room.left());
    const QPen pen = flatPen(faded(look.ink, gridInk), on.scaled(gridWidth));
    for (const double top : tops)
        on.line(u"row"_s, {room.left(), top + intoBorder}, {room.right(), top + intoBorder}, pen);
    for (const double left : beginnings(on.columns(), &QRectF::left, on.scaled(leastApart)))
        on.line(u"column"_s, {left + intoBorder, room.top()}, {left + intoBorder, room.bottom()}, pen);
    return on.scene();
}

} // namespace ambrelle
