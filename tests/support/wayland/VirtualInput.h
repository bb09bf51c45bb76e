// SPDX-License-Identifier: MIT

#pragma once

#include "support/wayland/InputDevices.h"

#include <QString>

namespace ambrelle::test {

/// A pointer and a keyboard of the compositor that a test moves and presses. The compositor has taken note of each step
/// when its call returns. Both are unplugged with the end of this object.
class VirtualInput {
public:
    /// At the compositor of the environment; null where it knows no such devices.
    static std::unique_ptr<VirtualInput> plugIn();
    ~VirtualInput();
    VirtualInput(const VirtualInput&) = delete;
    VirtualInput& operator=(const VirtualInput&) = delete;

    /// To a point of the area that all outputs lie in, as the compositor counts (y down).
    void move(const QPointF& point, const QRectF& outputs) { m_devices->move(point, outputs); }
    void moveBy(const QPointF& way) { m_devices->moveBy(way); }
    void press(Qt::MouseButton button = Qt::LeftButton) { setButton(button, true); }
    void release(Qt::MouseButton button = Qt::LeftButton) { setButton(button, false); }
    void scroll(double steps) { m_devices->scroll(steps); } ///< of a wheel; positive towards the user
    /// By name: a letter, a digit, "escape", "control" …; false where there is none of that name.
    bool setKey(const QString& name, bool down);
    void rest() { m_devices->rest(); } ///< returns when the compositor has read everything

private:
    explicit VirtualInput(std::unique_ptr<InputDevices> devices);
    void setButton(Qt::MouseButton button, bool down);

    std::unique_ptr<InputDevices> m_devices;
    uint32_t m_modifiers = 0;
};

} // namespace ambrelle::test
