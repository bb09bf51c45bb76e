// SPDX-License-Identifier: MIT

#pragma once

#include "window/look/ActionMenu.h"

#include <QPointer>

namespace ambrelle {

class QuickMenu;
class WidgetController;
class WidgetManager;

/// Opens the menu of the widget that was clicked with the right button, one at a time.
class WidgetContextMenu : public QObject {
public:
    /// Both outlive this.
    WidgetContextMenu(WidgetManager& manager, const QuickMenu& quick, QObject* parent = nullptr);
    ~WidgetContextMenu() override;

    ActionMenu* menu() const { return m_menu; } ///< the open one

private:
    void open(WidgetController& widget);

    WidgetManager& m_manager;
    const QuickMenu& m_quick;
    QPointer<ActionMenu> m_menu;
};

} // namespace ambrelle
