// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"
#include "window/frame/WindowContext.h"
#include "window/settings/SettingsSection.h"

namespace ambrelle {

/// Whether there is a newer version, how it is taken in, and what happens unasked; where this program updates itself.
class UpdatesSection final : public SettingsSection {
public:
    explicit UpdatesSection(const WindowContext& context, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void addStatus(const QString& version);
    void addSwitches();
    void showStatus();

    Updater& m_updater;
    Clock& m_clock;
    SettingsRow* m_row = nullptr;
    Button* m_install = nullptr;
    Button* m_check = nullptr;
    QWidget* m_progress = nullptr;
    Ticket m_minutes; // the status counts them
};

} // namespace ambrelle
