// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetOptions.h"

namespace ambrelle {

/// By what windows are shown, from the next start on; `automatic` is the best there is.
enum class WindowSystem { automatic, wayland, x11 };

namespace tables {
inline constexpr std::array windowSystemRows = std::to_array<TitledRow<WindowSystem>>({
    {WindowSystem::automatic, "automatic"_L1, QT_TRANSLATE_NOOP("ambrelle", "Automatic")},
    {WindowSystem::wayland, "wayland"_L1, "Wayland"},
    {WindowSystem::x11, "x11"_L1, "X11"},
});
} // namespace tables

template <> inline constexpr auto rawRows<WindowSystem> = tables::windowSystemRows;

} // namespace ambrelle
