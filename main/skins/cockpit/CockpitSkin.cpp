// SPDX-License-Identifier: MIT

#include "skins/cockpit/CockpitSkin.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "skins/cockpit/CockpitPieces.h"
#include "skins/Skins.h"

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace cockpit;

CockpitSkin::CockpitSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ticks)
{
}

Box CockpitSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, style().corner, Qt::black, 0.04, 8, 2);
        bezel(layer, face.bounds, style().corner);
    });
    return face.bounds.inset(style().inset);
}

/// The title between brackets, as groups of instruments are labelled on a panel.
void CockpitSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    constexpr double air = 5;
    constexpr double leg = 4;
    constexpr double least = 5; // shorter brackets are none
    const Box line = content.cutTop(14);
    const double width = canvas.text(line, title, style().header().aligned(Align::centre).engraved(engraving));
    content.cutTop(style().titleGap);
    const double length = (line.width() - width) / 2 - air;
    if (length < least)
        return;
    const QPointF middle = line.center();
    for (const double side : {-1.0, 1.0}) {
        const double outer = middle.x() + side * (line.width() - 1) / 2;
        canvas.stroke(
            straightLine({{outer, middle.y() + leg}, {outer, middle.y()}, {outer - side * length, middle.y()}}),
            flatPen(rim, 1));
    }
}

Box CockpitSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    // Of time, mostly: per cent would be a riddle.
    return RoundGauge{.style = style(), .needle = colour, .seed = 2, .scaled = RoundGauge::Scale::blank}.draw(
        canvas, box, fraction);
}

void CockpitSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    tape(canvas, box, fraction, colour);
}

void CockpitSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr int columns = 6;
    canvas.still(u"traffic"_s, box, [&](Canvas& layer) {
        window(layer, box);
        for (int column = 1; column < columns; ++column) {
            const double x = box.column(column, columns).left();
            layer.line({x, box.top() + 2}, {x, box.bottom() - 2}, flatPen(faded(rim, 0.35), 0.8));
        }
    });
    const Box graph = box.inset(3, 4);
    const MirroredLines lines = mirrored(graph, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), faded(style().down, 0.25));
    canvas.fill(areaUnder(lines.lower, lines.middle), faded(style().up, 0.25));
    canvas.rule(Box(graph.x(), lines.middle - 1, graph.width(), 2), rim, 1);
    graphLine(canvas, lines.upper, style().down, 1.5);
    graphLine(canvas, lines.lower, style().up, 1.5);
}

void CockpitSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr int cells = 28;
    constexpr double gap = 1.4;
    const QList<QBrush> fills = partFills();
    const Box slot = box.centred(box.width(), std::min(12.0, box.height()));
    const Box inside = slot.inset(2.5);
    window(canvas, slot, 2);
    blocks(canvas, inside, cells, gap, [&](int index) {
        const std::optional<qsizetype> part = partAt(parts, (index + 0.5) / cells);
        return part ? fills.value(*part) : QBrush(faded(style().faint, 0.6));
    });
    double sum = 0;
    int end = 0; // of a part, where an index stands: an accent may look like its neighbour
    for (const Share& part : parts) {
        sum += part.fraction;
        if (std::exchange(end, litOf(sum, cells)) == litOf(sum, cells) || end == cells)
            continue;
        const double x = inside.left() + (inside.width() + gap) * end / cells - gap;
        canvas.fill(Box(x, slot.top(), gap, slot.height()), style().ink);
    }
}

PictogramPaint CockpitSkin::pictograms() const
{
    return {.sun = amber, .moon = style().ink, .cloud = style().ink, .water = blue, .bolt = amber, .outline = 1.2};
}

TextStyle CockpitSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    constexpr double corner = 2;
    return filledDay(canvas, cell, day, style().accent, corner);
}

void CockpitSkin::separator(Canvas& canvas, const Box& row) const
{
    constexpr double below = 1.5; // nearer to the next row's capitals than to descenders
    canvas.rule(Box(row).moved(0, below).cutBottom(1), style().faint, 1);
}

void CockpitSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 14;
    const Box square = box.centred(size, size);
    annunciator(canvas, square, done ? std::optional(green) : std::nullopt);
    if (done)
        canvas.symbol(square, u"checkmark"_s, size - 3, green);
}

void CockpitSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    const Box square = box.centred(10, 6);
    annunciator(canvas, square, lit ? std::optional(green) : std::nullopt);
    if (lit)
        canvas.fill(square.inset(1.5), green, 1);
}

void CockpitSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    constexpr double pitch = 3;
    const int count = std::max(1, static_cast<int>(column.height() / pitch));
    const int lit = litOf(fraction, count);
    const QColor colour = now ? style().accent : green;
    const Box cells = Box(column).cutBottom(count * pitch);
    for (int index = 0; index < std::max(lit, now ? 1 : 0); ++index)
        canvas.fill(cells.row(count - 1 - index, count, 1), colour);
}

void CockpitSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    constexpr double radius = 3;
    artwork(canvas, box, picture, radius, well, unlit);
    canvas.frame(box, QPen(rim, 1), radius);
}

void CockpitSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double radius = 3;
    const Box cap = box.inset(2, 0);
    canvas.fill(cap, QBrush(bezelDark), radius);
    canvas.frame(cap, QPen(rim, 1), radius);
    canvas.symbol(cap, symbol, middle ? 20 : 17, style().ink);
}

std::shared_ptr<const FaceRenderer> cockpitSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<CockpitSkin>(accent);
}

} // namespace ambrelle
