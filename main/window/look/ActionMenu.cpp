// SPDX-License-Identifier: MIT

#include "window/look/ActionMenu.h"

#include "window/look/MenuStyle.h"
#include "window/look/SymbolIcon.h"

#include <QKeyEvent>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// An ampersand marks the key of a menu line; a doubled one is shown.
QString shown(QString title)
{
    return title.replace(u'&', u"&&"_s);
}

} // namespace

ActionMenu::ActionMenu(Items items, const std::optional<QColor>& ink)
    : m_items(std::move(items))
    , m_ink(ink)
{
    setStyle(MenuStyle::shared());
    connect(this, &QMenu::aboutToShow, this, [this] {
        if (!m_isFresh)
            refill();
    });
}

void ActionMenu::refill()
{
    clear();
    // Submenus belong to the menu, and clear() leaves them.
    qDeleteAll(findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
    fill(*this, m_items());
}

void ActionMenu::openAt(const QPoint& globalPlace, Corner corner)
{
    refill();
    ensurePolished();
    const QSize size = sizeHint();
    const bool endsThere = (corner != Corner::topStart) != isRightToLeft();
    m_isFresh = true;
    popup(globalPlace - QPoint(endsThere ? size.width() : 0, corner == Corner::bottomEnd ? size.height() : 0));
    m_isFresh = false;
}

void ActionMenu::openFor(QWidget& page, const QPoint& globalPosition, Items items)
{
    auto* menu = new ActionMenu(std::move(items));
    menu->setParent(&page, menu->windowFlags());
    menu->setLayoutDirection(page.layoutDirection());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->openAt(globalPosition);
}

void ActionMenu::fill(QMenu& menu, const QList<ActionItem>& items)
{
    for (const ActionItem& item : items) {
        if (item.isSeparator()) {
            menu.addSeparator();
            continue;
        }
        if (!item.items.isEmpty()) {
            QMenu* submenu = menu.addMenu(symbolIcon(item.symbol, m_ink), shown(item.title));
            submenu->setStyle(MenuStyle::shared());
            fill(*submenu, item.items);
            continue;
        }
        QAction* action = menu.addAction(symbolIcon(item.symbol, m_ink), shown(item.title));
        action->setCheckable(item.checked.has_value());
        action->setChecked(item.checked.value_or(false));
        action->setEnabled(item.enabled);
        action->setShortcut(item.key);
        action->setShortcutVisibleInContextMenu(true);
        if (item.handler)
            connect(action, &QAction::triggered, this, item.handler);
    }
}

void ActionMenu::keyPressEvent(QKeyEvent* event)
{
    // The toolkit heeds shortcuts of windows only, and an open menu keeps every key to itself.
    const QKeySequence pressed(event->keyCombination());
    for (QAction* action : actions()) {
        if (action->shortcut() == pressed && !pressed.isEmpty()) {
            close();
            action->trigger();
            return;
        }
    }
    QMenu::keyPressEvent(event);
}

} // namespace ambrelle
