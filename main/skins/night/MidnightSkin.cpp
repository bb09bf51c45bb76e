// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/SeededRandom.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

// Colours that stay as they are whatever the accent.
const QColor midnightSky(0x9C, 0xC4, 0xFF); // what figures fade to
const QColor midnightSun(0xFF, 0xE3, 0x94);
const QColor midnightEmber(0xFF, 0xA0, 0x4C); // what the sun and bolts fade to

constexpr double headerLine = 14;
constexpr double chipHeight = 16;
constexpr double tintOpacity = 0.16; // of what chips and tiles are filled with

/// An analyst's dashboard at night: navy cards with chips, and charts whose gradients glow.
class MidnightSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    FigureStyle figure(double cap) const override
    {
        QLinearGradient fade(0, 0, 0, 1);
        fade.setStops({{0, Qt::white}, {1, midnightSky}});
        FigureStyle figure = style().figure(cap).filled(fade);
        figure.unitColour = look().soft;
        return figure;
    }
    PictogramPaint pictograms() const override;
    void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const override
    {
        constexpr double thickness = 16;
        Box track = box.centred(box.width(), thickness);
        if (!reading.symbol.isEmpty()) {
            canvas.symbol(track.cutRight(thickness), reading.symbol, thickness, look().ink);
            track.cutRight(Bands::gap);
        }
        const QColor& colour = valueColour(reading.low);
        shine(canvas, roundedPath(span(track, 0, reading.level), thickness / 2), colour);
        capsule(canvas, track, reading.level, look().track, along(track, colour));
    }
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override
    {
        constexpr double corner = 6;
        shine(canvas, roundedPath(cell.centred(18, 18), corner), look().accent);
        return filledDay(canvas, cell, day, look().accent, corner).faced(look().label);
    }
    void rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype) const override
    {
        level(canvas, row.cutBottom(look().lines.level), fraction, look().accent);
    }
    void checkMark(Canvas& canvas, const Box& box, bool done) const override
    {
        constexpr double side = 14;
        constexpr double corner = 4;
        const Box square = box.centred(side, side);
        if (!done) {
            canvas.frame(square, QPen(look().soft, 1.3), corner);
            return;
        }
        canvas.fill(square, along(square, look().accent), corner);
        canvas.symbol(square, u"checkmark"_s, side - 2, look().plate);
    }
    void sessionDot(Canvas& canvas, const Box& box, bool lit) const override
    {
        const Box dash = box.centred(10, 5);
        if (lit)
            canvas.fill(dash, along(dash, look().accent), dash.height() / 2);
        else
            canvas.frame(dash, QPen(look().soft, 1), dash.height() / 2);
    }
    void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const override
    {
        const Box bar = Box(column).cutBottom(std::max(1.0, column.height() * fraction));
        canvas.fill(bar, now ? QBrush(look().ink) : upwards(column), std::min(2.0, bar.height() / 2));
    }
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override
    {
        constexpr double size = 20;
        const Box cap = box.centred(40, box.height());
        if (middle)
            canvas.fill(cap, along(cap, look().accent), cap.height() / 2);
        canvas.symbol(box, symbol, size, middle ? look().plate : look().ink);
    }

    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const override
    {
        NightSkin::draw(canvas, reading, face);
        headerChip(canvas, face, reading.month, reading.year);
    }
    void draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const override
    {
        NightSkin::draw(canvas, reading, face);
        trend(canvas, face, reading.history);
    }
    void draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override
    {
        constexpr double reach = 130;
        layer.fill(face.bounds, halo(face.bounds.topRight(), reach, look().accent3, 0.20), look().corner);
        layer.frame(face.bounds, QPen(faded(look().accent, 0.28), 1), look().corner);
    }
    QGradientStops spectrum() const override { return {{0, look().accent}, {1, look().accent2}}; }
    QGradientStops ringSpectrum() const override { return {{0, look().accent}, {1, look().accent3}}; }
    void graphGround(Canvas& canvas, const Box& box) const override
    {
        constexpr int lines = 4;
        const Box room = box.adjusted(0, 0, -look().lines.bead, 0); // as wide as the graph
        for (int line = 0; line < lines; ++line)
            canvas.rule(room.moved(0, (box.height() - 1) * line / (lines - 1)).cutTop(1), look().faint, 0.8);
    }
    void bead(Canvas& canvas, QPointF point, const QColor& colour) const override;
    TextStyle rowValue(qsizetype) const override { return style().rowValue().faced(look().label).coloured(look().ink); }
    void forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const override;

private:
    QColor tint() const { return faded(look().accent, tintOpacity); }
    QBrush upwards(const Box& box) const { return linear(box.bottomLeft(), box.topLeft(), spectrum()); }
    /// A text and a symbol, where there is one, on a tinted capsule at the right end of the line; returns its width.
    /// Where that is not free for it, it is left out.
    double chip(Canvas& canvas, const Box& line, const QString& text, const QString& symbol = {}) const;
    /// The same beside the title of the face.
    void headerChip(Canvas& canvas, const FaceContext& face, const QString& title, const QString& text,
        const QString& symbol = {}) const;
    void trend(Canvas& canvas, const FaceContext& face, const History& history) const;
    void tile(Canvas& canvas, const Box& box, const QString& name, const QString& value) const;
    void temperatures(Canvas& canvas, const Box& box, const QList<double>& highs, const QList<double>& lows) const;
};

