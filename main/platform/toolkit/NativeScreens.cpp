// SPDX-License-Identifier: MIT

#include "platform/toolkit/NativeScreens.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace ambrelle {

namespace {

double distance(const NativeScreens::Screen& screen, const QPointF& native)
{
    const QRectF area(screen.geometry.topLeft(), screen.geometry.size() * screen.pixelRatio);
    const QPointF nearest(
        std::clamp(native.x(), area.left(), area.right()), std::clamp(native.y(), area.top(), area.bottom()));
    return (native - nearest).manhattanLength();
}

QPointF scaled(const NativeScreens::Screen& screen, const QPointF& native)
{
    const QPointF corner = screen.geometry.topLeft();
    return corner + (native - corner) / screen.pixelRatio;
}

} // namespace

NativeScreens::NativeScreens()
{
    for (const QScreen* screen : QGuiApplication::screens())
        m_screens.append({QRectF(screen->geometry()), screen->devicePixelRatio()});
}

NativeScreens::NativeScreens(const QList<Screen>& screens)
    : m_screens(screens)
{
}

NativeScreens::Screen NativeScreens::screenAt(const QPointF& native) const
{
    const auto nearest =
        std::ranges::min_element(m_screens, {}, [&](const Screen& screen) { return distance(screen, native); });
    return nearest == m_screens.end() ? Screen() : *nearest;
}

QPointF NativeScreens::toolkitPoint(const QPointF& native) const
{
    return scaled(screenAt(native), native);
}

QRectF NativeScreens::toolkitRect(const QRect& native) const
{
    // An edge between two screens belongs to that of the pixel inside it.
    const QPointF inside(0.5, 0.5);
    const QPointF begin = QRectF(native).topLeft();
    const QPointF end = QRectF(native).bottomRight();
    return {scaled(screenAt(begin + inside), begin), scaled(screenAt(end - inside), end)};
}

} // namespace ambrelle
