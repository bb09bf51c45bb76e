// SPDX-License-Identifier: MIT

#pragma once

#include "window/popover/SettingsPopover.h"

#include <QObject>
#include <QPointer>

namespace ambrelle {

class SystemAppearance;
class WidgetManager;
class WindowHost;

/// Opens the settings of the widget that asks for them, one at a time.
class WidgetSettings final : public QObject {
public:
    /// All of them outlive this.
    struct Collaborators {
        WidgetManager& manager;
        const WindowHost& host;
        const SystemAppearance& appearance;
        const Clock& clock;
    };

    explicit WidgetSettings(const Collaborators& collaborators, QObject* parent = nullptr);
    ~WidgetSettings() override;

    void open(WidgetController& widget);
    SettingsPopover* popover() const { return m_popover; } ///< the open one

private:
    Collaborators m_with;
    QPointer<SettingsPopover> m_popover;
};

} // namespace ambrelle
