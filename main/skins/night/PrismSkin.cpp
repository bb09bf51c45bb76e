// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "skins/night/NightPieces.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double prismEdge = 1.2;
constexpr double glassSheen = 0.16;
constexpr double glintWidth = 10;
constexpr double glintStrength = 0.24;
constexpr double glintFromCorner = 22; // where it rests
const QPointF glintWay(std::cos(35 * std::numbers::pi / 180), -std::sin(35 * std::numbers::pi / 180)); // across it

constexpr double glintPeriod = 16; // seconds between the starts of two crossings
constexpr double glintLength = 1.2;
constexpr double glintRate = 24; // frames a second

/// A prism seen from its end: a triangle with a level base, as wide as the box.
QPainterPath triangleIn(const Box& box)
{
    const double height = box.width() * std::numbers::sqrt3 / 2;
    const Box place = box.centred(box.width(), height);
    QPainterPath path = straightLine({place.bottomLeft(), {place.center().x(), place.top()}, place.bottomRight()});
    path.closeSubpath();
    return path;
}

/// Dark frosted glass that splits light: white goes in, colours come out.
class PrismSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const override;
    void pictogram(Canvas& canvas, const Box& box, Sky sky) const override;
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override;
    void rowMark(Canvas& canvas, Box& line, qsizetype index) const override;
    void checkMark(Canvas& canvas, const Box& box, bool done) const override;
    void sessionDot(Canvas& canvas, const Box& box, bool lit) const override;
    void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const override;
    void cover(Canvas& canvas, const Box& box, const Picture& artwork) const override;
    void overPhoto(Canvas& canvas, const FaceContext& face) const override;
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override;

    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
    void motion(Canvas& canvas, const FaceContext& face) const override;
    QGradientStops spectrum() const override
    {
        return {{0, look().accent}, {0.5, look().accent2}, {0.75, prismViolet}, {1, look().accent3}};
    }
    QBrush area(const Box& box, const QColor& colour, bool hangs) const override;
    void forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const override;

private:
    /// The colours that white falls into, one after the other.
    QColor ray(qsizetype index) const;
    /// The rays side by side and leaning, each of one tone, as a cut glass throws them on a wall.
    QBrush facets(const Box& box, double strength) const;
    /// A strip of the spectrum across the whole plane, through that point.
    QBrush glint(QPointF middle, double strength) const;
    void edge(Canvas& canvas, const Box& box, double corner) const;
    /// A beam enters a prism in the middle of the box and leaves it as a fan.
    void refraction(Canvas& canvas, const Box& box) const;
};

QColor PrismSkin::ray(qsizetype index) const
{
    const std::array rays = spectrumOf(look());
    return rays[static_cast<std::size_t>(index) % rays.size()];
}

QBrush PrismSkin::facets(const Box& box, double strength) const
{
    constexpr int count = 6;
    constexpr double joint = 0.002; // from one facet to the next
    const double across = glintWay.x();
    const double down = -glintWay.y();
    QGradientStops stops;
    for (int index = 0; index < count; ++index) {
        const QColor colour = faded(ray(index), strength);
        stops.append({index / static_cast<double>(count), colour});
        stops.append({(index + 1.0) / count - joint, colour});
    }
    const QPointF end = box.topLeft() + QPointF(across, down) * (box.width() * across + box.height() * down);
    return linear(box.topLeft(), end, stops);
}

QBrush PrismSkin::glint(QPointF middle, double strength) const
{
    constexpr double soft = 0.15; // of the strip, at either side
    const QPointF half = glintWay * (glintWidth / 2);
    QGradientStops stops{{0, faded(look().accent, 0)}, {1, faded(look().accent3, 0)}};
    for (const auto& [place, colour] : spectrum())
        stops.insert(stops.size() - 1, {soft + place * (1 - 2 * soft), faded(colour, strength)});
    return linear(middle - half, middle + half, stops);
}

