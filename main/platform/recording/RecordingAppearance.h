// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemAppearance.h"

namespace ambrelle {

/// The appearance a test sets.
class RecordingAppearance final : public SystemAppearance {
public:
    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    bool isDark() const override { return m_dark; }

    void setDark(bool dark) ///< tells changed() if it differs
    {
        if (m_dark == dark)
            return;
        m_dark = dark;
        Q_EMIT changed();
    }

private:
    bool m_dark = false;
};

} // namespace ambrelle
