// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/WaylandConnection.h"

namespace ambrelle {

/// The number that the compositor gave to the last press of a button in one of this program's surfaces: shows that the
/// user asked for what is done next.
class InputSerial {
public:
    explicit InputSerial(const WaylandConnection& connection);

    wl_seat* seat() const { return m_seat.get(); } ///< null where there is none
    uint32_t last() const { return m_last; } ///< 0 before the first

private:
    void listenToPointer(bool there);

    Handle<wl_seat> m_seat;
    Handle<wl_pointer> m_pointer;
    uint32_t m_last = 0;
};

} // namespace ambrelle
