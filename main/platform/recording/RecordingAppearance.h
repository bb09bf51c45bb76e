// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemAppearance.h"

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// The appearance a test sets; light in the beginning.
class RecordingAppearance final : public SystemAppearance {
public:
    bool isAvailable() const override { return m_known; }
    QString whyNot() const override { return m_known ? QString() : u"The test has not told it."_s; }
    bool isDark() const override { return m_dark; }
    bool contrast() const override { return m_contrast; }
    bool reducesMotion() const override { return m_reducesMotion; }
    double textScale() const override { return m_textScale; }

    void setUnknown() { m_known = m_dark = false; } ///< until setDark(); nobody is told
    void setDark(bool dark) ///< tells changed() if it differs or was not known
    {
        if (m_known && m_dark == dark)
            return;
        m_known = true;
        m_dark = dark;
        Q_EMIT changed();
    }
    // These tell changed() if the value differs.
    void setContrast(bool contrast) { change(m_contrast, contrast); }
    void setReducesMotion(bool reduces) { change(m_reducesMotion, reduces); }
    void setTextScale(double scale) { change(m_textScale, scale); }

private:
    template <typename Value> void change(Value& value, Value now)
    {
        if (std::exchange(value, now) != now)
            Q_EMIT changed();
    }

    bool m_known = true;
    bool m_dark = false;
    bool m_contrast = false;
    bool m_reducesMotion = false;
    double m_textScale = 1;
};

} // namespace ambrelle
