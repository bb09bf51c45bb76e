// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SessionVisibility.h"

#include <utility>

namespace ambrelle {

/// A screen that a test locks and unlocks.
class RecordingSessionVisibility final : public SessionVisibility {
public:
    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    bool isVisible() const override { return m_visible; }

    void setVisible(bool visible)
    {
        if (std::exchange(m_visible, visible) != visible)
            Q_EMIT changed();
    }

private:
    bool m_visible = true;
};

} // namespace ambrelle
