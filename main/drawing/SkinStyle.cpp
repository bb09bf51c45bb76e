// SPDX-License-Identifier: MIT

#include "drawing/SkinStyle.h"

#include "drawing/Colours.h"

namespace ambrelle {

QColor SkinStyle::accentText() const
{
    return legible(accent, ink, ground, 4.5);
}

} // namespace ambrelle
