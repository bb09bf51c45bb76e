// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

namespace ambrelle {

/// How the desktop wants windows to look; light and plain while nothing tells it. changed() tells of every other
/// answer, and when the appearance becomes known.
class SystemAppearance : public Port {
public:
    virtual bool isDark() const = 0;
    virtual bool contrast() const { return false; } ///< higher than usual
    virtual bool reducesMotion() const { return false; } ///< nothing shall move that need not
    /// How much larger than usual texts shall be beyond what the resolution of the screen asks for, 1 to 1.5.
    virtual double textScale() const { return 1; }
};

} // namespace ambrelle
