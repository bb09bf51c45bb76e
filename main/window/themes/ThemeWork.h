// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/MainWindowModel.h"

namespace ambrelle {

/// What can be done to the desktop with a theme.
enum class ThemeOperation { applyWithWallpaper, applyKeepingWallpaper, setWallpaper };

/// What is being done with one.
struct ThemeWork {
    ThemeChoice theme;
    ThemeOperation operation = ThemeOperation::applyWithWallpaper;

    bool operator==(const ThemeWork&) const = default;
};

} // namespace ambrelle
