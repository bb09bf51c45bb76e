// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/WindowContext.h"
#include "window/settings/SettingsSection.h"

namespace ambrelle {

/// What the program is, where it keeps its files, and the way back to how everything was at first.
class AboutSection final : public SettingsSection {
public:
    explicit AboutSection(const WindowContext& context, QWidget* parent = nullptr);

private:
    void addMark();
    void addTexts();
    void addFolders();
    void addReset();
    void reset();

    WindowContext m_with;
};

} // namespace ambrelle
