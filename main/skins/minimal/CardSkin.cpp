// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalSkin.h"

#include "drawing/Colours.h"
#include "drawing/PictureTreatment.h"
#include "drawing/Plates.h"
#include "faces/StyledDial.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double badgeSize = 20;
constexpr double badgeCorner = 7;
constexpr double headerHeight = 18;

class CardSkin final : public MinimalSkin {
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
    void rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const override;
    void draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;

private:
    /// Fills a rounded box with a tint of the colour and returns the opaque colour it has there.
    QColor tinted(Canvas& canvas, const Box& box, double corner, const QColor& colour) const;
    void badge(Canvas& canvas, const Box& box, const QString& symbol, const QColor& colour) const;
    void day(Canvas& canvas, Box pill, const WeatherReading::Day& day, bool today) const;
};

QColor CardSkin::tinted(Canvas& canvas, const Box& box, double corner, const QColor& colour) const
{
    const QColor tint = faded(colour, look().tint);
    canvas.fill(box, tint, corner);
    return over(tint, style().ground);
}

void CardSkin::badge(Canvas& canvas, const Box& box, const QString& symbol, const QColor& colour) const
{
    const QColor ground = tinted(canvas, box, badgeCorner, colour);
    canvas.symbol(box, symbol, box.height() * 0.62, legible(colour, look().ink, ground));
}

void CardSkin::panel(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-10), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, look().corner, look().shadow, look().shadow.alphaF(), 8, 3);
        layer.fill(face.bounds, look().panelFill, look().corner);
        if (look().plateBorder > 0)
            layer.frame(face.bounds, QPen(look().border, look().plateBorder), look().corner);
    });
}

void CardSkin::heading(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    Box line = content.cutTop(headerHeight);
    badge(canvas, line.cutRight(badgeSize).centred(badgeSize, badgeSize), symbol(face.kind), look().accent);
    line.cutRight(4);
    canvas.text(line, title, style().header());
}

void CardSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    const QPainterPath line = smoothLine(samplePoints(box, history, 1));
    canvas.fill(areaUnder(line, box.bottom()), wash(box, colour, look().wash, 0.02));
    graphLine(canvas, line, colour, 1.8);
    canvas.disc(line.currentPosition(), 7, faded(colour, 0.2));
    canvas.disc(line.currentPosition(), 3, colour);
}

void CardSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    Box below = box;
    const Box above = below.cutTop(lines.middle - box.top());
    canvas.fill(areaUnder(lines.upper, lines.middle), wash(above, look().accent, look().wash, 0.02));
    canvas.fill(areaUnder(lines.lower, lines.middle), wash(below, look().accent2, 0.02, look().wash));
    graphLine(canvas, lines.upper, look().accent, 1.8);
    graphLine(canvas, lines.lower, look().accent2, 1.8);
}

Box CardSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const StyledDial ring{.value = colour, .track = look().faint, .measures = {.width = 11}};
    return ring.draw(canvas, box, fraction);
}

void CardSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    capsule(canvas, box.centred(box.width(), 5), fraction, look().faint, colour);
}

void CardSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    partsBar(canvas, box, parts, partFills(), look().faint, box.height() / 2);
}

PictogramPaint CardSkin::pictograms() const
{
    return {.sun = look().accent3,
        .moon = look().accent3,
        .cloud = look().cloud,
        .water = look().accent,
        .bolt = look().accent3,
        .line = 3};
}

TextStyle CardSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, look().accent, badgeCorner);
}

void CardSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    constexpr double dot = 6;
    const TextStyle heading = style().header().sized(13).coloured(look().soft);
    named(canvas, content.cutTop(headerHeight), reading.dateLine(), heading, reading.meridiem, heading);
    if (!reading.city.isEmpty()) {
        Box tag = content.cutBottom(Bands::footer);
        canvas.disc(tag.cutLeft(dot).center(), dot / 2, look().accent);
        tag.cutLeft(6);
        canvas.text(tag, reading.tag(), style().caption().sized(12));
    }
    canvas.figure(content, reading.time(), {}, style().figure(look().clockCap).kerned());
}

void CardSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box content = framed(canvas, face);
    Box hero = content.cutTop(Bands::hero);
    if (reading.onMains)
        canvas.symbol(hero.cutRight(16), reading.symbol, 16, look().accent2);
    else if (reading.low)
        warning(canvas, hero.cutRight(16));
    hero.cutRight(2);
    canvas.figure(hero, reading.figure().value, reading.figure().unit, style().figure(look().heroCap));
    canvas.text(content.cutBottom(Bands::footer), reading.remaining, style().caption());
    canvas.text(content.cutBottom(18), reading.state, style().row());
    capsule(canvas, content.centred(content.width(), 12), reading.level, look().faint,
        reading.low ? look().warn : look().accent2);
}

