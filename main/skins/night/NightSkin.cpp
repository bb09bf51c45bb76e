// SPDX-License-Identifier: MIT

#include "skins/night/NightSkin.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"

#include <algorithm>
#include <cstdlib>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double nightShadowReach = 8;
constexpr double nightHeaderHeight = 14;
constexpr double nightDialAir = 2; // between a ring and what stands in it

} // namespace

NightSkin::NightSkin(const NightLook& look)
    : FaceRenderer(look.style(), ambrelle::dial(look.skin))
    , m_look(look)
{
}

Box NightSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-nightShadowReach), [&](Canvas& layer) {
        if (m_look.shadow > 0)
            dropShadow(layer, face.bounds, m_look.corner, Qt::black, m_look.shadow, 6, 2);
        layer.fill(face.bounds, m_look.plate, m_look.corner);
        panel(layer, face);
    });
    motion(canvas, face);
    return face.bounds.inset(m_look.inset);
}

void NightSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    heading(canvas, content.cutTop(nightHeaderHeight), face, title);
    content.cutTop(m_look.titleGap);
}

void NightSkin::heading(Canvas& canvas, const Box& line, const FaceContext&, const QString& title) const
{
    canvas.text(line, title, style().header());
}

void NightSkin::bead(Canvas& canvas, QPointF point, const QColor& colour) const
{
    lamp(canvas, point, m_look.lines.bead, colour);
}

void NightSkin::lamp(Canvas& canvas, QPointF point, double radius, const QColor& colour) const
{
    canvas.disc(point, radius * lampLight, halo(point, radius * lampLight, colour, 0.6));
    canvas.disc(point, radius, blended(colour, m_look.ink, 0.7));
}

QBrush NightSkin::along(QPointF from, QPointF to, const QColor& colour) const
{
    return colour == m_look.accent ? linear(from, to, spectrum()) : QBrush(colour);
}

void NightSkin::shine(Canvas& canvas, const QPainterPath& path, const QColor& colour) const
{
    if (m_look.lines.glow > 0)
        canvas.lightAround(path, {.colour = colour, .strokes = 3, .alpha = m_look.lines.glow, .spread = 3});
}

QBrush NightSkin::area(const Box& box, const QColor& colour, bool hangs) const
{
    constexpr double thin = 0.02;
    return wash(box, colour, hangs ? thin : m_look.lines.wash, hangs ? m_look.lines.wash : thin);
}

void NightSkin::graph(Canvas& canvas, const Box& box, const QPainterPath& line, double base, const QColor& colour) const
{
    if (m_look.lines.wash > 0)
        canvas.fill(areaUnder(line, base), area(box, colour, base <= box.top()));
    shine(canvas, line, colour);
    graphLine(canvas, line, along(box, colour), m_look.lines.graph);
}

void NightSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    graphGround(canvas, box);
    const double end = m_look.lines.bead;
    const Box room = box.adjusted(0, end, -end, -m_look.lines.graph / 2);
    const QPainterPath line = smoothLine(samplePoints(room, history, 1));
    graph(canvas, room, line, box.bottom(), colour);
    if (end > 0)
        bead(canvas, line.currentPosition(), colour);
}

void NightSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    graphGround(canvas, box);
    constexpr double air = 1.5; // so that two idle lines are seen
    const double apart = m_look.lines.graph / 2 + air;
    const double end = m_look.lines.bead;
    const Box room = box.adjusted(0, end + air, -end, -end - air);
    const MirroredLines lines = mirrored(room, reading.downHistory, reading.upHistory, reading.peak);
    canvas.rule(Box(box.x(), lines.middle - 1, box.width(), 2), m_look.faint, 1);
    Box below = room;
    const Box above = below.cutTop(lines.middle - room.top());
    const QPainterPath upper = lines.upper.translated(0, -apart);
    const QPainterPath lower = lines.lower.translated(0, apart);
    graph(canvas, above, upper, lines.middle, m_look.down);
    graph(canvas, below, lower, lines.middle, m_look.up);
    if (end > 0) {
        bead(canvas, upper.currentPosition(), m_look.down);
        bead(canvas, lower.currentPosition(), m_look.up);
    }
}

void NightSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const NightLines& lines = m_look.lines;
    const Box track = box.centred(box.width(), std::min(lines.levelTrack, box.height()));
    canvas.fill(track, m_look.track, track.height() / 2);
    const double thickness = std::min(lines.level, box.height());
    const double least = lines.tipped ? lines.bead : thickness;
    const double length = std::clamp(box.width() * bounded(fraction), least, box.width() - (lines.tipped ? least : 0));
    const Box reached(box.x(), box.center().y() - thickness / 2, length, thickness);
    if (bounded(fraction) > 0) {
        const QPainterPath outline = roundedPath(reached, thickness / 2);
        shine(canvas, outline, colour);
        canvas.fill(outline, along(box, colour));
    }
    if (lines.tipped)
        bead(canvas, {reached.right(), box.center().y()}, colour);
}

Box NightSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const NightLines& lines = m_look.lines;
    const double width = std::max(lines.ring, lines.ringTrack);
    const Box square = box.square().inset(lines.tipped ? std::max(0.0, lines.bead - width / 2) : 0);
    const Gauge gauge = Gauge::in(square, 0, 360);
    const double middle = gauge.radius - width / 2;
    const double reached = bounded(fraction);
    canvas.stroke(gauge.arc(0, 1, middle), QPen(m_look.track, lines.ringTrack));
    if (reached > 0) {
        const QPainterPath arc = gauge.arc(0, reached, middle);
        shine(canvas, gauge.band(0, reached, lines.ring), colour);
        const bool spread = colour == m_look.accent;
        const QBrush light = spread ? alongArc(gauge.centre, 0, reached, ringSpectrum()) : QBrush(colour);
        canvas.stroke(arc, roundPen(light, lines.ring));
    }
    if (lines.tipped)
        bead(canvas, gauge.at(reached, middle), colour);
    return square.inset(width + nightDialAir);
}

void NightSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr double gap = 2; // parts of like brightness are told apart by it
    constexpr double least = 0.5;
    const QList<QBrush> fills = partFills();
    const Box bar = box.centred(box.width(), std::min(m_look.lines.parts, box.height()));
    const double radius = std::min(bar.height() / 2, m_look.corner / 4);
    double x = bar.left();
    const auto piece = [&](double width, const QBrush& fill) {
        const double length = std::min(width, bar.right() + gap - x) - gap;
        if (length >= least)
            canvas.fill(Box(x, bar.top(), length, bar.height()), fill, std::min(radius, length / 2));
        x += std::max(0.0, width);
    };
    const double whole = bar.width() + gap;
    for (qsizetype index = 0; index < parts.size(); ++index)
        piece(whole * bounded(parts[index].fraction), fills.value(index));
    piece(bar.right() + gap - x, m_look.track);
}

QList<QBrush> NightSkin::partFills() const
{
    const auto distinct = [&](const QColor& colour) {
        constexpr int alike = 90; // sum of the differences of all components, 0 to 255 each
        const QColor& accent = m_look.accent;
        const int difference = std::abs(colour.red() - accent.red()) + std::abs(colour.green() - accent.green())
            + std::abs(colour.blue() - accent.blue());
        return difference < alike ? m_look.ink : colour;
    };
    return {m_look.accent, distinct(m_look.accent2), distinct(m_look.accent3)};
}

void NightSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    artwork(canvas, box, picture, m_look.coverCorner, m_look.track, m_look.soft);
}

void NightSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double air = 3;
    const Box box = framed(canvas, face);
    rows(box, reading.rows.size(), most, style().rowSize + air, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        separator(canvas, row);
        rowLevel(canvas, line, process.fraction, index);
        rowMark(canvas, line, index);
        named(canvas, line, process.name, rowName(), process.percent, rowValue(index));
    });
}

void NightSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.day));
    eventRows(canvas, *this, box, reading, twoLinePitch(style())); // close, for one event more
}

void NightSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysShare = 0.5;
    constexpr double gutter = 14;
    Box box = plate(canvas, face);
    const Box days = box.cutRight(box.width() * daysShare);
    box.cutRight(gutter);
    header(canvas, box, face, reading.place);
    weatherNow(canvas, *this, box, reading);
    forecast(canvas, days, reading);
}

void NightSkin::forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr int most = 5;
    dayColumns(box, reading, most, 2,
        [&](const Box& column, const WeatherReading::Day& day, qsizetype) { dayColumn(canvas, *this, column, day); });
}

void NightSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double keyPitch = 44;
    const PlayerPlaces places = playerPlaces(plate(canvas, face), m_look.keys);
    cover(canvas, places.cover, reading.artwork);
    trackLines(canvas, *this, places, reading, style().header().sized(m_look.trackSize));
    controls(canvas, *this, places.controls.centred(3 * keyPitch, places.controls.height()), reading.playing);
}

} // namespace ambrelle
