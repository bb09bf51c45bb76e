// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/window/WaylandParts.h"

#include <functional>
#include <memory>
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
    class Shield;

    WaylandParts& m_parts;
    std::vector<std::unique_ptr<Shield>> m_shields;
};

} // namespace ambrelle
