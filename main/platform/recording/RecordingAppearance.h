// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemAppearance.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

/// The appearance a test sets; light in the beginning.
class RecordingAppearance final : public SystemAppearance {
public:
    bool isAvailable() const override { return m_known; }
    QString whyNot() const override { return m_known ? QString() : u"The test has not told it."_s; }
    bool isDark() const override { return m_dark; }

    void setUnknown() { m_known = m_dark = false; } ///< until setDark(); nobody is told
    void setDark(bool dark) ///< tells changed() if it differs or was not known
    {
        if (m_known && m_dark == dark)
            return;
        m_known = true;
        m_dark = dark;
        Q_EMIT changed();
    }

private:
    bool m_known = true;
    bool m_dark = false;
};

} // namespace ambrelle
