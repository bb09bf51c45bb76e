// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/apollo/ApolloPieces.h"
#include "skins/apollo/ApolloStyle.h"
#include "skins/SceneRecipes.h"

#include <QRegion>

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double margin = 14; // of a console beside its items, points
constexpr double consoleCorner = 6;
constexpr double shared = 48; // items less far apart stand on one console
constexpr double leastCovered = 0.45; // of a console, by its items: else each has its own
constexpr double itemCorner = 4;
constexpr double underItem = 0.5; // so that no light falls through between item and metal
constexpr int darkened = 143;
constexpr double screw = 2.4; // radius
constexpr double nameSize = 10.5;
constexpr double leastNameSize = 7.5;
constexpr double nameRaised = 1.2; // or its tails touched the item

constexpr double cableWidth = 6;
constexpr double cableRise = 24; // of its ends over the consoles' lower edges
constexpr double sag = 36;
constexpr double leastSpan = 40;
constexpr double steepest = 190; // difference of its ends: it does not climb
constexpr qsizetype mostWired = 4; // consoles, or the floor is a tangle

QRectF grown(const QRectF& area, double by)
{
    return area.adjusted(-by, -by, by, by);
}

double extentOf(const QRectF& area)
{
    return area.width() * area.height();
}

/// The bounds of items near each other; no two of them are near.
QList<QRectF> groupsOf(const SceneOrnament& on)
{
    const double reach = on.scaled(shared) / 2;
    QList<QRectF> groups;
    for (const SceneItem& item : on.items()) {
        QRectF own = item.frame;
        const auto isNear = [&](const QRectF& other) { return grown(other, reach).intersects(grown(own, reach)); };
        for (auto near = std::ranges::find_if(groups, isNear); near != groups.end();
             near = std::ranges::find_if(groups, isNear)) {
            own |= *near;
            groups.erase(near);
        }
        groups.append(own);
    }
    return groups;
}

/// Where consoles stand, from left to right.
QList<QRectF> consoles(const SceneOrnament& on)
{
    const auto plate = [&](const QRectF& area) { return grown(area, on.scaled(margin)) & on.screen(); };
    QList<QRectF> places;
    for (const QRectF& group : groupsOf(on)) {
        QList<QRectF> members;
        double covered = 0;
        for (const SceneItem& item : on.items()) {
            if (group.contains(item.frame.center())) {
                members.append(plate(item.frame));
                covered += extentOf(item.frame);
            }
        }
        if (covered < leastCovered * extentOf(group))
            places.append(members);
        else
            places.append(plate(group));
    }
    places.removeIf([](const QRectF& place) { return place.isEmpty(); });
    std::ranges::stable_sort(places, {}, [](const QRectF& place) { return place.center().x(); });
    return places;
}

/// The piece of a sheet in a corner between its edges and the round corner of an item or, `outwards`, of its own.
QPainterPath cornerPiece(QPointF corner, QPointF inwards, bool outwards)
{
    const QPointF across = corner + QPointF(inwards.x(), 0);
    const QPointF down = corner + QPointF(0, inwards.y());
    const bool turns = (inwards.x() * inwards.y() > 0) != outwards; // all pieces of a sheet run clockwise
    QPainterPath piece(outwards ? corner + inwards : corner);
    piece.lineTo(turns ? across : down);
    piece.quadTo(corner, turns ? down : across);
    piece.closeSubpath();
    return piece;
}

struct Corner {
    QPointF place;
    QPointF inwards;

    QRectF square() const { return QRectF(place, place + inwards).normalized(); }
};

std::array<Corner, 4> cornersOf(const QRectF& area, double size)
{
    return {{{area.topLeft(), {size, size}}, {area.topRight(), {-size, size}}, {area.bottomLeft(), {size, -size}},
        {area.bottomRight(), {-size, -size}}}};
}

/// The metal of a console: its place without all items. Cut on a fine grid, so that any items can lie over each other.
QPainterPath sheetOf(const SceneOrnament& on, const QRectF& place)
{
    constexpr double fine = 16; // parts of a point
    const auto whole = [](const QRectF& area) {
        return QRect(QPoint(qRound(area.left() * fine), qRound(area.top() * fine)),
            QPoint(qRound(area.right() * fine) - 1, qRound(area.bottom() * fine) - 1));
    };
    QPainterPath sheet;
    sheet.setFillRule(Qt::WindingFill);
    QRegion left(whole(place));
    for (const Corner& corner : cornersOf(place, on.scaled(consoleCorner))) {
        if (on.isFree(corner.square())) {
            left -= whole(corner.square());
            sheet.addPath(cornerPiece(corner.place, corner.inwards, true));
        }
    }
    for (const SceneItem& item : on.items())
        left -= whole(grown(item.frame, -underItem));
    for (const QRect& piece : left)
        sheet.addRect(piece.x() / fine, piece.y() / fine, piece.width() / fine, piece.height() / fine);
    for (const SceneItem& item : on.items()) {
        for (const Corner& corner : cornersOf(item.frame, itemCorner)) {
            const auto isOver = [&](const SceneItem& other) {
                return other != item && other.frame.intersects(corner.square());
            };
            if (place.contains(corner.square()) && std::ranges::none_of(on.items(), isOver))
                sheet.addPath(cornerPiece(corner.place, corner.inwards, false));
        }
    }
    return sheet;
}

