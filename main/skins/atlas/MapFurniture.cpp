// SPDX-License-Identifier: MIT

#include "skins/atlas/MapFurniture.h"

#include <QPainter>

#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr RGBA accent = hex(0xB0461A);
constexpr RGBA ink = hex(0x2A2A22);
constexpr RGBA sheet = hex(0xF8F4E6);
constexpr double field = 0.125; ///< of the graticule, in parts of the height
constexpr double margin = 0.02; ///< from the edge of the sheet to the map

/// The pixels of a line that is `share` of the height thick.
double line(const Painting& painting, double share)
{
    return std::max(1.0, share * painting.height());
}

/// Lines every `field` from the middle of the sheet, so that both sides end alike.
std::vector<double> meridians(double length, double step)
{
    std::vector<double> places;
    for (double place = std::fmod(length / 2, step); place < length; place += step)
        places.push_back(place);
    return places;
}

void graticule(Painting& painting)
{
    const double step = field * painting.height();
    const double thickness = line(painting, 0.0006);
    painting.stencil(painting.all(), ink.withAlpha(0.12), [&](QPainter& painter) {
        for (const double x : meridians(painting.width(), step))
            painter.drawRect(QRectF(std::round(x), 0, thickness, painting.height()));
        for (const double y : meridians(painting.height(), step))
            painter.drawRect(QRectF(0, std::round(y), painting.width(), thickness));
    });
}

/// The sheet was folded into eight: a bright edge beside a soft dark one.
void creases(Painting& painting)
{
    const double reach = 0.022 * painting.height();
    const GradientStops fold{
        {0, black(0)}, {0.46, black(0.05)}, {0.5, white(0.12)}, {0.56, white(0.05)}, {1, white(0)}};
    for (const double part : {0.25, 0.5, 0.75}) {
        const QPointF middle = painting.at(part, 0.5);
        painting.fill(Ink::linear(middle - QPointF(reach, 0), middle + QPointF(reach, 0), fold, Ink::Ends::open));
    }
    const QPointF middle = painting.at(0.5, 0.5);
    painting.fill(Ink::linear(middle - QPointF(0, reach), middle + QPointF(0, reach), fold, Ink::Ends::open));
}

QPointF towards(double turn, double length)
{
    const double angle = 2 * std::numbers::pi * turn;
    return {length * std::sin(angle), length * std::cos(angle)};
}

/// One half of a point of the star, from its tip to the centre; `side` is -1 or 1.
QPainterPath halfPoint(double turn, double length, double waist, double side)
{
    QPainterPath path(towards(turn, length));
    path.lineTo(towards(turn + side / 16, waist));
    path.lineTo(0, 0);
    path.closeSubpath();
    return path;
}

QPainterPath ring(double outer, double inner)
{
    QPainterPath path;
    path.addEllipse(QPointF(), outer, outer);
    path.addEllipse(QPointF(), inner, inner);
    return path;
}

/// A star of eight points, each half light and half dark, in a ring of degrees; the arrow points north.
void compassRose(Painting& painting)
{
    const double h = painting.height();
    const double radius = 0.07 * h;
    const double room = (margin + 0.018) * h + 1.35 * radius;
    const QPointF centre(std::min(0.92 * painting.width(), painting.width() - room), 0.14 * h);
    const QTransform place = QTransform().translate(centre.x(), centre.y()).scale(radius, radius);
    QPainterPath light;
    QPainterPath dark;
    for (int point = 0; point < 8; ++point) {
        const bool minor = point % 2 == 1;
        dark.addPath(halfPoint(point / 8.0, minor ? 0.56 : 0.86, minor ? 0.2 : 0.24, 1));
        light.addPath(halfPoint(point / 8.0, minor ? 0.56 : 0.86, minor ? 0.2 : 0.24, -1));
    }
    QPainterPath rings = ring(1, 0.982);
    rings.addPath(ring(0.9, 0.888));
    QPainterPath degrees;
    for (int tick = 0; tick < 72; ++tick) {
        const double inner = tick % 2 == 0 ? 0.9 : 0.945;
        degrees.moveTo(towards(tick / 72.0, inner));
        degrees.lineTo(towards(tick / 72.0, 0.99));
    }
    QPainterPath north;
    north.addPolygon(QPolygonF{{0, 1.26}, {0.085, 1.04}, {0, 1.09}, {-0.085, 1.04}, {0, 1.26}});
    QPainterPath disc;
    disc.addEllipse(QPointF(), 1, 1);

    painting.fill(place.map(disc), sheet.withAlpha(0.35));
    painting.fill(place.map(rings), ink.withAlpha(0.7));
    painting.stroke(place.map(degrees), line(painting, 0.0005), ink.withAlpha(0.6));
    painting.fill(place.map(light), sheet.withAlpha(0.9));
    painting.fill(place.map(dark), ink.withAlpha(0.8));
    painting.stroke(place.map(light), line(painting, 0.0005), ink.withAlpha(0.6));
    painting.fill(place.map(north), accent.withAlpha(0.85));
}

/// A frame of `width` pixels, `inset` from the edge of the picture.
QPainterPath frame(const Painting& painting, double inset, double width)
{
    QPainterPath path;
    path.addRect(painting.all().adjusted(inset, inset, -inset, -inset));
    const double inner = inset + width;
    path.addRect(painting.all().adjusted(inner, inner, -inner, -inner));
    return path;
}

/// The scale along the border: each second field of it is filled.
QPainterPath scaleFields(const Painting& painting, double inset, double width)
{
    const double step = field * painting.height();
    const double right = painting.width() - inset;
    const double top = painting.height() - inset;
    QPainterPath path;
    const auto fields = [&](double length, double end, const auto& add) {
        std::vector<double> places = meridians(length, step / 2);
        for (std::size_t i = 0; i + 1 < places.size(); i += 2)
            add(std::max(places[i], inset), std::min(places[i + 1], end));
    };
    fields(painting.width(), right, [&](double from, double to) {
        path.addRect(QRectF(from, inset, to - from, width));
        path.addRect(QRectF(from, top - width, to - from, width));
    });
    fields(painting.height(), top, [&](double from, double to) {
        path.addRect(QRectF(inset, from, width, to - from));
        path.addRect(QRectF(right - width, from, width, to - from));
    });
    return path;
}

/// The white edge of the sheet, then a thick line, the scale, and a thin line.
void border(Painting& painting)
{
    const double h = painting.height();
    const double inset = std::round(margin * h);
    const double scale = std::max(2.0, std::round(0.005 * h));
    const double thin = std::round(line(painting, 0.0008));
    const double thick = std::round(line(painting, 0.002));
    painting.fill(frame(painting, 0, inset), sheet);
    painting.fill(frame(painting, inset - thick, thick), ink.withAlpha(0.8));
    painting.fill(frame(painting, inset, scale), sheet);
    painting.fill(scaleFields(painting, inset, scale), ink.withAlpha(0.75));
    painting.fill(frame(painting, inset + scale, thin), ink.withAlpha(0.8));
}

} // namespace

void paintMapFurniture(Painting& painting)
{
    graticule(painting);
    creases(painting);
    compassRose(painting);
    border(painting);
}

} // namespace ambrelle
