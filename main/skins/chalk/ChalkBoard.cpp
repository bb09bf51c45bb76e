// SPDX-License-Identifier: MIT

#include "skins/chalk/ChalkBoard.h"

#include "drawing/Gradients.h"
#include "drawing/Plates.h"
#include "drawing/Ribbon.h"
#include "drawing/SeededRandom.h"
#include "skins/chalk/ChalkStyle.h"

#include <array>
#include <cmath>

namespace ambrelle::chalk {

namespace {

constexpr double innerCorner = 2;

/// One of the frame's four boards: from a mitre to the next.
QPainterPath mitred(QPointF outer, QPointF inner, QPointF innerEnd, QPointF outerEnd)
{
    QPainterPath path;
    path.addPolygon(QPolygonF{outer, inner, innerEnd, outerEnd});
    path.closeSubpath();
    return path;
}

QPainterPath edgeOf(const Box& box, double radius, double width)
{
    QPainterPath edge = roundedPath(box, radius);
    edge.addPath(roundedPath(box.inset(width), radius - width));
    return edge;
}

/// Fibres along a board of the frame: dark lines that start and end where they like.
void grain(Canvas& canvas, const Box& strip, SeededRandom& random)
{
    const bool lying = strip.width() > strip.height();
    const double length = std::max(strip.width(), strip.height());
    for (int fibre = static_cast<int>(length / 9); fibre > 0; --fibre) {
        const double from = random.in(0, length);
        const double reach = random.in(8, 34);
        const double across = random.in(0.6, railWidth - 1);
        const Box line = lying ? Box(strip.x() + from, strip.y() + across, reach, 0.5)
                               : Box(strip.x() + across, strip.y() + from, 0.5, reach);
        canvas.fill(Box(line.intersected(strip)), faded(Qt::black, random.in(0.08, 0.2)));
    }
}

void drawFrame(Canvas& canvas, const Box& box, const Box& inner, double corner, SeededRandom& random)
{
    canvas.fill(box, wood, corner);
    canvas.within(roundedPath(box, corner), [&] {
        canvas.fill(mitred(box.topLeft(), inner.topLeft(), inner.topRight(), box.topRight()), faded(Qt::white, 0.1));
        canvas.fill(mitred(box.bottomLeft(), inner.bottomLeft(), inner.bottomRight(), box.bottomRight()),
            faded(Qt::black, 0.12));
        canvas.fill(
            mitred(box.topRight(), inner.topRight(), inner.bottomRight(), box.bottomRight()), faded(Qt::black, 0.05));
        Box rest = box;
        for (const Box& strip :
            {rest.cutTop(railWidth), rest.cutBottom(railWidth), rest.cutLeft(railWidth), rest.cutRight(railWidth)})
            grain(canvas, strip, random);
    });
    canvas.fill(edgeOf(box, corner, 1), downwards(box, {{0, faded(Qt::white, 0.38)}, {1, faded(Qt::white, 0.06)}}));
}

/// A wipe of the eraser: a broad band with streaks in it.
void wipeBoard(Canvas& canvas, QPointF from, double degrees, double length, double width)
{
    constexpr double band = 0.025;
    constexpr double streak = 0.014;
    const QTransform place = QTransform::fromTranslate(from.x(), from.y()).rotate(degrees);
    const auto bowed = [&](double y, double across) {
        QPolygonF points;
        for (int step = 0; step <= 6; ++step)
            points.append(place.map(QPointF(length * step / 6, y + length * 0.05 * std::sin(step * 0.52))));
        return ribbon(
            points, [across](double along) { return across * (along < 0.5 ? 0.86 : 1); }, true);
    };
    canvas.fill(bowed(0, width), faded(Qt::white, band));
    for (const double y : {-0.36, -0.1, 0.28})
        canvas.fill(bowed(y * width, width * 0.13), faded(Qt::white, streak));
}

/// Wipes are spread over a grid, so that nowhere many lie over each other.
void wipes(Canvas& canvas, const Box& box, SeededRandom& random)
{
    constexpr int count = 26;
    const int columns = box.width() > 1.5 * box.height() ? 7 : 5;
    const int lines = (count + columns - 1) / columns;
    for (int wipe = 0; wipe < count; ++wipe) {
        const Box cell = box.column(wipe % columns, columns).row(wipe / columns, lines);
        const double x = random.in(cell.left(), cell.right());
        const double y = random.in(cell.top(), cell.bottom());
        const double degrees = random.in(-24, 8);
        const double length = random.in(18, 52);
        wipeBoard(canvas, QPointF(x - length / 2, y), degrees, length, random.in(6, 20));
    }
}

/// What fell from the strokes, more and more towards the rail.
void fallenDust(Canvas& canvas, const Box& box, SeededRandom& random)
{
    constexpr double depth = 30;
    const Box foot = Box(box).cutBottom(depth);
    canvas.fill(foot, downwards(foot, {{0, faded(Qt::white, 0)}, {1, faded(Qt::white, 0.05)}}));
    for (int speck = static_cast<int>(box.width()); speck > 0; --speck) {
        const double height = random.in(0, 1);
        const double x = random.in(box.left(), box.right());
        canvas.disc({x, box.bottom() - depth * height * height}, random.in(0.2, 0.5), faded(ink, random.in(0.05, 0.2)));
    }
}

/// The frame stands above the board and keeps light from its upper and left edge.
void shade(Canvas& canvas, const Box& box)
{
    const auto dark = [](double opacity) { return faded(Qt::black, opacity); };
    const Box top = Box(box).cutTop(5);
    const Box left = Box(box).cutLeft(4);
    canvas.fill(top, downwards(top, {{0, dark(0.32)}, {0.3, dark(0.14)}, {1, dark(0)}}));
    canvas.fill(left, across(left, {{0, dark(0.2)}, {0.3, dark(0.08)}, {1, dark(0)}}));
}

} // namespace

void drawBoard(Canvas& canvas, const Box& box, double corner, unsigned seed)
{
    SeededRandom random{seed * 97 + 5};
    const Box inner = box.inset(railWidth);
    dropShadow(canvas, box, corner, Qt::black, 0.035, 6, 2);
    drawFrame(canvas, box, inner, corner, random);
    canvas.fill(inner, board, innerCorner);
    canvas.within(roundedPath(inner, innerCorner), [&] {
        wipes(canvas, inner, random);
        fallenDust(canvas, inner, random);
        shade(canvas, inner);
    });
    canvas.fill(edgeOf(inner.inset(-0.5), innerCorner + 0.5, 1), faded(Qt::black, 0.3));
}

void drawStick(Canvas& canvas, const Box& box, unsigned seed)
{
    const std::array colours{ink, yellow, pink, blue};
    const QColor& colour = colours.at(seed % colours.size());
    const double length = 9 + seed % 5;
    const double fromRight = 18 + seed % 7 * 3.0;
    const Box body(box.right() - fromRight - length, box.bottom() - railWidth - 2.2, length, 3);
    canvas.fill(body.moved(0.6, 0.9), faded(Qt::black, 0.35), 1);
    canvas.fill(body, downwards(body, {{0, blended(colour, Qt::white, 0.3)}, {1, blended(colour, board, 0.35)}}), 1);
}

void drawTaped(Canvas& canvas, const Box& box, const std::function<void(Canvas&, const Box&)>& draw)
{
    constexpr double askew = -1.6;
    constexpr double border = 4;
    canvas.turned(box.center(), askew, [&] {
        dropShadow(canvas, box, 1, Qt::black, 0.06, 4, 1.5);
        canvas.fill(box, print, 1);
        draw(canvas, box.inset(border));
    });
    const Box strip(-15, -5.5, 30, 11);
    const auto tapeAt = [&](QPointF place, double degrees) {
        canvas.mapped(QTransform::fromTranslate(place.x(), place.y()).rotate(degrees), [&] {
            canvas.fill(strip, faded(tape, 0.6));
            canvas.fill(Box(strip).cutTop(strip.height() * 0.45), faded(Qt::white, 0.14));
        });
    };
    tapeAt(box.topLeft() + QPointF(6, 8), -41);
    tapeAt(box.topRight() + QPointF(-7, 4), 38);
}

} // namespace ambrelle::chalk