void CardSkin::rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double) const
{
    Box line = box;
    badge(canvas, line.cutLeft(badgeSize).centred(badgeSize, badgeSize), upwards ? u"arrow.up"_s : u"arrow.down"_s,
        upwards ? look().accent2 : look().accent);
    line.cutLeft(8);
    canvas.figure(line, rate.value, rate.unit, style().figure(22));
}

void CardSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    const Box content = framed(canvas, face);
    constexpr double size = 18;
    const TextStyle value = style().rowValue().sized(12).faced(look().label).coloured(look().ink);
    rows(content, std::min<qsizetype>(reading.rows.size(), 5), content.height() / 5,
        [&](const Box& row, qsizetype index) {
            const ProcessesReading::Row& process = reading.rows[index];
            Box line = row;
            const Box square = line.cutLeft(size).centred(size, size);
            const QColor before = canvas.ground();
            canvas.setGround(tinted(canvas, square, badgeCorner, look().accent));
            const QColor ink = legible(look().accent, look().ink, canvas.ground());
            canvas.text(square, process.name.left(1).toUpper(),
                style().header().sized(11).coloured(ink).aligned(Align::centre));
            canvas.setGround(before);
            line.cutLeft(8);
            named(canvas, line, process.name, style().row().sized(12), process.percent, value);
        });
}

void CardSkin::day(Canvas& canvas, Box pill, const WeatherReading::Day& day, bool today) const
{
    const QColor before = canvas.ground();
    if (today)
        canvas.setGround(tinted(canvas, pill, pill.width() / 2, look().accent));
    pill = pill.inset(0, 8);
    const TextStyle caption = style().caption().sized(11).aligned(Align::centre);
    const QColor soft = legible(look().soft, look().ink, canvas.ground());
    canvas.text(pill.cutTop(18), day.initial, caption.coloured(today ? look().ink : soft));
    canvas.text(pill.cutBottom(18), day.low, caption.coloured(soft));
    canvas.text(pill.cutBottom(18), day.high, caption.faced(look().label).coloured(look().ink));
    drawPictogram(canvas, pill.centred(24, 24), day.sky, pictograms());
    canvas.setGround(before);
}

void CardSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    constexpr int most = 6;
    const Box days = content.cutRight(180);
    content.cutRight(12);
    canvas.text(content.cutTop(headerHeight), reading.place, style().header());
    content.cutTop(look().titleGap);
    currentWeather(canvas, content, reading);
    for (int index = 0; index < std::min<qsizetype>(reading.days.size(), most); ++index)
        day(canvas, days.column(index, most, 2), reading.days[index], index == 0);
}

void CardSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box content = framed(canvas, face, style().caps(reading.day));
    rows(content, std::min<qsizetype>(reading.rows.size(), 3), content.height() / 3,
        [&](const Box& row, qsizetype index) {
            const EventsReading::Row& event = reading.rows[index];
            Box pill = row;
            pill.cutBottom(4);
            const QColor before = canvas.ground();
            canvas.setGround(tinted(canvas, pill, 9, event.colour));
            Box line = pill.inset(7, 2);
            canvas.fill(line.cutLeft(3).inset(0, 4), event.colour, 1.5);
            line.cutLeft(7);
            canvas.text(line.cutTop(line.height() / 2), event.title, style().row().sized(12));
            canvas.text(
                line, event.time, style().caption().coloured(legible(look().soft, look().ink, canvas.ground())));
            canvas.setGround(before);
        });
}

void CardSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box content = plate(canvas, face);
    constexpr double key = 34;
    if (reading.artwork) {
        drawPicture(canvas, roundedPath(face.bounds, look().corner), reading.artwork.image,
            PictureTreatment::blurred(6), look().coverWash);
    }
    const PlayerPlaces places = playerPlaces(content, key);
    artwork(canvas, places.cover, reading.artwork, 16, look().faint, look().soft);
    trackLines(canvas, *this, places, reading, style().header().sized(15));
    controls(canvas, places.controls.centred(3 * 48, key), reading.playing,
        [&](const Box& place, const QString& symbol, bool middle) {
            if (middle)
                canvas.disc(place.center(), key / 2, look().accent);
            canvas.symbol(place, symbol, 20, middle ? inkOn(look().accent) : look().ink);
        });
}

} // namespace

std::shared_ptr<const FaceRenderer> makeCardSkin(const MinimalLook& look)
{
    return std::make_shared<CardSkin>(look);
}

} // namespace ambrelle
