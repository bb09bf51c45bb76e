// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "skins/night/NightPieces.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QColor candle(0xFF, 0xF4, 0xE2);

constexpr double goldLine = 0.7; // of frames
constexpr double goldInset = 5; // of the line inside the plate
constexpr int drops = 10; // of the chandelier
constexpr double italicLean = 0.2; // of the figures, to the right for each point upwards

/// A drop of cut glass that hangs from `top`.
QPainterPath dropAt(QPointF top, double length)
{
    const QPointF foot = top + QPointF(0, length);
    const double half = length * 0.3;
    QPainterPath path(top);
    path.cubicTo(top + QPointF(half * 0.3, length * 0.35), foot + QPointF(half * 1.5, -length * 0.1), foot);
    path.cubicTo(foot + QPointF(-half * 1.5, -length * 0.1), top + QPointF(-half * 0.3, length * 0.35), top);
    return path;
}

/// A theatre box: plum velvet under champagne light, slender italics, lozenges and fine gold lines.
class VelvetSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    FigureStyle figure(double cap) const override;
    void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const override;
    void pictogram(Canvas& canvas, const Box& box, Sky sky) const override;
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override;
    void rowMark(Canvas& canvas, Box& line, qsizetype index) const override;
    void eventMark(Canvas& canvas, Box& line, const QColor& colour) const override;
    void checkMark(Canvas& canvas, const Box& box, bool done) const override;
    void sessionDot(Canvas& canvas, const Box& box, bool lit) const override;
    void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const override;
    void cover(Canvas& canvas, const Box& box, const Picture& artwork) const override;
    void overPhoto(Canvas& canvas, const FaceContext& face) const override;
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override;

    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
    void bead(Canvas& canvas, QPointF point, const QColor& colour) const override;
    TextStyle rowValue(qsizetype index) const override;
    void forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const override;

private:
    TextStyle italic(double size) const { return style().header().sized(size); }
    /// A lozenge, full or as an outline.
    void gem(Canvas& canvas, const QPainterPath& shape, bool full) const;
    /// The lozenge in the lower line of the plate.
    void seal(Canvas& canvas, const Box& plate) const;
    /// Drops on a chain that hangs `depth` points deep, as many of them lit from the left.
    void chandelier(Canvas& canvas, const Box& box, double depth, int lit, const QColor& light) const;
    void fadingRule(Canvas& canvas, const Box& line) const;
    /// The time about the middle of the box, lozenges for its colon; returns its right end.
    double time(Canvas& canvas, const Box& box, const ClockReading& reading) const;
};

void VelvetSkin::panel(Canvas& layer, const FaceContext& face) const
{
    constexpr double above = 40; // where the light hangs
    const Box& box = face.bounds;
    const QPointF light(box.center().x(), box.top() - above);
    layer.fill(box, halo(light, box.height() * 1.1, look().accent, 0.24), look().corner);
    layer.frame(box.inset(goldInset), QPen(faded(look().accent, 0.45), goldLine), look().corner - goldInset);
    seal(layer, box);
}

void VelvetSkin::seal(Canvas& canvas, const Box& plate) const
{
    constexpr double radius = 3.5;
    constexpr double broad = 1.2;
    canvas.fill(lozenge({plate.center().x(), plate.bottom() - goldInset}, radius, broad), look().accent);
}

FigureStyle VelvetSkin::figure(double cap) const
{
    QLinearGradient shimmer(0, 0, 0, 1);
    shimmer.setStops({{0, candle}, {1, look().accent}});
    return style().figure(cap).filled(shimmer);
}

void VelvetSkin::bead(Canvas& canvas, QPointF point, const QColor& colour) const
{
    canvas.fill(lozenge(point, look().lines.bead), colour);
}

void VelvetSkin::gem(Canvas& canvas, const QPainterPath& shape, bool full) const
{
    if (full)
        canvas.fill(shape, look().accent);
    else
        canvas.stroke(shape, flatPen(look().soft, 0.9));
}

void VelvetSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double symbol = 14;
    const double depth = box.height() * 0.34; // of the chain
    const int lit = std::max(litOf(reading.level, drops), reading.level > 0 ? 1 : 0);
    const QColor& light = valueColour(reading.low);
    const auto draw = [&](Canvas& layer) { chandelier(layer, box, depth, lit, light); };
    canvas.still(u"chandelier"_s, box.inset(-6), draw, lit, light);
    if (!reading.symbol.isEmpty())
        canvas.symbol(Box(box).cutTop(depth), reading.symbol, symbol, look().ink);
}

void VelvetSkin::chandelier(Canvas& canvas, const Box& box, double depth, int lit, const QColor& light) const
{
    QPainterPath chain(box.topLeft());
    chain.quadTo({box.center().x(), box.top() + 2 * depth}, box.topRight());
    canvas.stroke(chain, QPen(faded(look().accent, 0.7), goldLine));
    for (int index = 0; index < drops; ++index) {
        const double along = (index + 0.5) / drops;
        const double sag = along * (1 - along);
        const QPointF top = box.topLeft() + QPointF(box.width() * along, 2 + depth * 4 * sag);
        const QPainterPath drop = dropAt(top, box.height() * (0.36 + 0.6 * sag));
        if (index < lit) {
            canvas.lightAround(drop, {.colour = light, .strokes = 4, .alpha = 0.07, .spread = 2});
            canvas.fill(drop, downwards(drop.boundingRect(), {{0, light}, {1, blended(light, candle, 0.7)}}));
        } else {
            canvas.stroke(drop, QPen(look().soft, goldLine));
        }
    }
}

void VelvetSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    constexpr double line = 1.1;
    const auto draw = [&](Canvas& layer) {
        const QBrush gold = downwards(box.square(), {{0, candle}, {0.8, look().accent}});
        drawPictogram(
            layer, box, sky, {.sun = gold, .moon = gold, .cloud = gold, .water = gold, .bolt = gold, .outline = line});
    };
    canvas.still(u"sky"_s, box.inset(-1), draw, static_cast<int>(sky));
}

TextStyle VelvetSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    constexpr double radius = 12;
    constexpr double broad = 0.81; // clear of the days beside it
    canvas.fill(lozenge(cell.center(), radius, broad), look().accent);
    canvas.setGround(look().accent);
    return day.coloured(inkOn(look().accent));
}

void VelvetSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    if (index > 0)
        fadingRule(canvas, Box(line).cutTop(1));
    canvas.fill(lozenge(line.cutLeft(5).center(), 3), look().accent);
    line.cutLeft(7);
}

void VelvetSkin::fadingRule(Canvas& canvas, const Box& line) const
{
    constexpr double thickness = 0.7;
    constexpr double fades = 0.3; // of the length, at either end
    const QColor gone = faded(look().track, 0);
    canvas.rule(
        line, across(line, {{0, gone}, {fades, look().track}, {1 - fades, look().track}, {1, gone}}), thickness);
}

TextStyle VelvetSkin::rowValue(qsizetype) const
{
    return style().rowValue().faced(look().label).coloured(style().accentText());
}

void VelvetSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    canvas.fill(lozenge(line.cutLeft(8).center(), 5.5), colour);
    line.cutLeft(Bands::gap);
}

void VelvetSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double radius = 8;
    gem(canvas, lozenge(box.center(), radius, 1), done);
    if (done)
        canvas.symbol(box, u"checkmark"_s, 9, inkOn(look().accent));
}

void VelvetSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    gem(canvas, lozenge(box.center(), 4.5), lit);
}

void VelvetSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    constexpr double width = 2.2;
    const double room = column.height() - look().lines.bead;
    Box bar = Box(column).cutBottom(std::max(1.0, room * bounded(fraction)));
    bar = bar.centred(width, bar.height());
    canvas.fill(bar, now ? look().accent : look().accent2);
    if (now)
        bead(canvas, {bar.center().x(), bar.top()}, look().accent);
}

void VelvetSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    constexpr double mat = 4;
    canvas.within(archPath(box.inset(mat)), [&] { NightSkin::cover(canvas, box.inset(mat), picture); });
    canvas.stroke(archPath(box.inset(goldLine / 2)), QPen(look().accent, goldLine));
}

void VelvetSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    seal(canvas, face.bounds);
}

void VelvetSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double size = 18;
    constexpr double broad = 1.5;
    if (middle)
        canvas.stroke(lozenge(box.center(), box.height() / 2 + 3, broad), flatPen(look().accent, 1));
    canvas.fill(symbolIn(box, symbol, middle ? size - 3 : size), look().accent);
}

double VelvetSkin::time(Canvas& canvas, const Box& box, const ClockReading& reading) const
{
    constexpr double colon = 26; // its room
    constexpr double radius = 5;
    const FigureStyle digits = figure(look().clockCap).kerned();
    const double hours = figureWidth(reading.hours, {}, digits, box.width());
    const double minutes = figureWidth(reading.minutes, {}, digits, box.width());
    Box line = box.centred(hours + colon + minutes, box.height());
    canvas.figure(line.cutLeft(hours), reading.hours, {}, digits);
    const QPointF middle = line.cutLeft(colon).center();
    const double apart = look().clockCap * 0.2;
    for (const double up : {apart, -apart})
        canvas.fill(lozenge(middle + QPointF(up * italicLean, -up), radius), up > 0 ? candle : look().accent);
    canvas.figure(line, reading.minutes, {}, digits);
    return line.right();
}

void VelvetSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double dateSize = 16;
    constexpr double dateLine = 18;
    Box box = plate(canvas, face);
    const TextStyle label = italic(dateSize).coloured(style().accentText());
    canvas.text(box.cutTop(dateLine), reading.dateLine(), label.aligned(Align::centre));
    canvas.text(box.cutBottom(footerHeight(style())), reading.tag(), look().caption().aligned(Align::centre));
    box.cutLeft(std::max(0.0, time(canvas, box, reading) + Bands::gap - box.left()));
    canvas.text(box.centred(box.width(), look().clockCap).cutBottom(dateSize), reading.meridiem, look().caption());
}

void VelvetSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double picture = 44;
    constexpr double descriptionSize = 15;
    Box box = plate(canvas, face);
    const Box days = box.cutRight(box.width() / 2);
    box.cutRight(18);
    header(canvas, box, face, reading.place);
    canvas.text(box.cutBottom(footerHeight(style())), reading.range(), look().caption());
    canvas.text(box.cutBottom(descriptionSize + 5), reading.description, italic(descriptionSize));
    pictogram(canvas, box.cutRight(picture), reading.sky);
    box.cutRight(2 * Bands::gap);
    canvas.figure(box, reading.temperature, u"°"_s, figure(look().temperatureCap));
    forecast(canvas, days, reading);
}

void VelvetSkin::forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr int most = 5;
    dayRows(box, reading, most, [&](const Box& row, const WeatherReading::Day& day, qsizetype index) {
        if (index > 0)
            fadingRule(canvas, Box(row).cutTop(1));
        const Box room = dayRow(canvas, *this, row, day);
        dottedLeader(canvas, room.left(), room.right() + Bands::gap, Canvas::baseline(row, look().caption()),
            faded(look().soft, 0.5), 1);
    });
}

} // namespace

std::shared_ptr<const FaceRenderer> velvetSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<VelvetSkin>(NightLook::of(Skin::velvet, accent));
}

} // namespace ambrelle
