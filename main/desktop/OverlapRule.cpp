// SPDX-License-Identifier: MIT

#include "desktop/OverlapRule.h"

#include <QRegion>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr double leastAlpha = 0.05;
constexpr double leastWidth = 80; // points
constexpr double leastHeight = 60;
constexpr double rim = 10; // points of a widget that a window may touch
constexpr double leastOpaque = 0.95;
constexpr double ghostOpacity = 0.18;

bool counts(const OnscreenWindow& window)
{
    return window.layer == OnscreenWindow::Layer::normal && window.alpha > leastAlpha
        && window.bounds.width() > leastWidth && window.bounds.height() > leastHeight;
}

} // namespace

QList<OnscreenWindow> OverlapRule::counting(const QList<OnscreenWindow>& windows)
{
    QList<OnscreenWindow> kept = windows;
    kept.removeIf([](const OnscreenWindow& window) { return !counts(window); });
    return kept;
}

bool OverlapRule::isOver(const QRectF& widget, const QList<OnscreenWindow>& windows)
{
    const QRectF core = widget.adjusted(rim, rim, -rim, -rim);
    return std::ranges::any_of(windows, [&](const OnscreenWindow& window) { return window.bounds.intersects(core); });
}

bool OverlapRule::isUnder(const QRectF& widget, const QList<OnscreenWindow>& windows)
{
    // Whole points: the seams that odd pixel ratios leave between neighbours show nothing.
    QRegion visible(widget.toRect());
    for (const OnscreenWindow& window : windows) {
        if (window.isFullScreen && window.bounds.intersects(widget))
            return true;
        if (window.alpha >= leastOpaque)
            visible -= window.bounds.toRect();
    }
    return visible.isEmpty();
}

double OverlapRule::opacity(bool faded, bool hide)
{
    if (!faded)
        return 1;
    return hide ? 0 : ghostOpacity;
}

} // namespace ambrelle
