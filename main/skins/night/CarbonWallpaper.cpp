// SPDX-License-Identifier: MIT

#include "skins/night/NightWallpaper.h"
#include "skins/WallpaperRecipes.h"

#include <QPainter>

#include <cmath>

namespace ambrelle {

namespace {

/// One repeat of a twill of fibre bundles, each going over two and under two others; more opaque where it shines.
QImage twill(int bundle)
{
    QImage weave(4 * bundle, 4 * bundle, QImage::Format_ARGB32);
    for (int y = 0; y < weave.height(); ++y) {
        for (int x = 0; x < weave.width(); ++x) {
            const bool across = (x / bundle + y / bundle) % 4 < 2;
            const double place = ((across ? y : x) % bundle + 0.5) / bundle * 2 - 1;
            const double round = 1 - place * place;
            weave.setPixel(x, y, qRgba(0, 0, 0, static_cast<int>(255 * (across ? round : 0.3 * round))));
        }
    }
    return weave;
}

void weave(Painting& painting)
{
    const double side = std::min(painting.height(), painting.width() / 1.6);
    const int bundle = std::max(static_cast<int>(std::round(side / 300)), 3);
    const Ink light = Ink::linear({0, 0}, painting.at(0, 1), {{0, white(0.02)}, {1, white(0.045)}});
    painting.stencil(
        painting.all(), light, [&](QPainter& painter) { painter.fillRect(painting.all(), QBrush(twill(bundle))); });
}

void slantedSheen(Painting& painting)
{
    painting.fill(nightBand(
        painting.at(0.425, 0.5), 20, 0.25 * painting.width(), {{0, white(0)}, {0.5, white(0.05)}, {1, white(0)}}));
}

void rails(Painting& painting)
{
    const double thickness = std::max(std::round(painting.height() / 600), 1.0);
    const Ink shine = Ink::linear(
        painting.at(0, 0), painting.at(1, 0), {{0, white(0)}, {0.2, white(0.08)}, {0.8, white(0.08)}, {1, white(0)}});
    for (const double y : {0.08, 0.92})
        painting.fill(QRectF(0, std::round(y * painting.height()), painting.width(), thickness), shine);
}

void dashboard(Painting& painting)
{
    weave(painting);
    slantedSheen(painting);
    rails(painting);
}

} // namespace

void paintCarbonWallpaper(Painting& painting, SeededRandom&)
{
    constexpr RGBA accent = hex(0xFF4A2E);
    paintNight(painting,
        {.top = hex(0x17171A),
            .bottom = hex(0x0A0A0C),
            .ornament = dashboard,
            .lights = {{{0.5, -0.05}, 0.6, accent.withAlpha(0.25)}},
            .vignette = 0.5});
}

} // namespace ambrelle
