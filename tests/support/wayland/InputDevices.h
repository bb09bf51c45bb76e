// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRectF>

#include <cstdint>
#include <memory>

namespace ambrelle::test {

/// A compositor's own pointer and keyboard for programs; there are two protocols for them.
class InputDevices {
public:
    /// At the compositor of the environment; null where it knows no such devices.
    static std::unique_ptr<InputDevices> plugIn();

    InputDevices() = default;
    virtual ~InputDevices() = default;
    InputDevices(const InputDevices&) = delete;
    InputDevices& operator=(const InputDevices&) = delete;

    virtual void move(const QPointF& point, const QRectF& outputs) = 0;
    virtual void moveBy(const QPointF& way) = 0;
    virtual void setButton(uint32_t code, bool down) = 0; ///< as the kernel counts them
    virtual void scroll(double steps) = 0;
    virtual void setKey(uint32_t code, bool down) = 0; ///< likewise
    virtual void setModifiers(uint32_t held) = 0; ///< bits of the keymap
    virtual void rest() = 0; ///< returns when the compositor has read everything
};

} // namespace ambrelle::test
