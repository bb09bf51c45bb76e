// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"
#include "desktop/QuickMenu.h"
#include "desktop/WidgetMenu.h"

#include <algorithm>

namespace ambrelle {
namespace {

ActionItem find(const QList<ActionItem>& items, const QString& title)
{
    const auto found = std::ranges::find(items, title, &ActionItem::title);
    EXPECT_NE(found, items.end()) << qPrintable(title);
    return found == items.end() ? ActionItem{.handler = [] {}} : *found;
}

QStringList titles(const QList<ActionItem>& items)
{
    QStringList all;
    for (const ActionItem& item : items)
        all += item.isSeparator() ? u"-"_s : item.title;
    return all;
}

struct Menu : DeskTest {
    QuickMenu::Updates updates;
    QStringList calls;
    QuickMenu quick{{.manager = desk.manager,
        .settings = desk.settings,
        .focus = desk.services.live.focus,
        .open = [this](std::optional<MainTab> tab) { calls += tab ? title(*tab) : u"last"_s; },
        .quit = [this] { calls += u"quit"_s; },
        .updates = [this] { return updates; }}};

    void choose(const QString& title) const { find(quick.items(), title).handler(); }
};

TEST_F(Menu, LinesFollowTheStateOfNow)
{
    EXPECT_EQ(titles(quick.items()).join(u'|'),
        u"Open Ambrelle|Themes|Add Widgets|-|Start Focus|-|Edit & Move Widgets|Lock Widget Positions|-|Settings|Quit Ambrelle"_s);
    updates = {.found = u"2.1"_s, .enabled = true};
    desk.services.live.focus.start();
    EXPECT_EQ(titles(quick.items()).join(u'|'),
        u"Update to Ambrelle 2.1|-|Open Ambrelle|Themes|Add Widgets|-|Pause Focus|-|Edit & Move Widgets|"
        "Lock Widget Positions|-|Settings|Check for Updates…|Quit Ambrelle"_s);
    desk.services.live.focus.skip();
    updates.busy = true;
    for (const QString& line : {u"Update to Ambrelle 2.1"_s, u"Check for Updates…"_s})
        EXPECT_FALSE(find(quick.items(), line).enabled) << "one thing at a time";
    find(quick.items(), u"Start Break"_s).handler();
    EXPECT_TRUE(desk.services.live.focus.isRunning());
}

TEST_F(Menu, LinesDoWhatTheySay)
{
    updates = {.found = u"2"_s,
        .enabled = true,
        .install = [this] { calls += u"install"_s; },
        .check = [this] { calls += u"check"_s; }};
    for (const QString& line : {u"Open Ambrelle"_s, u"Themes"_s, u"Add Widgets"_s, u"Settings"_s,
             u"Update to Ambrelle 2"_s, u"Check for Updates…"_s, u"Quit Ambrelle"_s})
        choose(line);
    EXPECT_EQ(calls.join(u' '), u"last Themes Widgets Settings install check quit"_s);
    for (const bool on : {true, false}) {
        choose(u"Edit & Move Widgets"_s);
        choose(u"Lock Widget Positions"_s);
        EXPECT_EQ(desk.settings.editing(), on);
        EXPECT_EQ(store.boolean(u"locked"_s), on);
        EXPECT_EQ(find(quick.items(), u"Edit & Move Widgets"_s).checked, on);
        EXPECT_EQ(find(quick.items(), u"Lock Widget Positions"_s).checked, on);
    }
}

TEST_F(Menu, EveryLineHasAName)
{
    updates = {.found = u"2"_s, .enabled = true};
    QStringList named;
    for (const QuickAction action : allCases<QuickAction>()) {
        EXPECT_EQ(parse<QuickAction>(QString(rawValue(action))), action) << "two have this name";
        const auto item = quick.item(action);
        ASSERT_TRUE(item) << rawValue(action).data();
        named += item->title;
    }
    for (const ActionItem& line : quick.items() + quick.focusItems())
        EXPECT_TRUE(line.isSeparator() || named.contains(line.title)) << qPrintable(line.title);
    updates = {};
    EXPECT_FALSE(quick.item(QuickAction::update)) << "there is none";
    EXPECT_FALSE(quick.item(QuickAction::checkForUpdates)) << "nobody knows where";
}

TEST_F(Menu, TheFocusWidgetsMenuSkipsAndResets)
{
    FocusTimer& focus = desk.services.live.focus;
    WidgetController* widget = desk.add(WidgetKind::focus, {100, 100});
    const auto items = [&] { return widgetMenu(*widget, desk.manager, quick); };
    find(items(), u"Start Focus"_s).handler();
    find(items(), u"Skip Focus"_s).handler();
    EXPECT_EQ(focus.phase(), FocusTimer::Phase::shortBreak);
    EXPECT_FALSE(focus.isRunning());
    find(items(), u"Skip Break"_s).handler();
    EXPECT_EQ(focus.phase(), FocusTimer::Phase::focus);
    EXPECT_EQ(focus.completedToday(), 0);

    focus.skip();
    focus.start();
    find(items(), u"Reset Timer"_s).handler();
    EXPECT_EQ(focus.phase(), FocusTimer::Phase::focus);
    EXPECT_FALSE(focus.isRunning());
    WidgetController* other = desk.add(WidgetKind::clock, {600, 100});
    EXPECT_FALSE(titles(widgetMenu(*other, desk.manager, quick)).contains(u"Reset Timer"_s));
}

TEST_F(Menu, AWidgetsMenuActsOnThatWidgetAlone)
{
    WidgetController* widget = desk.add(WidgetKind::clock, {100, 100});
    desk.add(WidgetKind::cpu, {600, 100});
    const auto items = [&] { return widgetMenu(*widget, desk.manager, quick); };
    QString asked;
    QObject::connect(&desk.manager, &WidgetManager::settingsRequested, &desk.manager,
        [&](const WidgetController* which) { asked = rawValue(which->config().kind); });
    find(items(), u"Widget Settings…"_s).handler();
    EXPECT_EQ(asked, u"clock"_s);

    find(find(items(), u"Size"_s).items, u"150%"_s).handler();
    find(items(), u"Pin Above Windows"_s).handler();
    EXPECT_EQ(desk.stored().at(0).scale, WidgetScale::huge);
    EXPECT_TRUE(desk.stored().at(0).pinned);
    QStringList checked;
    for (const ActionItem& size : find(items(), u"Size"_s).items)
        checked += size.checked == true ? size.title : QString();
    EXPECT_EQ(checked.join(u'|'), u"|||150%|"_s);
    find(items(), u"Unpin"_s).handler();
    EXPECT_FALSE(desk.stored().at(0).pinned);

    const QList<ActionItem> kept = items();
    find(kept, u"Remove Widget"_s).handler();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(desk.stored().size(), 1);
    EXPECT_EQ(desk.stored().at(0).kind, WidgetKind::cpu);
    for (const QString& line : {u"Widget Settings…"_s, u"Pin Above Windows"_s, u"Unpin"_s, u"Remove Widget"_s}) {
        if (titles(kept).contains(line))
            find(kept, line).handler(); // of a menu that is still open
    }
}

} // namespace
} // namespace ambrelle
