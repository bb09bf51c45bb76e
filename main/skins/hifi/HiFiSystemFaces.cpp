// SPDX-License-Identifier: MIT

#include "skins/hifi/HiFiSkin.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/hifi/Cabinet.h"
#include "skins/hifi/MagicEye.h"
#include "skins/hifi/Nixie.h"
#include "skins/hifi/TapeCounter.h"
#include "skins/hifi/TunerScale.h"
#include "skins/hifi/VuMeter.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace hifi;

namespace {

/// A row of small lamps lit by the parts of a whole.
void lampBar(
    Canvas& canvas, const Box& box, const QList<Share>& parts, const QList<QBrush>& colours, const QColor& dark)
{
    constexpr int lamps = 28;
    double end = 0;
    int lamp = 0;
    for (qsizetype part = 0; part < std::min(parts.size(), colours.size()); ++part) {
        end += parts[part].fraction;
        for (; lamp < std::min<long>(lamps, std::lround(end * lamps)); ++lamp) {
            const Box cell = box.column(lamp, lamps, 1.6);
            canvas.fill(cell.inset(-1.6), faded(colours[part].color(), 0.18), 2);
            canvas.fill(cell, colours[part], 1);
        }
    }
    for (; lamp < lamps; ++lamp)
        canvas.fill(box.column(lamp, lamps, 1.6), dark, 1);
}

/// A warning lamp with its symbol, or a dark one.
void signal(Canvas& canvas, const Box& box, const QString& symbol, const QColor& colour, const QColor& dark, bool lit)
{
    Box line = box;
    const Box jewel = line.cutLeft(12);
    canvas.still(u"lamp %1 %2"_s.arg(symbol).arg(lit), jewel.centred(24, 24),
        [&](Canvas& layer) { lamp(layer, jewel.center(), 4, colour, lit); });
    canvas.symbol(line.cutRight(15), symbol, 14, lit ? colour : dark);
}

} // namespace

void HiFiSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    canvas.text(box.cutBottom(Bands::footer), reading.load, style().caption());
    box.cutBottom(4);
    const VuMeter meter{.style = style(), .window = Box(box).cutTop(70)};
    Box strip = box;
    strip.cutTop(70);
    canvas.still(u"meter"_s, box.inset(-2), [&](Canvas& layer) {
        sheet(layer, box);
        meter.scale(layer);
        layer.rule(Box(strip).cutTop(1).inset(6, 0), faded(print, 0.5), 0.7);
    });
    strip = strip.inset(8, 4);
    const GroundScope ground(canvas, paper);
    canvas.figure(strip.cutLeft(52), reading.figure().value, reading.figure().unit, printed(style(), 16));
    if (reading.high)
        canvas.symbol(strip.cutRight(14), u"exclamationmark.triangle.fill"_s, 12, pointerRed.darker(115));
    const QPainterPath line = smoothLine(samplePoints(strip.inset(2, 1), reading.history, 1));
    canvas.stroke(line, roundPen(print, 1));
    canvas.disc(line.currentPosition(), 1.8, pointerRed);
    meter.needle(canvas, reading.percent / 100.0, 1);
}

void HiFiSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    const Box hero = box.cutTop(46);
    Nixies{.style = style(), .cap = 34, .seed = 11, .name = u"used"_s}.draw(canvas, hero, reading.used, reading.unit);
    if (reading.high)
        warning(canvas, Box(hero).cutRight(12).cutTop(12));
    box.cutTop(8);
    const QList<QBrush> fills{style().accent, pale, pointerRed};
    lampBar(canvas, box.cutTop(8), reading.parts, fills, style().faint);
    box.cutTop(6);
    partsKey(canvas, *this, box, reading.parts, fills);
}

void HiFiSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    Box footer = box.cutBottom(Bands::footer);
    if (reading.high)
        warning(canvas, footer.cutRight(14));
    canvas.text(footer, reading.freeText(), style().caption());
    const Box inside = tickDial(canvas, style(), box, reading.fraction, reading.high ? style().warn : style().accent);
    canvas.figure(inside, reading.figure().value, reading.figure().unit, wire(style(), 24).aligned(Align::centre));
}

void HiFiSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    canvas.text(box.cutBottom(Bands::footer), reading.line(), style().caption());
    box.cutBottom(4);
    Box lamps = box.cutRight(30).inset(0, 8);
    const QColor dark = style().faint.lighter(150);
    signal(canvas, lamps.row(0, 3), u"bolt.fill"_s, style().accent, dark, reading.charging);
    signal(canvas, lamps.row(1, 3), u"powerplug.fill"_s, pale, dark, reading.onMains);
    signal(canvas, lamps.row(2, 3), u"exclamationmark.triangle.fill"_s, style().warn, dark, reading.low);
    Box eye = box.cutLeft(box.height());
    const Box cap = magicEye(canvas, eye, reading.percent, reading.low);
    const GroundScope ground(canvas, tubeDark);
    canvas.figure(cap, reading.figure().value, reading.figure().unit, wire(style(), 20).aligned(Align::centre));
}

void HiFiSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    const Box meters = box.cutTop(58);
    const Box figures = box.cutTop(32);
    const auto channel = [&](int side, const QString& arrow, const Units::Pair& rate, const History& history) {
        const VuMeter meter{.style = style(), .window = meters.column(side, 2, 14), .depth = 20};
        canvas.still(u"meter %1"_s.arg(side), meter.window.inset(-2), [&](Canvas& layer) {
            sheet(layer, meter.window);
            meter.scale(layer);
        });
        const double now = history.isEmpty() ? 0 : history.last();
        meter.needle(canvas, now / std::max(1.0, reading.peak), side + 1);
        markedFigure(canvas, figures.column(side, 2, 14), arrow, style().accentText(), rate, wire(style(), 19));
    };
    channel(0, u"arrow.down"_s, reading.down, reading.downHistory);
    channel(1, u"arrow.up"_s, reading.up, reading.upHistory);
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), faded(style().accent, 0.22));
    canvas.fill(areaUnder(lines.lower, lines.middle), faded(pale, 0.18));
    canvas.rule(Box(box.x(), lines.middle - 1, box.width(), 2), style().faint, 1);
    canvas.stroke(lines.upper, roundPen(style().accent, 1));
    canvas.stroke(lines.lower, roundPen(pale, 1));
}

void HiFiSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    canvas.text(box.cutBottom(Bands::footer), reading.hint, style().caption());
    tapeCounter(canvas, style(), box.cutTop(48), reading.down.value, reading.down.unit, 27);
    Box upload = box.cutTop(26);
    canvas.symbol(upload.cutLeft(13), u"arrow.up"_s, 13, style().accentText());
    upload.cutLeft(6);
    canvas.figure(upload, reading.up.value, reading.up.unit, wire(style(), 16));
    const Box scale = box.centred(box.width(), 12);
    TunerScale{.steps = 40}.draw(canvas, scale);
    pointer(canvas, scale.inset(0, -1), reading.share);
}

void HiFiSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    rows(box, std::min<qsizetype>(reading.rows.size(), 5), 23, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        const Box scale = line.cutBottom(8).inset(0, 1);
        const double value = canvas.text(line, process.percent, amber(style(), style().rowValue()));
        line.cutRight(value + 6);
        canvas.text(line, process.name, style().row().engraved(engraving));
        TunerScale{.steps = 40}.draw(canvas, scale);
        pointer(canvas, scale, process.fraction);
    });
}

} // namespace ambrelle
