// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

namespace ambrelle {

/// Whether the desktop has a place for tray items.
class TrayPresence : public Port {
    Q_OBJECT
public:
    /// Begins to look, without blocking; appeared() comes later if there is a place, or as soon as there is.
    virtual void start() = 0;

Q_SIGNALS:
    void appeared(); ///< also of a place that takes the place of another
};

} // namespace ambrelle
