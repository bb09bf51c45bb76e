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

QList<QScreen*> LayerPlace::usableScreens()
{
    QList<QScreen*> screens = QGuiApplication::screens();
    screens.removeIf([](const QScreen* screen) { return screen->name().isEmpty() || screen->geometry().isEmpty(); });
    return screens;
}

double LayerPlace::factorOf(const QScreen& screen)
{
    const double native = screen.handle()->devicePixelRatio();
    return native > 0 ? screen.devicePixelRatio() / native : 1;
}

LayerPlace LayerPlace::of(const QRect& rect)
{
    const QList<QScreen*> screens = usableScreens();
    const auto best = std::ranges::max_element(
        screens, {}, [&rect](const QScreen* screen) { return nearness(*screen, QRectF(rect)); });
    return best == screens.end() ? LayerPlace() : on(**best, rect);
}

LayerPlace LayerPlace::on(QScreen& screen, const QRect& rect)
{
    const double factor = factorOf(screen);
    return {&screen, scaled(rect.translated(-screen.geometry().topLeft()), factor), factor};
}

QList<QScreen*> LayerPlace::screensShowing(const QRect& rect)
{
    QList<QScreen*> screens = usableScreens();
    screens.removeIf([&rect](const QScreen* screen) { return !screen->geometry().intersects(rect); });
    return screens;
}

} // namespace ambrelle
