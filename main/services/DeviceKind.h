// SPDX-License-Identifier: MIT

#pragma once

#include "model/RawEnum.h"

namespace ambrelle {

/// What an accessory is.
enum class DeviceKind { mac, headphones, earbuds, keyboard, mouse, trackpad, controller, speaker, other };

struct DeviceKindRow {
    DeviceKind value;
    QLatin1StringView raw;
    QLatin1StringView symbol;
};

namespace tables {
using namespace Qt::StringLiterals;
inline constexpr std::array deviceKindRows = std::to_array<DeviceKindRow>({
    {DeviceKind::mac, "mac"_L1, "laptopcomputer"_L1},
    {DeviceKind::headphones, "headphones"_L1, "headphones"_L1},
    {DeviceKind::earbuds, "earbuds"_L1, "airpodspro"_L1},
    {DeviceKind::keyboard, "keyboard"_L1, "keyboard"_L1},
    {DeviceKind::mouse, "mouse"_L1, "magicmouse"_L1},
    {DeviceKind::trackpad, "trackpad"_L1, "rectangle.and.hand.point.up.left"_L1},
    {DeviceKind::controller, "controller"_L1, "gamecontroller"_L1},
    {DeviceKind::speaker, "speaker"_L1, "hifispeaker"_L1},
    {DeviceKind::other, "other"_L1, "dot.radiowaves.left.and.right"_L1},
});
} // namespace tables

template <> inline constexpr auto rawRows<DeviceKind> = tables::deviceKindRows;

/// The kind that the words of a device's name and of its source's minor type tell; the most telling words win.
DeviceKind kindOf(const QString& name, const QString& minorType);

} // namespace ambrelle
