// SPDX-License-Identifier: MIT

#include "skins/paper/PaperSkin.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "drawing/PictureTreatment.h"
#include "faces/FaceKit.h"
#include "skins/paper/PaperPieces.h"
#include "skins/paper/PaperStyle.h"
#include "skins/Skins.h"

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace paper;

namespace {

constexpr double shadeLine = 0.4; // of the hatching below graphs
constexpr double shadePitch = 3;
constexpr double graphWidth = 1.2;
constexpr double lastPoint = 2.5; // radius

} // namespace

PaperSkin::PaperSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

Box PaperSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    const int kind = static_cast<int>(face.kind);
    canvas.still(
        u"plate"_s, face.bounds.inset(-8),
        [&](Canvas& layer) { clipping(layer, face.bounds, style(), static_cast<std::uint64_t>(kind) + 1); }, kind);
    return face.bounds.inset(style().inset);
}

void PaperSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    canvas.text(content.cutTop(14), title, style().header());
    content.cutTop(2);
    doubleRule(canvas, content, style().ink);
    content.cutTop(style().titleGap);
}

/// A photo with a keyline around it.
Box PaperSkin::photoPlate(Canvas& canvas, const FaceContext& face) const
{
    constexpr double between = 2.4;
    const Box photo = FaceRenderer::photoPlate(canvas, face);
    canvas.frame(photo.inset(-between), flatPen(style().ink, Rules::light));
    return photo;
}

Box PaperSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr int strokes = 36;
    constexpr double track = 7;
    constexpr double hair = 0.5;
    constexpr double arc = 2.2;
    constexpr double tip = 7;
    constexpr double tipWidth = 3;
    const Box square = box.square();
    const Gauge gauge = Gauge::in(square.inset(1), 0, 360);
    canvas.still(u"track"_s, square, [&](Canvas& layer) {
        gauge.ticks(layer, strokes, [&](int) { return Tick{track, flatPen(style().soft, hair)}; });
    });
    const double reached = bounded(fraction);
    const double middle = gauge.radius - track / 2;
    if (reached > 0) {
        canvas.stroke(gauge.arc(0, reached, middle), flatPen(style().ink, arc));
        const QPointF from = gauge.at(reached, middle - tip / 2);
        canvas.line(from, gauge.at(reached, middle + tip / 2), flatPen(colour, tipWidth));
    }
    return square.inset(track + 3);
}

void PaperSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double large = 7;
    constexpr double small = 5;
    const double size = box.height() < large ? small : large;
    const double room = box.width() - size;
    const QPointF reached(box.left() + size / 2 + room * bounded(fraction), box.center().y());
    canvas.rule(box, style().soft, Rules::light);
    canvas.rule(Box(box).cutLeft(reached.x() - box.left()), style().ink, Rules::heavy);
    mark(canvas, style(), diamond(reached, size), colour);
}

/// A chart of the exchange: price lines, the course, and at its end the last price.
void PaperSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr int prices = 5;
    constexpr double tagWidth = 22;
    constexpr double tagHeight = 12;
    Box chart = box;
    const Box margin = chart.cutRight(tagWidth);
    canvas.still(u"prices"_s, chart, [&](Canvas& layer) {
        for (int line = 0; line < prices; ++line)
            dottedLeader(layer, chart.left(), chart.right(), chart.row(line, prices).top() + 1, style().soft,
                Rules::light, shadePitch);
    });
    const QPainterPath course = straightLine(samplePoints(chart, history, 1));
    hatch(canvas, areaUnder(course, chart.bottom()), 45, shadePitch, QPen(style().ink, shadeLine));
    canvas.fill(Box(chart.x(), chart.bottom() - Rules::light, chart.width(), Rules::light), style().ink);
    graphLine(canvas, course, style().ink, graphWidth);
    const QPointF last = course.currentPosition();
    mark(canvas, style(), arc(squareAbout(last, lastPoint), 0, 1), colour);
    const double y = std::clamp(last.y() - tagHeight / 2, box.top() - 2, box.bottom() - tagHeight + 2);
    const QColor text = legible(colour, style().ink, canvas.ground());
    const QString price = QString::number(std::lround(100 * bounded(history.isEmpty() ? 0 : history.last())));
    canvas.text(
        Box(margin.x(), y, margin.width(), tagHeight), price, note(style()).coloured(text).aligned(Align::right));
}

void PaperSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines =
        mirrored(box.adjusted(0, 0, -lastPoint, 0), reading.downHistory, reading.upHistory, reading.peak);
    const QPen shade(style().ink, shadeLine);
    hatch(canvas, areaUnder(lines.upper, lines.middle), 45, shadePitch, shade);
    hatch(canvas, areaUnder(lines.lower, lines.middle), -45, shadePitch, shade);
    canvas.rule(Box(box.x(), lines.middle - 1, box.width(), 2), style().ink, Rules::light);
    graphLine(canvas, lines.upper, style().ink, graphWidth);
    graphLine(canvas, lines.lower, style().ink, graphWidth);
    canvas.disc(lines.upper.currentPosition(), lastPoint, style().down);
    canvas.disc(lines.lower.currentPosition(), lastPoint, style().up);
}

void PaperSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    const Box bar = box.centred(box.width(), std::min(10.0, box.height()));
    double x = bar.left();
    for (qsizetype index = 0; index < parts.size(); ++index) {
        const double width = std::min(bar.width() * parts[index].fraction, bar.right() - x);
        const Box piece(x, bar.top(), width, bar.height());
        partInk(canvas, style(), piece, index);
        x += width;
        if (x < bar.right())
            canvas.fill(Box(x - Rules::light, bar.top(), Rules::light, bar.height()), style().ink);
    }
    canvas.frame(bar, flatPen(style().ink, Rules::light));
}

/// A ladder of twenty rungs, each fifth of them longer.
void PaperSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr int rungs = 20;
    constexpr int every = 5;
    constexpr double thick = 2.4;
    constexpr double thin = 0.8;
    constexpr double shorter = 5;
    const Box ladder = box.centred(box.width(), std::min(24.0, box.height()));
    const int lit = litOf(reading.level, rungs);
    for (int index = 0; index < rungs; ++index) {
        const double middle = ladder.left() + thick / 2 + (ladder.width() - thick) * index / (rungs - 1);
        const bool full = index < lit;
        const bool longer = index == 0 || (index + 1) % every == 0;
        const double top = ladder.top() + (longer ? 0 : shorter);
        const double width = full ? thick : thin;
        const Box rung(middle - width / 2, top, width, ladder.bottom() - top);
        if (index == lit - 1)
            mark(canvas, style(), roundedPath(rung, 0), valueColour(reading.low));
        else
            canvas.fill(rung, full ? style().ink : style().soft);
    }
}

void PaperSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    const Box square = box.square();
    canvas.still(
        u"sky"_s, square.inset(-1), [&](Canvas& layer) { engravedSky(layer, square, sky, style().ink); },
        static_cast<int>(sky));
}

TextStyle PaperSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    constexpr double largest = 20;
    const double size = std::min({cell.width(), cell.height(), largest});
    mark(canvas, style(), roundedPath(cell.centred(size, size), 0), style().accent);
    canvas.setGround(style().accent);
    return day.faced(style().title).coloured(inkOn(style().accent));
}

void PaperSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    constexpr double width = 14;
    canvas.text(line.cutLeft(width), QString::number(index + 1), note(style()).coloured(style().ink));
}

void PaperSkin::separator(Canvas& canvas, const Box& row) const
{
    constexpr double below = 3; // as far from the next row's capitals
    rule(canvas, Box(row).moved(0, below).cutBottom(1), style().ink, Rules::hair);
}

void PaperSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    canvas.fill(line.cutLeft(3).inset(0, 2), colour);
    line.cutLeft(7);
}

void PaperSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 11;
    const Box place = Box(box).cutLeft(size).centred(size, size);
    canvas.frame(place, flatPen(style().ink, 0.8));
    if (!done)
        return;
    const QPolygonF tick{
        place.topLeft() + QPointF(2.4, 5.4), place.topLeft() + QPointF(5, 8.6), place.topLeft() + QPointF(11.6, -1.6)};
    canvas.stroke(straightLine(tick), flatPen(style().accent, 1.6));
}

TextStyle PaperSkin::doneRow() const
{
    return style().row().coloured(style().soft).struckThrough();
}

void PaperSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    constexpr double size = 8;
    if (lit)
        mark(canvas, style(), diamond(box.center(), size), style().accent);
    else
        canvas.stroke(diamond(box.center(), size - 1), flatPen(style().soft, 0.8));
}

void PaperSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const double height = std::max(now ? 1.5 : 0.0, column.height() * fraction);
    const Box bar = Box(column).cutBottom(height);
    if (now)
        mark(canvas, style(), roundedPath(bar, 0), style().accent);
    else
        canvas.fill(bar, style().ink);
}

void PaperSkin::cover(Canvas& canvas, const Box& box, const Picture& artwork) const
{
    constexpr double pitch = 3;
    if (artwork) {
        const PictureTreatment print = PictureTreatment::halftone(style().ink, sheet, pitch, 45);
        drawPicture(canvas, roundedPath(box, 0), artwork.image, print);
    } else {
        canvas.symbol(box, u"music.note"_s, box.height() * 0.36, style().soft);
    }
    canvas.frame(box, flatPen(style().ink, Rules::light));
}

void PaperSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    canvas.symbol(box, symbol, middle ? 24 : 19, style().ink);
}

std::shared_ptr<const FaceRenderer> paperSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<PaperSkin>(accent);
}

} // namespace ambrelle
