// SPDX-License-Identifier: MIT

#include "skins/glass/GlassSkin.h"

#include "faces/FaceKit.h"
#include "faces/StyledDial.h"
#include "skins/glass/GlassStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace glass;

void GlassSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    const Box graph = heroAndFooter(
        canvas, *this, box, reading.figure().value, reading.figure().unit, reading.load, style().figure(40));
    if (reading.high)
        warning(canvas, Box(box).cutTop(Bands::hero).cutRight(12));
    const QColor colour = reading.high ? warn : style().accent;
    const QPainterPath line = smoothLine(samplePoints(graph, reading.history, 1));
    canvas.fill(areaUnder(line, graph.bottom()), wash(graph, colour, 0.45, 0.02));
    graphLine(canvas, line, colour, 1.8);
    canvas.disc(line.currentPosition(), 2.6, colour);
}

void GlassSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    canvas.figure(box.cutTop(Bands::hero), reading.used, reading.unit, style().figure(40));
    if (reading.high)
        warning(canvas, Box(face.bounds).inset(style().inset).cutTop(14).cutRight(12));
    const QList<QBrush> fills{style().accent, accent2, accent3};
    box.cutTop(Bands::gap);
    partsBar(canvas, box.cutTop(10), reading.parts, fills, trackColour, 5);
    box.cutTop(Bands::gap);
    partsKey(canvas, *this, box, reading.parts, fills);
}

void GlassSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    canvas.text(box.cutBottom(Bands::footer), reading.freeText(), style().caption());
    const QColor colour = reading.high ? warn : style().accent;
    const StyledDial ring{.flavor = dial(), .value = colour, .track = trackColour, .measures = {.width = 9}};
    const Box inside = ring.draw(canvas, box.inset(0, 4), reading.fraction);
    canvas.figure(
        inside.inset(4), reading.figure().value, reading.figure().unit, style().figure(26).aligned(Align::centre));
    if (reading.high)
        warning(canvas, Box(face.bounds).inset(style().inset).cutBottom(Bands::footer).cutRight(12));
}

void GlassSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    Box middle = heroAndFooter(
        canvas, *this, box, reading.figure().value, reading.figure().unit, reading.line(), style().figure(36));
    if (reading.low)
        warning(canvas, Box(box).cutTop(Bands::hero).cutRight(12));
    const Box body = Box(middle.x(), middle.center().y() - 20, 96, 40);
    const QColor fill = reading.low ? accent3 : accent2;
    canvas.fill(body, trackColour, 12);
    QPainterPath outline;
    outline.addRoundedRect(body, 12, 12);
    QPainterPath charge;
    charge.addRect(Box(body).cutLeft(body.width() * reading.level));
    canvas.fill(outline.intersected(charge), fill);
    canvas.fill(Box(body.right() + 3, body.center().y() - 6, 4, 12), trackColour, 2);
    if (reading.onMains)
        canvas.symbol(body, reading.symbol, 22, inkOn(fill));
}

void GlassSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    Box figures = box.cutTop(34);
    const FigureStyle figure = style().figure(26);
    markedFigure(canvas, figures.column(0, 2, 12), u"arrow.down"_s, style().accentText(), reading.down, figure);
    markedFigure(canvas, figures.column(1, 2, 12), u"arrow.up"_s, up, reading.up, figure);
    box.cutTop(Bands::gap);
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), faded(style().accent, 0.28));
    canvas.fill(areaUnder(lines.lower, lines.middle), faded(up, 0.28));
    canvas.rule(Box(box.x(), lines.middle - 1, box.width(), 2), trackColour, 1);
    graphLine(canvas, lines.upper, style().accent, 1.8);
    graphLine(canvas, lines.lower, up, 1.8);
}

void GlassSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    const Box middle =
        heroAndFooter(canvas, *this, box, reading.down.value, reading.down.unit, reading.hint, style().figure(32));
    Box rest = middle;
    markedFigure(canvas, rest.cutTop(24), u"arrow.up"_s, up, reading.up, style().figure(16));
    capsule(canvas, rest.centred(rest.width(), 4), reading.share, trackColour, style().accent);
}

void GlassSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    rows(box, std::min<qsizetype>(reading.rows.size(), 5), 20, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        const Box chip = line.cutLeft(16).centred(16, 16);
        canvas.fill(chip, chipColour, 8);
        canvas.symbol(chip, u"macwindow"_s, 10, ink);
        line.cutLeft(6);
        const double value = canvas.text(line, process.percent, style().rowValue());
        line.cutRight(value + 6);
        canvas.text(line, process.name, style().row());
    });
}

} // namespace ambrelle
