// SPDX-License-Identifier: MIT

#include "platform/wayland/window/LayerPlace.h"

#include <QGuiApplication>
#include <QScreen>

#include <qpa/qplatformscreen.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

namespace {

/// The larger the more of it the screen shows; below 0 the farther away.
double nearness(const QScreen& screen, const QRectF& rect)
{
    const QRectF area = screen.geometry();
    const QRectF seen = area & rect;
    if (!seen.isEmpty())
        return seen.width() * seen.height();
    const QPointF centre = rect.center();
    const QPointF nearest(
        std::clamp(centre.x(), area.left(), area.right()), std::clamp(centre.y(), area.top(), area.bottom()));
    return -(centre - nearest).manhattanLength();
}

QRect scaled(const QRect& rect, double factor)
{
    const auto times = [factor](int points) { return static_cast<int>(std::lround(points * factor)); };
    return {times(rect.left()), times(rect.top()), times(rect.width()), times(rect.height())};
}

} // namespace

double LayerPlace::factorOf(const QScreen& screen)
{
    return screen.devicePixelRatio() / screen.handle()->devicePixelRatio();
}

LayerPlace LayerPlace::of(const QRect& rect)
{
    QList<QScreen*> screens = QGuiApplication::screens();
    screens.removeIf([](const QScreen* screen) { return screen->name().isEmpty() || screen->geometry().isEmpty(); });
    const auto best = std::ranges::max_element(
        screens, {}, [&rect](const QScreen* screen) { return nearness(*screen, QRectF(rect)); });
    if (best == screens.end())
        return {};
    const double factor = factorOf(**best);
    return {*best, scaled(rect.translated(-(*best)->geometry().topLeft()), factor), factor};
}

} // namespace ambrelle
