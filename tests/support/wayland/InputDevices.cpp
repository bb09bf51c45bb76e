// SPDX-License-Identifier: MIT

#include "support/wayland/InputDevices.h"

#include <kde-fake-input-client-protocol.h>
#include <virtual-keyboard-unstable-v1-client-protocol.h>
#include <wayland-client.h>
#include <wlr-virtual-pointer-unstable-v1-client-protocol.h>

#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <string_view>

namespace ambrelle::test {

namespace {

// An ordinary keyboard; the compositor knows the parts by name.
constexpr char keymap[] = R"map(xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwerty)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+us+inet(evdev)" };
};)map";

constexpr double pointsOfStep = 15; ///< of a wheel

uint32_t now()
{
    using namespace std::chrono;
    return static_cast<uint32_t>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

/// A connection of its own, and what the compositor offers.
struct Offers {
    wl_display* display = wl_display_connect(nullptr);
    wl_registry* registry = nullptr;
    wl_seat* seat = nullptr;
    zwlr_virtual_pointer_manager_v1* pointers = nullptr;
    zwp_virtual_keyboard_manager_v1* keyboards = nullptr;
    org_kde_kwin_fake_input* fake = nullptr;

    Offers()
    {
        if (!display)
            return;
        static const wl_registry_listener listener{
            .global = [](void* self, wl_registry*, uint32_t name, const char* interface,
                          uint32_t) { static_cast<Offers*>(self)->take(name, interface); },
            .global_remove = [](void*, wl_registry*, uint32_t) {},
        };
        registry = wl_display_get_registry(display);
        wl_registry_add_listener(registry, &listener, this);
        wl_display_roundtrip(display);
    }
    Offers(const Offers&) = delete;
    Offers& operator=(const Offers&) = delete;
    ~Offers()
    {
        if (!display)
            return;
        wl_display_roundtrip(display);
        wl_display_disconnect(display);
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
        else if (interface == org_kde_kwin_fake_input_interface.name)
            fake = bind<org_kde_kwin_fake_input>(name, org_kde_kwin_fake_input_interface, 4);
    }
    template <typename T> T* bind(uint32_t name, const wl_interface& interface, uint32_t version = 1) const
    {
        return static_cast<T*>(wl_registry_bind(registry, name, &interface, version));
    }
};

class WlrootsDevices final : public InputDevices {
public:
    explicit WlrootsDevices(std::unique_ptr<Offers> offers)
        : m_offers(std::move(offers))
        , m_pointer(zwlr_virtual_pointer_manager_v1_create_virtual_pointer(m_offers->pointers, m_offers->seat))
    {
        // Some compositors have no seat before they have a device.
        wl_display_roundtrip(m_offers->display);
        wl_display_roundtrip(m_offers->display);
        if (!m_offers->seat)
            return;
        m_keyboard = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(m_offers->keyboards, m_offers->seat);
        const int file = ::memfd_create("keymap", MFD_CLOEXEC);
        m_isComplete = ::write(file, keymap, sizeof keymap) == sizeof keymap;
        zwp_virtual_keyboard_v1_keymap(m_keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, sizeof keymap);
        m_isComplete = wl_display_roundtrip(m_offers->display) >= 0 && m_isComplete;
        ::close(file);
    }
    ~WlrootsDevices() override
    {
        zwlr_virtual_pointer_v1_destroy(m_pointer);
        if (m_keyboard)
            zwp_virtual_keyboard_v1_destroy(m_keyboard);
    }

    bool isComplete() const { return m_isComplete; }

    void move(const QPointF& point, const QRectF& outputs) override
    {
        constexpr double parts = 256; // of a point
        const auto part = [](double length) { return static_cast<uint32_t>(std::lround(length * parts)); };
        const QPointF within = point - outputs.topLeft();
        zwlr_virtual_pointer_v1_motion_absolute(
            m_pointer, now(), part(within.x()), part(within.y()), part(outputs.width()), part(outputs.height()));
        done();
    }
    void moveBy(const QPointF& way) override
    {
        zwlr_virtual_pointer_v1_motion(m_pointer, now(), wl_fixed_from_double(way.x()), wl_fixed_from_double(way.y()));
        done();
    }
    void setButton(uint32_t code, bool down) override
    {
        zwlr_virtual_pointer_v1_button(
            m_pointer, now(), code, down ? WL_POINTER_BUTTON_STATE_PRESSED : WL_POINTER_BUTTON_STATE_RELEASED);
        done();
    }
    void scroll(double steps) override
    {
        zwlr_virtual_pointer_v1_axis_source(m_pointer, WL_POINTER_AXIS_SOURCE_WHEEL);
        zwlr_virtual_pointer_v1_axis_discrete(m_pointer, now(), WL_POINTER_AXIS_VERTICAL_SCROLL,
            wl_fixed_from_double(steps * pointsOfStep), static_cast<int32_t>(std::lround(steps)));
        done();
    }
    void setKey(uint32_t code, bool down) override
    {
        zwp_virtual_keyboard_v1_key(
            m_keyboard, now(), code, down ? WL_KEYBOARD_KEY_STATE_PRESSED : WL_KEYBOARD_KEY_STATE_RELEASED);
    }
    void setModifiers(uint32_t held) override { zwp_virtual_keyboard_v1_modifiers(m_keyboard, held, 0, 0, 0); }
    void rest() override { wl_display_roundtrip(m_offers->display); }

private:
    void done()
    {
        zwlr_virtual_pointer_v1_frame(m_pointer);
        rest();
    }

    std::unique_ptr<Offers> m_offers;
    zwlr_virtual_pointer_v1* m_pointer;
    zwp_virtual_keyboard_v1* m_keyboard = nullptr;
    bool m_isComplete = false;
};

/// As KWin has them; it knows modifiers by their keys.
class KdeDevices final : public InputDevices {
public:
    explicit KdeDevices(std::unique_ptr<Offers> offers)
        : m_offers(std::move(offers))
    {
        org_kde_kwin_fake_input_authenticate(m_offers->fake, "tests", "to point and to type");
        rest();
    }

    void move(const QPointF& point, const QRectF&) override
    {
        org_kde_kwin_fake_input_pointer_motion_absolute(
            m_offers->fake, wl_fixed_from_double(point.x()), wl_fixed_from_double(point.y()));
        rest();
    }
    void moveBy(const QPointF& way) override
    {
        org_kde_kwin_fake_input_pointer_motion(
            m_offers->fake, wl_fixed_from_double(way.x()), wl_fixed_from_double(way.y()));
        rest();
    }
    void setButton(uint32_t code, bool down) override
    {
        org_kde_kwin_fake_input_button(
            m_offers->fake, code, down ? WL_POINTER_BUTTON_STATE_PRESSED : WL_POINTER_BUTTON_STATE_RELEASED);
        rest();
    }
    void scroll(double steps) override
    {
        org_kde_kwin_fake_input_axis(
            m_offers->fake, WL_POINTER_AXIS_VERTICAL_SCROLL, wl_fixed_from_double(steps * pointsOfStep));
        rest();
    }
    void setKey(uint32_t code, bool down) override
    {
        org_kde_kwin_fake_input_keyboard_key(
            m_offers->fake, code, down ? WL_KEYBOARD_KEY_STATE_PRESSED : WL_KEYBOARD_KEY_STATE_RELEASED);
    }
    void setModifiers(uint32_t) override { }
    void rest() override { wl_display_roundtrip(m_offers->display); }

private:
    std::unique_ptr<Offers> m_offers;
};

} // namespace

std::unique_ptr<InputDevices> InputDevices::plugIn()
{
    auto offers = std::make_unique<Offers>();
    if (!offers->display)
        return nullptr;
    if (offers->fake)
        return std::make_unique<KdeDevices>(std::move(offers));
    if (!offers->pointers || !offers->keyboards)
        return nullptr;
    auto devices = std::make_unique<WlrootsDevices>(std::move(offers));
    return devices->isComplete() ? std::move(devices) : nullptr;
}

} // namespace ambrelle::test
