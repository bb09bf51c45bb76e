// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/WindowContext.h"
#include "window/settings/SettingsSection.h"

namespace ambrelle {

/// Whether newer versions are looked for, where it is known where.
class UpdatesSection final : public SettingsSection {
public:
    explicit UpdatesSection(const WindowContext& context, QWidget* parent = nullptr);

private:
    void addSwitches();
};

} // namespace ambrelle
