// SPDX-License-Identifier: MIT

#include "window/popover/WidgetContextMenu.h"

#include "desktop/WidgetManager.h"
#include "desktop/WidgetMenu.h"

#include <QCursor>

namespace ambrelle {

WidgetContextMenu::WidgetContextMenu(WidgetManager& manager, const QuickMenu& quick, QObject* parent)
    : QObject(parent)
    , m_manager(manager)
    , m_quick(quick)
{
    connect(&manager, &WidgetManager::menuRequested, this, [this](WidgetController* widget) { open(*widget); });
}

WidgetContextMenu::~WidgetContextMenu()
{
    delete m_menu;
}

void WidgetContextMenu::open(WidgetController& widget)
{
    delete m_menu;
    m_menu = new ActionMenu([this, target = QPointer<WidgetController>(&widget)] {
        return target ? widgetMenu(*target, m_manager, m_quick) : QList<ActionItem>();
    });
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(&widget, &WidgetController::closed, m_menu, &QWidget::close);
    m_menu->popup(QCursor::pos());
}

} // namespace ambrelle