void metalSheet(SceneOrnament& on, const QRectF& place)
{
    const QPainterPath edge = on.outside(roundedPath(grown(place, -1), on.scaled(consoleCorner)), 1, 1);
    on.add(
        u"console"_s, place,
        [](Canvas& canvas, const QPainterPath& sheet, const QPainterPath& rim, const QRectF& area) {
            canvas.fill(sheet,
                downwards(area, {{0, apollo::metalLight.darker(darkened)}, {1, apollo::metalDark.darker(darkened)}}));
            const QGradientStops light{
                {0, faded(Qt::white, 0.35)}, {0.1, faded(Qt::white, 0.1)}, {1, faded(Qt::black, 0.4)}};
            canvas.stroke(rim, QPen(downwards(area, light), 1, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
        },
        sheetOf(on, place), edge, place);
    const QRectF screws = grown(place, -on.scaled(margin) / 2);
    const double radius = on.scaled(screw);
    for (const QPointF& at : {screws.topLeft(), screws.topRight(), screws.bottomLeft(), screws.bottomRight()}) {
        const QRectF around = grown(QRectF(at, QSizeF()), radius + 1);
        if (!on.isFree(around))
            continue;
        on.add(
            u"screw"_s, around, [](Canvas& canvas, QPointF centre, double r) { apollo::fastener(canvas, centre, r); },
            at, radius);
        on.reserve(around);
    }
}

/// Engraved above the first item of each row on a console.
void stations(SceneOrnament& on, const SkinStyle& style, const QList<QRectF>& places)
{
    static const QStringList names{u"CAPCOM"_s, u"FIDO"_s, u"EECOM"_s, u"GUIDO"_s, u"RETRO"_s, u"GNC"_s, u"INCO"_s,
        u"TELCOM"_s, u"BOOSTER"_s, u"SURGEON"_s};
    const TextStyle text = apollo::label(style).sized(on.scaled(nameSize)).coloured(faded(apollo::cut, 0.85));
    qsizetype next = 0;
    for (const QList<SceneItem>& row : on.rows()) {
        for (const QRectF& place : places) {
            const auto first =
                std::ranges::find_if(row, [&](const SceneItem& item) { return place.contains(item.frame.center()); });
            if (first == row.end() || text.size < leastNameSize || next == names.size())
                continue;
            const double height = on.scaled(margin);
            const Box line(
                first->frame.left() + on.scaled(8), first->frame.top() - height - nameRaised, on.scaled(90), height);
            if (on.label(u"station"_s, line, names[next], text))
                ++next;
        }
    }
}

/// Hangs between the lower corners that face each other.
void cable(SceneOrnament& on, const QRectF& left, const QRectF& right)
{
    const QPointF from(left.right(), left.bottom() - on.scaled(cableRise));
    const QPointF to(right.left(), right.bottom() - on.scaled(cableRise));
    const double span = to.x() - from.x();
    if (span < on.scaled(leastSpan) || std::abs(to.y() - from.y()) > on.scaled(steepest))
        return;
    const double width = on.scaled(cableWidth);
    const double room = on.screen().bottom() - 2 * width - std::max(from.y(), to.y());
    const QPointF down(0, std::clamp(on.scaled(sag) * std::min(1.0, span / on.scaled(300)), 0.0, std::max(0.0, room)));
    QPainterPath course(from);
    course.cubicTo(from + QPointF(0.35 * span, 0) + down * 4 / 3, to - QPointF(0.35 * span, 0) + down * 4 / 3, to);
    const QColor sheath(0x3B, 0x40, 0x3F);
    on.line(u"cable-shade"_s, course, flatPen(QColor(0x12, 0x15, 0x15), width));
    on.line(u"cable"_s, course.translated(0, -0.1 * width), flatPen(sheath, 0.7 * width));
    on.line(u"cable-light"_s, course.translated(0, -0.2 * width), flatPen(sheath.lighter(170), 0.18 * width));
    for (const double side : {1.0, -1.0}) { // outside the metal
        const QPointF end = (side > 0 ? from : to) + QPointF(side * 0.75 * width, 0);
        const Box clamp = Box(QRectF(end, QSizeF())).centred(1.5 * width, 2 * width);
        if (!on.isFree(clamp))
            continue;
        on.add(
            u"clamp"_s, clamp,
            [](Canvas& canvas, const Box& box) {
                canvas.fill(
                    box, downwards(box, {{0, apollo::metalLight}, {1, apollo::metalDark.darker(darkened)}}), 1.5);
                canvas.frame(box, QPen(faded(apollo::cut, 0.7), 0.8), 1.5);
                apollo::fastener(canvas, box.center(), box.width() * 0.2);
            },
            clamp);
    }
}

} // namespace

/// A control room: what stands together is let into one console, and cables run between them.
Scene apolloScene(SceneOrnament on)
{
    const SkinStyle style = apollo::makeStyle(on.accent());
    const QList<QRectF> places = consoles(on);
    for (const QRectF& place : places)
        metalSheet(on, place);
    for (qsizetype index = 1; index < places.size() && places.size() <= mostWired; ++index)
        cable(on, places[index - 1], places[index]);
    stations(on, style, places);
    return on.scene();
}

} // namespace ambrelle
