// SPDX-License-Identifier: MIT

#include "support/wayland/VirtualInput.h"

#include <virtual-keyboard-unstable-v1-client-protocol.h>
#include <wayland-client.h>
#include <wlr-virtual-pointer-unstable-v1-client-protocol.h>

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstring>
#include <string_view>

namespace ambrelle::test {

using namespace Qt::StringLiterals;

namespace {

// An ordinary keyboard; the compositor knows the parts by name.
constexpr char keymap[] = R"map(xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwerty)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+us+inet(evdev)" };
};)map";

struct Key {
    uint32_t code = 0;
    uint32_t modifier = 0; ///< its bit in that map
};

const QHash<QString, Key>& keys()
{
    static const QHash<QString, Key> keys = [] {
        QHash<QString, Key> named{
            {u"escape"_s, {KEY_ESC}},
            {u"return"_s, {KEY_ENTER}},
            {u"tab"_s, {KEY_TAB}},
            {u"space"_s, {KEY_SPACE}},
            {u"backspace"_s, {KEY_BACKSPACE}},
            {u"delete"_s, {KEY_DELETE}},
            {u"left"_s, {KEY_LEFT}},
            {u"right"_s, {KEY_RIGHT}},
            {u"up"_s, {KEY_UP}},
            {u"down"_s, {KEY_DOWN}},
            {u"shift"_s, {KEY_LEFTSHIFT, 1U << 0}},
            {u"control"_s, {KEY_LEFTCTRL, 1U << 2}},
            {u"alt"_s, {KEY_LEFTALT, 1U << 3}},
            {u"super"_s, {KEY_LEFTMETA, 1U << 6}},
        };
        const auto add = [&named](const QString& letters, uint32_t first) {
            for (const QChar letter : letters)
                named.insert(letter, {first++});
        };
        add(u"1234567890"_s, KEY_1);
        add(u"qwertyuiop"_s, KEY_Q);
        add(u"asdfghjkl"_s, KEY_A);
        add(u"zxcvbnm,."_s, KEY_Z);
        return named;
    }();
    return keys;
}

uint32_t codeOf(Qt::MouseButton button)
{
    switch (button) {
    case Qt::RightButton: return BTN_RIGHT;
    case Qt::MiddleButton: return BTN_MIDDLE;
    default: return BTN_LEFT;
    }
}

uint32_t now()
{
    using namespace std::chrono;
    return static_cast<uint32_t>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

} // namespace

struct VirtualInput::Devices {
    wl_display* display = wl_display_connect(nullptr);
    wl_registry* registry = nullptr;
    wl_seat* seat = nullptr;
    zwlr_virtual_pointer_manager_v1* pointers = nullptr;
    zwp_virtual_keyboard_manager_v1* keyboards = nullptr;
    zwlr_virtual_pointer_v1* pointer = nullptr;
    zwp_virtual_keyboard_v1* keyboard = nullptr;

    Devices() = default;
    Devices(const Devices&) = delete;
    Devices& operator=(const Devices&) = delete;
    ~Devices()
    {
        if (pointer)
            zwlr_virtual_pointer_v1_destroy(pointer);
        if (keyboard)
            zwp_virtual_keyboard_v1_destroy(keyboard);
        if (display) {
            wl_display_roundtrip(display);
            wl_display_disconnect(display);
        }
    }

    bool find()
    {
        if (!display)
            return false;
        static const wl_registry_listener listener{
            .global = [](void* self, wl_registry*, uint32_t name, const char* interface,
                          uint32_t) { static_cast<Devices*>(self)->take(name, interface); },
            .global_remove = [](void*, wl_registry*, uint32_t) {},
        };
        registry = wl_display_get_registry(display);
        wl_registry_add_listener(registry, &listener, this);
        wl_display_roundtrip(display);
        return seat && pointers && keyboards;
    }

