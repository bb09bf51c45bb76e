// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/quest/QuestBars.h"
#include "skins/quest/QuestPieces.h"
#include "skins/quest/QuestSkin.h"
#include "skins/quest/QuestStyle.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace quest;

// HP and MP are lettering of the game, the same in every language.

void QuestSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    stat(canvas, *this, box, reading.figure(), u"HP"_s, reading.high);
    canvas.text(box.cutBottom(line), reading.load, style().caption());
    box.cutBottom(Bands::gap - 2);
    history(canvas, box.inset(-1, 0), reading.history, valueColour(reading.high));
}

void QuestSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    stat(canvas, *this, box, Units::percentage(reading.percent), u"MP"_s, reading.high);
    parts(canvas, box.cutTop(barHeight), reading.parts);
    box.cutTop(4);
    blockKey(canvas, style(), box, reading.parts);
}

void QuestSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    canvas.text(box.cutBottom(line), reading.freeText(), style().caption().aligned(Align::centre));
    box.cutBottom(2);
    const Box inside = progressDial(canvas, box, reading.fraction, valueColour(reading.high));
    largeFigure(canvas, *this, inside, reading.figure(), figure(style().dialCap).aligned(Align::centre));
    if (reading.high)
        warning(canvas, inside.moved(0, inside.height() * 0.3));
}

void QuestSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double heartsHeight = 50;
    constexpr double symbolSize = 24;
    Box box = framed(canvas, face);
    Box top = box.cutTop(style().dialCap + 1);
    const Box mark = top.cutRight(symbolSize);
    if (reading.low)
        warning(canvas, mark);
    else if (!reading.symbol.isEmpty())
        canvas.symbol(mark, reading.symbol, symbolSize, style().accent);
    largeFigure(canvas, *this, top, reading.figure(), figure(style().dialCap));
    Box words = box.cutBottom(2 * line - 2);
    canvas.text(words.cutTop(line - 1), reading.state, style().row());
    canvas.text(words, reading.remaining, style().caption());
    charge(canvas, box.centred(box.width(), heartsHeight), reading);
}

void QuestSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    constexpr double arrowRoom = 20;
    constexpr double least = 6; // between the rates
    Box box = framed(canvas, face);
    FigureStyle digits = figure(style().rateCap).kerned();
    digits.face = style().number;
    const auto width = [&](const Units::Pair& pair) {
        return arrowRoom + figureWidth(pair.value, pair.unit, digits, box.width());
    };
    const double down = width(reading.down);
    const double up = width(reading.up);
    const bool fits = down + least + up <= box.width();
    const double cap = fits ? style().rateCap : textSize * style().number.capRatio; // both of one size
    const double middle = std::floor(box.width() / 2);
    Box line = box.cutTop(style().rateCap + 2);
    const Box left = line.cutLeft(fits ? std::clamp(middle, down + least, box.width() - up) : middle);
    rate(canvas, left, false, reading.down, cap);
    rate(canvas, line, true, reading.up, cap);
    box.cutTop(Bands::gap);
    traffic(canvas, box, reading);
}

void QuestSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    const Box top = box.cutTop(style().heroCap + 1);
    largeFigure(canvas, *this, top, reading.down, figure(style().heroCap).kerned());
    box.cutTop(Bands::gap);
    rate(canvas, box.cutTop(line), true, reading.up, textSize * style().number.capRatio);
    const TextStyle text = style().caption().wrapped(2);
    const auto lines = static_cast<double>(wrapped(reading.hint, text, box.width()).size());
    canvas.paragraph(box.cutBottom(lines * line), reading.hint, text);
    blockBar(canvas, box.centred(box.width(), barHeight), reading.share, style().accent);
}

void QuestSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr double pitch = 31;
    constexpr double share = 8;
    questLog(canvas, framed(canvas, face), reading.rows.size(), pitch, [&](Box row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        row.cutBottom(pitch - line - share);
        level(canvas, row.cutBottom(share), process.fraction, style().accent3);
        named(canvas, row, process.name, style().row(), process.percent, value());
    });
}

} // namespace ambrelle
