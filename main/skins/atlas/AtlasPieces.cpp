// SPDX-License-Identifier: MIT

#include "skins/atlas/AtlasPieces.h"

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/Pictogram.h"
#include "model/NearestCity.h"
#include "skins/atlas/AtlasStyle.h"

#include <cmath>

namespace ambrelle::atlas {

using namespace Qt::StringLiterals;

void scaleFields(Canvas& canvas, const SkinStyle& style, const Box& box, int count)
{
    canvas.fill(box, sheet);
    for (int index = 0; index < count; index += 2)
        canvas.fill(box.column(index, count), style.ink);
    canvas.frame(box, flatPen(style.ink, Lines::hair));
}

void measure(Canvas& canvas, const SkinStyle& style, const Box& box, double fraction, const QColor& colour)
{
    const double reached = box.width() * bounded(fraction);
    canvas.fill(box, sheet);
    canvas.fill(Box(box).cutLeft(reached), colour);
    if (reached > 0)
        canvas.fill(Box(box.left() + reached - Lines::sign, box.top(), Lines::sign, box.height()), style.ink);
    canvas.frame(box, flatPen(style.ink, Lines::hair));
}

void scaleBar(Canvas& canvas, const SkinStyle& style, Box box, int fields, double fraction, const QColor& colour)
{
    constexpr double share = 0.4; // of the fields in the height
    scaleFields(canvas, style, box.cutTop(std::round(box.height() * share)), fields);
    measure(canvas, style, box, fraction, colour);
}

void scaleNumbers(Canvas& canvas, const SkinStyle& style, const Box& box, const QStringList& numbers)
{
    constexpr double room = 30;
    const qsizetype last = numbers.size() - 1;
    for (qsizetype index = 0; index <= last; ++index) {
        const double x = box.left() + box.width() * static_cast<double>(index) / static_cast<double>(last);
        const double from = index == 0 ? x : index == last ? x - room : x - room / 2;
        const Align align = index == 0 ? Align::left : index == last ? Align::right : Align::centre;
        canvas.text(Box(from, box.y(), room, box.height()), numbers[index], scaleText(style).aligned(align));
    }
}

namespace {

/// Trees on a staggered grid.
void trees(Canvas& canvas, const Box& box, const QColor& green)
{
    constexpr double pitch = 3;
    constexpr double crown = 0.85; // radius
    QPainterPath dots;
    int row = 0;
    for (double y = box.top() + pitch / 2; y < box.bottom() - crown; y += pitch, ++row) {
        for (double x = box.left() + (row % 2 == 0 ? pitch / 2 : pitch); x < box.right() - crown; x += pitch)
            dots.addEllipse(QPointF(x, y), crown, crown);
    }
    canvas.fill(dots, green);
}

/// A line across the middle of the box: a road between its edges, or rails on their sleepers.
void wayAcross(Canvas& canvas, const SkinStyle& style, const Box& box, bool rails)
{
    constexpr double casing = 4;
    constexpr double core = 2.4;
    constexpr double sleeper = 5;
    constexpr double pitch = 3;
    canvas.rule(box, style.ink, rails ? 1.2 : casing);
    if (!rails) {
        canvas.rule(box, style.accent, core);
        return;
    }
    for (double x = box.left() + pitch / 2; x < box.right(); x += pitch)
        canvas.fill(Box(x - 0.4, box.center().y() - sleeper / 2, 0.8, sleeper), style.ink);
}

} // namespace

void signArea(Canvas& canvas, const SkinStyle& style, const Box& box, Sign sign)
{
    constexpr double tint = 0.3;
    switch (sign) {
    case Sign::builtUp: canvas.fill(box, style.accent); break;
    case Sign::water:
        canvas.fill(box, blended(sheet, style.accent2, tint));
        hatch(canvas, roundedPath(box, 0), 0, 2, QPen(style.accent2, 0.8));
        break;
    case Sign::wood:
        canvas.fill(box, blended(sheet, style.accent3, tint));
        trees(canvas, box, style.accent3);
        break;
    case Sign::road: wayAcross(canvas, style, box, false); break;
    case Sign::railway: wayAcross(canvas, style, box, true); break;
    }
}

void legendSign(Canvas& canvas, const SkinStyle& style, const Box& box, Sign sign)
{
    constexpr double height = 8;
    const Box place = box.centred(legendWidth, height);
    signArea(canvas, style, place, sign);
    if (sign != Sign::road && sign != Sign::railway)
        canvas.frame(place, flatPen(style.ink, Lines::hair));
}

namespace {

constexpr double arcWidth = 3; // of what is reached, along the edge
constexpr double ringEnd = 13; // of the ring of degrees, from the edge inwards

void degreeRing(Canvas& canvas, const SkinStyle& style, const Gauge& gauge)
{
    constexpr int ticks = 36;
    constexpr double begin = 5; // from the edge
    Gauge ring = gauge;
    ring.radius -= begin;
    canvas.stroke(gauge.arc(0, 1, gauge.radius - arcWidth / 2), QPen(style.faint, 1));
    canvas.stroke(gauge.arc(0, 1, gauge.radius - ringEnd), QPen(style.ink, Lines::hair));
    ring.ticks(canvas, ticks, [&](int index) {
        const double length = index % 9 == 0 ? 0 : index % 3 == 0 ? 6 : 4; // none where a letter stands
        return Tick{length, flatPen(style.soft, 0.7)};
    });
}

/// North, east, south and west, but for the one that the needle would cross.
void quarters(Canvas& canvas, const SkinStyle& style, const Gauge& gauge, double needle)
{
    constexpr double from = 9; // the edge
    constexpr double near = 0.024; // turns
    const QStringList letters{u"N"_s, u"E"_s, u"S"_s, u"W"_s};
    for (int index = 0; index < letters.size(); ++index) {
        const double place = index / 4.0;
        const double beside = std::abs(needle - place);
        if (std::min(beside, 1 - beside) > near)
            gauge.numeral(canvas, place, letters[index], gauge.radius - from, scaleText(style).coloured(style.ink));
    }
}

} // namespace

Box compass(Canvas& canvas, const SkinStyle& style, const Box& box, double fraction, const QColor& colour)
{
    const Box square = box.square();
    const Gauge gauge = Gauge::in(square, 0, 360);
    const double reached = bounded(fraction);
    canvas.still(u"ring"_s, square, [&](Canvas& layer) { degreeRing(layer, style, gauge); });
    quarters(canvas, style, gauge, reached);
    if (reached > 0) {
        const QPainterPath band = gauge.band(0, reached, arcWidth);
        canvas.fill(band, colour);
        canvas.stroke(band, flatPen(style.ink, Lines::hair));
    }
    Needle needle{.length = gauge.radius - arcWidth, .width = 5, .pointed = true, .fill = colour};
    needle.tail = ringEnd + 2 - gauge.radius;
    gauge.needle(canvas, reached, needle);
    return square.inset(ringEnd + 1);
}

namespace {

/// One half of a point of the star, from its tip to the centre; `side` is -1 or 1.
QPainterPath starHalf(QPointF centre, double length, double turn, double side)
{
    constexpr double waist = 0.27;
    QPainterPath path(pointOn(centre, length, turn));
    path.lineTo(pointOn(centre, length * waist, turn + side / 8));
    path.lineTo(centre);
    path.closeSubpath();
    return path;
}

} // namespace

void compassRose(Canvas& canvas, const SkinStyle& style, const Box& box)
{
    constexpr double letter = 11; // room above the star
    Box place = box;
    canvas.text(place.cutTop(letter), u"N"_s, scaleText(style).coloured(style.ink).aligned(Align::centre));
    const Box circle = place.square();
    const double radius = circle.width() / 2;
    canvas.stroke(arc(circle.inset(radius * 0.36), 0, 1), QPen(style.ink, Lines::hair));
    const QPen edge = flatPen(style.ink, Lines::hair);
    for (int point = 0; point < 8; ++point) {
        const double turn = (point % 4 * 2 + (point < 4 ? 1 : 0)) / 8.0; // the long ones over the short ones
        const double length = radius * (point < 4 ? 0.62 : 1);
        const QPainterPath light = starHalf(circle.center(), length, turn, -1);
        canvas.fill(light, sheet);
        canvas.stroke(light, edge);
        canvas.fill(starHalf(circle.center(), length, turn, 1), turn == 0 ? style.accent : style.ink);
    }
}

void surveyMark(Canvas& canvas, const SkinStyle& style, QPointF centre, const QColor& colour)
{
    constexpr double radius = 4;
    QPainterPath triangle(pointOn(centre, radius, 0));
    triangle.lineTo(pointOn(centre, radius, 1.0 / 3));
    triangle.lineTo(pointOn(centre, radius, 2.0 / 3));
    triangle.closeSubpath();
    canvas.fill(triangle, colour);
    canvas.stroke(triangle, flatPen(style.ink, Lines::hair));
}

void skySign(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky)
{
    constexpr double units = 48;
    constexpr double large = 30; // from here on there is room for the full line
    const Box square = box.square();
    const double scale = square.width() / units;
    const QTransform place = QTransform::fromTranslate(square.x(), square.y()).scale(scale, scale);
    const Pictogram& picture = Pictogram::of(sky);
    canvas.fill(place.map(picture.disc), picture.night ? blended(sheet, style.accent2, 0.25) : sunshine);
    canvas.fill(place.map(picture.cloud), blended(sheet, style.accent2, 0.22));
    canvas.fill(place.map(picture.bolt), sunshine);
    drawPictogram(canvas, square, sky,
        {.sun = style.ink,
            .moon = style.ink,
            .cloud = style.ink,
            .water = style.accent2,
            .bolt = style.ink,
            .outline = square.width() >= large ? 1.2 : Lines::sign});
}

QString gridReference(const QString& city)
{
    const std::optional<CityPosition> position = positionOf(city);
    if (!position)
        return {};
    const auto angle = [](double degrees, QChar positive, QChar negative) {
        constexpr int minutesOfDegree = 60;
        const int minutes = static_cast<int>(std::lround(std::abs(degrees) * minutesOfDegree));
        return u"%1°%2′%3"_s.arg(minutes / minutesOfDegree)
            .arg(minutes % minutesOfDegree, 2, 10, QLatin1Char('0'))
            .arg(degrees < 0 ? negative : positive);
    };
    return angle(position->latitude, u'N', u'S') + u' ' + angle(position->longitude, u'E', u'W');
}

} // namespace ambrelle::atlas
