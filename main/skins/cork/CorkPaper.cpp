// SPDX-License-Identifier: MIT

#include "skins/cork/CorkPaper.h"

#include "drawing/Gradients.h"
#include "drawing/Plates.h"
#include "drawing/Ribbon.h"
#include "drawing/SeededRandom.h"
#include "skins/cork/CorkStyle.h"

namespace ambrelle::cork {

namespace {

const QColor pinLight(0xFF, 0x9C, 0x8C);
const QColor pinRed(0xD4, 0x2A, 0x22);
const QColor pinDark(0x86, 0x12, 0x0E);
const QColor steelLight(0xE6, 0xE8, 0xEA);
const QColor steelDark(0x84, 0x8A, 0x92);

constexpr double curl = 10; // points of either edge
constexpr double clipAbove = 4; // by which a clip stands out above its card
constexpr double clipHalf = 5; // of its width
constexpr double pinRadius = 6.5;

QColor shade(double opacity)
{
    return faded(Qt::black, opacity);
}

QColor light(double opacity)
{
    return faded(Qt::white, opacity);
}

void shadowBelow(Canvas& canvas, const QPainterPath& shape)
{
    dropShadow(canvas, shape, Qt::black, 0.05, 6, 2);
}

/// The underside of the corner, bent over the note.
void curledCorner(Canvas& canvas, const Box& box, const QColor& colour)
{
    const QPointF corner = box.bottomRight();
    const QPointF tip = corner - QPointF(curl, curl) * 0.92;
    const QPointF fold = corner - QPointF(curl, curl) / 2;
    QPainterPath flap(corner - QPointF(0, curl));
    flap.quadTo(corner - QPointF(curl * 0.35, curl * 0.95), tip);
    flap.quadTo(corner - QPointF(curl * 0.95, curl * 0.35), corner - QPointF(curl, 0));
    flap.closeSubpath();
    canvas.fill(flap.translated(-1.2, -1.2), shade(0.1));
    canvas.fill(flap, blended(colour, Qt::white, 0.35));
    canvas.fill(flap, linear(fold, tip, {{0, shade(0.26)}, {0.45, shade(0.02)}, {1, shade(0.1)}}));
}

} // namespace

QPainterPath noteOutline(const Box& box)
{
    QPainterPath path(box.topLeft());
    path.lineTo(box.topRight());
    path.lineTo(box.right(), box.bottom() - curl);
    path.lineTo(box.right() - curl, box.bottom());
    path.lineTo(box.bottomLeft());
    path.closeSubpath();
    return path;
}

QPainterPath cardOutline(const Box& box)
{
    return roundedPath(box.adjusted(0, clipAbove, 0, 0), 2);
}

QPainterPath pinOutline(QPointF centre)
{
    QPainterPath path;
    path.addEllipse(centre, pinRadius, pinRadius);
    return path;
}

QPainterPath clipOutline(QPointF top)
{
    return roundedPath({top.x() - clipHalf, top.y(), 2 * clipHalf, 2 * clipHalf}, clipHalf);
}

void stickyNote(Canvas& canvas, const Box& box, const QColor& colour)
{
    const QPainterPath shape = noteOutline(box);
    shadowBelow(canvas, shape);
    canvas.fill(shape, colour);
    canvas.fill(shape, downwards(box, {{0, shade(0.08)}, {0.15, shade(0.035)}, {0.17, shade(0)}, {1, shade(0)}}));
    canvas.fill(shape, linear(box.topLeft(), box.bottomRight(), {{0.4, light(0)}, {0.72, light(0.2)}, {1, light(0)}}));
    curledCorner(canvas, box, colour);
}

void ruledCard(Canvas& canvas, const Box& box)
{
    constexpr double rule = 0.6;
    const Box sheet = box.adjusted(0, clipAbove, 0, 0);
    const QPainterPath shape = cardOutline(box);
    shadowBelow(canvas, shape);
    canvas.fill(shape, cardStock);
    for (double y = box.top() + firstRule; y < sheet.bottom() - 4; y += rulePitch)
        canvas.fill(Box(sheet.left(), y - rule / 2, sheet.width(), rule), ruleBlue);
    canvas.fill(Box(sheet.left() + marginLine, sheet.top(), rule * 1.4, sheet.height()), marginRed);
    canvas.fill(shape, downwards(sheet, {{0, light(0.3)}, {0.3, light(0)}, {0.8, shade(0)}, {1, shade(0.04)}}));
}

void photoPaper(Canvas& canvas, const Box& box, const Box& picture)
{
    const QPainterPath shape = roundedPath(box, 2);
    shadowBelow(canvas, shape);
    canvas.fill(shape, cardStock);
    canvas.fill(shape, downwards(box, {{0, light(0.4)}, {0.5, light(0)}, {1, shade(0.05)}}));
    if (picture.isEmpty())
        return;
    canvas.fill(picture.inset(-0.8), shade(0.16));
    canvas.fill(picture, undeveloped);
}

void tornStrip(Canvas& canvas, const Box& box, unsigned seed)
{
    constexpr double tooth = 3.2;
    constexpr double depth = 2.6;
    SeededRandom random{seed + 11};
    QPainterPath shape(box.topLeft());
    shape.lineTo(box.topRight());
    for (double x = box.right(); x > box.left(); x -= tooth * random.in(0.6, 1.2))
        shape.lineTo(x, box.bottom() - random.in(0, depth));
    shape.lineTo(box.left(), box.bottom() - random.in(0, depth));
    shape.closeSubpath();
    dropShadow(canvas, shape, Qt::black, 0.05, 3, 1);
    canvas.fill(shape, cardStock);
}

void pin(Canvas& canvas, QPointF centre)
{
    constexpr double radius = pinRadius;
    const auto ball = [&](QPointF middle, double size) {
        const QPointF lit = middle - QPointF(size, size) * 0.38;
        canvas.disc(middle, size, radial(middle, size, lit, {{0, pinLight}, {0.5, pinRed}, {1, pinDark}}));
    };
    for (const double grow : {1.2, 0.0, -1.2})
        canvas.disc(centre + QPointF(2.2, 3.2), radius + grow, shade(0.1));
    ball(centre, radius);
    const QPointF head = centre - QPointF(0.7, 1);
    canvas.disc(head + QPointF(0.6, 0.9), radius * 0.62, shade(0.18));
    ball(head, radius * 0.6);
    canvas.disc(head - QPointF(1.3, 1.5), 1, light(0.75));
}

void paperClip(Canvas& canvas, QPointF top)
{
    constexpr double wire = 1.5;
    constexpr double length = 27;
    const auto bow = [](QPainterPath& path, double left, double right, double middle, bool upper) {
        const double size = right - left;
        path.arcTo({left, middle - size / 2, size, size}, upper ? 0 : 180, 180);
    };
    QPainterPath path(QPointF(4.2, 11));
    bow(path, -4.2, 4.2, 4.2, true);
    path.lineTo(-4.2, length - 3.4);
    bow(path, -4.2, 2.6, length - 3.4, false);
    path.lineTo(2.6, 8.6);
    bow(path, -2, 2.6, 8.6, true);
    path.lineTo(-2, length - 8);
    path.translate(top);
    const QPolygonF points = path.toSubpathPolygons(QTransform::fromScale(4, 4)).value(0);
    const QPolygonF line = QTransform::fromScale(0.25, 0.25).map(points);
    const QPainterPath bent = ribbon(line, wire, true);
    canvas.fill(bent.translated(1, 1.4), shade(0.2));
    canvas.fill(bent, steelDark);
    canvas.fill(ribbon(line.translated(-0.25, -0.2), wire * 0.45, true), steelLight);
}

} // namespace ambrelle::cork
