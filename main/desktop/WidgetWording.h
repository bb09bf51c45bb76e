// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Wording.h"

namespace ambrelle {

/// What the things that can be done with a widget are called, in its menu and to assistive technology.
namespace WidgetWording {

inline QString settings()
{
    return Wording::tr("Widget Settings…");
}

inline QString size()
{
    return Wording::tr("Size");
}

inline QString pin(bool pinned)
{
    return pinned ? Wording::tr("Unpin") : Wording::tr("Pin Above Windows");
}

inline QString remove()
{
    return Wording::tr("Remove Widget");
}

} // namespace WidgetWording

} // namespace ambrelle
