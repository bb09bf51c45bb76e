// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/window/OutputShield.h"
#include "platform/WindowHost.h"

#include <vector>

namespace ambrelle {

/// While a button is held the compositor tells the pointer's places from the corner of the window that it was pressed
/// in, and nobody tells where that is. With the button up the pointer comes to whatever lies below it: a shield, whose
/// place is known.
class WaylandDropSpotter final : public DropSpotter {
public:
    explicit WaylandDropSpotter(WaylandParts& parts);

    void released(Found found) override;

private:
    void finish(const std::optional<QPointF>& place);

    WaylandParts& m_parts;
    Found m_found;
    QTimer m_end;
    std::vector<std::unique_ptr<OutputShield>> m_shields;
};

} // namespace ambrelle
