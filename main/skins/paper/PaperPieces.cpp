// SPDX-License-Identifier: MIT

#include "skins/paper/PaperPieces.h"

#include "drawing/Colours.h"
#include "drawing/Hatch.h"
#include "drawing/Plates.h"
#include "drawing/SeededRandom.h"
#include "faces/Pictogram.h"
#include "skins/paper/PaperStyle.h"

#include <cmath>

namespace ambrelle::paper {

namespace {

/// Corners hardly round, and a lower edge that is not quite straight.
QPainterPath tornPath(const Box& box, double corner, SeededRandom& random)
{
    constexpr int segments = 24;
    constexpr double jitter = 0.8;
    QPainterPath path({box.left(), box.top() + corner});
    path.quadTo(box.topLeft(), {box.left() + corner, box.top()});
    path.lineTo(box.right() - corner, box.top());
    path.quadTo(box.topRight(), {box.right(), box.top() + corner});
    for (int index = segments; index >= 0; --index) {
        const double x = box.left() + box.width() * index / segments;
        path.lineTo(x, box.bottom() - jitter + random.in(-jitter, jitter));
    }
    path.closeSubpath();
    return path;
}

void flecks(Canvas& canvas, const Box& box, SeededRandom& random)
{
    constexpr int count = 260;
    constexpr double height = 0.6;
    constexpr double longest = 5;
    constexpr double opacity = 0.05;
    for (int index = 0; index < count; ++index) {
        const QColor colour = random.in(0, 1) > 0.5 ? Qt::black : Qt::white;
        const double length = random.in(1, longest);
        const double x = random.in(box.left(), box.right() - length);
        canvas.fill(Box(x, random.in(box.top(), box.bottom() - height), length, height), faded(colour, opacity));
    }
}

} // namespace

void clipping(Canvas& canvas, const Box& box, const SkinStyle& style, std::uint64_t seed)
{
    constexpr double edge = 0.2; // opacity; paper lies on paper
    constexpr double edgeWidth = 0.8;
    SeededRandom random{seed};
    const QPainterPath torn = tornPath(box.inset(edgeWidth / 2), style.corner, random);
    dropShadow(canvas, torn, Qt::black, 0.03, 4, 1.5);
    canvas.fill(torn, sheet);
    flecks(canvas, box.inset(1), random);
    canvas.stroke(torn, QPen(faded(style.ink, edge), edgeWidth));
}

void rule(Canvas& canvas, const Box& box, const QColor& colour, double thickness)
{
    canvas.fill(Box(box.x(), std::round(box.top()), box.width(), thickness), colour);
}

void columnRule(Canvas& canvas, const Box& box, const QColor& colour, double thickness)
{
    canvas.fill(Box(std::round(box.center().x()), box.top(), thickness, box.height()), colour);
}

void doubleRule(Canvas& canvas, Box& content, const QColor& colour)
{
    constexpr double between = 2;
    rule(canvas, content.cutTop(Rules::heavy), colour, Rules::heavy);
    content.cutTop(between);
    rule(canvas, content.cutTop(1), colour, Rules::light);
}

Box footLine(Canvas& canvas, const SkinStyle& style, Box& content)
{
    constexpr double height = 14;
    constexpr double gap = 4;
    rule(canvas, content.cutBottom(1), style.ink, Rules::hair);
    content.cutBottom(1);
    const Box line = content.cutBottom(height);
    content.cutBottom(gap);
    return line;
}

void headerNote(Canvas& canvas, const SkinStyle& style, const Box& face, const QString& text)
{
    constexpr double line = 14;
    canvas.text(face.inset(style.inset).cutTop(line), text, style.caption().aligned(Align::right));
}

void mark(Canvas& canvas, const SkinStyle& style, const QPainterPath& shape, const QColor& colour)
{
    constexpr double least = 3; // contrast
    canvas.fill(shape, colour);
    if (contrast(colour, style.ground) < least)
        canvas.stroke(shape, QPen(faded(style.ink, 0.35), 1));
}

QPainterPath diamond(QPointF centre, double size)
{
    const double half = size / 2;
    QPainterPath path(centre + QPointF(0, -half));
    path.lineTo(centre + QPointF(half, 0));
    path.lineTo(centre + QPointF(0, half));
    path.lineTo(centre + QPointF(-half, 0));
    path.closeSubpath();
    return path;
}

void partInk(Canvas& canvas, const SkinStyle& style, const Box& box, qsizetype index)
{
    constexpr double pitch = 2.4;
    constexpr double line = 0.8;
    if (index == 1)
        hatch(canvas, roundedPath(box, 0), 45, pitch, QPen(style.ink, line));
    else
        canvas.fill(box, index == 0 ? style.ink : style.accent);
}

void engravedSky(Canvas& canvas, const Box& box, Sky sky, const QColor& ink)
{
    constexpr double units = 48;
    constexpr double large = 30; // from here on there is room for finer work
    constexpr double shade = 0.17; // of a shape's width lies in shadow
    const Box square = box.square();
    const bool fine = square.width() >= large;
    drawPictogram(canvas, square, sky,
        {.sun = ink, .moon = ink, .cloud = ink, .water = ink, .bolt = ink, .outline = fine ? 1.1 : 0.9});
    const double scale = square.width() / units;
    const QTransform place = QTransform::fromTranslate(square.x(), square.y()).scale(scale, scale);
    const Pictogram& picture = Pictogram::of(sky);
    for (const QPainterPath* shape : {&picture.disc, &picture.cloud}) {
        const QPainterPath whole = place.map(*shape);
        const double shift = whole.boundingRect().width() * shade;
        hatch(canvas, whole.subtracted(whole.translated(-shift, -shift)), 45, fine ? 1.9 : 1.6,
            QPen(ink, fine ? 0.55 : 0.45));
    }
}

} // namespace ambrelle::paper
