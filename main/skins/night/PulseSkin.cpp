// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/night/NightPieces.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QColor pulseAmber(0xFF, 0xC2, 0x33); // of the sun, and of mild days

constexpr double unlit = 0.2; // opacity of the empty part of rings and levels
constexpr double ringGap = 3;

/// A fitness watch on the desk: thick rings in red, green and cyan, the load as a heartbeat, rounded figures.
class PulseSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    bool showsSeconds() const override { return true; }

    FigureStyle figure(double cap) const override
    {
        FigureStyle figure = style().figure(cap);
        figure.unitColour = look().soft;
        return figure;
    }
    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override
    {
        return rings(canvas, box.square(), look().lines.ring, {{fraction, colour}});
    }
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override
    {
        const Box track = box.centred(box.width(), std::min(look().lines.level, box.height()));
        capsule(canvas, track, fraction, faded(colour, unlit), colour);
    }
    void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const override;
    void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const override;
    PictogramPaint pictograms() const override
    {
        return {.sun = pulseAmber,
            .moon = look().ink,
            .cloud = look().soft,
            .water = look().accent3,
            .bolt = pulseAmber,
            .line = 3.6};
    }
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override
    {
        return filledDay(canvas, cell, day, look().accent2, look().corner).faced(look().label);
    }
    void rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const override
    {
        constexpr double side = 16;
        ring(canvas, row.cutLeft(side).centred(side, side), 4, {fraction, colourOf(index)});
        row.cutLeft(8);
    }
    void eventMark(Canvas& canvas, Box& line, const QColor& colour) const override
    {
        constexpr double width = 5;
        canvas.fill(line.cutLeft(width).inset(0, 3), colour, width / 2);
        line.cutLeft(8);
    }
    void checkMark(Canvas& canvas, const Box& box, bool done) const override
    {
        constexpr double radius = 7;
        const Box circle = squareAbout(box.center(), radius);
        if (!done) {
            canvas.stroke(arc(circle.inset(1.2), 0, 1), QPen(look().soft, 2.4));
            return;
        }
        canvas.disc(box.center(), radius, look().accent2);
        canvas.symbol(circle, u"checkmark"_s, 11, look().plate);
    }
    void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const override
    {
        const Box bar = Box(column).cutBottom(std::max(1.0, column.height() * fraction));
        canvas.fill(bar, now ? look().ink : look().accent, std::min(bar.width(), bar.height()) / 2);
    }
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override
    {
        constexpr double size = 22;
        if (middle)
            canvas.disc(box.center(), look().keys / 2, look().accent);
        canvas.symbol(box, symbol, size, middle ? inkOn(look().accent) : look().ink);
    }

    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const override
    {
        const Turn turn{reading.fraction, reading.high ? look().warn : look().accent3};
        ringFace(
            canvas, framed(canvas, face, reading.name), turn, reading.figure(), {}, reading.freeText(), reading.high);
    }
    void draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const override
    {
        const Turn turn{reading.level, reading.low ? look().warn : look().accent2};
        ringFace(canvas, framed(canvas, face), turn, reading.figure(), reading.symbol, reading.line(), reading.low);
    }

protected:
    void panel(Canvas& layer, const FaceContext& face) const override
    {
        layer.frame(face.bounds, QPen(faded(Qt::white, 0.08), 1), look().corner);
    }
    void heading(Canvas& canvas, const Box& line, const FaceContext& face, const QString& title) const override;
    TextStyle rowName() const override { return style().row().faced(look().label); }
    TextStyle rowValue(qsizetype index) const override
    {
        return style().rowValue().faced(look().label).coloured(legible(colourOf(index), look().ink, look().plate));
    }
    void forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const override;

private:
    struct Turn {
        double fraction;
        QColor colour;
    };

    const QColor& colourOf(WidgetKind kind) const
    {
        switch (kind) {
        case WidgetKind::memory:
        case WidgetKind::battery:
        case WidgetKind::calendar:
        case WidgetKind::reminders: return look().accent2;
        case WidgetKind::disk:
        case WidgetKind::weather:
        case WidgetKind::network: return look().accent3;
        default: return look().accent;
        }
    }
    /// Red, green and cyan by turns.
    const QColor& colourOf(qsizetype index) const
    {
        return index % 3 == 0 ? look().accent : index % 3 == 1 ? look().accent2 : look().accent3;
    }
    /// A ring along the outline of `circle`, inside it, on a track of its own hue.
    void ring(Canvas& canvas, const Box& circle, double width, const Turn& turn) const;
    /// Rings in one another; returns the box inside.
    Box rings(Canvas& canvas, Box circle, double width, const QList<Turn>& turns) const;
    /// A large ring about a figure, with a symbol where it begins, over a line of text.
    void ringFace(Canvas& canvas, Box box, const Turn& turn, const Units::Pair& value, const QString& symbol,
        const QString& text, bool marked) const;
};

