// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

namespace ambrelle {

/// Whether the desktop is in its light or its dark appearance; light while nothing tells it.
class SystemAppearance : public Port {
public:
    virtual bool isDark() const = 0; ///< changed() tells of another answer, and when the answer becomes known
};

} // namespace ambrelle
