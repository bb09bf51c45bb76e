// SPDX-License-Identifier: MIT

#include "skins/classic/ClassicPieces.h"

#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "faces/FaceKit.h"
#include "skins/classic/ClassicStyle.h"

#include <cmath>

namespace ambrelle::classic {

using namespace Qt::StringLiterals;

namespace {

const QPen rule(ink, 1);
constexpr double shadow = 2;
constexpr double scrollBar = 15;

/// A solid triangle of rows two pixels wider each.
void arrowHead(Canvas& canvas, const Box& box, bool up)
{
    constexpr int rowCount = 4;
    const QPointF middle(std::floor(box.center().x()), std::floor(box.center().y()));
    for (int row = 0; row < rowCount; ++row) {
        const int reach = up ? row : rowCount - 1 - row;
        canvas.fill(Box(middle.x() - reach, middle.y() - 2 + row, 2 * reach + 1, 1), ink);
    }
}

void scrollBarAt(Canvas& canvas, const Box& box)
{
    Box inside = box;
    canvas.fill(box, quarter);
    canvas.fill(inside.cutLeft(1), ink);
    const Box up = inside.cutTop(scrollBar);
    const Box down = inside.cutBottom(scrollBar);
    canvas.fill(up, paper);
    canvas.fill(down, paper);
    arrowHead(canvas, up, true);
    arrowHead(canvas, down, false);
    canvas.fill(inside.cutTop(1), ink);
    canvas.fill(inside.cutBottom(1), ink);
    const Box thumb = inside.cutTop(scrollBar);
    canvas.fill(thumb, paper);
    canvas.fill(Box(thumb.x(), thumb.bottom() - 1, thumb.width(), 1), ink);
}

} // namespace

void window(Canvas& canvas, const Box& bounds)
{
    canvas.still(u"window"_s, bounds.inset(-4), [&](Canvas& layer) {
        layer.fill(bounds.moved(shadow, shadow), ink);
        layer.fill(bounds, paper);
        layer.frame(bounds, rule);
        layer.fill(Box(0, titleBar, bounds.width(), 1), ink);
        for (int stripe = 0; stripe < 6; ++stripe)
            layer.fill(Box(2, 4 + 2 * stripe, bounds.width() - 4, 1), ink);
        const Box close(8, 4, 11, 11);
        layer.fill(close.inset(-1, 0), paper);
        layer.frame(close, rule);
    });
}

void windowTitle(Canvas& canvas, const Box& bounds, const QString& title)
{
    constexpr double margin = 5;
    const TextStyle text = style().header().aligned(Align::centre);
    Box bar = Box(bounds).inset(1).cutTop(titleBar - 1);
    bar = bar.adjusted(21, 0, -4, 0);
    const QString shown = elided(title, text, bar.width() - 2 * margin);
    const double width = std::ceil(shape(text.face, text.size, shown)->width) + 2 * margin;
    // About the middle of the window where the close box lets it.
    const double x = std::clamp(std::floor(bounds.center().x() - width / 2), bar.left(), bar.right() - width);
    const Box label(x, bar.y(), width, bar.height());
    canvas.fill(label, paper);
    canvas.text(label.inset(margin, 0), title, text);
}

void invert(Canvas& canvas, const Box& box)
{
    canvas.fill(box, ink);
    canvas.setGround(ink);
}

void hero(Canvas& canvas, const Box& box, const QString& value, const QString& unit, double size, bool beyond)
{
    const FigureStyle figure = style().figure(size * style().number.capRatio);
    if (!beyond) {
        canvas.figure(box, value, unit, figure);
        return;
    }
    constexpr double margin = 4;
    const FigurePath path = figurePath(value, unit, figure, box.width() - 2 * margin);
    const Box label = Box(box).cutLeft(path.width + 2 * margin).centred(path.width + 2 * margin, path.cap + margin);
    invert(canvas, label);
    canvas.figure(label.inset(margin, 0), value, unit, figure.filled(paper));
    canvas.setGround(paper);
}

void histogram(Canvas& canvas, const Box& box, const QList<double>& history)
{
    constexpr int count = 20;
    Box graph = box;
    const Box ticks = graph.cutLeft(4);
    for (const double y : {ticks.top(), std::round(ticks.center().y()), ticks.bottom() - 1})
        canvas.fill(Box(ticks.x(), y, ticks.width(), 1), ink);
    graph.cutLeft(4);
    const double pitch = std::floor(graph.width() / count);
    canvas.fill(Box(graph.x(), graph.bottom() - 1, pitch * count - 1, 1), ink);
    graph.cutBottom(1);
    const QList<double> bars = binned(history, count);
    for (int index = 0; index < count; ++index) {
        const double height = std::round(graph.height() * bounded(bars[index]));
        Box column = Box(graph.x() + index * pitch, graph.bottom() - height, pitch - 1, height);
        canvas.fill(column.cutTop(2), ink);
        canvas.fill(column, half);
    }
}

void progress(Canvas& canvas, const Box& box, double fraction)
{
    canvas.frame(box, rule);
    Box inside = box.inset(1);
    const double width = std::round(inside.width() * bounded(fraction));
    if (width < 1)
        return;
    canvas.fill(inside.cutLeft(width), half);
    canvas.fill(Box(inside.x() - 1, inside.y(), 1, inside.height()), ink);
}

QColor pattern(qsizetype index)
{
    switch (index) {
    case 0: return ink;
    case 1: return half;
    default: return quarter;
    }
}

void patternBar(Canvas& canvas, const Box& box, const QList<Share>& parts)
{
    canvas.frame(box, rule);
    const Box inside = box.inset(1);
    Box rest = inside;
    for (qsizetype index = 0; index < parts.size(); ++index) {
        const double width = std::round(inside.width() * bounded(parts[index].fraction));
        canvas.fill(rest.cutLeft(width), pattern(index));
        canvas.fill(Box(rest.x(), rest.y(), 1, rest.height()), ink);
        rest.cutLeft(1);
    }
}

void cell(Canvas& canvas, const Box& box, double level)
{
    constexpr int count = 10;
    constexpr double blockWidth = 8;
    constexpr double blockHeight = 14;
    constexpr double gap = 2;
    const Box body(box.x(), box.y(), count * (blockWidth + gap) + gap + 2, blockHeight + 2 * gap + 2);
    canvas.frame(body, rule);
    canvas.fill(Box(body.right(), body.center().y() - 4, 4, 8), ink);
    const long full = std::lround(bounded(level) * count);
    Box blocks = body.inset(1 + gap);
    for (long index = 0; index < full; ++index) {
        canvas.fill(blocks.cutLeft(blockWidth), ink);
        blocks.cutLeft(gap);
    }
}

Box wedges(Canvas& canvas, const Box& box, double fraction)
{
    constexpr int count = 12;
    constexpr double width = 11;
    const Box circle = box.square().inset(0.5);
    const int full = litOf(fraction, count);
    QPainterPath solid;
    QPainterPath outlined;
    for (int index = 0; index < count; ++index)
        (index < full ? solid : outlined).addPath(Gauge::in(circle, 0, 360).block(index, count, 4, width));
    canvas.fill(solid, ink);
    canvas.stroke(solid, rule);
    canvas.stroke(outlined, rule);
    return circle.inset(width);
}

void pushButtons(Canvas& canvas, const Box& box)
{
    for (int index = 0; index < 3; ++index)
        canvas.frame(box.column(index, 3).inset(3, 0), rule, 4);
}

void listView(Canvas& canvas, const Box& bounds, qsizetype count, double pitch,
    const std::function<void(Box, qsizetype, const QColor&)>& draw)
{
    Box content = bounds.inset(1);
    content.cutTop(titleBar);
    const Box bar = content.cutRight(scrollBar + 1);
    canvas.still(u"scroll bar"_s, bar, [&](Canvas& layer) { scrollBarAt(layer, bar); });
    rows(content, count, pitch, [&](const Box& row, qsizetype index) {
        const bool chosen = index == 0;
        if (chosen)
            canvas.fill(row, ink);
        canvas.setGround(chosen ? ink : paper);
        draw(row.inset(6, 0), index, chosen ? paper : ink);
        canvas.setGround(paper);
    });
}

} // namespace ambrelle::classic
