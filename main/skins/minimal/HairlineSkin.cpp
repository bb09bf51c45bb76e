// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalSkin.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double hairline = 0.6; // points

/// A grey as light as the colour; dark ones are lifted so that they are seen on black.
QColor greyOf(const QColor& colour)
{
    constexpr int least = 110;
    const int level = std::max(least, qGray(colour.rgb()));
    return {level, level, level};
}

class HairlineSkin final : public MinimalSkin {
public:
    using FaceRenderer::draw;
    using MinimalSkin::MinimalSkin;

    void panel(Canvas& canvas, const FaceContext& face) const override;
    void heading(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const override;
    void warning(Canvas& canvas, const Box& box) const override;
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
    void ruleBelow(Canvas& canvas, const Box& row) const;
    void levels(Canvas& canvas, const Box& box) const;
    /// Upright hairlines from end to end; `colourAt` tells the colour at a fraction of the way.
    void comb(Canvas& canvas, const Box& box, const std::function<QColor(double)>& colourAt) const;
};

void HairlineSkin::panel(Canvas& canvas, const FaceContext& face) const
{
    canvas.fill(face.bounds, look().panelFill);
    canvas.frame(face.bounds, QPen(look().border, look().plateBorder));
}

void HairlineSkin::heading(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    canvas.text(content.cutTop(14), title, style().header());
    canvas.rule(content.cutTop(6).cutBottom(2), look().soft, hairline);
}

void HairlineSkin::warning(Canvas& canvas, const Box& box) const
{
    const Box mark = box.centred(14, 14);
    canvas.fill(mark, look().warn);
    canvas.symbol(mark, u"exclamationmark.triangle.fill"_s, 10, inkOn(look().warn));
}

void HairlineSkin::ruleBelow(Canvas& canvas, const Box& row) const
{
    canvas.line(row.bottomLeft(), row.bottomRight(), QPen(look().faint, 0.8));
}

void HairlineSkin::levels(Canvas& canvas, const Box& box) const
{
    QPen dots(look().accent3, hairline, Qt::CustomDashLine);
    dots.setDashPattern({1, 4});
    for (const double y : {box.top(), box.center().y(), box.bottom()})
        canvas.line({box.left(), y}, {box.right(), y}, dots);
}

void HairlineSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    levels(canvas, box);
    const QPainterPath line = straightLine(samplePoints(box, history, 1));
    graphLine(canvas, line, colour, 1);
    canvas.fill(Box(line.currentPosition().x() - 1.5, line.currentPosition().y() - 1.5, 3, 3), colour);
}

void HairlineSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    levels(canvas, box);
    canvas.line({box.left(), lines.middle}, {box.right(), lines.middle}, QPen(look().accent3, hairline));
    graphLine(canvas, lines.upper, look().accent, 1);
    graphLine(canvas, lines.lower, look().down, 1);
}

Box HairlineSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr int ticks = 60;
    constexpr double length = 7;
    const int lit = litOf(fraction, ticks);
    const Tick on{length + 2, QPen(colour, 0.8)};
    const Tick off{length, QPen(look().accent3, 0.8)};
    Gauge::in(box, 0, 360).ticks(canvas, ticks, [&](int index) { return index < lit ? on : off; });
    return box.square().inset(length + 4);
}

void HairlineSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double least = 5;
    const double tick = std::max(least, box.height());
    const double share = bounded(fraction);
    const QPointF end(box.left() + box.width() * share, box.center().y());
    canvas.rule(box, look().accent3, 1);
    canvas.line({box.left(), end.y()}, end, QPen(colour, 1));
    canvas.line({end.x(), end.y() - tick / 2}, {end.x(), end.y() + tick / 2}, QPen(colour, 1));
}

void HairlineSkin::comb(Canvas& canvas, const Box& box, const std::function<QColor(double)>& colourAt) const
{
    // One point on, one off: crisp at every whole scale.
    constexpr double pitch = 2;
    const int teeth = static_cast<int>((box.width() + 1) / pitch);
    for (int index = 0; index < teeth; ++index)
        canvas.fill(Box(box.left() + pitch * index, box.top(), 1, box.height()), colourAt((index + 0.5) / teeth));
}

void HairlineSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    const QList<QBrush> fills = partFills();
    comb(canvas, box, [&](double place) {
        const std::optional<qsizetype> part = partAt(parts, place);
        return part ? fills.value(*part, look().faint).color() : look().faint;
    });
}

PictogramPaint HairlineSkin::pictograms() const
{
    return {.sun = look().ink,
        .moon = look().ink,
        .cloud = look().cloud,
        .water = look().soft,
        .bolt = look().ink,
        .outline = 1};
}

