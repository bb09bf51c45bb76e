// SPDX-License-Identifier: MIT

#include "desktop/ScreenPlacement.h"

#include <algorithm>
#include <cmath>

namespace ambrelle::ScreenPlacement {

namespace {

constexpr double sameSpot = 0.01; // points: stored places went through decimal text

double overlap(const QRectF& one, const QRectF& other)
{
    const QRectF common = one & other;
    return common.width() * common.height();
}

double distance(const QRectF& frame, const QRectF& screen)
{
    const double dx = std::max({0.0, screen.left() - frame.right(), frame.left() - screen.right()});
    const double dy = std::max({0.0, screen.top() - frame.bottom(), frame.top() - screen.bottom()});
    return std::hypot(dx, dy);
}

bool isSamePlace(QPointF one, QPointF other)
{
    return std::abs(one.x() - other.x()) < sameSpot && std::abs(one.y() - other.y()) < sameSpot;
}

/// An identifier without the connector that tells displays of one make apart.
QString makeOf(const QString& id)
{
    return id.section(u'@', 0, 0);
}

/// A display that has got a twin, lost one or changed its connector beside one is known by its make.
const ScreenInfo* find(const QList<ScreenInfo>& screens, const QString& id)
{
    auto found = std::ranges::find(screens, id, &ScreenInfo::id);
    if (found == screens.end())
        found = std::ranges::find(screens, makeOf(id), [](const ScreenInfo& screen) { return makeOf(screen.id); });
    return found == screens.end() ? nullptr : &*found;
}

/// Along one axis: in the outer thirds of a screen the distance to its edge stays, in the middle the share of it.
double refitted(double start, double length, double before, double after)
{
    const double middle = start + length / 2;
    if (middle < before / 3)
        return start;
    if (middle > before * 2 / 3)
        return start + after - before;
    return std::round(middle * after / before - length / 2);
}

QRectF refitted(const QRectF& frame, const QSizeF& before, const QSizeF& after)
{
    return {refitted(frame.x(), frame.width(), before.width(), after.width()),
        refitted(frame.y(), frame.height(), before.height(), after.height()), frame.width(), frame.height()};
}

/// A screen's work area, or all of it when the desktop reports none.
QRectF roomOf(const ScreenInfo& screen)
{
    return screen.visibleFrame.isEmpty() ? screen.frame : screen.visibleFrame;
}

void makeHome(WidgetConfig& config, HomeSize& homeSize, const ScreenInfo& screen)
{
    config.display = screen.id;
    config.displayOffset = config.origin - screen.frame.topLeft();
    homeSize = screen.frame.size();
}

} // namespace

std::optional<ScreenInfo> screenShowing(const QRectF& frame, const QList<ScreenInfo>& screens)
{
    const auto most =
        std::ranges::max_element(screens, {}, [&](const ScreenInfo& screen) { return overlap(frame, screen.frame); });
    if (most == screens.end() || overlap(frame, most->frame) <= 0)
        return std::nullopt;
    return *most;
}

std::optional<ScreenInfo> screenNear(const QRectF& frame, const QList<ScreenInfo>& screens)
{
    if (auto showing = screenShowing(frame, screens))
        return showing;
    const auto nearest =
        std::ranges::min_element(screens, {}, [&](const ScreenInfo& screen) { return distance(frame, screen.frame); });
    return nearest == screens.end() ? std::nullopt : std::optional(*nearest);
}

QRectF movedInto(const QRectF& frame, const QRectF& area)
{
    QRectF moved = frame;
    moved.moveLeft(std::max(area.left(), std::min(frame.left(), area.right() - frame.width())));
    moved.moveTop(std::min(area.bottom() - frame.height(), std::max(frame.top(), area.top())));
    return moved;
}

QPointF origin(const WidgetConfig& config, const HomeSize& homeSize, const QList<ScreenInfo>& screens)
{
    if (screens.isEmpty())
        return config.origin;
    QRectF wanted = config.frame();
    if (config.display && config.displayOffset) {
        const ScreenInfo* home = find(screens, *config.display);
        const ScreenInfo& host = home ? *home : screens.first();
        const QRectF onDisplay(*config.displayOffset, config.size());
        const bool refits = homeSize && *homeSize != host.frame.size();
        wanted = refits ? refitted(onDisplay, *homeSize, host.frame.size()) : onDisplay;
        wanted.translate(host.frame.topLeft());
        const bool wasWhole = refits && QRectF({}, *homeSize).contains(onDisplay);
        if (!home || wasWhole)
            return movedInto(wanted, roomOf(host)).topLeft();
    }
    if (screenShowing(wanted, screens))
        return wanted.topLeft();
    return movedInto(wanted, roomOf(*screenNear(wanted, screens))).topLeft();
}

void rememberDisplay(WidgetConfig& config, HomeSize& homeSize, const QList<ScreenInfo>& screens)
{
    if (config.display && config.displayOffset && isSamePlace(origin(config, homeSize, screens), config.origin)) {
        const ScreenInfo* home = find(screens, *config.display);
        if (!homeSize && home && isSamePlace(home->frame.topLeft() + *config.displayOffset, config.origin))
            homeSize = home->frame.size();
        return;
    }
    if (const auto screen = screenShowing(config.frame(), screens))
        makeHome(config, homeSize, *screen);
}

void settle(WidgetConfig& config, HomeSize& homeSize, const QList<ScreenInfo>& screens)
{
    const auto screen = screenNear(config.frame(), screens);
    if (!screen)
        return;
    if (!screenShowing(config.frame(), screens))
        config.origin = movedInto(config.frame(), screen->frame).topLeft();
    makeHome(config, homeSize, *screen);
}

bool syncDisplay(WidgetConfig& config, const HomeSize& homeSize, const QList<ScreenInfo>& screens)
{
    const QPointF place = origin(config, homeSize, screens);
    if (isSamePlace(place, config.origin))
        return false;
    config.origin = place;
    return true;
}

QPointF originAfterResize(
    const WidgetConfig& before, const WidgetConfig& after, const HomeSize& homeSize, const QList<ScreenInfo>& screens)
{
    const bool guest = before.display && !find(screens, *before.display);
    if (guest && isSamePlace(origin(before, homeSize, screens), before.origin))
        return origin(after, homeSize, screens);
    const auto screen = screenShowing(before.frame(), screens);
    if (screen && roomOf(*screen).contains(before.frame()))
        return movedInto(after.frame(), roomOf(*screen)).topLeft();
    return after.origin;
}

} // namespace ambrelle::ScreenPlacement
