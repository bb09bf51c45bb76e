// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalSkin.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Pens.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double ruleWidth = 0.6;
constexpr double liveMark = 7;

/// Whether the face measures something that changes by the second.
bool isLive(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::clock:
    case WidgetKind::cpu:
    case WidgetKind::memory:
    case WidgetKind::network:
    case WidgetKind::processes: return true;
    default: return false;
    }
}

class CasingSkin final : public MinimalSkin {
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
    /// Of the blocks of a scale: those reached in ink, the last of them in the colour of the value.
    std::function<QBrush(int index)> scaleBrush(int lit, const QColor& colour) const;
    void ruleBelow(Canvas& canvas, const Box& row) const;
    /// Bars from `box`'s lower edge, or hanging from its upper one; the newest in the full colour.
    void bars(Canvas& canvas, const Box& box, const QList<double>& values, const QColor& colour, bool hanging) const;
};

void CasingSkin::panel(Canvas& canvas, const FaceContext& face) const
{
    constexpr double place = 7.5; // on whole points, so that the marks are crisp
    constexpr double arm = 2.5;
    canvas.still(u"plate"_s, face.bounds, [&](Canvas& layer) {
        layer.fill(face.bounds, look().panelFill, look().corner);
        layer.frame(face.bounds, QPen(look().border, look().plateBorder), look().corner);
        if (face.kind == WidgetKind::photo)
            return; // it covers where they would stand
        const Box marks = face.bounds.inset(place);
        for (const QPointF& centre : {marks.topLeft(), marks.topRight(), marks.bottomLeft(), marks.bottomRight()}) {
            layer.line(centre - QPointF(arm, 0), centre + QPointF(arm, 0), flatPen(look().soft, 1));
            layer.line(centre - QPointF(0, arm), centre + QPointF(0, arm), flatPen(look().soft, 1));
        }
    });
}

void CasingSkin::heading(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    Box line = content.cutTop(14);
    const Box mark = line.cutRight(liveMark).centred(liveMark, liveMark);
    line.cutRight(Bands::gap);
    canvas.text(line, title, style().header());
    if (!isLive(face.kind)) {
        canvas.fill(mark, look().accent);
        return;
    }
    canvas.frame(mark, flatPen(look().accent, 1));
    canvas.moving(mark, Motion::steady(2), [&](Canvas& layer, double t) {
        if (std::fmod(t, 1) < 0.5)
            layer.fill(mark, look().accent);
    });
}

void CasingSkin::ruleBelow(Canvas& canvas, const Box& row) const
{
    canvas.line(row.bottomLeft(), row.bottomRight(), QPen(look().faint, ruleWidth));
}

void CasingSkin::bars(
    Canvas& canvas, const Box& box, const QList<double>& values, const QColor& colour, bool hanging) const
{
    const int count = static_cast<int>(values.size());
    for (int index = 0; index < count; ++index) {
        Box column = box.column(index, count, 1.5);
        const double height = std::max(1.0, column.height() * std::clamp(values[index], 0.0, 1.0));
        const Box bar = hanging ? column.cutTop(height) : column.cutBottom(height);
        canvas.fill(bar, index + 1 == count ? colour : faded(colour, look().wash));
    }
}

void CasingSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr int count = 20;
    constexpr double tick = 10;
    Box graph = box;
    const Box scale = graph.cutLeft(22);
    const TextStyle axis = style().caption().sized(9).asAxis();
    canvas.text(Box(scale).cutTop(tick).moved(0, -2), u"100"_s, axis);
    canvas.text(scale.centred(scale.width(), tick), u"50"_s, axis);
    canvas.text(Box(scale).cutBottom(tick).moved(0, 2), u"0"_s, axis);
    for (const double y : {graph.top(), graph.center().y(), graph.bottom()})
        canvas.line({graph.left(), y}, {graph.right(), y}, QPen(look().faint, ruleWidth));
    bars(canvas, graph, binned(history, count), colour, false);
}

void CasingSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr int count = 60;
    QList<double> down = binned(reading.downHistory, count);
    QList<double> up = binned(reading.upHistory, count);
    const double least = reading.peak * 0.01;
    const double highestDown = std::max(least, *std::ranges::max_element(down));
    const double highestUp = std::max(least, *std::ranges::max_element(up));
    // One scale for both directions, and as much room for each as it needs.
    const double downRoom = std::clamp(highestDown / (highestDown + highestUp), 0.3, 0.7);
    const double scale = std::min({downRoom / highestDown, (1 - downRoom) / highestUp, 1 / reading.peak});
    for (double& value : down)
        value *= scale / downRoom;
    for (double& value : up)
        value *= scale / (1 - downRoom);
    Box rest = box;
    bars(canvas, rest.cutTop(box.height() * downRoom), down, look().accent, false);
    rest.cutTop(1.5);
    bars(canvas, rest, up, look().ink, true);
}

std::function<QBrush(int)> CasingSkin::scaleBrush(int lit, const QColor& colour) const
{
    return [this, lit, colour](int index) {
        const QColor on = index + 1 == lit ? colour : look().ink;
        return index < lit ? on : look().faint;
    };
}

Box CasingSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr int count = 30;
    constexpr double depth = 6;
    Gauge::in(box, 0, 360).blocks(canvas, count, 3, depth, scaleBrush(litOf(fraction, count), colour));
    return box.square().inset(depth + 3);
}

void CasingSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr int ticks = 40;
    const Box band = box.centred(box.width(), std::max(6.0, box.height()));
    blocks(canvas, band, ticks, 2, scaleBrush(litOf(fraction, ticks), colour));
}

void CasingSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr int count = 24;
    const QList<QBrush> fills = partFills();
    blocks(canvas, box, count, 1.5, [&](int block) {
        const std::optional<qsizetype> part = partAt(parts, (block + 0.5) / count);
        return part ? fills.value(*part, look().faint) : look().faint;
    });
}

PictogramPaint CasingSkin::pictograms() const
{
    return {.sun = look().accent,
        .moon = look().ink,
        .cloud = look().cloud,
        .water = look().accent,
        .bolt = look().accent,
        .outline = 1.6,
        .straight = true};
}

TextStyle CasingSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, look().accent, 0);
}

void CasingSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    header(canvas, content, face, style().caps(reading.isoLine()));
    if (!reading.city.isEmpty())
        canvas.text(content.cutBottom(Bands::footer), reading.tag(), style().caption().sized(11));
    Box side = content.cutRight(34);
    side = side.centred(side.width(), look().clockCap);
    content.cutRight(8);
    canvas.figure(content, reading.time(), {}, style().figure(look().clockCap));
    canvas.text(side.cutTop(12), reading.meridiem, style().header().aligned(Align::right));
    if (!reading.second)
        return;
    const Box frame = side.cutBottom(24);
    canvas.frame(frame, flatPen(look().accent, 1.2));
    const FigureStyle seconds{.face = look().body, .cap = 11, .fill = look().ink, .align = Align::centre};
    secondFigure(canvas, frame, reading, {}, seconds);
}

void CasingSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box content = framed(canvas, face);
    constexpr int count = 10;
    Box hero = content.cutTop(Bands::hero);
    if (reading.low)
        warning(canvas, hero.cutRight(12));
    canvas.figure(hero, reading.figure().value, reading.figure().unit, style().figure(look().heroCap));
    canvas.text(content.cutBottom(Bands::footer), reading.remaining, style().caption());
    canvas.text(content.cutBottom(16), reading.state, style().row());
    const Box row = content.centred(content.width(), 22);
    const int lit = litOf(reading.level, count);
    const QColor on = reading.low ? look().warn : look().ink;
    blocks(canvas, row, count, 4, [&](int index) {
        const bool next = index == lit && reading.charging;
        return next ? look().accent : index < lit ? on : look().faint;
    });
}

void CasingSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    const Box content = framed(canvas, face);
    rows(content, std::min<qsizetype>(reading.rows.size(), 5), content.height() / 5,
        [&](const Box& row, qsizetype index) {
            Box line = row;
            ruleBelow(canvas, row);
            const Box block = line.cutLeft(3);
            if (index == 0)
                canvas.fill(block.inset(0, 5), look().accent);
            line.cutLeft(4);
            ordinal(canvas, line, index);
            named(canvas, line, reading.rows[index].name, style().row(), reading.rows[index].percent,
                style().rowValue().coloured(look().ink));
        });
}

void CasingSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    header(canvas, content, face, reading.place);
    const Box days = content.cutRight(180);
    content.cutRight(16);
    currentWeather(canvas, content, reading);
    rows(days, std::min<qsizetype>(reading.days.size(), 5), days.height() / 5, [&](const Box& row, qsizetype index) {
        const WeatherReading::Day& day = reading.days[index];
        const TextStyle caption = style().caption().sized(11);
        Box line = row;
        ruleBelow(canvas, row);
        canvas.text(line.cutLeft(34), style().caps(day.name), caption.faced(look().label).coloured(look().ink));
        canvas.text(line.cutLeft(26), day.date, caption);
        drawPictogram(canvas, line.cutLeft(22).centred(18, 18), day.sky, pictograms());
        canvas.text(line.cutRight(40), day.low, caption.aligned(Align::right));
        canvas.text(line.cutRight(34), day.high, caption.coloured(look().ink).aligned(Align::right));
    });
}

void CasingSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box content = framed(canvas, face, style().caps(reading.day));
    rows(content, std::min<qsizetype>(reading.rows.size(), 3), content.height() / 3,
        [&](const Box& row, qsizetype index) {
            const EventsReading::Row& event = reading.rows[index];
            ruleBelow(canvas, row);
            Box line = row.inset(0, 4);
            canvas.fill(line.cutLeft(3), event.colour);
            line.cutLeft(7);
            canvas.text(line.cutTop(line.height() / 2), event.time, style().caption());
            canvas.text(line, event.title, style().row());
        });
}

void CasingSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    constexpr double key = 28;
    constexpr double crop = 5;
    const PlayerPlaces places = playerPlaces(content, key);
    const Box cover = places.cover.inset(crop);
    artwork(canvas, cover, reading.artwork, 0, look().faint, look().soft);
    canvas.frame(cover, flatPen(look().ink, 1));
    for (const double x : {cover.left(), cover.right()}) {
        canvas.line({x, cover.top() - crop}, {x, cover.top() - 2}, flatPen(look().soft, 1));
        canvas.line({x, cover.bottom() + 2}, {x, cover.bottom() + crop}, flatPen(look().soft, 1));
    }
    trackLines(canvas, *this, places, reading, style().header().sized(13));
    controls(canvas, places.controls.centred(3 * 42, key), reading.playing,
        [&](const Box& place, const QString& symbol, bool middle) {
            const Box frame = place.centred(key, key);
            if (middle)
                canvas.fill(frame, look().accent);
            canvas.frame(frame, flatPen(middle ? look().accent : look().key, 1));
            canvas.symbol(frame, symbol, 16, middle ? inkOn(look().accent) : look().ink);
        });
}

} // namespace

std::shared_ptr<const FaceRenderer> makeCasingSkin(const MinimalLook& look)
{
    return std::make_shared<CasingSkin>(look);
}

} // namespace ambrelle
