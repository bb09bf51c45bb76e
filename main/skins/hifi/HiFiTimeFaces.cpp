// SPDX-License-Identifier: MIT

#include "skins/hifi/HiFiSkin.h"

#include "drawing/Colours.h"
#include "faces/FaceKit.h"
#include "faces/Pictogram.h"
#include "skins/hifi/Cabinet.h"
#include "skins/hifi/Cassette.h"
#include "skins/hifi/Nixie.h"
#include "skins/hifi/TunerScale.h"

#include <QRadialGradient>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace hifi;

namespace {

constexpr double clockCap = 62;
constexpr double temperatureCap = 46;
constexpr double pictogramLine = 1.5;

/// A drawing bent from glowing wire.
void wirePictogram(Canvas& canvas, const Box& box, Sky sky, const QColor& colour, double line)
{
    const auto paint = [&](Canvas& layer, const QColor& c, double width) {
        const PictogramPaint lines{.sun = c, .moon = c, .cloud = c, .water = c, .bolt = c, .outline = width};
        drawPictogram(layer, box, sky, lines);
    };
    const QString name = u"sky %1 %2"_s.arg(static_cast<int>(sky)).arg(box.x());
    canvas.still(name, box.inset(-3), [&](Canvas& layer) {
        paint(layer, faded(colour, 0.1), line + 5);
        paint(layer, faded(colour, 0.16), line + 2.5);
        paint(layer, blended(colour, digitLit, 0.45), line);
    });
}

/// The days as stations of a dial; the first one is today.
void stations(Canvas& canvas, const SkinStyle& style, const Box& box, const WeatherReading& reading)
{
    constexpr int most = 6;
    canvas.still(u"dial"_s, box.inset(-1), [&](Canvas& layer) { window(layer, box, style.accent, 5); });
    const GroundScope ground(canvas, over(faded(style.accent, 0.16), tubeDark));
    Box inside = box.inset(6, 6);
    const int count = static_cast<int>(std::min<qsizetype>(reading.days.size(), most));
    const Box line = Box(inside).moved(0, 20).cutTop(8);
    TunerScale{.steps = most * 8, .every = 8}.draw(canvas, line);
    const TextStyle caption = style.caption().aligned(Align::centre);
    for (int index = 0; index < count; ++index) {
        const WeatherReading::Day& day = reading.days[index];
        Box column = inside.column(index, most);
        canvas.text(column.cutTop(16), day.initial, caption.coloured(index == 0 ? style.ink : champagne));
        column.cutTop(16);
        canvas.text(column.cutBottom(14), day.low, caption);
        canvas.text(column.cutBottom(16), day.high, caption.coloured(style.ink));
        wirePictogram(canvas, column.centred(22, 22), day.sky, style.accent, 1.2);
    }
    if (count > 0)
        pointer(canvas, Box(line).moved(0, -3).inset(0, -3), 0.5 / most);
}

} // namespace

void HiFiSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, style().caps(reading.dateLine()));
    Box footer = box.cutBottom(Bands::footer);
    const double meridiem =
        canvas.text(footer, reading.meridiem, amber(style(), style().header()).aligned(Align::right));
    footer.cutRight(meridiem + 8);
    canvas.text(footer, reading.tag(), style().caption());
    box.cutBottom(4);
    const Box dial = box.cutRight(54);
    dayDial(canvas, style(), dial, reading.dayFraction());
    // A 12-hour clock leaves the first tube dark before ten.
    const QString time = reading.hours.rightJustified(2) + u':' + reading.minutes;
    Nixies{.style = style(), .cap = clockCap, .name = u"time"_s}.draw(canvas, box, time);
}

void HiFiSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.month));
    const int place = reading.firstColumn + reading.today - 1;
    const int lines = (reading.firstColumn + reading.days + 6) / 7 + 1;
    const Box scale = Box(box.row(0, lines)).moved(0, 1).cutBottom(4);
    TunerScale{.steps = 28, .every = 4}.draw(canvas, scale);
    const Box cell = box.column(place % 7, 7).row(place / 7 + 1, lines);
    QRadialGradient halo(cell.center(), cell.height());
    halo.setColorAt(0.4, faded(style().accent, 0.45));
    halo.setColorAt(1, faded(style().accent, 0));
    canvas.disc(cell.center(), cell.height(), halo);
    const TextStyle day = style().caption().coloured(style().ink);
    monthGrid(canvas, *this, Box(box.x(), box.y() - 1, box.width(), box.height() + 1), reading,
        style().caption().coloured(champagne), day);
    pointer(canvas, Box(scale).cutBottom(scale.height()).moved(0, -1).inset(0, -1), (place % 7 + 0.5) / 7);
}

void HiFiSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.place);
    stations(canvas, style(), box.cutRight(166), reading);
    box.cutRight(12);
    canvas.text(box.cutBottom(Bands::footer), reading.range(), style().caption());
    canvas.text(box.cutBottom(18), reading.description, style().row());
    box.cutBottom(4);
    const Box sky = box.cutRight(46);
    wirePictogram(canvas, sky.centred(44, 44), reading.sky, style().accent, pictogramLine);
    Nixies{.style = style(), .cap = temperatureCap, .seed = 8, .name = u"temperature"_s}.draw(
        canvas, box, reading.temperature, u"°"_s);
}

void HiFiSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.day));
    rows(box, reading.rows.size(), 38, [&](const Box& row, qsizetype index) {
        const EventsReading::Row& event = reading.rows[index];
        Box line = row;
        TunerScale{.steps = 40, .every = 5}.draw(canvas, line.cutBottom(8).inset(0, 1));
        canvas.fill(line.cutLeft(3).inset(0, 1), event.colour, 1.5);
        line.cutLeft(7);
        canvas.text(line.cutTop(15), event.title, style().row().engraved(engraving));
        canvas.text(line, event.time, amber(style(), style().caption()));
    });
}

void HiFiSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box box = plate(canvas, face);
    Box scale = box.cutBottom(28);
    box.cutBottom(6);
    Box deck = box.cutRight(100);
    box.cutRight(12);
    cassette(canvas, style(), box, reading);

    controls(canvas, *this, deck.cutBottom(28), reading.playing);
    deck.cutBottom(6);
    levelBars(canvas, deck.cutRight(26), reading);
    deck.cutRight(8);
    const Box cover = deck.square();
    artwork(canvas, cover, reading.artwork, 4, faded(champagne, 0.14), style().soft);
    canvas.frame(cover.inset(-1), QPen(faded(champagne, 0.6), 1), 5);

    progress(canvas, scale, reading);
}

void HiFiSkin::progress(Canvas& canvas, const Box& box, const NowPlayingReading& reading) const
{
    constexpr int marks = 10;
    const Box line = box.inset(56, 3);
    const Box ticks = Box(line).cutTop(10);
    canvas.still(u"scale"_s, box.inset(-1), [&](Canvas& layer) {
        window(layer, box, style().accent);
        TunerScale{.steps = 50, .every = 5}.draw(layer, ticks);
    });
    const GroundScope ground(canvas, over(faded(style().accent, 0.16), tubeDark));
    Box times = box.inset(8, 3);
    canvas.text(times.cutLeft(44), reading.elapsed, amber(style(), style().caption()));
    canvas.text(times.cutRight(44), reading.total, style().caption().aligned(Align::right));
    const TextStyle number = style().caption().sized(9).coloured(champagne).aligned(Align::centre).asAxis();
    const Box numbers = Box(line).cutBottom(11);
    for (int mark = 0; mark <= marks; mark += 2) {
        const double x = line.left() + line.width() * mark / marks;
        canvas.text({x - 10, numbers.y(), 20, numbers.height()}, QString::number(mark * 10), number);
    }
    pointer(canvas, ticks.inset(0, -1), reading.progress);
}

} // namespace ambrelle
