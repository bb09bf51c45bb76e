// SPDX-License-Identifier: MIT

#include "skins/atlas/AtlasSkin.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "drawing/PictureTreatment.h"
#include "faces/FaceKit.h"
#include "skins/atlas/AtlasPieces.h"
#include "skins/atlas/AtlasStyle.h"
#include "skins/Skins.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace atlas;

namespace {

constexpr double fineBar = 4; // a scale bar without a value

/// Shores and the lines of equal depth behind them, darker from one to the next.
void depths(Canvas& canvas, const QPainterPath& shore, double level, const QColor& colour)
{
    constexpr int lines = 3;
    constexpr double tint = 0.16; // of each
    for (int index = lines; index > 0; --index) {
        const double share = static_cast<double>(index) / lines;
        const QPainterPath line = QTransform::fromTranslate(0, level).scale(1, share).translate(0, -level).map(shore);
        canvas.fill(areaUnder(line, level), blended(sheet, colour, tint * (lines + 1 - index)));
        if (index < lines)
            canvas.stroke(line, QPen(blended(sheet, colour, 0.7), Lines::hair));
    }
    graphLine(canvas, shore, colour, 1.4);
}

} // namespace

AtlasSkin::AtlasSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ticks)
{
}

Box AtlasSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    const auto kind = static_cast<int>(face.kind);
    canvas.still(
        u"sheet"_s, face.bounds.inset(-8),
        [&](Canvas& layer) { mapSheet(layer, face.bounds, style(), static_cast<std::uint64_t>(kind) + 1); }, kind);
    return face.bounds.inset(style().inset);
}

/// Places bear their names as on the map.
void AtlasSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    const bool place = face.kind == WidgetKind::weather || face.kind == WidgetKind::disk;
    const bool named = place && title != headerTitle(style(), face.kind);
    canvas.text(content.cutTop(headerLine), title, named ? placeName(style(), nameSize) : style().header());
    content.cutTop(style().titleGap);
}

Box AtlasSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    return compass(canvas, style(), box, fraction, colour);
}

void AtlasSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double height = 4.5;
    measure(canvas, style(), box.centred(box.width(), std::min(height, box.height())), fraction, colour);
}

/// A section through the land, tinted by its height, over a scale of four fields. A low land is drawn twice as high.
void AtlasSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr double half = 0.5;
    constexpr double upper = 0.4; // of the height, from above: where the tints meet
    constexpr double lower = 0.7;
    constexpr double edge = 1e-3; // stops in one place would be one
    constexpr int fields = 4;
    const double highest = history.isEmpty() ? 0 : *std::ranges::max_element(history);
    const double top = highest <= half ? half : 1;
    Box chart = box;
    const Box base = chart.cutBottom(fineBar);
    const Box label = chart.cutTop(numbersLine);
    const double text = canvas.text(label, u"%1%"_s.arg(100 * top), scaleText(style()));
    dottedLeader(canvas, chart.left() + text + 4, chart.right(), label.center().y(), style().soft, 0.8, 3);

    const QPainterPath land = straightLine(samplePoints(chart, history, top));
    const QGradientStops tints{{0, summit(style())}, {upper, summit(style())}, {upper + edge, upland}, {lower, upland},
        {lower + edge, meadow}, {1, meadow}};
    canvas.fill(areaUnder(land, chart.bottom()), downwards(chart, tints));
    graphLine(canvas, land, style().ink, 0.8);
    scaleFields(canvas, style(), base, fields);
    surveyMark(canvas, style(), land.currentPosition(), colour);
}

void AtlasSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    depths(canvas, lines.upper, lines.middle, style().down);
    depths(canvas, lines.lower, lines.middle, style().up);
    canvas.rule(Box(box.x(), lines.middle - 1, box.width(), 2), style().ink, Lines::sign);
    surveyMark(canvas, style(), lines.upper.currentPosition(), style().down);
    surveyMark(canvas, style(), lines.lower.currentPosition(), style().up);
}

void AtlasSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    const Box bar = box.centred(box.width(), std::min(11.0, box.height()));
    canvas.fill(bar, sheet);
    Box rest = bar;
    for (qsizetype index = 0; index < parts.size(); ++index) {
        const Box piece = rest.cutLeft(bar.width() * bounded(parts[index].fraction));
        signArea(canvas, style(), piece, static_cast<Sign>(index));
        canvas.fill(Box(piece.right() - Lines::hair, bar.top(), Lines::sign, bar.height()), style().ink);
    }
    canvas.frame(bar, flatPen(style().ink, Lines::sign));
}

void AtlasSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr int fields = 10;
    constexpr double height = 16;
    constexpr double gap = 2;
    constexpr double symbol = 16;
    Box block = box.centred(box.width(), std::min(height + gap + numbersLine, box.height()));
    if (!reading.symbol.isEmpty()) {
        canvas.symbol(block.cutRight(symbol).cutTop(height), reading.symbol, symbol, style().ink);
        block.cutRight(4);
    }
    const Box numbers = block.cutBottom(numbersLine);
    block.cutBottom(gap);
    scaleBar(canvas, style(), block, fields, reading.level, valueColour(reading.low));
    scaleNumbers(canvas, style(), numbers, {u"0"_s, u"50"_s, u"100%"_s});
}

void AtlasSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    const Box square = box.square();
    canvas.still(
        u"sky"_s, square.inset(-1), [&](Canvas& layer) { skySign(layer, style(), square, sky); },
        static_cast<int>(sky));
}

/// Its square of the grid.
TextStyle AtlasSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    canvas.fill(cell, style().accent);
    canvas.frame(cell, flatPen(style().ink, Lines::sign));
    canvas.setGround(style().accent);
    return day.faced(style().title.tracked(0)).coloured(inkOn(style().accent));
}

void AtlasSkin::separator(Canvas& canvas, const Box& row) const
{
    canvas.fill(Box(row).moved(0, 1).cutBottom(Lines::hair), style().faint);
}

/// A sign of the legend beside the title.
void AtlasSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    constexpr double width = 10;
    constexpr double height = 8;
    const Box place = line.cutLeft(width).cutTop(line.height() / 2 + 1).centred(width, height);
    canvas.fill(place, colour);
    canvas.frame(place, flatPen(style().ink, Lines::hair));
    line.cutLeft(legendGap);
}

void AtlasSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 11;
    const Box place = Box(box).cutLeft(size).centred(size, size);
    if (!done) {
        canvas.fill(place, sheet);
        canvas.frame(place, flatPen(style().ink, Lines::sign));
        return;
    }
    canvas.fill(place, style().accent3);
    const QPointF corner = place.topLeft();
    const QPolygonF tick{corner + QPointF(2.4, 5.6), corner + QPointF(4.6, 8), corner + QPointF(8.8, 3)};
    canvas.stroke(straightLine(tick), flatPen(sheet, 1.5));
}

TextStyle AtlasSkin::doneRow() const
{
    return style().row().coloured(style().soft).struckThrough();
}

/// The sign of a town, large or small.
void AtlasSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    constexpr double ring = 3.6;
    constexpr double core = 2.1;
    canvas.stroke(arc(squareAbout(box.center(), ring), 0, 1), QPen(lit ? style().ink : style().soft, Lines::sign));
    if (lit)
        canvas.disc(box.center(), core, style().accent);
}

void AtlasSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    constexpr double least = 1.5;
    const Box bar = Box(column).cutBottom(std::max(now ? least : 0.0, column.height() * fraction));
    if (bar.height() <= 0)
        return;
    canvas.fill(bar, now ? style().accent : upland);
    canvas.frame(bar, flatPen(style().ink, Lines::hair));
}

/// A detail of the map in a border of its own.
void AtlasSkin::cover(Canvas& canvas, const Box& box, const Picture& artwork) const
{
    canvas.fill(box, sheet);
    const Box inside = doubleFrame(canvas, box, style().ink);
    if (artwork)
        drawPicture(canvas, roundedPath(inside, 0), artwork.image);
    else
        canvas.symbol(inside, u"music.note"_s, inside.height() * 0.36, style().soft);
}

void AtlasSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double ring = 12.5;
    canvas.symbol(box, symbol, middle ? 18 : 20, style().ink);
    if (middle)
        canvas.stroke(arc(squareAbout(box.center(), ring), 0, 1), QPen(style().ink, Lines::sign));
}

std::shared_ptr<const FaceRenderer> atlasSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<AtlasSkin>(accent);
}

} // namespace ambrelle
