// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/WindowContext.h"
#include "window/settings/SettingsSection.h"

namespace ambrelle {

class FocusTimer;

/// The focus timer, its lengths and its sound.
class FocusSection final : public SettingsSection {
public:
    explicit FocusSection(const WindowContext& context, QWidget* parent = nullptr);

private:
    void addTimer();
    void addLengths();
    void showTimer();

    FocusTimer& m_timer;
    const Clock& m_clock;
    Button* m_toggle = nullptr;
    SettingsRow* m_row = nullptr;
};

} // namespace ambrelle
