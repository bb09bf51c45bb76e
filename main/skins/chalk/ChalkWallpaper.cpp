// SPDX-License-Identifier: MIT

#include "skins/chalk/ChalkDoodles.h"
#include "skins/WallpaperRecipes.h"
#include "skins/WoodenFrame.h"

#include <QPainter>

#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr double frameWidth = 0.018;

void dust(Painting& painting, const Perlin& clouds)
{
    painting.raster(
        painting.all(), 2.0, [clouds](double x, double y) { return white(0.07 * clouds.fbm(2 * x, 2 * y, 5, 2)); });
}

/// One wipe of the eraser to the right: its felt leaves streaks that run out to both ends, and most of the chalk at its
/// edges.
void wipe(QPainter& painter, double length, double width)
{
    constexpr std::array<float, 10> streaks{1.0F, 0.35F, 0.6F, 0.3F, 0.75F, 0.45F, 0.25F, 0.7F, 0.4F, 0.9F};
    const double each = width / static_cast<double>(streaks.size());
    for (std::size_t i = 0; i < streaks.size(); ++i) {
        const double y = (static_cast<double>(i) + 0.5) * each - width / 2;
        const double uneven = 0.04 * length * streaks[(i * 7 + 3) % streaks.size()];
        const QPointF from(-uneven, y);
        const QPointF to(length + uneven, y);
        const QPointF bow(length / 2, y + 0.12 * length);
        const QPointF wide(0, 1.3 * each);
        QPainterPath streak(from);
        streak.quadTo(bow + wide, to);
        streak.quadTo(bow - wide, from);
        painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.3F * streaks[i]));
        painter.drawPath(streak);
    }
}

void eraserStrokes(Painting& painting, SeededRandom& random)
{
    const double h = painting.height();
    painting.stencil(painting.all(), white(0.06), [&](QPainter& painter) {
        for (int stroke = 0; stroke < 40; ++stroke) {
            const double x = random.in(0, painting.width());
            const double y = random.in(0, h);
            const double angle = random.in(-0.22, 0.22);
            const double length = random.in(0.2, 0.6) * h;
            painter.save();
            painter.translate(x, y);
            painter.rotate(angle * 180 / std::numbers::pi);
            wipe(painter, length, 0.05 * h);
            painter.restore();
        }
    });
}

} // namespace

void paintChalkWallpaper(Painting& painting, SeededRandom& random)
{
    painting.fill(hex(0x1E3A31));
    const Perlin clouds{random.next()};
    dust(painting, clouds);
    eraserStrokes(painting, random);
    paintChalkDoodles(painting);
    paintWoodenFrame(painting, frameWidth * painting.height(), hex(0x7B5433), clouds);
    painting.grain(0.03, random);
    painting.vignette(0.35);
}

} // namespace ambrelle
