// SPDX-License-Identifier: MIT

#include "placement/ScreenPlacement.h"

#include "placement/FreeSpot.h"
#include "placement/GroupFit.h"

#include <QSet>

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

bool belongsSomewhere(const WidgetConfig& config)
{
    return config.display && config.displayOffset;
}

/// A display that has got a twin, lost one or changed its connector is known by its make, and among twins by the
/// connector it had.
const ScreenInfo* find(const QList<ScreenInfo>& screens, const StoredWidget& widget)
{
    const QString& id = *widget.config.display;
    auto found = std::ranges::find(screens, id, &ScreenInfo::id);
    const auto isAlike = [&](const ScreenInfo& screen) { return makeOf(screen.id) == makeOf(id); };
    if (found == screens.end() && widget.home) {
        found = std::ranges::find_if(screens,
            [&](const ScreenInfo& screen) { return isAlike(screen) && screen.connector == widget.home->connector; });
    }
    if (found == screens.end())
        found = std::ranges::find_if(screens, isAlike);
    return found == screens.end() ? nullptr : &*found;
}

QSizeF sizeWith(const WidgetConfig& config, double fit)
{
    WidgetConfig fitted = config;
    fitted.fit = fit;
    return fitted.size();
}

/// Along one axis: in the outer thirds of a screen the distance to its edge stays, in the middle the share of it.
double refitted(double start, double length, double newLength, double before, double after)
{
    const double middle = start + length / 2;
    if (middle < before / 3)
        return start;
    if (middle > before * 2 / 3)
        return start + length - newLength + after - before;
    return std::round(middle * after / before - newLength / 2);
}

void bringBack(WidgetConfig& config, const QList<ScreenInfo>& screens)
{
    if (!screenShowing(config.frame(), screens))
        config.origin = movedInto(config.frame(), room(*screenNear(config.frame(), screens))).topLeft();
}

void makeHome(StoredWidget& widget, const ScreenInfo& screen)
{
    WidgetConfig& config = widget.config;
    config.display = screen.id;
    config.displayOffset = config.origin - screen.frame.topLeft();
    const double fullFit = widget.home ? std::max(widget.home->fullFit, config.fit) : config.fit;
    widget.home = {screen.frame.size(), screen.connector, config.fit, fullFit};
    widget.stand = {screen.id, screen.frame};
}

/// What is known about a widget's home, or may be taken for it.
WidgetHome homeOf(const StoredWidget& widget)
{
    return widget.home.value_or(WidgetHome{{}, {}, widget.config.fit, widget.config.fit});
}

QRectF frameAtHome(const StoredWidget& widget)
{
    return {*widget.config.displayOffset, sizeWith(widget.config, homeOf(widget).fit)};
}

/// Widgets that come from one display to a screen of another size, or are guests on it.
struct Group {
    const ScreenInfo* host;
    QString display;
    QSizeF before; ///< size of the display they come from
    bool areGuests;
    bool areStrays; ///< they belong off that display, and nobody knows why
    QList<StoredWidget*> members{};

    bool isAlike(const Group& other) const
    {
        return display == other.display && host == other.host && before == other.before && areStrays == other.areStrays;
    }
    bool wasWhole(const StoredWidget& widget) const { return QRectF({}, before).contains(frameAtHome(widget)); }
};

/// Everything of the group stands on its host already, and the host is as it was: then it stays, whatever was removed
/// or changed meanwhile. Else the rest would jump.
bool stays(const Group& group)
{
    return std::ranges::all_of(group.members, [&](const StoredWidget* widget) {
        const std::optional<WidgetStand>& stand = widget->stand;
        if (!stand || stand->screen != group.host->id || stand->frame.size() != group.host->frame.size())
            return false;
        const QRectF frame = widget->config.frame().translated(group.host->frame.topLeft() - stand->frame.topLeft());
        return !group.wasWhole(*widget) || room(*group.host).contains(frame);
    });
}

