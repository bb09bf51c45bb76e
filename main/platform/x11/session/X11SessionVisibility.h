// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Wording.h"
#include "platform/SessionVisibility.h"
#include "platform/x11/connection/RootWatch.h"

namespace ambrelle {

/// Whether the X server's screen saver has blanked the screen, on its own account or for a program.
class X11SessionVisibility final : public SessionVisibility {
public:
    /// Before this the screen counts as visible. The watch must be open and outlive this object.
    void attach(const RootWatch& watch)
    {
        m_watch = &watch;
        connect(m_watch, &RootWatch::blankedChanged, this, &SessionVisibility::changed);
        if (!isVisible())
            Q_EMIT changed();
    }

    bool isAvailable() const override { return m_watch != nullptr; }
    QString whyNot() const override
    {
        return m_watch ? QString() : Wording::tr("The X server takes no further connection.");
    }
    bool isVisible() const override { return !m_watch || !m_watch->isBlanked(); }

private:
    const RootWatch* m_watch = nullptr;
};

} // namespace ambrelle
