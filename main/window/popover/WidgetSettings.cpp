// SPDX-License-Identifier: MIT

#include "window/popover/WidgetSettings.h"

#include "desktop/WidgetManager.h"
#include "platform/SystemAppearance.h"
#include "platform/WindowHost.h"
#include "window/look/AppLook.h"
#include "window/popover/PopoverPlacement.h"

namespace ambrelle {

WidgetSettings::WidgetSettings(const Collaborators& collaborators, QObject* parent)
    : QObject(parent)
    , m_with(collaborators)
{
    connect(
        &m_with.manager, &WidgetManager::settingsRequested, this, [this](WidgetController* widget) { open(*widget); });
}

WidgetSettings::~WidgetSettings()
{
    delete m_popover;
}

void WidgetSettings::open(WidgetController& widget)
{
    delete m_popover;
    AppLook::shared().apply(LookWishes::of(m_with.appearance));
    m_popover = new SettingsPopover(widget, m_with.clock, m_with.host.isComposited());
    if (const auto room = popoverRoom(widget.widgetFrame(), m_with.host.screens()))
        m_popover->limitHeight(static_cast<int>(*room));
    m_popover->adjustSize();
    const QMargins shadow = m_popover->shadow();
    const QSize visible = m_popover->size().shrunkBy(shadow);
    const QRectF frame = popoverFrame(widget.widgetFrame(), visible, m_with.host.screens());
    const QPoint corner = m_with.host.toolkitRect(frame).topLeft().toPoint();
    m_popover->move(corner - QPoint(shadow.left(), shadow.top()));
    m_popover->show();
}

} // namespace ambrelle