void PulseSkin::heading(Canvas& canvas, const Box& line, const FaceContext& face, const QString& title) const
{
    constexpr double size = 14;
    Box rest = line;
    const Box place = rest.cutLeft(size);
    const bool beats = face.kind == WidgetKind::cpu;
    const auto mark = [&](Canvas& layer, double time) {
        const QString name = beats ? u"heart.fill"_s : symbol(face.kind);
        layer.symbol(place, name, size * beatAt(time), colourOf(face.kind));
    };
    if (beats)
        canvas.moving(place.inset(-1), heartbeat, mark);
    else
        mark(canvas, 0);
    rest.cutLeft(Bands::gap);
    canvas.text(rest, title, style().header());
}

void PulseSkin::ring(Canvas& canvas, const Box& circle, double width, const Turn& turn) const
{
    constexpr double late = 0.9; // from here on the end comes over the start
    const Box middle = circle.square().inset(width / 2);
    const double reached = bounded(turn.fraction);
    canvas.stroke(arc(middle, 0, 1), QPen(faded(turn.colour, unlit), width));
    if (reached <= 0)
        return;
    canvas.stroke(arc(middle, 0, reached), roundPen(turn.colour, width));
    if (reached < late)
        return;
    const double radius = middle.width() / 2;
    const double ahead = width / (2 * std::numbers::pi * radius); // in turns
    const QPointF shade = pointOn(middle.center(), radius, reached + ahead / 4);
    canvas.fill(ringPiece(circle.square(), width, reached, ahead), halo(shade, width * 0.7, Qt::black, 0.6));
    canvas.disc(pointOn(middle.center(), radius, reached), width / 2, turn.colour);
}

Box PulseSkin::rings(Canvas& canvas, Box circle, double width, const QList<Turn>& turns) const
{
    for (const Turn& turn : turns) {
        ring(canvas, circle, width, turn);
        circle = circle.inset(width + ringGap);
    }
    return circle;
}

/// A beat for every ten samples: the height is the root of their mean, so that small loads are seen, and that of the
/// last one the newest sample's.
void PulseSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr int count = 6;
    constexpr double baseline = 0.82; // from the top
    constexpr double tip = 2.5;
    const double width = look().lines.graph;
    const Box room = box.inset(0, tip);
    const double base = room.y() + room.height() * baseline;
    QList<double> heights = binned(history, count);
    heights.last() = history.isEmpty() ? 0 : history.last();
    const auto polygon = [&](int index, double grown) {
        return heartBeat(
            room.column(index, count), base, (base - room.y()) * std::min(1.0, std::sqrt(heights[index]) * grown));
    };
    const auto trace = [&](Canvas& layer, const QPolygonF& points) {
        const QPainterPath line = straightLine(points);
        shine(layer, line, colour);
        layer.stroke(line, roundPen(across(box, {{0, faded(colour, 0.3)}, {0.8, colour}}), width));
    };
    QPolygonF past;
    for (int index = 0; index + 1 < count; ++index)
        past += polygon(index, 1);
    trace(canvas, past);
    const Box newest = room.column(count - 1, count);
    canvas.moving(newest.inset(-2 * width), heartbeat, [&](Canvas& layer, double time) {
        const QPolygonF points = polygon(count - 1, beatAt(time));
        trace(layer, points);
        lamp(layer, *std::ranges::min_element(points, {}, &QPointF::y), tip, colour);
    });
}

/// Round bars that darken with age, down above the line and up below it, on one scale.
void PulseSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr int count = 30;
    constexpr double gap = 4;
    constexpr double oldest = 0.4; // opacity
    const auto highest = [](const QList<double>& rates) { return std::ranges::max(rates); };
    const QList<double> down = binned(reading.downHistory, count);
    const QList<double> up = binned(reading.upHistory, count);
    const double share = std::clamp((highest(down) + 1) / (highest(down) + highest(up) + 2), 0.25, 0.75);
    const double scale = box.height() * std::max(share, 1 - share) / reading.peak;
    Box below = box;
    const Box above = below.cutTop(box.height() * share);
    const auto bars = [&](const Box& half, const QList<double>& rates, bool upwards, const QColor& colour) {
        for (int index = 0; index < count; ++index) {
            Box column = half.inset(0, 1).column(index, count, gap);
            const double height = std::max(column.width(), rates[index] * scale);
            canvas.fill(upwards ? column.cutBottom(height) : column.cutTop(height),
                faded(colour, std::lerp(oldest, 1.0, index / (count - 1.0))), column.width() / 2);
        }
    };
    bars(above, down, true, look().down);
    bars(below, up, false, look().up);
}

void PulseSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double diameter = 92;
    constexpr double width = 9;
    Box box = framed(canvas, face, reading.dateLine());
    const Box circle = box.cutRight(diameter).centred(diameter, diameter);
    box.cutRight(12);
    canvas.text(box.cutBottom(reading.tag().isEmpty() ? 0 : Bands::footer), reading.tag(), look().caption());
    canvas.figure(box, reading.time(), {}, figure(look().clockCap).kerned());
    const auto closed = [](double turn) { return turn > 0 ? turn : 1; }; // when it has come round
    const double minute = reading.minute / 60.0;
    Box inside = rings(canvas, circle, width,
        {{closed((reading.hour24 % 12 + minute) / 12), look().accent}, {closed(minute), look().accent2}});
    if (reading.second) {
        const Box innermost = std::exchange(inside, inside.inset(width + ringGap));
        canvas.ticking(innermost, [&](Canvas& layer) {
            ring(layer, innermost, width, {closed(*reading.second / 60.0), look().accent3});
        });
    }
    canvas.text(inside.inset(-ringGap), reading.meridiem, look().caption().faced(look().label).aligned(Align::centre));
}

void PulseSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    constexpr double diameter = 62;
    constexpr double width = 7;
    Box box = framed(canvas, face);
    Box upper = box.cutTop(diameter);
    QList<Turn> turns;
    for (qsizetype index = 0; index < reading.parts.size(); ++index)
        turns.append({reading.parts[index].fraction, colourOf(index)});
    rings(canvas, upper.cutRight(diameter), width, turns);
    upper.cutRight(Bands::gap);
    Box unit = upper.cutBottom(diameter / 3);
    if (reading.high)
        warning(canvas, unit.cutRight(14));
    canvas.text(unit, reading.unit, style().header());
    canvas.figure(upper, reading.used, {}, figure(28));
    box.cutTop(Bands::gap);
    constexpr double dot = 7;
    partsKey(canvas, *this, box, reading.parts, dot,
        [&](const Box& swatch, qsizetype index) { canvas.disc(swatch.center(), dot / 2, colourOf(index)); });
}

void PulseSkin::ringFace(Canvas& canvas, Box box, const Turn& turn, const Units::Pair& value, const QString& symbol,
    const QString& text, bool marked) const
{
    constexpr double mark = 14;
    Box line = box.cutBottom(Bands::footer);
    if (marked)
        warning(canvas, line.cutRight(mark));
    canvas.text(line, text, look().caption());
    box.cutBottom(Bands::gap / 2);
    const Box circle = box.square();
    const Box inside = progressDial(canvas, circle, turn.fraction, turn.colour);
    canvas.figure(inside, value.value, value.unit, figure(24).aligned(Align::centre));
    const Box start = circle.centred(mark, circle.height()).cutTop(look().lines.ring);
    canvas.symbol(start, symbol, look().lines.ring - 1, look().plate);
}

void PulseSkin::forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr double picture = 18;
    constexpr double temperature = 26;
    constexpr double thickness = 6;
    dayRows(box, reading, 5, [&](Box row, const WeatherReading::Day& day, qsizetype) {
        const TextStyle soft = look().caption().aligned(Align::right);
        const TextStyle bright = soft.faced(look().label).coloured(look().ink);
        canvas.text(row.cutLeft(28), day.name, bright.aligned(Align::left));
        pictogram(canvas, row.cutLeft(picture), day.sky);
        canvas.text(row.cutRight(temperature), temperatureIn(day.high, bright, temperature), bright);
        canvas.text(row.cutLeft(temperature), temperatureIn(day.low, soft, temperature), soft);
        const Box track = row.inset(5, 0).centred(row.width() - 10, thickness);
        canvas.fill(track, look().faint, thickness / 2);
        canvas.fill(span(track, day.lowFraction, day.highFraction),
            across(track, {{0, look().accent2}, {0.5, pulseAmber}, {1, look().accent}}), thickness / 2);
    });
}

} // namespace

std::shared_ptr<const FaceRenderer> pulseSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<PulseSkin>(NightLook::of(Skin::pulse, accent));
}

} // namespace ambrelle
