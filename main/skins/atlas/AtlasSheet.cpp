// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "drawing/SeededRandom.h"
#include "skins/atlas/AtlasPieces.h"
#include "skins/atlas/AtlasStyle.h"

#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle::atlas {

using namespace Qt::StringLiterals;

namespace {

constexpr double heavyAt = 3; // the lines of the border, from the edge
constexpr double lightAt = 6;

/// The lie of a hill: how its contours bulge.
struct Relief {
    QPointF summit;
    double stretch; // to the sides
    std::array<double, 2> bulge; // turns

    QPainterPath contour(double radius) const
    {
        constexpr int corners = 60;
        QPolygonF line;
        for (int corner = 0; corner < corners; ++corner) {
            const double turn = static_cast<double>(corner) / corners;
            const auto wave = [turn](double count, double from) {
                return std::sin(2 * std::numbers::pi * (count * turn + from));
            };
            const double bulging = 1 + 0.13 * wave(2, bulge[0] + radius / 500) + 0.07 * wave(3, bulge[1]);
            line << summit + (pointOn({}, radius * bulging, turn) * QTransform::fromScale(stretch, 1));
        }
        QPainterPath path;
        path.addPolygon(line);
        path.closeSubpath();
        return path;
    }
};

void hill(Canvas& canvas, const Box& box, const QColor& green, std::uint64_t seed)
{
    constexpr int contours = 7;
    constexpr int every = 4; // so manieth is a strong one
    constexpr double line = 0.22; // opacity
    constexpr double tint = 0.024;
    SeededRandom random{seed};
    const double side = std::min(box.width(), box.height());
    const QPointF summit(box.right() - side * random.in(0.1, 0.22), box.bottom() - side * random.in(0.06, 0.18));
    const Relief relief{summit, box.width() > box.height() ? 1.6 : 1.15, {random.in(0, 1), random.in(0, 1)}};
    canvas.within(roundedPath(box, 0), [&] {
        for (int index = contours; index > 0; --index) {
            const QPainterPath contour = relief.contour(side * (0.03 + 0.085 * index));
            canvas.fill(contour, faded(green, tint));
            canvas.stroke(contour, roundPen(faded(green, line), index % every == 0 ? 1.2 : 0.6));
        }
    });
}

/// A crease: shade on one side, light on the other.
void folds(Canvas& canvas, const Box& box)
{
    constexpr double reach = 6;
    constexpr double edge = 1e-3; // stops in one place would be one
    const QGradientStops bend{{0, faded(Qt::black, 0)}, {0.5, faded(Qt::black, 0.045)},
        {0.5 + edge, faded(Qt::white, 0.5)}, {1, faded(Qt::white, 0)}};
    const Box down = box.centred(2 * reach, box.height());
    canvas.fill(down, across(down, bend));
    const Box along = box.centred(box.width(), 2 * reach);
    canvas.fill(along, downwards(along, bend));
}

void borderTicks(Canvas& canvas, const Box& box, const QColor& ink)
{
    constexpr double pitch = 20;
    constexpr double end = 8; // a little inside the light line
    QPainterPath ticks;
    const auto add = [&ticks](QPointF from, QPointF to) {
        ticks.moveTo(from);
        ticks.lineTo(to);
    };
    for (double x = box.left() + pitch; x < box.right() - end; x += pitch) {
        add({x, box.top() + heavyAt}, {x, box.top() + end});
        add({x, box.bottom() - heavyAt}, {x, box.bottom() - end});
    }
    for (double y = box.top() + pitch; y < box.bottom() - end; y += pitch) {
        add({box.left() + heavyAt, y}, {box.left() + end, y});
        add({box.right() - heavyAt, y}, {box.right() - end, y});
    }
    canvas.stroke(ticks, flatPen(ink, Lines::hair));
}

} // namespace

void mapSheet(Canvas& canvas, const Box& box, const SkinStyle& style, std::uint64_t seed)
{
    constexpr double edge = 0.28; // opacity
    dropShadow(canvas, box, style.corner, Qt::black, 0.035, 5, 1.2);
    canvas.fill(box, sheet, style.corner);
    folds(canvas, box);
    hill(canvas, box.inset(lightAt), style.accent3, seed);
    canvas.frame(box, flatPen(faded(style.ink, edge), 1), style.corner);
    canvas.frame(box.inset(heavyAt), flatPen(style.ink, Lines::neat));
    canvas.frame(box.inset(lightAt), flatPen(style.ink, Lines::hair));
    borderTicks(canvas, box, style.ink);
}

Box doubleFrame(Canvas& canvas, const Box& box, const QColor& ink)
{
    constexpr double between = 3;
    canvas.frame(box, flatPen(ink, Lines::neat));
    canvas.frame(box.inset(between), flatPen(ink, Lines::hair));
    return box.inset(between + 1);
}

} // namespace ambrelle::atlas
