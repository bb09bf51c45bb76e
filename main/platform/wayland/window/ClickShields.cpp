// SPDX-License-Identifier: MIT

#include "platform/wayland/window/ClickShields.h"

namespace ambrelle {

ClickShields::ClickShields(WaylandParts& parts)
    : m_parts(parts)
{
}

ClickShields::~ClickShields() = default;

void ClickShields::setRaised(bool raised)
{
    if (raised != m_shields.empty())
        return;
    m_shields.clear();
    if (!raised)
        return;
    m_shields = OutputShield::overAll(m_parts, ShellLayer::top);
    for (const std::unique_ptr<OutputShield>& shield : m_shields) {
        shield->pressed = [this] {
            if (const auto tell = clicked)
                tell();
        };
    }
}

} // namespace ambrelle