/// A widget for itself on the group's host, as large as it was, or larger where a small display had shrunk it.
WidgetConfig refitted(const Group& group, const StoredWidget& widget)
{
    const WidgetHome home = homeOf(widget);
    const QRectF before = frameAtHome(widget);
    const QSizeF after = group.host->frame.size();
    const double ratio = std::min(after.width() / group.before.width(), after.height() / group.before.height());
    WidgetConfig config = widget.config;
    config.fit = std::min(home.fullFit, home.fit * std::max(1.0, ratio));
    const QSizeF size = config.size();
    config.origin = {refitted(before.x(), before.width(), size.width(), group.before.width(), after.width()),
        refitted(before.y(), before.height(), size.height(), group.before.height(), after.height())};
    config.origin += group.host->frame.topLeft();
    if (group.areGuests || group.wasWhole(widget))
        config.origin = movedInto(config.frame(), room(*group.host)).topLeft();
    return config;
}

bool anyMeet(const Group& group, const QList<WidgetConfig>& placed)
{
    for (qsizetype i = 0; i < placed.size(); ++i) {
        const QRectF frame = placed[i].frame();
        if (group.wasWhole(*group.members[i]) && !room(*group.host).contains(frame))
            return true;
        for (qsizetype other = 0; other < i; ++other) {
            if (GroupFit::overlap(frame, placed[other].frame())
                && !GroupFit::overlap(frameAtHome(*group.members[i]), frameAtHome(*group.members[other])))
                return true;
        }
    }
    return false;
}

void fitTogether(const Group& group, QList<WidgetConfig>& placed)
{
    QList<GroupFit::Member> members;
    for (const StoredWidget* widget : group.members) {
        const QSizeF base = baseSize(sizeClass(widget->config.skin, widget->config.kind));
        members += {frameAtHome(*widget), base * factor(widget->config.scale) * homeOf(*widget).fit};
    }
    const QRectF area = room(*group.host);
    const GroupFit::Result result = GroupFit::fitted(members, group.before, area);
    for (qsizetype i = 0; i < placed.size(); ++i) {
        placed[i].fit = WidgetConfig::clampedFit(homeOf(*group.members[i]).fit * result.factor);
        placed[i].origin = movedInto({result.origins[i], placed[i].size()}, area).topLeft();
    }
}

QSet<const StoredWidget*> membersOf(const Group& group)
{
    return {group.members.begin(), group.members.end()};
}

/// Moves guests that would lie over others on their host to the nearest free places, as far as there are any. What lay
/// over one another at home may do so here.
void makeWay(const Group& group, QList<WidgetConfig>& placed, const QList<QRectF>& taken)
{
    for (qsizetype i = 0; i < placed.size(); ++i) {
        QList<QRectF> others = taken;
        for (qsizetype other = 0; other < placed.size(); ++other) {
            // Those behind it still have to look for a place themselves, but hold theirs if they need none.
            if (other != i && !GroupFit::overlap(frameAtHome(*group.members[i]), frameAtHome(*group.members[other])))
                others.append(placed[other].frame());
        }
        placed[i].origin = nearestFreeSpot(placed[i].frame(), room(*group.host), others).value_or(placed[i].origin);
    }
}

void place(const Group& group, const QList<ScreenInfo>& screens, const QList<QRectF>& taken)
{
    QList<WidgetConfig> placed;
    if (stays(group)) {
        for (const StoredWidget* widget : group.members) {
            placed.append(widget->config);
            placed.last().origin += group.host->frame.topLeft() - widget->stand->frame.topLeft();
        }
    } else {
        for (const StoredWidget* widget : group.members)
            placed.append(refitted(group, *widget));
        if (!group.areStrays && anyMeet(group, placed))
            fitTogether(group, placed);
        if (group.areGuests)
            makeWay(group, placed, taken);
    }
    for (qsizetype i = 0; i < placed.size(); ++i) {
        bringBack(placed[i], screens);
        group.members[i]->config = placed[i];
        group.members[i]->stand = {group.host->id, group.host->frame};
    }
}

