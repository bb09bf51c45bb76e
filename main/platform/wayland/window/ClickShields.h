// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/window/OutputShield.h"

#include <vector>

namespace ambrelle {

/// Surfaces that nobody sees, one over each output below the overlay layer: a click beside an open menu comes here,
/// since no compositor tells of clicks in windows of others.
class ClickShields {
public:
    explicit ClickShields(WaylandParts& parts);
    ~ClickShields();
    Q_DISABLE_COPY_MOVE(ClickShields)

    void setRaised(bool raised);

    std::function<void()> clicked;

private:
    WaylandParts& m_parts;
    std::vector<std::unique_ptr<OutputShield>> m_shields;
};

} // namespace ambrelle
