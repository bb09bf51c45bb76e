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
    for (QScreen* screen : LayerPlace::usableScreens()) {
        m_shields.push_back(std::make_unique<OutputShield>(m_parts, *screen, ShellLayer::top));
        m_shields.back()->pressed = [this] {
            if (const auto tell = clicked)
                tell();
        };
    }
}

} // namespace ambrelle
