// SPDX-License-Identifier: MIT

#include "desktop/QuickMenu.h"

#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "services/FocusTimer.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

QuickMenu::QuickMenu(Collaborators collaborators)
    : m_with(std::move(collaborators))
{
}

QList<ActionItem> QuickMenu::items() const
{
    using enum QuickAction;
    const QList<QList<QuickAction>> groups{
        {update}, {openWindow, themes, addWidgets}, {toggleFocus}, {edit, lock}, {settings, checkForUpdates, quit}};
    QList<ActionItem> items;
    for (const auto& group : groups) {
        if (!items.isEmpty())
            items += ActionItem::separator();
        for (const QuickAction action : group) {
            if (const std::optional<ActionItem> offered = item(action))
                items += *offered;
        }
    }
    return items;
}

std::optional<ActionItem> QuickMenu::item(QuickAction action) const
{
    switch (action) {
    case QuickAction::openWindow: return openItem();
    case QuickAction::themes:
        return tabItem(Wording::tr("Themes"), u"rectangle.on.rectangle.angled"_s, MainTab::themes);
    case QuickAction::addWidgets:
        return tabItem(Wording::tr("Add Widgets"), u"plus.square.on.square"_s, MainTab::widgets);
    case QuickAction::toggleFocus: return focusItem();
    case QuickAction::skip: return skipItem();
    case QuickAction::reset: return resetItem();
    case QuickAction::edit: return editItem();
    case QuickAction::lock: return lockItem();
    case QuickAction::settings: return settingsItem();
    case QuickAction::checkForUpdates: return checkItem();
    case QuickAction::update: return updateItem();
    case QuickAction::quit: return quitItem();
    }
    return std::nullopt;
}

QuickMenu::Updates QuickMenu::updates() const
{
    return m_with.updates ? m_with.updates() : Updates();
}

std::optional<ActionItem> QuickMenu::updateItem() const
{
    const Updates updates = this->updates();
    if (!updates.found)
        return std::nullopt;
    return ActionItem{.title = updateTitle(*updates.found),
        .symbol = u"arrow.down.circle"_s,
        .handler = updates.install,
        .enabled = !updates.busy};
}

QString QuickMenu::updateTitle(const QString& version)
{
    return Wording::tr("Update to Ambrelle %1").arg(version);
}

QString QuickMenu::checkTitle()
{
    return Wording::tr("Check for Updates…");
}

std::optional<ActionItem> QuickMenu::checkItem() const
{
    const Updates updates = this->updates();
    if (!updates.enabled)
        return std::nullopt;
    return ActionItem{.title = checkTitle(), .handler = updates.check, .enabled = !updates.busy};
}

ActionItem QuickMenu::quitItem() const
{
    return {.title = Wording::tr("Quit Ambrelle"), .key = QKeySequence(Qt::CTRL | Qt::Key_Q), .handler = m_with.quit};
}

ActionItem QuickMenu::openItem() const
{
    return {
        .title = Wording::tr("Open Ambrelle"), .symbol = u"macwindow"_s, .handler = [open = m_with.open] { open({}); }};
}

ActionItem QuickMenu::tabItem(const QString& title, const QString& symbol, MainTab tab) const
{
    return {.title = title, .symbol = symbol, .handler = [open = m_with.open, tab] { open(tab); }};
}

ActionItem QuickMenu::settingsItem() const
{
    ActionItem item = tabItem(Wording::tr("Settings"), u"gearshape"_s, MainTab::settings);
    item.key = QKeySequence(Qt::CTRL | Qt::Key_Comma);
    return item;
}

ActionItem QuickMenu::focusItem() const
{
    FocusTimer& focus = m_with.focus;
    return {.title = (focus.isRunning() ? Wording::tr("Pause %1") : Wording::tr("Start %1")).arg(title(focus.phase())),
        .symbol = u"timer"_s,
        .handler = [&focus] { focus.toggle(); }};
}

ActionItem QuickMenu::skipItem() const
{
    FocusTimer& focus = m_with.focus;
    return {.title = Wording::tr("Skip %1").arg(title(focus.phase())),
        .symbol = u"forward.fill"_s,
        .handler = [&focus] { focus.skip(); }};
}

ActionItem QuickMenu::resetItem() const
{
    return {.title = Wording::tr("Reset Timer"),
        .symbol = u"arrow.counterclockwise"_s,
        .handler = [&focus = m_with.focus] { focus.reset(); }};
}

QList<ActionItem> QuickMenu::focusItems() const
{
    return {focusItem(), skipItem(), resetItem()};
}

ActionItem QuickMenu::editItem() const
{
    const bool editing = m_with.settings.editing();
    return {.title = Wording::tr("Edit & Move Widgets"),
        .symbol = u"hand.draw"_s,
        .checked = editing,
        .handler = [&manager = m_with.manager, editing] { manager.setEditing(!editing); }};
}

ActionItem QuickMenu::lockItem() const
{
    const bool locked = m_with.settings.locked();
    return {.title = Wording::tr("Lock Widget Positions"),
        .checked = locked,
        .handler = [&settings = m_with.settings, locked] { settings.locked.set(!locked); }};
}

} // namespace ambrelle
