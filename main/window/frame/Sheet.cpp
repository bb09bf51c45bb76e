// SPDX-License-Identifier: MIT

#include "window/frame/Sheet.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

bool SheetContent::hasCancel() const
{
    return std::ranges::any_of(
        buttons, [](const SheetButton& button) { return button.role == SheetButton::Role::cancel; });
}

const SheetButton* SheetContent::standard() const
{
    const bool dangerous = std::ranges::any_of(
        buttons, [](const SheetButton& button) { return button.role == SheetButton::Role::danger; });
    const auto wanted = dangerous ? SheetButton::Role::cancel : SheetButton::Role::action;
    const auto found = std::ranges::find(buttons, wanted, &SheetButton::role);
    return found == buttons.end() ? nullptr : &*found;
}

void SheetQueue::ask(SheetContent content, Answered answered)
{
    m_asked.push_back({std::move(content), std::move(answered)});
    if (m_asked.size() == 1)
        Q_EMIT changed();
}

const SheetContent* SheetQueue::current() const
{
    return m_asked.empty() ? nullptr : &m_asked.front().content;
}

void SheetQueue::answer(const SheetAnswer& answer)
{
    if (m_asked.empty())
        return;
    const Asked asked = std::move(m_asked.front());
    m_asked.pop_front();
    Q_EMIT changed();
    if (asked.answered)
        asked.answered(answer);
}

void SheetQueue::leave()
{
    std::deque<Asked> left;
    std::deque<Asked> kept;
    for (Asked& asked : std::exchange(m_asked, {})) {
        if (left.empty() || asked.content.hasCancel())
            left.push_back(std::move(asked));
        else
            kept.push_back(std::move(asked));
    }
    m_asked = std::move(kept);
    if (left.empty())
        return;
    Q_EMIT changed();
    for (const Asked& asked : left) {
        if (asked.answered)
            asked.answered({});
    }
}

} // namespace ambrelle
