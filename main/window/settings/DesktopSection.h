// SPDX-License-Identifier: MIT

#pragma once

#include "window/settings/SettingsSection.h"

namespace ambrelle {

/// How widgets stand on the desktop, and what moves there.
class DesktopSection final : public SettingsSection {
public:
    /// `edit` begins edit mode.
    DesktopSection(AppSettings& settings, std::function<void()> edit, QWidget* parent = nullptr);

private:
    void addWindows();
    void addWidgets(std::function<void()> edit);
    void addLook();
};

} // namespace ambrelle
