// SPDX-License-Identifier: MIT

#include "platform/wayland/connection/InputSerial.h"

namespace ambrelle {

namespace {

constexpr uint32_t seatVersion = 1; // later ones have more events, all of which would have to be heard

} // namespace

InputSerial::InputSerial(const WaylandConnection& connection)
    : m_seat(connection.bind<wl_seat>(wl_seat_interface, seatVersion))
{
    static const wl_seat_listener listener{
        .capabilities =
            [](void* self, wl_seat*, uint32_t what) {
                static_cast<InputSerial*>(self)->listenToPointer((what & WL_SEAT_CAPABILITY_POINTER) != 0);
            },
        .name = [](void*, wl_seat*, const char*) {},
    };
    if (m_seat)
        wl_seat_add_listener(m_seat.get(), &listener, this);
}

void InputSerial::listenToPointer(bool there)
{
    static const wl_pointer_listener listener{
        .enter = [](void*, wl_pointer*, uint32_t, wl_surface*, wl_fixed_t, wl_fixed_t) {},
        .leave = [](void*, wl_pointer*, uint32_t, wl_surface*) {},
        .motion = [](void*, wl_pointer*, uint32_t, wl_fixed_t, wl_fixed_t) {},
        .button = [](void* self, wl_pointer*, uint32_t serial, uint32_t, uint32_t,
                      uint32_t) { static_cast<InputSerial*>(self)->m_last = serial; },
        .axis = [](void*, wl_pointer*, uint32_t, uint32_t, wl_fixed_t) {},
        .frame = [](void*, wl_pointer*) {},
        .axis_source = [](void*, wl_pointer*, uint32_t) {},
        .axis_stop = [](void*, wl_pointer*, uint32_t, uint32_t) {},
        .axis_discrete = [](void*, wl_pointer*, uint32_t, int32_t) {},
    };
    m_pointer.reset(there ? wl_seat_get_pointer(m_seat.get()) : nullptr);
    if (m_pointer)
        wl_pointer_add_listener(m_pointer.get(), &listener, this);
}

} // namespace ambrelle
