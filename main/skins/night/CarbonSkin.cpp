// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/night/CarbonPieces.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double amberFrom = 0.6; // of a load, on the tachometer
constexpr double redLine = 0.85;
constexpr double barPitch = 5;

constexpr int lampCount = 5;
constexpr double lampPitch = 9;
constexpr double chaseRate = 10; // lamps a second

/// A race car's dash: carbon weave, heavy slanted figures, rows of blocks and a red line.
class CarbonSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    bool showsSeconds() const override { return true; }
    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const override;
    void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const override;
    void parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const override;
    void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const override;
    void pictogram(Canvas& canvas, const Box& box, Sky sky) const override;
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override;
    void rowMark(Canvas& canvas, Box& line, qsizetype index) const override;
    void eventMark(Canvas& canvas, Box& line, const QColor& colour) const override;
    void checkMark(Canvas& canvas, const Box& box, bool done) const override;
    void sessionDot(Canvas& canvas, const Box& box, bool lit) const override;
    void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const override;
    void cover(Canvas& canvas, const Box& box, const Picture& artwork) const override;
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override;

    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
    TextStyle rowValue(qsizetype index) const override;
    void forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const override;

private:
    /// Green, amber or red: how near to the limit a place of a load's scale is.
    const QColor& zone(double place) const;
    /// A leaning block, full or as an outline.
    void slab(Canvas& canvas, const Box& box, bool full) const;
    void tachometer(Canvas& canvas, const Box& box, const CpuReading& reading) const;
    void shiftLights(Canvas& canvas, const Box& box, const CpuReading& reading) const;
    /// From the lowest to the highest of a day in three compounds: hard, medium and soft with the warmth.
    void stint(Canvas& canvas, const Box& track, const WeatherReading::Day& day) const;
};

void CarbonSkin::panel(Canvas& layer, const FaceContext& face) const
{
    constexpr double weave = 0.035;
    constexpr double lineShare = 0.4; // of the lower edge
    const Box& box = face.bounds;
    layer.within(roundedPath(box, look().corner), [&] { layer.fill(carbon::twillIn(box), faded(Qt::white, weave)); });
    layer.frame(box, QPen(faded(Qt::white, 0.18), 1), look().corner);
    layer.fill(Box(box.x() + look().inset, box.bottom() - 3, box.width() * lineShare, 3), look().accent);
}

const QColor& CarbonSkin::zone(double place) const
{
    return place < amberFrom ? look().accent3 : place < redLine ? look().accent2 : look().warn;
}

Box CarbonSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor&) const
{
    constexpr int count = 28;
    constexpr double amber = 0.7;
    const Box square = box.square();
    const int lit = litOf(fraction, count);
    const auto brushOf = [&](int index) {
        const double place = static_cast<double>(index) / count;
        const QColor& light = place < amber ? look().ink : place < redLine ? look().accent2 : look().accent;
        return index < lit ? light : look().track;
    };
    canvas.still(
        u"dial"_s, square,
        [&](Canvas& layer) { Gauge::in(square, 0, 360).blocks(layer, count, 3, look().lines.ring, brushOf, 4); }, lit);
    return square.inset(look().lines.ring + 2);
}

void CarbonSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double pitch = 4;
    const int count = static_cast<int>(box.width() / pitch);
    const int lit = litOf(fraction, count);
    canvas.still(
        u"level"_s, box,
        [&](Canvas& layer) {
            carbon::leaningBlocks(
                layer, box, look().lines.level, count, [&](int index) { return index < lit ? colour : look().track; });
        },
        lit, colour);
}

void CarbonSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor&) const
{
    const int count = static_cast<int>(box.width() / barPitch);
    const QList<double> heights = binned(history, count);
    const QBrush zones = linear(box.bottomLeft(), box.topLeft(),
        {{amberFrom, zone(0)}, {amberFrom + 0.01, zone(amberFrom)}, {redLine, zone(amberFrom)},
            {redLine + 0.01, zone(redLine)}});
    carbon::bars(canvas, box, heights, 1, zones);
    if (!heights.isEmpty())
        carbon::bars(canvas, box.column(count - 1, count, carbon::barGap), {heights.last()}, 1, look().ink);
}

void CarbonSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr double axis = 4; // between both sides
    const auto highest = [](const History& rates) { return rates.isEmpty() ? 0 : *std::ranges::max_element(rates); };
    // One scale for both, and as much room for each as it needs.
    const double down = highest(reading.downHistory);
    const double up = highest(reading.upHistory);
    const double share = std::clamp(down + up > 0 ? down / (down + up) : 0.5, 0.25, 0.75);
    const double whole = std::max({down / share, up / (1 - share), reading.peak});
    Box below = box;
    const Box above = below.cutTop((box.height() - axis) * share);
    canvas.rule(below.cutTop(axis), look().soft, 1);
    carbon::bars(canvas, above, reading.downHistory, whole * share, look().down);
    carbon::bars(canvas, below, reading.upHistory, whole * (1 - share), look().up, true);
}

void CarbonSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    const QList<QBrush> fills = partFills();
    const int count = static_cast<int>(box.width() / barPitch);
    carbon::leaningBlocks(canvas, box, look().lines.parts, count, [&](int index) {
        const std::optional<qsizetype> part = partAt(parts, (index + 0.5) / count);
        return part ? fills.value(*part) : QBrush(look().track);
    });
}

void CarbonSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr int count = 16;
    constexpr double height = 24;
    constexpr double symbol = 16;
    constexpr double reserve = 0.3;
    constexpr double last = 0.15;
    Box line = box;
    if (!reading.symbol.isEmpty()) {
        canvas.symbol(line.cutRight(symbol), reading.symbol, symbol, look().ink);
        line.cutRight(2);
    }
    const QColor& fuel = reading.level < last ? look().warn : reading.level < reserve ? look().accent2 : look().accent3;
    const int lit = std::max(litOf(reading.level, count), reading.level > 0 ? 1 : 0);
    carbon::leaningBlocks(canvas, line, height, count, [&](int index) { return index < lit ? fuel : look().track; });
}

void CarbonSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    constexpr double degrees = 8;
    const NightLook& by = look();
    const PictogramPaint paint{
        .sun = by.accent2, .moon = by.ink, .cloud = by.soft, .water = by.ink, .bolt = by.accent2};
    const auto draw = [&](Canvas& layer) {
        layer.mapped(carbon::shearAbout(box, degrees), [&] { drawPictogram(layer, box, sky, paint); });
    };
    canvas.still(u"sky"_s, box.inset(-2), draw, static_cast<int>(sky));
}

TextStyle CarbonSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    const double height = std::min(cell.height() + 1, 17.0);
    slab(canvas, cell.centred(cell.width() + carbon::leanOf(height) / 2, height), true);
    canvas.setGround(look().accent);
    return day.coloured(inkOn(look().accent));
}

void CarbonSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    canvas.fill(carbon::leaning(line.inset(0, 1.5)), faded(Qt::white, 0.05));
    line.cutLeft(2);
    line.cutRight(Bands::gap);
    const Box block = line.cutLeft(21).centred(21, 14);
    const QColor fill = index == 0 ? look().accent : look().faint;
    const GroundScope ground(canvas, fill);
    canvas.fill(carbon::leaning(block), fill);
    canvas.text(
        block, u"P%1"_s.arg(index + 1), style().header().sized(10.5).coloured(inkOn(fill)).aligned(Align::centre));
    line.cutLeft(Bands::gap);
}

TextStyle CarbonSkin::rowValue(qsizetype index) const
{
    return style().rowValue().faced(look().label).coloured(index == 0 ? look().ink : look().soft);
}

void CarbonSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    canvas.fill(carbon::leaning(line.cutLeft(9).inset(0, 4)), colour);
    line.cutLeft(5);
}

void CarbonSkin::slab(Canvas& canvas, const Box& box, bool full) const
{
    constexpr double line = 1.1;
    if (full)
        canvas.fill(carbon::leaning(box), look().accent);
    else
        canvas.stroke(carbon::leaning(box.inset(line / 2)), flatPen(look().soft, line));
}

void CarbonSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    slab(canvas, box.centred(16, 12), done);
    if (done)
        canvas.symbol(box, u"checkmark"_s, 11, inkOn(look().accent));
}

void CarbonSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    slab(canvas, box.centred(11, 7), lit);
}

void CarbonSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    if (now)
        canvas.fill(column, look().faint);
    carbon::bars(canvas, column, {fraction}, 1, now ? look().accent : look().soft);
}

void CarbonSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    constexpr double cut = 22;
    constexpr double line = 18; // the length by which the red line beside the cut is nearer to the corner
    canvas.within(cutCornerPath(box, cut), [&] { NightSkin::cover(canvas, box, picture); });
    const QPointF corner = box.topRight();
    canvas.line(corner - QPointF(line, 0), corner + QPointF(0, line), flatPen(look().accent, 2));
}

void CarbonSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double size = 24;
    if (middle)
        slab(canvas, box.centred(box.width() + carbon::leanOf(box.height()) / 2, box.height()), true);
    const QPainterPath path =
        carbon::shearAbout(box, carbon::slant).map(symbolIn(box, symbol, middle ? size - 4 : size));
    canvas.fill(path, middle ? inkOn(look().accent) : look().ink);
}

void CarbonSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double column = 52;
    constexpr double secondsCap = 22;
    constexpr double between = 14;
    Box box = framed(canvas, face, style().caps(reading.dateLine()));
    named(canvas, box.cutBottom(Bands::footer), reading.tag(), look().caption(), reading.meridiem,
        style().header().coloured(look().ink));
    level(canvas, box.cutBottom(between), reading.minute / 60.0, look().ink);
    Box laps = box.cutRight(column);
    box.cutRight(between);
    canvas.figure(box, reading.time(), {}, figure(look().clockCap).kerned());
    laps = laps.centred(column, look().clockCap);
    secondFigure(canvas, laps.cutBottom(secondsCap), reading, {}, figure(secondsCap).filled(look().accent2));
    laps.cutBottom(Bands::gap);
    canvas.text(laps.cutBottom(Bands::footer), u"LAP"_s, style().header().coloured(look().soft));
}

void CarbonSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    constexpr double mark = 14;
    constexpr double strip = 16;
    Box box = plate(canvas, face);
    const Box lamps = Box(box).cutTop(Bands::footer).cutRight(lampCount * lampPitch);
    header(canvas, box, face, headerTitle(style(), face.kind));
    shiftLights(canvas, lamps, reading);
    Box line = box.cutBottom(Bands::footer);
    if (reading.high)
        warning(canvas, line.cutRight(mark));
    canvas.text(line, reading.load, look().caption());
    box.cutBottom(4);
    history(canvas, box.cutBottom(strip), reading.history, look().accent);
    tachometer(canvas, box, reading);
}

void CarbonSkin::tachometer(Canvas& canvas, const Box& box, const CpuReading& reading) const
{
    constexpr int count = 42;
    constexpr double half = 105; // degrees from twelve o'clock to either end
    constexpr double radius = 62;
    constexpr double width = 11;
    constexpr double around = 3; // for the red line
    constexpr double cap = 36;
    const QPointF centre(box.center().x(), box.top() + radius + around);
    const Gauge gauge{.centre = centre, .radius = radius, .start = -half, .sweep = 2 * half};
    const int lit = litOf(reading.percent / 100.0, count);
    const auto brushOf = [&](int index) {
        const QColor& colour = zone(static_cast<double>(index) / count);
        return index < lit ? colour : blended(look().track, colour, 0.12);
    };
    const auto draw = [&](Canvas& layer) {
        gauge.blocks(layer, count, 1.6, width, brushOf, 3);
        layer.stroke(gauge.arc(redLine, 1, radius + around - 0.4), flatPen(look().warn, 1.6));
    };
    canvas.still(u"tachometer"_s, squareAbout(centre, radius + around + 1), draw, lit);
    const Box inside = squareAbout(centre - QPointF(0, 8), radius - width - around);
    const Units::Pair value = reading.figure();
    canvas.figure(inside, value.value, value.unit, figure(cap).aligned(Align::centre));
}

void CarbonSkin::shiftLights(Canvas& canvas, const Box& box, const CpuReading& reading) const
{
    constexpr double lampRadius = 3;
    const int lit = litOf(reading.percent / 100.0, lampCount);
    const auto lamps = [&](Canvas& layer, int dark) {
        for (int index = 0; index < lampCount; ++index) {
            const QColor& colour = zone((index + 0.5) / lampCount);
            const QPointF centre = box.column(index, lampCount).center();
            if (index < lit && index != dark)
                layer.disc(centre, lampRadius, colour);
            else
                layer.stroke(arc(squareAbout(centre, lampRadius - 0.5), 0, 1), QPen(look().soft, 1));
        }
    };
    if (!reading.high) {
        lamps(canvas, lampCount);
        return;
    }
    canvas.moving(box, Motion::steady(chaseRate), [&](Canvas& moving, double time) {
        const int steps = lampCount + 1; // one in which all are lit
        lamps(moving, static_cast<int>(std::fmod(time * chaseRate + lampCount, steps)));
    });
}

void CarbonSkin::forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr int most = 5;
    constexpr double picture = 18;
    constexpr double nameWidth = 28;
    constexpr double figures = 29;
    const TextStyle caption = look().caption();
    dayRows(box, reading, most, [&](Box row, const WeatherReading::Day& day, qsizetype index) {
        canvas.text(
            row.cutLeft(nameWidth), style().caps(day.name), caption.coloured(index == 0 ? look().ink : look().soft));
        pictogram(canvas, row.cutLeft(picture).centred(picture, picture), day.sky);
        canvas.text(row.cutLeft(figures), day.low, caption.aligned(Align::right));
        canvas.text(row.cutRight(figures), day.high, caption.coloured(look().ink).aligned(Align::right));
        stint(canvas, row.inset(Bands::gap, 0).centred(row.width() - 2 * Bands::gap, 8), day);
    });
}

void CarbonSkin::stint(Canvas& canvas, const Box& track, const WeatherReading::Day& day) const
{
    constexpr double third = 1 / 3.0;
    const QBrush compounds = across(track,
        {{third, look().ink}, {third + 0.01, look().accent2}, {2 * third, look().accent2},
            {2 * third + 0.01, look().accent}});
    canvas.fill(carbon::leaning(track), look().faint);
    canvas.fill(carbon::leaning(span(track, day.lowFraction, day.highFraction)), compounds);
}

} // namespace

std::shared_ptr<const FaceRenderer> carbonSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<CarbonSkin>(NightLook::of(Skin::carbon, accent));
}

} // namespace ambrelle
