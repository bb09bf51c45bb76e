// SPDX-License-Identifier: MIT

#pragma once

#include "window/settings/SettingsSection.h"

namespace ambrelle {

/// How widgets stand on the desktop, and what moves there.
class DesktopSection final : public SettingsSection {
public:
    /// `whyNeverCovered`: why this desktop has no window that covers a widget; empty where it has. `edit` begins edit
    /// mode.
    DesktopSection(
        AppSettings& settings, const QString& whyNeverCovered, std::function<void()> edit, QWidget* parent = nullptr);

private:
    void addWindows(const QString& whyNeverCovered);
    void addWidgets(std::function<void()> edit);
    void addLook();
};

} // namespace ambrelle
