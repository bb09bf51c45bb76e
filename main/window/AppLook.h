// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>

namespace ambrelle {

/// The colours of menus and windows in the desktop's light or dark appearance; every text on its ground is at least
/// 4.5 : 1.
QPalette appPalette(bool dark);

/// Gives menus and windows, the open ones too, the program's style and font and those colours.
void applyAppLook(bool dark);

} // namespace ambrelle
