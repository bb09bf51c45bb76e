// SPDX-License-Identifier: MIT

#pragma once

struct wl_display;
struct wl_output;
struct wl_surface;
class QScreen;
class QWindow;

namespace ambrelle {

/// What the toolkit has of the compositor. Null where it does not run on one, or has none.
wl_display* toolkitDisplay();
wl_output* toolkitOutput(QScreen* screen);
wl_surface* toolkitSurface(QWindow* window); ///< only while the window is shown, or just made and never shown

} // namespace ambrelle