TextStyle HairlineSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, look().accent, 0);
}

void HairlineSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    Box line = Box(content).cutTop(14);
    const FigureStyle seconds{.face = look().body, .cap = 9, .fill = look().soft, .align = Align::right};
    if (reading.second)
        secondFigure(canvas, line.cutRight(18), reading, {}, seconds);
    canvas.text(line, reading.meridiem, style().caption().sized(12).aligned(Align::right));
    Box heading = content;
    heading.setRight(line.right() - (reading.meridiem.isEmpty() ? 0 : 26));
    canvas.text(heading.cutTop(14), reading.dateLine(), style().header());
    this->heading(canvas, content, face, {});
    if (!reading.city.isEmpty())
        canvas.text(content.cutBottom(Bands::footer), reading.tag(), style().caption().sized(12));
    canvas.figure(content, reading.time(), {}, style().figure(look().clockCap).kerned());
}

void HairlineSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box content = framed(canvas, face);
    Box hero = content.cutTop(Bands::hero);
    if (reading.low)
        warning(canvas, hero.cutRight(14));
    else if (reading.onMains)
        canvas.symbol(hero.cutRight(14), reading.symbol, 14, look().ink);
    hero.cutRight(4);
    canvas.figure(hero, reading.figure().value, reading.figure().unit, style().figure(look().heroCap));
    named(canvas, content.cutBottom(Bands::footer), reading.state, style().caption(), reading.remaining,
        style().caption());
    comb(canvas, content.inset(0, Bands::gap),
        [&](double place) { return place <= reading.level ? look().accent : look().faint; });
}

void HairlineSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    const Box content = framed(canvas, face);
    rows(content, std::min<qsizetype>(reading.rows.size(), 5), content.height() / 5,
        [&](const Box& row, qsizetype index) {
            Box line = row;
            ruleBelow(canvas, row);
            ordinal(canvas, line, index);
            named(
                canvas, line, reading.rows[index].name, style().row(), reading.rows[index].percent, style().rowValue());
        });
}

void HairlineSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    header(canvas, content, face, reading.place);
    const Box days = content.cutRight(174);
    content.cutRight(20);
    currentWeather(canvas, content, reading);
    rows(days, std::min<qsizetype>(reading.days.size(), 5), days.height() / 5, [&](const Box& row, qsizetype index) {
        const WeatherReading::Day& day = reading.days[index];
        const TextStyle caption = style().caption().sized(11.5);
        Box line = row;
        ruleBelow(canvas, row);
        canvas.text(line.cutLeft(38), day.name, caption.coloured(look().ink));
        canvas.text(line.cutLeft(28), day.date, caption);
        drawPictogram(canvas, line.cutLeft(20).centred(17, 17), day.sky, pictograms());
        canvas.text(line.cutRight(38), day.low, caption.aligned(Align::right));
        canvas.text(line.cutRight(34), day.high, caption.coloured(look().ink).aligned(Align::right));
    });
}

void HairlineSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box content = framed(canvas, face, style().caps(reading.day));
    rows(content, std::min<qsizetype>(reading.rows.size(), 3), content.height() / 3,
        [&](const Box& row, qsizetype index) {
            const EventsReading::Row& event = reading.rows[index];
            Box line = row;
            ruleBelow(canvas, row);
            line = line.inset(0, 3);
            Box number = Box(line).cutTop(line.height() / 2);
            ordinal(canvas, number, index);
            line.cutLeft(20);
            canvas.text(line.cutTop(line.height() / 2), event.title, style().row());
            canvas.fill(line.cutLeft(3).centred(3, 9), greyOf(event.colour));
            line.cutLeft(5);
            canvas.text(line, event.time, style().caption());
        });
}

void HairlineSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    const PlayerPlaces places = playerPlaces(content, 26);
    // Turning a picture grey takes longer than drawing it: once per track.
    canvas.still(u"cover %1"_s.arg(reading.artwork.image.cacheKey()), places.cover, [&](Canvas& layer) {
        const Picture grey{reading.artwork.image.convertToFormat(QImage::Format_Grayscale8)};
        artwork(layer, places.cover, grey, 0, look().faint, look().soft);
    });
    trackLines(canvas, *this, places, reading, style().header().sized(14));
    controls(canvas, places.controls.centred(3 * 44, 26), reading.playing,
        [&](const Box& place, const QString& symbol, bool) { canvas.symbol(place, symbol, 20, look().ink); });
}

} // namespace

std::shared_ptr<const FaceRenderer> makeHairlineSkin(const MinimalLook& look)
{
    return std::make_shared<HairlineSkin>(look);
}

} // namespace ambrelle
