// SPDX-License-Identifier: MIT

#include "skins/hifi/Nixie.h"

#include "drawing/Charts.h"
#include "drawing/Gradients.h"

#include <cmath>

namespace ambrelle::hifi {

using namespace Qt::StringLiterals;

namespace {

// A tube's measures in parts of its digit's height.
constexpr double tubeWidth = 50.0 / 62;
constexpr double tubeHeight = 82.0 / 62;
constexpr double tubeGap = 5.0 / 62;
constexpr double colonWidth = 22.0 / 62;
constexpr double lampWidth = 11.0 / 62;
constexpr double dotRadius = 3.0 / 62;
constexpr double meshPitch = 3; // points
constexpr double lampUnitShare = 0.5; // of the digits' height

/// Honeycomb rows of the anode in front of the digits.
QPainterPath mesh(const Box& box)
{
    QPainterPath path;
    const double side = meshPitch / std::sqrt(3.0);
    const double down = side * 1.5;
    int row = 0;
    for (double y = box.top(); y < box.bottom(); y += down, ++row) {
        for (double x = box.left() + (row % 2 ? meshPitch / 2 : 0); x < box.right(); x += meshPitch) {
            path.moveTo(x, y + side / 2);
            path.lineTo(x, y - side / 2);
            path.lineTo(x + meshPitch / 2, y - side);
            path.moveTo(x, y - side / 2);
            path.lineTo(x - meshPitch / 2, y - side);
        }
    }
    return path;
}

/// The outline of a digit in the middle of its tube.
QPainterPath bentWire(const Box& tube, QChar shown, const FigureStyle& digit)
{
    const FigurePath path = figurePath(shown, {}, digit, tube.width());
    return path.digits.translated(tube.center().x() - path.width / 2, tube.center().y() + path.cap / 2);
}

void glassTube(Canvas& canvas, const Box& tube, const FigureStyle& digit)
{
    const double radius = std::min(tube.width(), tube.height()) * 0.4;
    QPainterPath outline;
    outline.addRoundedRect(tube, radius, radius);
    canvas.fill(tube.inset(-0.8), wash(tube, champagne, 0.1, 0.3), radius + 0.8);
    canvas.fill(outline, tubeDark);
    canvas.paint([&](QPainter& painter) {
        painter.setClipPath(outline);
        painter.strokePath(mesh(tube), QPen(faded(champagne, 0.1), 0.5));
        const auto white = [](double opacity) { return faded(Qt::white, opacity); };
        painter.fillRect(tube,
            across(tube,
                {{0, white(0.05)}, {0.06, white(0.26)}, {0.15, white(0.03)}, {0.85, white(0)}, {0.94, white(0.14)},
                    {1, white(0.04)}}));
        // The dark socket that the glass stands in.
        const Box foot = Box(tube).cutBottom(tube.height() * 0.07);
        painter.fillRect(foot, wash(foot, champagne, 0.5, 0.25));
    });
    // The unlit wires behind: an ornament, not a figure.
    canvas.fill(bentWire(tube, u'8', digit), faded(digitLit, 0.06));
}

QColor burning(double level)
{
    return blended(tubeDark, digitLit, std::sqrt(level));
}

/// What a burning digit throws on the inside of its tube, and the edge of its wire.
void burn(Canvas& canvas, const Box& tube, QChar shown, const FigureStyle& digit, const QColor& colour, double level)
{
    canvas.fill(tube, halo(tube.center(), tube.height() * 0.55, colour, 0.3 * level), tube.width() * 0.4);
    const QPainterPath bent = bentWire(tube, shown, digit);
    canvas.paint([&](QPainter& painter) {
        QPainterPath inside;
        inside.addRoundedRect(tube, tube.width() * 0.4, tube.width() * 0.4);
        painter.setClipPath(inside);
        Canvas glass(painter, {});
        glow(glass, bent,
            {.colour = faded(colour, level),
                .width = digit.outline,
                .core = burning(level),
                .alpha = 0.07 * level,
                .spread = digit.cap / 26});
    });
}

struct Cell {
    QChar character;
    Box box;
};

double widthOf(QChar character)
{
    if (character == u':')
        return colonWidth;
    return character == u'.' || character == u',' ? lampWidth : tubeWidth;
}

bool isDot(QChar character)
{
    return character == u':' || character == u'.' || character == u',';
}

/// Cells side by side, for digits of height 1.
QList<Cell> cellsOf(const QString& value, double* width)
{
    QList<Cell> cells;
    double x = 0;
    for (const QChar character : value) {
        const double across = widthOf(character);
        cells.append({character, Box(x, 0, across, tubeHeight)});
        x += across + tubeGap;
    }
    *width = std::max(0.0, x - tubeGap);
    return cells;
}

void dots(Canvas& canvas, const Box& box, QChar character, double cap, const QColor& colour)
{
    const double radius = std::max(1.3, dotRadius * cap);
    QList<QPointF> centres{{box.center().x(), box.center().y() + cap / 2 - radius}};
    if (character == u':')
        centres = {box.center() - QPointF(0, cap * 0.2), box.center() + QPointF(0, cap * 0.2)};
    for (const QPointF& centre : centres) {
        canvas.disc(centre, radius * 2.6, halo(centre, radius * 2.6, colour, 0.6));
        canvas.disc(centre, radius, blended(colour, digitLit, 0.35));
    }
}

} // namespace

double Nixies::height(double cap)
{
    return cap * tubeHeight;
}

double Nixies::draw(Canvas& canvas, const Box& box, const QString& value, const QString& unit) const
{
    double cells = 0;
    const QList<Cell> places = cellsOf(value, &cells);
    const double unitSize = std::max(style.floor, cap * lampUnitShare / style.body.capRatio * 0.8);
    const double unitWidth = unit.isEmpty() ? 0 : shape(style.body, unitSize, unit)->width + 5;
    const double size = std::min(cap, (box.width() - unitWidth) / std::max(cells, tubeWidth));
    const FigureStyle digit = wire(style, size).aligned(Align::centre);
    const QPointF corner(box.left(), box.center().y() - size * tubeHeight / 2);

    int tubes = 0;
    for (const Cell& cell : places) {
        const Box place(
            corner.x() + cell.box.x() * size, corner.y(), cell.box.width() * size, cell.box.height() * size);
        if (isDot(cell.character)) {
            dots(canvas, place, cell.character, size, style.accent);
            continue;
        }
        const QString tube = u"%1 %2 %3"_s.arg(name).arg(tubes).arg(size);
        canvas.still(tube, place.inset(-1), [&](Canvas& layer) { glassTube(layer, place, digit); });
        const int tubeSeed = seed + tubes++;
        if (cell.character.isSpace())
            continue;
        canvas.moving(place, Motion::bursts(9, tubeSeed, 0.35, 28), [&](Canvas& moving, double t) {
            const double level = Wave::flicker(t, tubeSeed);
            const QString lit = u"%1 %2 %3"_s.arg(tube, QString(cell.character)).arg(level);
            moving.still(
                lit, place, [&](Canvas& layer) { burn(layer, place, cell.character, digit, style.accent, level); });
            const GroundScope ground(moving, tubeDark);
            FigureStyle core = digit.filled(burning(level));
            core.outline = 0;
            moving.figure(place, QString(cell.character), {}, core);
        });
    }
    const double end = cells * size;
    if (!unit.isEmpty()) {
        // Beside the foot of the last tube, on the digits' baseline; a degree ring hangs beside its head.
        const double rise = size / 2 - unitSize * style.body.capRatio / 2;
        const double middle = box.center().y() + (unit == u"°" ? -rise : rise);
        const Box beside(box.left() + end + 5, middle - unitSize / 2, unitWidth, unitSize);
        canvas.text(beside, unit, style.caption().sized(unitSize));
    }
    return end + unitWidth;
}

} // namespace ambrelle::hifi
