// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/apollo/ApolloPieces.h"
#include "skins/apollo/ApolloSkin.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace apollo;

void ApolloSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    heroRegister(canvas, *this, box, reading.figure(), reading.high, style().heroCap);
    footer(canvas, *this, box, reading.load);
    history(canvas, box, reading.history, valueColour(reading.high));
}

void ApolloSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    constexpr double cap = 32; // the unit is wide
    Box box = framed(canvas, face);
    heroRegister(canvas, *this, box, reading.figure(), reading.high, cap);
    parts(canvas, box.cutTop(14), reading.parts);
    box.cutTop(Bands::gap);
    partsKey(canvas, *this, box, reading.parts, partFills());
}

void ApolloSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    constexpr double cap = 30;
    Box box = framed(canvas, face, reading.name);
    Box line = box.cutBottom(footerHeight(style()));
    if (reading.high)
        warning(canvas, line.cutRight(14));
    canvas.text(line, reading.freeText(), style().caption());
    box.cutBottom(4);
    const Box inside = progressDial(canvas, box, reading.fraction, valueColour(reading.high));
    const Units::Pair value = reading.figure();
    canvas.figure(inside.centred(inside.width() - 6, cap), value.value, {}, figure(cap).aligned(Align::centre));
    canvas.text(
        Box(inside).cutBottom(inside.height() * 0.28), value.unit, label(style()).sized(14).aligned(Align::centre));
}

void ApolloSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double cap = 28;
    constexpr double lampWidth = 32;
    Box box = framed(canvas, face);
    const Box lamps = heroRegister(canvas, *this, box, reading.figure(), reading.low, cap).cutRight(lampWidth);
    const std::optional<QColor> dark;
    lamp(canvas, style(), lamps.row(0, 2, 4), u"CHG"_s, reading.charging ? style().accent2 : dark);
    lamp(canvas, style(), lamps.row(1, 2, 4), u"AC"_s, reading.onMains ? style().accent : dark);
    footer(canvas, *this, box, reading.line());
    charge(canvas, box, reading);
}

void ApolloSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    constexpr double gap = 14;
    constexpr double arrow = 11;
    Box box = framed(canvas, face);
    const Box names = box.cutTop(14);
    const Box windows = box.cutTop(style().rateCap + 12);
    box.cutTop(Bands::gap + 2);
    for (const bool upwards : {false, true}) {
        const Units::Pair& rate = upwards ? reading.up : reading.down;
        Box name = names.column(upwards ? 1 : 0, 2, gap);
        canvas.symbol(name.cutLeft(arrow), upwards ? u"arrow.up"_s : u"arrow.down"_s, arrow, style().ink);
        name.cutLeft(4);
        canvas.text(name, rate.unit, label(style()));
        digits(canvas, windows.column(upwards ? 1 : 0, 2, gap), {rate.value, {}}, 6, figure(style().rateCap));
    }
    traffic(canvas, box, reading);
}

void ApolloSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double cap = 28;
    constexpr double smaller = 15;
    constexpr double arrow = 12;
    Box box = framed(canvas, face);
    heroRegister(canvas, *this, box, reading.down, false, cap);
    footer(canvas, *this, box, reading.hint);
    Box sent = box.cutTop(smaller + 12);
    canvas.symbol(sent.cutLeft(arrow), u"arrow.up"_s, arrow, style().ink);
    sent.cutLeft(5);
    heroRegister(canvas, *this, sent, reading.up, false, smaller, 5);
    level(canvas, box, reading.share, style().accent);
}

void ApolloSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double least = 20;
    const Box page = teletype(canvas, framed(canvas, face));
    const GroundScope ground(canvas, grid);
    rows(page, reading.rows.size(), most, least, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        const TextStyle text = typed(style(), index == 0);
        canvas.fill(span(row.inset(-2, 3), 0, process.fraction), grid);
        Box line = row;
        endOfLine(canvas, line, text);
        named(canvas, line, process.name, text, process.percent, text);
    });
}

} // namespace ambrelle
