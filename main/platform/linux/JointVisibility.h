// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SessionVisibility.h"

#include <QList>

#include <algorithm>
#include <utility>

namespace ambrelle {

/// What the buses tell and what the window system tells: visible while no part says otherwise. The parts must outlive
/// it.
class JointVisibility final : public SessionVisibility {
public:
    explicit JointVisibility(const QList<const SessionVisibility*>& parts)
        : m_parts(parts)
    {
        for (const SessionVisibility* part : m_parts)
            connect(part, &SessionVisibility::changed, this, &JointVisibility::compare);
        m_told = isVisible();
    }

    bool isAvailable() const override
    {
        return std::ranges::any_of(m_parts, [](const SessionVisibility* part) { return part->isAvailable(); });
    }
    QString whyNot() const override
    {
        return isAvailable() || m_parts.isEmpty() ? QString() : m_parts.first()->whyNot();
    }
    bool isVisible() const override
    {
        return std::ranges::all_of(m_parts, [](const SessionVisibility* part) { return part->isVisible(); });
    }

private:
    void compare()
    {
        const bool visible = isVisible();
        if (std::exchange(m_told, visible) != visible)
            Q_EMIT changed();
    }

    QList<const SessionVisibility*> m_parts;
    bool m_told = true;
};

} // namespace ambrelle