double MidnightSkin::chip(Canvas& canvas, const Box& line, const QString& text, const QString& symbol) const
{
    constexpr double padding = 7;
    constexpr double mark = 13; // with its gap
    const TextStyle label = look().caption().faced(look().label).coloured(look().ink);
    const double symbolRoom = symbol.isEmpty() ? 0 : mark;
    const double width = shape(label.face, label.size, text)->width + symbolRoom + 2 * padding;
    if (text.isEmpty() || width > line.width())
        return 0;
    const Box capsule = Box(line).cutRight(width).centred(width, chipHeight);
    const GroundScope ground(canvas, over(tint(), look().plate));
    canvas.fill(capsule, tint(), chipHeight / 2);
    Box inside = capsule.inset(padding, 0).adjusted(0, 0, 1, 0);
    canvas.symbol(inside.cutLeft(symbolRoom).cutLeft(mark - 2), symbol, mark - 2, style().accentText());
    canvas.text(inside, text, label);
    return width + Bands::gap;
}

void MidnightSkin::headerChip(
    Canvas& canvas, const FaceContext& face, const QString& title, const QString& text, const QString& symbol) const
{
    const TextStyle header = style().header();
    Box line = Box(face.bounds.inset(look().inset)).cutTop(headerLine);
    line.cutLeft(shape(header.face, header.size, title)->width + Bands::gap);
    chip(canvas, line, text, symbol);
}

/// What a load did in the time of its history, in percent of the whole. What has not been measured yet is nothing.
void MidnightSkin::trend(Canvas& canvas, const FaceContext& face, const History& history) const
{
    const auto oldest = std::ranges::find_if(history, [](double sample) { return sample > 0; });
    const int change = oldest == history.end() ? 0 : Units::percent(history.last()) - Units::percent(*oldest);
    const auto [value, unit] = Units::percentage(std::abs(change));
    const QString arrow = change > 0 ? u"arrow.up"_s : change < 0 ? u"arrow.down"_s : u"arrow.right"_s;
    headerChip(canvas, face, headerTitle(style(), face.kind), value + unit, arrow);
}

void MidnightSkin::tile(Canvas& canvas, const Box& box, const QString& name, const QString& value) const
{
    constexpr double corner = 8;
    constexpr double valueSize = 16;
    canvas.fill(box, tint(), corner);
    const GroundScope ground(canvas, over(tint(), look().plate));
    const TextStyle caption = look().caption().aligned(Align::centre);
    const Box inside = box.centred(box.width() - 2, 30);
    canvas.text(inside.row(0, 2), name, caption);
    canvas.text(inside.row(1, 2), value, caption.faced(look().label).sized(valueSize).coloured(look().ink));
}

void MidnightSkin::bead(Canvas& canvas, QPointF point, const QColor& colour) const
{
    constexpr double rate = 8; // frames a second
    constexpr double breath = 3; // seconds
    constexpr double largest = 4.5;
    const double least = look().lines.bead;
    canvas.moving(squareAbout(point, largest * lampLight), Motion::steady(rate), [=, this](Canvas& layer, double time) {
        const double swelling = (1 - std::cos(2 * std::numbers::pi * time / breath)) / 2;
        lamp(layer, point, std::lerp(least, largest, swelling), colour);
    });
}

PictogramPaint MidnightSkin::pictograms() const
{
    const auto fade = [](const QColor& from, const QColor& to) {
        QLinearGradient down(0, 0, 0, 1);
        down.setCoordinateMode(QGradient::ObjectMode); // over each shape
        down.setStops({{0, from}, {1, to}});
        return QBrush(down);
    };
    return {.sun = fade(midnightSun, midnightEmber),
        .moon = fade(look().ink, look().accent3),
        .cloud = fade(look().ink, midnightSky),
        .water = fade(look().accent2, look().accent),
        .bolt = fade(midnightSun, midnightEmber),
        .line = 3};
}

void MidnightSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double tiles = 50;
    constexpr double gap = 8;
    Box box = framed(canvas, face, reading.dateLine());
    headerChip(canvas, face, reading.dateLine(), reading.meridiem.isEmpty() ? reading.zone : reading.meridiem);
    Box column = box.cutRight(tiles);
    column.cutTop(gap / 2); // from the chip
    box.cutRight(gap);
    tile(canvas, column.row(0, 2, gap), Wording::tr("Week"), QString::number(reading.week));
    tile(canvas, column.row(1, 2, gap), Wording::tr("Day", "of the year"), QString::number(reading.dayOfYear));
    canvas.text(box.cutBottom(reading.tag().isEmpty() ? 0 : Bands::footer), reading.tag(), look().caption());
    canvas.figure(box, reading.time(), {}, figure(look().clockCap).kerned());
}