    bool make()
    {
        pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(pointers, seat);
        keyboard = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(keyboards, seat);
        const int file = ::memfd_create("keymap", MFD_CLOEXEC);
        const bool written = ::write(file, keymap, sizeof keymap) == sizeof keymap;
        zwp_virtual_keyboard_v1_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, sizeof keymap);
        const bool read = wl_display_roundtrip(display) >= 0;
        ::close(file);
        return written && read;
    }

private:
    void take(uint32_t name, std::string_view interface)
    {
        if (interface == wl_seat_interface.name && !seat)
            seat = bind<wl_seat>(name, wl_seat_interface);
        else if (interface == zwlr_virtual_pointer_manager_v1_interface.name)
            pointers = bind<zwlr_virtual_pointer_manager_v1>(name, zwlr_virtual_pointer_manager_v1_interface);
        else if (interface == zwp_virtual_keyboard_manager_v1_interface.name)
            keyboards = bind<zwp_virtual_keyboard_manager_v1>(name, zwp_virtual_keyboard_manager_v1_interface);
    }
    template <typename T> T* bind(uint32_t name, const wl_interface& interface) const
    {
        return static_cast<T*>(wl_registry_bind(registry, name, &interface, 1));
    }
};

std::unique_ptr<VirtualInput> VirtualInput::plugIn()
{
    auto devices = std::make_unique<Devices>();
    if (!devices->find() || !devices->make())
        return nullptr;
    return std::unique_ptr<VirtualInput>(new VirtualInput(std::move(devices)));
}

VirtualInput::VirtualInput(std::unique_ptr<Devices> devices)
    : m_devices(std::move(devices))
{
}

VirtualInput::~VirtualInput() = default;

void VirtualInput::move(const QPointF& point, const QRectF& outputs)
{
    constexpr double parts = 256; // of a point
    const auto part = [](double length) { return static_cast<uint32_t>(std::lround(length * parts)); };
    const QPointF within = point - outputs.topLeft();
    zwlr_virtual_pointer_v1_motion_absolute(
        m_devices->pointer, now(), part(within.x()), part(within.y()), part(outputs.width()), part(outputs.height()));
    done();
}

void VirtualInput::moveBy(const QPointF& way)
{
    zwlr_virtual_pointer_v1_motion(
        m_devices->pointer, now(), wl_fixed_from_double(way.x()), wl_fixed_from_double(way.y()));
    done();
}

void VirtualInput::setButton(Qt::MouseButton button, bool down)
{
    zwlr_virtual_pointer_v1_button(m_devices->pointer, now(), codeOf(button),
        down ? WL_POINTER_BUTTON_STATE_PRESSED : WL_POINTER_BUTTON_STATE_RELEASED);
    done();
}

void VirtualInput::scroll(double steps)
{
    constexpr double pointsOfStep = 15;
    zwlr_virtual_pointer_v1_axis_source(m_devices->pointer, WL_POINTER_AXIS_SOURCE_WHEEL);
    zwlr_virtual_pointer_v1_axis_discrete(m_devices->pointer, now(), WL_POINTER_AXIS_VERTICAL_SCROLL,
        wl_fixed_from_double(steps * pointsOfStep), static_cast<int32_t>(std::lround(steps)));
    done();
}

bool VirtualInput::setKey(const QString& name, bool down)
{
    const auto key = keys().constFind(name);
    if (key == keys().constEnd())
        return false;
    zwp_virtual_keyboard_v1_key(
        m_devices->keyboard, now(), key->code, down ? WL_KEYBOARD_KEY_STATE_PRESSED : WL_KEYBOARD_KEY_STATE_RELEASED);
    if (key->modifier != 0) {
        m_modifiers = down ? m_modifiers | key->modifier : m_modifiers & ~key->modifier;
        zwp_virtual_keyboard_v1_modifiers(m_devices->keyboard, m_modifiers, 0, 0, 0);
    }
    rest();
    return true;
}

void VirtualInput::done()
{
    zwlr_virtual_pointer_v1_frame(m_devices->pointer);
    rest();
}

void VirtualInput::rest()
{
    wl_display_roundtrip(m_devices->display);
}

} // namespace ambrelle::test
