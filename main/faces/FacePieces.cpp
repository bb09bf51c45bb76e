// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"

#include "drawing/Colours.h"
#include "faces/StyledDial.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

void FaceRenderer::warning(Canvas& canvas, const Box& box) const
{
    canvas.symbol(box, u"exclamationmark.triangle.fill"_s, 10, m_style.warn);
}

Box FaceRenderer::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const StyledDial dial{.flavor = m_dial, .value = colour, .track = m_style.faint, .measures = m_style.dial};
    return dial.draw(canvas, box, fraction);
}

void FaceRenderer::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    capsule(canvas, box.centred(box.width(), std::min(4.0, box.height())), fraction, m_style.faint, colour);
}

void FaceRenderer::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    const QPainterPath line = smoothLine(samplePoints(box, history, 1));
    canvas.fill(areaUnder(line, box.bottom()), wash(box, colour, 0.4, 0.02));
    graphLine(canvas, line, colour, 1.8);
    canvas.disc(line.currentPosition(), 2.6, colour);
}

void FaceRenderer::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), faded(m_style.down, 0.28));
    canvas.fill(areaUnder(lines.lower, lines.middle), faded(m_style.up, 0.28));
    canvas.rule(Box(box.x(), lines.middle - 1, box.width(), 2), m_style.faint, 1);
    graphLine(canvas, lines.upper, m_style.down, 1.6);
    graphLine(canvas, lines.lower, m_style.up, 1.6);
}

void FaceRenderer::rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const
{
    const QColor colour = legible(upwards ? m_style.up : m_style.down, m_style.ink, m_style.ground);
    markedFigure(canvas, box, upwards ? u"arrow.up"_s : u"arrow.down"_s, colour, rate, figure(cap));
}

void FaceRenderer::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    const Box bar = box.centred(box.width(), std::min(8.0, box.height()));
    partsBar(canvas, bar, parts, partFills(), m_style.faint, std::min(4.0, m_style.corner));
}

void FaceRenderer::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double symbol = 16;
    Box line = box.centred(box.width(), std::min(18.0, box.height()));
    const Box mark = line.cutRight(symbol + 2);
    line.cutRight(4);
    capsule(canvas, line, reading.level, m_style.faint, valueColour(reading.low));
    if (!reading.symbol.isEmpty())
        canvas.symbol(mark, reading.symbol, symbol, m_style.ink);
}

PictogramPaint FaceRenderer::pictograms() const
{
    return {.sun = m_style.accent3,
        .moon = m_style.ink,
        .cloud = m_style.soft,
        .water = m_style.accent2,
        .bolt = m_style.accent3};
}

void FaceRenderer::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    drawPictogram(canvas, box, sky, pictograms());
}

TextStyle FaceRenderer::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, m_style.accent, m_style.corner);
}

void FaceRenderer::rowMark(Canvas&, Box&, qsizetype) const { }

void FaceRenderer::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype) const
{
    const Box track = row.cutBottom(3);
    canvas.fill(Box(track).cutLeft(track.width() * fraction), m_style.accent, 1.5);
}

void FaceRenderer::separator(Canvas&, const Box&) const { }

void FaceRenderer::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    canvas.fill(line.cutLeft(3).inset(0, 2), colour, 1.5);
    line.cutLeft(8);
}

void FaceRenderer::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    canvas.symbol(box, done ? u"checkmark.circle.fill"_s : u"circle"_s, 16, done ? m_style.accentText() : m_style.soft);
}

void FaceRenderer::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    if (lit) {
        canvas.disc(box.center(), 3.5, m_style.accent);
        return;
    }
    QPainterPath ring;
    ring.addEllipse(box.center(), 3, 3);
    canvas.stroke(ring, QPen(m_style.soft, 1));
}

void FaceRenderer::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const double height = std::max(1.0, column.height() * fraction);
    canvas.fill(Box(column).cutBottom(height), now ? m_style.accent : faded(m_style.accent, 0.55), 1);
}

void FaceRenderer::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    artwork(canvas, box, picture, std::min(12.0, m_style.corner), m_style.faint, m_style.soft);
}

void FaceRenderer::key(Canvas& canvas, const Box& box, const QString& symbol, bool) const
{
    canvas.symbol(box, symbol, 22, m_style.ink);
}

} // namespace ambrelle