/// The cores stand beside the load; where there are too many of them, each bar is the mean of a few.
void MidnightSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    constexpr double pitch = 5;
    constexpr double gap = 2;
    NightSkin::draw(canvas, reading, face);
    trend(canvas, face, reading.history);
    const TextStyle caption = look().caption();
    Box line = Box(face.bounds.inset(look().inset)).cutBottom(Bands::footer);
    line.cutLeft(shape(caption.face, caption.size, reading.load)->width + Bands::gap);
    const int count = std::min(static_cast<int>(reading.perCore.size()), static_cast<int>(line.width() / pitch));
    const QList<double> loads = binned(reading.perCore, count);
    const Box bars = line.cutRight(count * pitch - gap);
    for (int index = 0; index < count; ++index) {
        const Box column = bars.column(index, count, gap);
        canvas.fill(column, look().track, column.width() / 2);
        hourBar(canvas, column, loads[index], false);
    }
}

void MidnightSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.low);
    Box line = box.cutBottom(chipHeight);
    const double beside = chip(canvas, line, reading.remaining);
    line.cutRight(beside);
    canvas.text(line, beside > 0 ? reading.state : reading.line(), look().caption());
    charge(canvas, box, reading);
}

void MidnightSkin::forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr int most = 6;
    constexpr double picture = 19;
    constexpr double air = 7;
    QList<double> highs;
    QList<double> lows;
    Box chart;
    dayColumns(box, reading, most, 0, [&](Box column, const WeatherReading::Day& day, qsizetype index) {
        const TextStyle caption = look().caption().aligned(Align::centre);
        const TextStyle bright = caption.coloured(look().ink);
        canvas.text(column.cutTop(headerLine), day.initial, index == 0 ? bright.faced(look().label) : caption);
        column.cutTop(Bands::gap);
        pictogram(canvas, column.cutTop(picture), day.sky);
        column.cutTop(Bands::gap);
        canvas.text(column.cutTop(Bands::footer), temperatureIn(day.high, bright, column.width()), bright);
        canvas.text(column.cutBottom(Bands::footer), temperatureIn(day.low, caption, column.width()), caption);
        column = column.inset(0, air);
        canvas.fill(column.centred(1, column.height()), look().faint);
        chart = chart.united(column.centred(1, column.height()));
        highs.append(day.highFraction);
        lows.append(day.lowFraction);
    });
    if (!highs.isEmpty())
        canvas.still(
            u"temperatures"_s, chart.inset(-air), [&](Canvas& layer) { temperatures(layer, chart, highs, lows); },
            highs, lows);
}

/// The band between the highest and the lowest temperatures of the days.
void MidnightSkin::temperatures(
    Canvas& canvas, const Box& box, const QList<double>& highs, const QList<double>& lows) const
{
    constexpr double point = 2;
    const QPolygonF above = samplePoints(box, highs, 1);
    const QPolygonF below = samplePoints(box, lows, 1);
    const QPainterPath upper = smoothLine(above);
    QPainterPath band = upper;
    band.connectPath(smoothLine(below).toReversed());
    canvas.fill(band, downwards(box, {{0, faded(look().accent2, 0.4)}, {1, faded(look().accent3, 0.15)}}));
    shine(canvas, upper, look().accent);
    graphLine(canvas, upper, along(box, look().accent), look().lines.graph);
    graphLine(canvas, smoothLine(below), look().accent3, look().lines.graph);
    for (const QPointF& day : above + below)
        canvas.disc(day, point, look().ink);
}

/// Between the texts and the progress stand bars as the track's title gives them; they dance while it plays.
void MidnightSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr int count = 28;
    constexpr double rate = 8;
    constexpr double swing = 0.4;
    constexpr double paused = 0.4; // opacity
    NightSkin::draw(canvas, reading, face);
    const PlayerPlaces places = playerPlaces(face.bounds.inset(look().inset));
    Box band = places.progress.adjusted(0, 0, 0, -places.progress.height() - Bands::gap);
    band.setTop(places.texts.bottom() + 2);
    const auto bars = [&](Canvas& layer, double time) {
        SeededRandom random{seedOf(reading.title)};
        QPainterPath path;
        for (int index = 0; index < count; ++index) {
            const double moved = random.in(0.2, 1) + swing * (Wave::wobble(time, index) - Wave::wobble(0, index));
            Box bar = band.column(index, count, 2.5);
            path.addRoundedRect(bar.cutBottom(bar.height() * std::clamp(moved, 0.1, 1.0)), 1.5, 1.5);
        }
        layer.fill(path, reading.playing ? upwards(band) : QBrush(faded(look().soft, paused)));
    };
    if (reading.playing)
        canvas.moving(band, Motion::steady(rate), bars);
    else
        bars(canvas, 0);
}

} // namespace

std::shared_ptr<const FaceRenderer> midnightSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<MidnightSkin>(NightLook::of(Skin::midnight, accent));
}

} // namespace ambrelle
