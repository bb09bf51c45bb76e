// SPDX-License-Identifier: MIT

#include "platform/wayland/window/DragCatcher.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <chrono>

namespace ambrelle {

namespace {

constexpr std::chrono::seconds untilItIsLost{1};

} // namespace

DragCatcher::DragCatcher(WaylandParts& parts, PanelSurface& panel)
    : m_parts(parts)
    , m_panel(panel)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(untilItIsLost);
    connect(&m_patience, &QTimer::timeout, &panel, &PanelSurface::letGo);
    connect(&panel, &PanelSurface::released, this, [this] {
        m_patience.stop();
        m_shields.clear();
    });
    panel.installEventFilter(this);
}

DragCatcher::~DragCatcher() = default;

bool DragCatcher::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Leave && m_panel.isHeld()) {
        m_parts.grabsPointer = false;
        raise();
        m_patience.start();
    }
    return false;
}

void DragCatcher::follow()
{
    if (!m_parts.grabsPointer)
        raise();
}

void DragCatcher::raise()
{
    if (!m_shields.empty())
        return;
    m_shields = OutputShield::overAll(m_parts, ShellLayer::overlay);
    for (const std::unique_ptr<OutputShield>& shield : m_shields)
        shield->heard = [this](const auto& event, const QPointF& place) { hear(event, place); };
}

/// Hands it on later, since that may end in the end of who heard it.
void DragCatcher::hear(const QSinglePointEvent& event, const QPointF& place)
{
    // With a press the button has been let go unheard.
    const bool ends = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease;
    if (!ends && event.type() != QEvent::Enter && event.type() != QEvent::MouseMove)
        return;
    m_patience.stop();
    QCoreApplication::postEvent(&m_panel,
        new QMouseEvent(ends ? QEvent::MouseButtonRelease : QEvent::MouseMove, place - QPointF(m_panel.position()),
            place, ends ? Qt::LeftButton : Qt::NoButton, ends ? Qt::NoButton : Qt::LeftButton, event.modifiers()));
}

} // namespace ambrelle
