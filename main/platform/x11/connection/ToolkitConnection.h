// SPDX-License-Identifier: MIT

#pragma once

#include <xcb/xcb.h>

namespace ambrelle {

/// The toolkit's own connection to the X server; null when it runs on something else.
xcb_connection_t* toolkitConnection();

/// The screen that the display's name asks for, 0 as a rule.
int toolkitScreen();

} // namespace ambrelle
