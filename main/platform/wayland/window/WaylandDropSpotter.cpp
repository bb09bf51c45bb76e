// SPDX-License-Identifier: MIT

#include "platform/wayland/window/WaylandDropSpotter.h"

#include <chrono>
#include <utility>

namespace ambrelle {

namespace {

// A compositor that looks at once answers within a hundredth of it; others do so with the pointer's next move.
constexpr std::chrono::seconds spotting{2};

} // namespace

WaylandDropSpotter::WaylandDropSpotter(WaylandParts& parts)
    : m_parts(parts)
    , m_shields(OutputShield::overAll(parts, ShellLayer::overlay))
{
    m_end.setSingleShot(true);
    m_end.setInterval(spotting);
    QObject::connect(&m_end, &QTimer::timeout, &m_end, [this] { finish(std::nullopt); });
    for (const std::unique_ptr<OutputShield>& shield : m_shields)
        shield->entered = [this](const QPointF& place) { finish(m_parts.screens.space().turned(place)); };
}

void WaylandDropSpotter::released(Found found)
{
    m_found = std::move(found);
    m_end.start();
}

void WaylandDropSpotter::finish(const std::optional<QPointF>& place)
{
    if (const Found found = std::exchange(m_found, nullptr))
        found(place);
}

} // namespace ambrelle