void PrismSkin::edge(Canvas& canvas, const Box& box, double corner) const
{
    canvas.frame(box, QPen(along(box.topLeft(), box.bottomRight(), look().accent), prismEdge), corner);
}

void PrismSkin::panel(Canvas& layer, const FaceContext& face) const
{
    const Box& box = face.bounds;
    sheen(layer, box, look().corner, Qt::white, glassSheen, 0.02, 0.6);
    layer.fill(box, glint(box.topRight() - glintWay * glintFromCorner, glintStrength), look().corner);
    edge(layer, box, look().corner);
}

void PrismSkin::motion(Canvas& canvas, const FaceContext& face) const
{
    const Motion crossing = Motion::bursts(glintPeriod, 1 + static_cast<int>(face.kind), glintLength, glintRate);
    canvas.moving(face.bounds, crossing, [&](Canvas& moving, double time) {
        const std::optional<double> phase = time > 0 ? crossing.phase(time) : std::nullopt;
        if (!phase)
            return;
        const Box& box = face.bounds;
        const QPointF middle = box.bottomLeft() + (box.topRight() - box.bottomLeft()) * *phase;
        const double strength = std::sin(*phase * std::numbers::pi);
        moving.fill(box, glint(middle, glintStrength * strength), look().corner);
    });
}

QBrush PrismSkin::area(const Box& box, const QColor& colour, bool hangs) const
{
    return colour == look().warn ? NightSkin::area(box, colour, hangs) : facets(box, look().lines.wash);
}

void PrismSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double height = 22;
    constexpr double symbol = 16;
    constexpr double pole = 3;
    constexpr double air = 3.6;
    Box line = box.centred(box.width(), std::min(height, box.height()));
    if (!reading.symbol.isEmpty()) {
        canvas.symbol(line.cutRight(symbol), reading.symbol, symbol, look().ink);
        line.cutRight(Bands::gap);
    }
    canvas.fill(line.cutRight(pole).centred(pole, line.height() / 3), look().soft, pole / 2);
    line.cutRight(1);
    canvas.frame(line, QPen(look().ink, prismEdge), line.height() / 2);
    const Box inside = line.inset(air);
    if (reading.level <= 0)
        return;
    const double length = std::max(inside.height(), inside.width() * bounded(reading.level));
    canvas.fill(Box(inside).cutLeft(length), along(inside, valueColour(reading.low)), inside.height() / 2);
}

void PrismSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    constexpr double line = 1.4;
    constexpr double fringe = 0.6;
    const auto draw = [&](Canvas& layer) {
        const auto lines = [&](QPointF apart, const QColor& colour) {
            drawPictogram(layer, box.translated(apart), sky,
                {.sun = colour, .moon = colour, .cloud = colour, .water = colour, .bolt = colour, .outline = line});
        };
        lines({-0.8, -0.3}, faded(look().accent, fringe));
        lines({0, 0.8}, faded(look().accent2, fringe));
        lines({0.8, -0.3}, faded(look().accent3, fringe));
        lines({}, look().ink);
    };
    canvas.still(u"sky"_s, box.inset(-2), draw, static_cast<int>(sky));
}

TextStyle PrismSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    constexpr double corner = 6;
    return filledDay(canvas, cell, day, look().accent, corner);
}

void PrismSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    constexpr double width = 3;
    canvas.fill(line.cutLeft(width).centred(width, style().rowSize + 2), ray(index), width / 2);
    line.cutLeft(8);
}

void PrismSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double side = 13;
    constexpr double corner = 4;
    const Box square = box.centred(side, side);
    if (!done) {
        canvas.frame(square, QPen(look().soft, prismEdge), corner);
        return;
    }
    canvas.fill(square, along(square.topLeft(), square.bottomRight(), look().accent), corner);
    canvas.symbol(square, u"checkmark"_s, side - 2, style().ground);
}

void PrismSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    constexpr double side = 9;
    const QPainterPath prism = triangleIn(box.centred(side, side));
    if (lit)
        canvas.fill(prism, across(prism.boundingRect(), spectrum()));
    else
        canvas.stroke(prism, roundPen(look().soft, 1));
}

void PrismSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    constexpr double width = 3.6;
    constexpr double face = 170; // width of the small face that the hours stand on
    const Box day(look().inset, 0, face - 2 * look().inset, 0);
    Box bar = Box(column).cutBottom(std::max(1.0, (column.height() - look().lines.bead) * bounded(fraction)));
    bar = bar.centred(width, bar.height());
    canvas.fill(bar, along(day, look().accent), std::min(width, bar.height()) / 2);
    if (now)
        bead(canvas, {bar.center().x(), bar.top()}, look().accent);
}

void PrismSkin::cover(Canvas& canvas, const Box& box, const Picture& artwork) const
{
    NightSkin::cover(canvas, box, artwork);
    canvas.still(u"cover edge"_s, box, [&](Canvas& layer) { edge(layer, box, look().coverCorner); });
}

void PrismSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    const Box photo = face.bounds.inset(photoMat());
    canvas.fill(
        photo, glint(photo.topRight() - glintWay * (glintFromCorner - photoMat()), 2 * glintStrength), photoCorner());
}

void PrismSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double size = 22;
    if (middle)
        canvas.disc(box.center(), box.height() / 2, look().track);
    canvas.symbol(box, symbol, middle ? size - 4 : size, look().ink);
}

void PrismSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double dateSize = 13;
    Box box = plate(canvas, face);
    const TextStyle label = style().header().sized(dateSize);
    canvas.text(box.cutTop(Bands::footer), reading.dateLine(), label);
    named(canvas, box.cutBottom(Bands::footer), reading.tag(), look().caption(), reading.meridiem,
        look().caption().coloured(look().ink));
    QLinearGradient colours(0, 0, 1, 0);
    colours.setStops(spectrum());
    const double width = canvas.figure(box, reading.time(), {}, figure(look().clockCap).kerned().filled(colours));
    box.cutLeft(width + 2 * Bands::gap);
    box.setRight(face.bounds.right() - prismEdge);
    canvas.still(u"refraction"_s, box, [&](Canvas& layer) { refraction(layer, box); });
}

void PrismSkin::refraction(Canvas& canvas, const Box& box) const
{
    constexpr double side = 32;
    constexpr double spread = 52; // of the fan, where it meets the edge of the plate
    constexpr int rays = 6;
    const double left = box.left() + 18;
    const QPointF centre(left + side / 2, box.center().y());
    const QPointF in = centre - QPointF(side / 4, -2);
    const QPointF out = centre + QPointF(side / 4, 0);
    const QPointF from(box.left(), in.y() + 8);
    canvas.line(from, in, flatPen(linear(from, in, {{0, faded(look().ink, 0)}, {1, look().ink}}), 2));
    for (int index = 0; index < rays; ++index) {
        const double place = (index + 0.5) / rays - 0.5;
        const QPointF start = out + QPointF(0, place * 6);
        const QPointF end(box.right(), centre.y() + 8 + place * spread);
        canvas.line(start, end, flatPen(linear(start, end, {{0, ray(index)}, {1, faded(ray(index), 0.1)}}), 2));
    }
    const QPainterPath prism = triangleIn(Box(squareAbout(centre, side / 2)));
    canvas.fill(prism, faded(Qt::white, 0.1));
    canvas.stroke(prism, roundPen(look().ink, prismEdge));
}

void PrismSkin::forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr int most = 5;
    constexpr double gap = 4;
    constexpr double corner = 8;
    dayColumns(box, reading, most, gap, [&](const Box& column, const WeatherReading::Day& day, qsizetype index) {
        const QColor colour = ray(index);
        canvas.fill(column, wash(column, colour, 0.26, 0.04), corner);
        dayColumn(canvas, *this, column.inset(0, 4), day);
    });
}

} // namespace

std::shared_ptr<const FaceRenderer> prismSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<PrismSkin>(NightLook::of(Skin::prism, accent));
}

} // namespace ambrelle
