// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "faces/FaceKit.h"
#include "skins/cockpit/CockpitPieces.h"
#include "skins/cockpit/CockpitSkin.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace cockpit;

namespace {

constexpr double gaugeCap = 18;
constexpr double stripGap = 3;
constexpr double markRoom = 14; // of a warning

/// What a gauge tells in its window, and beside it the mark of a value beyond its limit.
void cutOut(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const Box& window, const Units::Pair& value, bool marked)
{
    constexpr double air = 3;
    if (marked)
        skin.warning(canvas, Box(box).cutBottom(window.height()).cutRight(markRoom));
    const GroundScope ground(canvas, well);
    const double cap = std::min(gaugeCap, window.height() - 2 * air);
    canvas.figure(window.inset(air, 0), value.value, value.unit, skin.figure(cap).aligned(Align::centre));
}

/// The load as a line on a strip of paper.
void strip(Canvas& canvas, const SkinStyle& style, const Box& box, const History& history)
{
    canvas.still(u"strip"_s, box, [&](Canvas& layer) { window(layer, box, 2); });
    const QPainterPath line = smoothLine(samplePoints(box.inset(2.5, 2.5), history, 1));
    canvas.fill(areaUnder(line, box.bottom() - 2), faded(style.accent2, 0.25));
    graphLine(canvas, line, style.accent2, 1.2);
    canvas.disc(line.currentPosition(), 1.6, style.ink);
}

} // namespace

void CockpitSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    constexpr double loadWidth = 72;
    Box box = framed(canvas, face);
    Box line = box.cutBottom(12);
    box.cutBottom(stripGap);
    box.setTop(box.top() - stripGap); // nothing stands in the upper corners of a dial
    canvas.text(line.cutLeft(loadWidth), reading.load, style().caption());
    strip(canvas, style(), line, reading.history);
    const RoundGauge gauge{.style = style(),
        .bands = {{0, 0.6, green}, {0.6, 0.85, amber}, {0.85, 1, red}},
        .needle = valueColour(reading.high)};
    cutOut(canvas, *this, box, gauge.draw(canvas, box, reading.percent / 100.0), reading.figure(), reading.high);
}

void CockpitSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    const Box line = box.cutBottom(footerHeight(style()));
    canvas.text(line, reading.freeText(), style().caption().aligned(Align::centre));
    box.cutBottom(stripGap);
    const RoundGauge gauge{.style = style(),
        .bands = {{0, 0.75, green}, {0.75, 0.9, amber}, {0.9, 1, red}},
        .needle = valueColour(reading.high),
        .seed = 3};
    cutOut(canvas, *this, box, gauge.draw(canvas, box, reading.fraction), reading.figure(), reading.high);
}

void CockpitSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double cap = 34;
    constexpr double scaleWidth = 42;
    constexpr double lampHeight = 20;
    Box box = framed(canvas, face);
    const UprightScale scale{.style = style(),
        .bands = {{0, 0.2, red}, {0.2, 0.4, amber}, {0.4, 1, green}},
        .pointer = valueColour(reading.low)};
    scale.draw(canvas, box.cutLeft(scaleWidth), reading.level);
    box.cutLeft(Bands::gap);
    box = box.inset(0, 2);
    const Box lamps = box.cutBottom(lampHeight);
    const std::optional<QColor> dark;
    lamp(canvas, style(), lamps.column(0, 2, Bands::gap), u"GEN"_s, reading.onMains ? green : dark);
    lamp(canvas, style(), lamps.column(1, 2, Bands::gap), u"BAT"_s, reading.onMains ? dark : amber);
    const Units::Pair value = reading.figure();
    canvas.figure(box.cutTop(cap + 2), value.value, value.unit, figure(cap));
    box = box.centred(box.width(), std::min(box.height(), 34.0));
    Box state = box.cutTop(18);
    if (reading.low)
        warning(canvas, state.cutRight(markRoom));
    else if (!reading.symbol.isEmpty())
        canvas.symbol(state.cutRight(markRoom), reading.symbol, markRoom - 1, green);
    canvas.text(state, reading.state, style().row());
    canvas.text(box, reading.remaining, style().caption());
}

void CockpitSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    constexpr double between = 12;
    Box box = framed(canvas, face);
    rates(canvas, *this, box.cutTop(style().rateCap + 4), reading);
    box.cutTop(Bands::gap);
    const auto engine = [&](const Box& place, bool upwards, const History& history) {
        const QColor colour = upwards ? style().up : style().down;
        const RoundGauge gauge{.style = style(),
            .bands = {{0, 1, colour}},
            .needle = style().accent,
            .seed = upwards ? 2.0 : 1.0,
            .scaled = RoundGauge::Scale::small};
        const double now = history.isEmpty() ? 0 : history.last() / reading.peak;
        canvas.symbol(gauge.draw(canvas, place, now), upwards ? u"arrow.up"_s : u"arrow.down"_s, 16, colour);
    };
    engine(box.cutLeft(box.height()), false, reading.downHistory);
    engine(box.cutRight(box.height()), true, reading.upHistory);
    traffic(canvas, box.inset(between, 0), reading);
}

void CockpitSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double cap = 28;
    Box box = framed(canvas, face);
    const Box drum = box.cutTop(46);
    canvas.still(u"drum"_s, drum, [&](Canvas& layer) {
        window(layer, drum);
        layer.fill(drum.inset(1),
            downwards(drum, {{0, faded(Qt::black, 0)}, {0.5, faded(Qt::white, 0.12)}, {1, faded(Qt::black, 0)}}), 2);
    });
    {
        const GroundScope ground(canvas, over(faded(Qt::white, 0.12), well));
        canvas.figure(drum.inset(8, 0), reading.down.value, reading.down.unit, figure(cap).aligned(Align::centre));
    }
    footer(canvas, *this, box, reading.hint);
    box.cutTop(Bands::gap);
    rate(canvas, box.cutTop(22), true, reading.up, 16);
    level(canvas, box.centred(box.width(), 5), reading.share, style().accent);
}

void CockpitSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double boxHeight = 20;
    constexpr double busy = 0.5;
    constexpr double active = 0.1;
    const Box box = framed(canvas, face);
    rows(box, reading.rows.size(), most, boxHeight, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        const Box frame = row.centred(row.width(), boxHeight);
        std::optional<QColor> light;
        if (process.fraction >= active)
            light = process.fraction >= busy ? amber : green;
        const GroundScope ground(canvas, annunciator(canvas, frame, light));
        const QColor letters = light.value_or(unlit);
        canvas.fill(span(frame.inset(1).cutBottom(2), 0, process.fraction), letters);
        const TextStyle text = style().row().sized(11).coloured(letters);
        named(canvas, frame.inset(6, 0), process.name, text, process.percent, text);
    });
}

} // namespace ambrelle
