// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace ambrelle {

/// Whether the environment names a display to show windows on, be there one or not.
inline bool namesDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace ambrelle
