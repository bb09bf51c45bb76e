// SPDX-License-Identifier: MIT

#include "support/wayland/VirtualInput.h"

#include <QHash>

#include <linux/input-event-codes.h>

#include <utility>

namespace ambrelle::test {

using namespace Qt::StringLiterals;

namespace {

struct Key {
    uint32_t code = 0;
    uint32_t modifier = 0; ///< its bit in the keymap
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

} // namespace

std::unique_ptr<VirtualInput> VirtualInput::plugIn()
{
    std::unique_ptr<InputDevices> devices = InputDevices::plugIn();
    return devices ? std::unique_ptr<VirtualInput>(new VirtualInput(std::move(devices))) : nullptr;
}

VirtualInput::VirtualInput(std::unique_ptr<InputDevices> devices)
    : m_devices(std::move(devices))
{
}

VirtualInput::~VirtualInput() = default;

bool VirtualInput::setKey(const QString& name, bool down)
{
    const auto key = keys().constFind(name);
    if (key == keys().constEnd())
        return false;
    m_devices->setKey(key->code, down);
    if (key->modifier != 0) {
        m_modifiers = down ? m_modifiers | key->modifier : m_modifiers & ~key->modifier;
        m_devices->setModifiers(m_modifiers);
    }
    m_devices->rest();
    return true;
}

void VirtualInput::setButton(Qt::MouseButton button, bool down)
{
    m_devices->setButton(codeOf(button), down);
}

} // namespace ambrelle::test
