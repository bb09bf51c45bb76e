// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/DesktopWallpaper.h"
#include "window/frame/WindowContext.h"

namespace ambrelle {

/// Brings back what the screens showed; a failure is told, and can be tried again.
void giveBack(const WindowContext& context, const DesktopWallpaper::Memory& memory);

/// Brings back the picture that the user had before the program set one, and offers to undo that. `settled` gets the
/// sentence that tells why it did not work, which is shown already; empty when it did.
void bringBackPrevious(const WindowContext& context, const DesktopWallpaper::Done& settled);

} // namespace ambrelle
