// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalSkin.h"

#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "faces/StyledDial.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QColor emptyTrack = faded(Qt::white, 0.12);

/// Short strokes that stand on the edge of the plate and lean a little, as frost grows from a frame.
QPainterPath iceTicks(const Box& box, double corner)
{
    constexpr int count = 60;
    QPainterPath edge;
    edge.addRoundedRect(box, corner, corner);
    QPainterPath ticks;
    for (int index = 0; index < count; ++index) {
        const double place = std::fmod(index * 0.618034, 1.0);
        const double length = 3 + 7 * std::fmod(index * 0.377, 1.0);
        const double lean = 40 * (std::fmod(index * 0.733, 1.0) - 0.5);
        QLineF tick;
        tick.setP1(edge.pointAtPercent(place));
        tick.setAngle(edge.angleAtPercent(place) - 90 + lean);
        tick.setLength(length);
        ticks.moveTo(tick.p1());
        ticks.lineTo(tick.p2());
    }
    return ticks;
}

class FrostSkin final : public MinimalSkin {
public:
    using FaceRenderer::draw;
    using MinimalSkin::MinimalSkin;

    void panel(Canvas& canvas, const FaceContext& face) const override;
    void heading(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const override;
    void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const override;
    void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const override;
    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const override;
    PictogramPaint pictograms() const override;
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override;
    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;

private:
    void glint(Canvas& canvas, const FaceContext& face) const;
    /// From one end of the box to the other: the colour into the second accent. Marks of another colour stay plain.
    QBrush aurora(QPointF from, QPointF to, const QColor& colour) const;
    QBrush aurora(const Box& box) const { return aurora(box.topLeft(), box.topRight(), look().accent); }
};

QBrush FrostSkin::aurora(QPointF from, QPointF to, const QColor& colour) const
{
    if (colour != look().accent)
        return colour;
    return linear(from, to, {{0, look().accent}, {1, look().accent2}});
}

void FrostSkin::panel(Canvas& canvas, const FaceContext& face) const
{
    const Box& box = face.bounds;
    const double corner = look().corner;
    canvas.still(u"plate"_s, box.inset(-10), [&](Canvas& layer) {
        dropShadow(layer, box, corner, Qt::black, 0.025, 8, 2);
        layer.fill(box, look().panelFill, corner);
        // The aurora stands in the upper part, behind the ice.
        constexpr double strength = 0.20;
        const QList<std::pair<QColor, double>> curtains{{look().accent, 0.12}, {look().accent2, 0.88}};
        for (const auto& [colour, place] : curtains) {
            const QPointF top(box.x() + box.width() * place, box.y() - 20);
            layer.fill(box, halo(top, 96, colour, strength), corner);
        }
        sheen(layer, box, corner, Qt::white, 0.10, 0, 0.3);
        layer.stroke(iceTicks(box.inset(1), corner), QPen(faded(Qt::white, 0.16), 0.5));
        litEdge(layer, box, corner, look().plateBorder, 0.6, 0.12, 0.3);
    });
    glint(canvas, face);
}

void FrostSkin::glint(Canvas& canvas, const FaceContext& face) const
{
    constexpr double period = 12;
    constexpr double burst = 1.5;
    constexpr double framesPerSecond = 15;
    const Motion motion = Motion::bursts(period, 1 + static_cast<int>(face.kind), burst, framesPerSecond);
    const Box edge = Box(face.bounds).cutTop(2).inset(look().corner, 0);
    canvas.moving(edge, motion, [&](Canvas& layer, double t) {
        const std::optional<double> phase = motion.phase(t);
        if (t <= 0 || !phase)
            return;
        const double x = edge.left() + edge.width() * *phase;
        const QColor light = faded(Qt::white, 0.9 * std::sin(*phase * std::numbers::pi));
        layer.fill(Box(edge).cutTop(look().plateBorder),
            linear({x - 26, 0}, {x + 26, 0}, {{0, faded(light, 0)}, {0.5, light}, {1, faded(light, 0)}}));
    });
}

void FrostSkin::heading(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    canvas.text(content.cutTop(14), title, style().header());
}

void FrostSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    const QPainterPath line = smoothLine(samplePoints(box, history, 1));
    const QBrush light = aurora(box.topLeft(), box.topRight(), colour);
    canvas.fill(areaUnder(line, box.bottom()), wash(box, colour, look().wash, 0));
    graphLine(canvas, line, light, 1.6);
    canvas.disc(line.currentPosition(), 5, faded(look().accent2, 0.3));
    canvas.disc(line.currentPosition(), 2.2, look().ink);
}

void FrostSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    Box below = box;
    const Box above = below.cutTop(lines.middle - box.top());
    canvas.fill(areaUnder(lines.upper, lines.middle), wash(above, look().accent, look().wash, 0));
    canvas.fill(areaUnder(lines.lower, lines.middle), wash(below, look().accent2, 0, look().wash));
    canvas.rule(Box(box.x(), lines.middle - 1, box.width(), 2), emptyTrack, 1);
    graphLine(canvas, lines.upper, look().accent, 1.6);
    graphLine(canvas, lines.lower, look().accent2, 1.6);
}

Box FrostSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    StyledDial ring{.value = colour, .track = emptyTrack, .measures = {.width = 5}};
    if (colour == look().accent)
        ring.along = {{0, look().accent}, {1, look().accent2}};
    return ring.draw(canvas, box, fraction).inset(1);
}

void FrostSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const Box bar = box.centred(box.width(), 3);
    capsule(canvas, bar, fraction, emptyTrack, aurora(bar.topLeft(), bar.topRight(), colour));
}

void FrostSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    partsBar(canvas, box.centred(box.width(), 6), parts, partFills(), emptyTrack, 3);
}

PictogramPaint FrostSkin::pictograms() const
{
    return {.sun = look().ink,
        .moon = look().accent,
        .cloud = look().cloud,
        .water = look().accent3,
        .bolt = look().accent2,
        .outline = 1.4};
}

TextStyle FrostSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, look().accent, cell.height());
}

void FrostSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    const TextStyle heading = style().header().sized(13);
    named(canvas, content.cutTop(14), reading.dateLine(), heading, reading.meridiem, heading.coloured(look().soft));
    if (!reading.city.isEmpty())
        canvas.text(content.cutBottom(Bands::footer), reading.tag(), style().caption().sized(12));
    const Box day = content.cutBottom(10).centred(content.width(), 2);
    capsule(canvas, day, reading.dayFraction(), emptyTrack, aurora(day));
    canvas.disc({day.left() + day.width() * reading.dayFraction(), day.center().y()}, 3, look().ink);
    canvas.figure(content, reading.time(), {}, style().figure(look().clockCap).kerned());
}

void FrostSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box content = framed(canvas, face);
    const Box column = content.cutRight(24);
    content.cutRight(12);
    canvas.figure(content.cutTop(44), reading.figure().value, reading.figure().unit, style().figure(40));
    canvas.text(content.cutBottom(Bands::footer), reading.remaining, style().caption());
    Box state = content.cutBottom(18);
    if (reading.low)
        warning(canvas, state.cutRight(12));
    canvas.text(state, reading.state, style().row());

    canvas.fill(column, emptyTrack, 12);
    canvas.frame(column, QPen(faded(Qt::white, 0.35), 1), 12);
    Box ice = column.inset(4);
    const Box charge = ice.cutBottom(std::max(ice.width(), ice.height() * reading.level));
    const QColor colour = reading.low ? look().warn : look().accent;
    canvas.fill(charge, aurora(column.bottomLeft(), column.topLeft(), colour), 8);
    if (reading.onMains)
        canvas.symbol(Box(charge).cutBottom(16), reading.symbol, 12, inkOn(colour));
}

void FrostSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    const Box content = framed(canvas, face);
    constexpr double pitch = 20;
    constexpr double barRoom = 8;
    Box rest = content;
    const auto row = [&](const Box& line, const ProcessesReading::Row& process, const TextStyle& name) {
        named(canvas, line, process.name, name, process.percent, style().rowValue());
    };
    if (reading.rows.isEmpty())
        return;
    row(rest.cutTop(pitch), reading.rows.first(), style().row().faced(look().label));
    level(canvas, rest.cutTop(barRoom).cutTop(3), 1, look().accent);
    rows(rest, std::min<qsizetype>(reading.rows.size() - 1, 4), pitch,
        [&](const Box& line, qsizetype index) { row(line, reading.rows[index + 1], style().row()); });
}

void FrostSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    constexpr double pitch = 22;
    const Box days = content.cutRight(174);
    content.cutRight(16);
    header(canvas, content, face, reading.place);
    currentWeather(canvas, content, reading);
    rows(days, std::min<qsizetype>(reading.days.size(), 6), pitch, [&](const Box& row, qsizetype index) {
        const WeatherReading::Day& day = reading.days[index];
        const TextStyle caption = style().caption().sized(11);
        Box line = row;
        canvas.text(line.cutLeft(34), day.name, caption.coloured(look().ink));
        drawPictogram(canvas, line.cutLeft(20).centred(18, 18), day.sky, pictograms());
        canvas.text(line.cutLeft(36), day.low, caption.aligned(Align::right));
        canvas.text(line.cutRight(34), day.high, caption.coloured(look().ink).aligned(Align::right));
        const Box bar = line.inset(6, 0).centred(line.width() - 12, 3);
        canvas.fill(bar, emptyTrack, 1.5);
        Box span = bar;
        span.cutLeft(bar.width() * day.lowFraction);
        span.cutRight(bar.width() * (1 - day.highFraction));
        canvas.fill(span.centred(std::max(span.width(), 3.0), 3), aurora(bar), 1.5);
    });
}

void FrostSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box content = framed(canvas, face, style().caps(reading.day));
    eventRows(canvas, *this, content, reading, 38);
}

void FrostSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    const PlayerPlaces places = playerPlaces(content, 26);
    artwork(canvas, places.cover, reading.artwork, 16, emptyTrack, look().soft);
    canvas.frame(places.cover, QPen(faded(Qt::white, 0.25), 1), 16);
    trackLines(canvas, *this, places, reading, style().header().sized(15));
    controls(canvas, places.controls.centred(3 * 44, 26), reading.playing,
        [&](const Box& place, const QString& symbol, bool) {
            canvas.stroke(symbolIn(place, symbol, 24), roundPen(look().ink, 1.2));
        });
}

} // namespace

std::shared_ptr<const FaceRenderer> makeFrostSkin(const MinimalLook& look)
{
    return std::make_shared<FrostSkin>(look);
}

} // namespace ambrelle
