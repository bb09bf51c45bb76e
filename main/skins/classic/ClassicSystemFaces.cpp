// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/classic/ClassicPieces.h"
#include "skins/classic/ClassicSkin.h"
#include "skins/classic/ClassicStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace classic;

namespace {

const QString percentSign = u"%"_s;

/// What received and sent data are drawn with.
constexpr double arrowSize = 16;

void memoryKey(Canvas& canvas, const SkinStyle& style, const Box& box, const QList<Share>& parts)
{
    rows(box, parts.size(), 22, [&](const Box& row, qsizetype index) {
        Box line = row;
        const Box swatch = line.cutLeft(12).centred(12, 12);
        canvas.fill(swatch, pattern(index));
        canvas.frame(swatch, QPen(ink, 1));
        line.cutLeft(8);
        keyLine(canvas, line, parts, index, style.row(), style.rowValue());
    });
}

} // namespace

void ClassicSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, box.cutTop(44), QString::number(reading.percent), percentSign, 48, reading.high);
    canvas.text(box.cutBottom(line), reading.load, style().row());
    histogram(canvas, box.inset(0, 6), reading.history);
}

void ClassicSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    patternBar(canvas, box.cutBottom(20), reading.parts);
    box.cutBottom(8);
    Box figure = box.cutLeft(148);
    hero(canvas, figure.cutTop(64), reading.used, reading.unit, 64, reading.high);
    canvas.text(figure.cutBottom(line + 8), reading.share(), style().row());
    box.cutLeft(16);
    memoryKey(canvas, style(), box.inset(0, 12), reading.parts);
}

void ClassicSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    canvas.text(box.cutBottom(line), reading.freeText(), style().row().aligned(Align::centre));
    box.cutBottom(4);
    const Box inside = wedges(canvas, box, reading.fraction);
    const FigureStyle figure = style().figure(26).aligned(Align::centre);
    const QString percent = QString::number(reading.percent);
    const double width = figurePath(percent, percentSign, figure, inside.width()).width;
    if (reading.high)
        invert(canvas, inside.centred(width + 6, figure.cap + 6));
    canvas.figure(inside.centred(width, figure.cap), percent, percentSign, figure.filled(reading.high ? paper : ink));
    canvas.setGround(paper);
}

void ClassicSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    Box top = box.cutTop(44);
    if (reading.onMains)
        canvas.symbol(top.cutRight(24), reading.symbol, 24, ink);
    hero(canvas, top, QString::number(reading.percent), percentSign, 48, reading.low);
    box.cutTop(10);
    cell(canvas, box.cutTop(22), reading.level);
    canvas.text(box.cutBottom(line), reading.remaining, style().row());
    canvas.text(box.cutBottom(line), reading.state, style().row());
}

void ClassicSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    const Box figures = box.cutTop(30);
    const FigureStyle figure = style().figure(26);
    const auto rate = [&](Box room, const QString& arrow, const Units::Pair& pair) {
        canvas.symbol(room.cutLeft(arrowSize), arrow, arrowSize, ink);
        room.cutLeft(2);
        canvas.figure(room, pair.value, pair.unit, figure);
    };
    rate(figures.column(0, 2, 10), u"arrow.down"_s, reading.down);
    rate(figures.column(1, 2, 10), u"arrow.up"_s, reading.up);
    box.cutTop(8);
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), half);
    canvas.fill(areaUnder(lines.lower, lines.middle), quarter);
    canvas.stroke(lines.upper, QPen(ink, 2));
    canvas.stroke(lines.lower, QPen(ink, 2));
    canvas.fill(Box(box.x(), std::round(lines.middle), box.width(), 1), ink);
}

void ClassicSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, box.cutTop(44), reading.down.value, reading.down.unit, 48);
    canvas.paragraph(box.cutBottom(2 * line).inset(-1, 0), reading.hint, style().row().wrapped(2), Qt::AlignVCenter);
    Box sent = box.cutTop(24);
    canvas.symbol(sent.cutLeft(arrowSize), u"arrow.up"_s, arrowSize, ink);
    sent.cutLeft(6);
    canvas.text(sent, reading.up.joined(), style().header());
    progress(canvas, box.centred(box.width(), progressHeight), reading.share);
}

void ClassicSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    framed(canvas, face);
    listView(canvas, face.bounds, reading.rows.size(), 30, [&](Box row, qsizetype index, const QColor& colour) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box share = row.cutBottom(8).inset(0, 2);
        canvas.fill(share.cutLeft(std::round(share.width() * process.fraction)), index == 0 ? quarter : half);
        row.cutRight(canvas.text(row, process.percent, style().rowValue().coloured(colour)) + 6);
        canvas.text(row, process.name, style().row().coloured(colour));
    });
}

} // namespace ambrelle
