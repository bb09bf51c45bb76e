// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

namespace ambrelle {

/// Whether anybody can see the desktop: not while the screen is locked or blanked.
class SessionVisibility : public Port {
public:
    virtual bool isVisible() const = 0; ///< true while nothing says otherwise
};

} // namespace ambrelle
