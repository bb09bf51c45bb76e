// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/WindowContext.h"
#include "window/settings/SettingsSection.h"

class QCheckBox;

namespace ambrelle {

/// How the program starts, what new widgets look like, and what happens every while.
class GeneralSection final : public SettingsSection {
public:
    explicit GeneralSection(const WindowContext& context, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addLogin();
    void addWindowSystem(const ProgramFacts& facts);
    void addSkins();
    void addPeriods();
    void startAtLogin(bool wanted);
    void showLogin();

    LoginItem& m_login;
    SheetQueue& m_sheets;
    QCheckBox* m_loginSwitch = nullptr;
    SettingsRow* m_loginRow = nullptr;
};

} // namespace ambrelle
