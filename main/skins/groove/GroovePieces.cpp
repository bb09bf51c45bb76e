// SPDX-License-Identifier: MIT

#include "skins/groove/GroovePieces.h"

#include "drawing/Arc.h"
#include "drawing/Fraction.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/groove/GrooveStyle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle::groove {

using namespace Qt::StringLiterals;

namespace {

/// One stripe along the line, round at both ends.
QPainterPath wave(const QPainterPath& line, double offset)
{
    QPainterPath path;
    const QPointF below(0, offset);
    const auto cap = [&](QPointF end, double from) {
        path.arcTo(Box(end.x() - stripe / 2, end.y() + offset, stripe, stripe), from, -180);
    };
    path.moveTo(line.elementAt(0) + below);
    for (int index = 1; index < line.elementCount(); ++index)
        path.lineTo(line.elementAt(index) + below);
    cap(line.currentPosition(), 90);
    for (int index = line.elementCount() - 2; index >= 0; --index)
        path.lineTo(line.elementAt(index) + below + QPointF(0, stripe));
    cap(line.elementAt(0), 270);
    return path;
}

} // namespace

Rainbow Rainbow::of(const FaceContext& face)
{
    using enum WidgetKind;
    if (face.medium())
        return {.radius = 62};
    switch (face.kind) {
    case calendar:
    case processes: return {.lift = 16};
    case countdown: return {.lift = 6.5};
    case memory:
    case events:
    case reminders:
    case sky:
    case activity:
    case devices: return {.radius = 28, .width = 4, .lift = 6.5}; // whose last line is as wide as the plate
    default: return {.lift = 2};
    }
}

Box Rainbow::beside(Box line, const FaceContext& face) const
{
    constexpr double clearance = 6;
    line.setRight(std::min(line.right(), face.bounds.right() - radius - clearance));
    return line;
}

void Rainbow::draw(Canvas& canvas, const SkinStyle& style, const Box& plate, double corner) const
{
    constexpr double edge = 2;
    canvas.within(roundedPath(plate.inset(edge), corner - edge), [&] {
        double outer = radius;
        for (const QColor& colour : stripes(style, style.accent)) {
            canvas.fill(ringPiece(squareAbout(plate.bottomRight(), outer), width, 0.75, 0.25), colour);
            outer -= width * 1.5;
        }
    });
}

History softened(const History& history)
{
    constexpr qsizetype reach = 3;
    History soft;
    for (qsizetype index = 0; index < history.size(); ++index) {
        double sum = 0;
        double weights = 0;
        for (qsizetype way = -reach; way <= reach; ++way) {
            const qsizetype other = index + way;
            if (other < 0 || other >= history.size())
                continue;
            const double weight = static_cast<double>(reach + 1 - std::abs(way));
            sum += weight * history[other];
            weights += weight;
        }
        soft.append(sum / weights);
    }
    return soft;
}

double waveDepth(int count)
{
    return count * (stripe + fillet) - fillet;
}

void waves(Canvas& canvas, const QPainterPath& line, const QList<QColor>& colours, bool upwards)
{
    if (line.isEmpty())
        return;
    double offset = upwards ? -stripe : 0;
    for (const QColor& colour : colours) {
        canvas.fill(wave(line, offset), colour);
        offset += (upwards ? -1 : 1) * (stripe + fillet);
    }
}

void sunburst(Canvas& canvas, QPointF centre, double radius, const QColor& disc, const QColor& rays)
{
    constexpr int count = 12;
    constexpr double from = 1.42; // in parts of the radius
    constexpr double to = 1.95;
    constexpr double width = 0.38;
    QPainterPath path;
    for (int ray = 0; ray < count; ++ray) {
        path.moveTo(pointOn(centre, radius * from, ray / 12.0));
        path.lineTo(pointOn(centre, radius * to, ray / 12.0));
    }
    canvas.stroke(path, roundPen(rays, radius * width));
    canvas.disc(centre, radius, disc);
}

QPainterPath flower(QPointF centre, double radius)
{
    constexpr int petals = 8;
    constexpr int steps = petals * 10;
    constexpr double depth = 0.09;
    QPolygonF outline;
    for (int step = 0; step < steps; ++step) {
        const double turns = static_cast<double>(step) / steps;
        const double wave = std::cos(2 * std::numbers::pi * turns * petals);
        outline.append(pointOn(centre, radius * (1 + depth * (wave - 1)), turns));
    }
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

void label(Canvas& canvas, const SkinStyle& style, Box& line, const QString& text)
{
    constexpr double air = 9;
    if (text.isEmpty())
        return;
    const TextStyle letters = style.caption().sized(11).coloured(cocoa);
    const QString shown = elided(text, letters, line.width() - 2 * air);
    const Box pill = line.cutLeft(shape(letters.face, letters.size, shown)->width + 2 * air);
    line.cutLeft(Bands::gap);
    canvas.fill(pill, style.accent2, pill.height() / 2);
    const GroundScope ground(canvas, style.accent2);
    canvas.text(pill.inset(air, 0).adjusted(0, 0, 0.01, 0), text, letters);
}

void processPill(Canvas& canvas, const SkinStyle& style, const Box& pill, const ProcessesReading::Row& process,
    const QColor& fill, double values)
{
    constexpr double air = 8;
    const double radius = pill.height() / 2;
    Box name = pill.inset(air, 0);
    const Box value = name.cutRight(values);
    name.cutRight(Bands::gap);
    canvas.fill(pill, recess, radius);
    {
        const GroundScope ground(canvas, recess);
        canvas.text(name, process.name, style.row());
        canvas.text(value, process.percent, style.row().aligned(Align::right));
    }
    const double reach = (value.left() - pill.left() - Bands::gap) * bounded(process.fraction);
    const Box filled = Box(pill).cutLeft(std::max(pill.height(), reach));
    canvas.within(roundedPath(filled, radius), [&] {
        canvas.fill(filled, fill);
        // The same letters again: what they say has been noted.
        canvas.paint([&](QPainter& painter) {
            Canvas(painter, {}).text(name, process.name, style.row().coloured(onFill(fill)));
        });
    });
}

} // namespace ambrelle::groove
