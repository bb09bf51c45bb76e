// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/abyss/AbyssGauges.h"
#include "skins/abyss/AbyssPieces.h"
#include "skins/abyss/AbyssPortholes.h"
#include "skins/abyss/AbyssSkin.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace abyss;

namespace {

constexpr double gaugeCap = 20;
constexpr double markRoom = 14; // of a warning
constexpr double raised = 3; // of a gauge: nothing stands in the upper corners of a circle

/// The figure in the window of a gauge.
void inWindow(Canvas& canvas, const FaceRenderer& skin, const Box& window, const Units::Pair& value)
{
    constexpr double air = 2;
    const GroundScope ground(canvas, well);
    const double cap = std::min(gaugeCap, window.height() - 2 * air);
    canvas.figure(window.inset(air, 0), value.value, value.unit, skin.figure(cap).aligned(Align::centre));
}

} // namespace

void AbyssSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{

    Box box = framed(canvas, face);
    Box line = box.cutBottom(footerHeight(style()));
    box.setTop(box.top() - raised);
    line.cutLeft(canvas.text(line, reading.load, style().caption()) + Bands::gap);
    history(canvas, line, reading.history, phosphor);
    const BrassGauge gauge{.style = style(), .needle = valueColour(reading.high), .red = 0.85};
    inWindow(canvas, *this, gauge.draw(canvas, box, reading.percent / 100.0), reading.figure());
    if (reading.high)
        warning(canvas, Box(box).cutBottom(markRoom).cutRight(markRoom));
}

void AbyssSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    constexpr double swatch = 9;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.high);
    parts(canvas, box.cutTop(12), reading.parts);
    box.cutTop(4);
    const QList<QBrush> fills = partFills();
    partsKey(canvas, *this, box, reading.parts, swatch, [&](const Box& place, qsizetype index) {
        liquid(canvas, place.centred(swatch, swatch), fills.value(index), index);
    });
}

void AbyssSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    canvas.text(box.cutBottom(footerHeight(style())), reading.freeText(), style().caption().aligned(Align::centre));
    box.setTop(box.top() - raised);
    const BrassGauge gauge{
        .style = style(), .needle = valueColour(reading.high), .steps = 40, .every = 8, .lit = true, .seed = 3};
    inWindow(canvas, *this, gauge.draw(canvas, box, reading.fraction), reading.figure());
    if (reading.high)
        warning(canvas, Box(box).cutBottom(markRoom).cutRight(markRoom));
}

void AbyssSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double cap = 36;
    constexpr double tubeWidth = 26;
    Box box = framed(canvas, face);
    const DepthTube tube{
        .place = box.cutLeft(tubeWidth), .water = reading.low ? style().warn : phosphor, .bubbling = reading.charging};
    tube.draw(canvas, reading.level);
    box.cutLeft(DepthTube::marks + 8);
    const Units::Pair value = reading.figure();
    box = box.inset(0, 4);
    canvas.figure(box.cutTop(cap + 4), value.value, value.unit, figure(cap));
    const TextStyle rest = style().caption().wrapped(2);
    const auto lines = static_cast<double>(wrapped(reading.remaining, rest, box.width()).size());
    canvas.paragraph(box.cutBottom(lines * 14), reading.remaining, rest);
    Box state = box.cutBottom(18);
    if (reading.low)
        warning(canvas, state.cutRight(markRoom));
    else if (!reading.symbol.isEmpty())
        canvas.symbol(state.cutRight(markRoom), reading.symbol, markRoom - 1, phosphor);
    canvas.text(state, reading.state, style().row());
}

void AbyssSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    constexpr double gutter = 14;
    Box box = plate(canvas, face);
    sonar(canvas, box.cutRight(box.height()).inset(2), reading);
    box.cutRight(gutter);
    header(canvas, box, face, headerTitle(style(), face.kind));
    const double height = style().rateCap + 8;
    rate(canvas, box.cutTop(height), false, reading.down, style().rateCap);
    rate(canvas, box.cutTop(height), true, reading.up, style().rateCap);
    box.cutTop(Bands::gap);
    traffic(canvas, box, reading);
}

void AbyssSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double height = 20;
    const Box box = framed(canvas, face);
    rows(box, reading.rows.size(), most, height + 1, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        const Box plate = row.centred(row.width(), height);
        Box room = plate.inset(6, 1.6);
        canvas.still(
            u"strip"_s, plate.inset(-3),
            [&](Canvas& layer) {
                brassPlate(layer, plate);
                plateEnd(layer, {room.right() - 1, plate.center().y()}, index == 0);
            },
            index == 0);
        room.cutRight(9);
        canvas.fill(span(Box(room).cutBottom(1.6), 0, process.fraction), stamped);
        const GroundScope ground(canvas, strip);
        const TextStyle text = struck(style().row().sized(11.5));
        named(canvas, room.moved(0, -1.6), process.name, text, process.percent, text);
    });
}

} // namespace ambrelle