/// Puts the widget where its display places it; false if that is for its group to say.
bool placeAtHome(StoredWidget& widget, const ScreenInfo& screen, const QList<ScreenInfo>& screens)
{
    WidgetConfig& config = widget.config;
    if (!widget.home)
        widget.home = {screen.frame.size(), screen.connector, config.fit, config.fit};
    if (widget.home->size != screen.frame.size())
        return false;
    const QPointF origin = screen.frame.topLeft() + *config.displayOffset;
    if (!isSamePlace(origin, config.origin))
        config.origin = origin;
    config.fit = widget.home->fit;
    bringBack(config, screens);
    widget.stand = {screen.id, screen.frame};
    return true;
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

QRectF room(const ScreenInfo& screen)
{
    return screen.visibleFrame.isEmpty() ? screen.frame : screen.visibleFrame;
}

void arrange(QList<StoredWidget>& widgets, const QList<ScreenInfo>& screens)
{
    if (screens.isEmpty())
        return;
    QList<Group> groups;
    for (StoredWidget& widget : widgets) {
        if (!belongsSomewhere(widget.config)) {
            bringBack(widget.config, screens);
            rememberDisplay(widget, screens);
            continue;
        }
        const ScreenInfo* home = find(screens, widget);
        if (home && placeAtHome(widget, *home, screens))
            continue;
        const ScreenInfo& host = home ? *home : screens.first();
        const QSizeF before = widget.home ? widget.home->size : host.frame.size();
        const bool isStray = !QRectF({}, before).intersects(frameAtHome(widget));
        const Group own{&host, *widget.config.display, before, home == nullptr, isStray};
        auto group = std::ranges::find_if(groups, [&](const Group& each) { return each.isAlike(own); });
        if (group == groups.end())
            group = groups.insert(group, own);
        group->members.append(&widget);
    }
    // Who is at home or stands there already does not give way, so guests that come are placed last.
    std::ranges::stable_sort(groups, {}, [](const Group& group) { return stays(group) ? 0 : group.areGuests ? 2 : 1; });
    QSet<const StoredWidget*> pending;
    for (const Group& group : groups)
        pending.unite(membersOf(group));
    for (const Group& group : groups) {
        QList<QRectF> taken;
        for (const StoredWidget& widget : std::as_const(widgets)) {
            if (!pending.contains(&widget))
                taken.append(widget.config.frame());
        }
        place(group, screens, taken);
        pending.subtract(membersOf(group));
    }
}

void rememberDisplay(StoredWidget& widget, const QList<ScreenInfo>& screens)
{
    if (belongsSomewhere(widget.config))
        return;
    if (const auto screen = screenShowing(widget.config.frame(), screens))
        makeHome(widget, *screen);
}

void settle(StoredWidget& widget, const QList<ScreenInfo>& screens)
{
    WidgetConfig& config = widget.config;
    const auto screen = screenNear(config.frame(), screens);
    if (!screen)
        return;
    if (!screenShowing(config.frame(), screens))
        config.origin = movedInto(config.frame(), screen->frame).topLeft();
    makeHome(widget, *screen);
}

void resized(StoredWidget& widget, const WidgetConfig& before, const QList<ScreenInfo>& screens)
{
    WidgetConfig& config = widget.config;
    const ScreenInfo* home = belongsSomewhere(config) ? find(screens, widget) : nullptr;
    const bool isAtHome = home && isSamePlace(before.origin, home->frame.topLeft() + *config.displayOffset)
        && (!widget.home || widget.home->size == home->frame.size());
    const auto screen = screenShowing(before.frame(), screens);
    // What reached over an edge by a little may, shrunk to its corner, reach nothing any more.
    if (screen && (room(*screen).contains(before.frame()) || !screenShowing(config.frame(), screens)))
        config.origin = movedInto(config.frame(), room(*screen)).topLeft();
    if (isAtHome)
        return makeHome(widget, *home);
    if (!belongsSomewhere(config) || !widget.home)
        return;
    const QRectF whole({}, widget.home->size);
    if (whole.contains({*config.displayOffset, sizeWith(before, widget.home->fit)}))
        config.displayOffset = movedInto({*config.displayOffset, sizeWith(config, widget.home->fit)}, whole).topLeft();
}

} // namespace ambrelle::ScreenPlacement
