// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetConfig.h"
#include "window/frame/MainWindowModel.h"

#include <QSet>

namespace ambrelle {

class WidgetManager;
class WindowHost;

/// Which themes the desktop shows: skins that most widgets of some screen have, and the saved desktop that was applied
/// last in this run, until a widget is added, removed or restyled.
class AppliedThemes final : public QObject {
    Q_OBJECT
public:
    /// Both outlive this.
    AppliedThemes(WidgetManager& manager, WindowHost& host);

    bool isOnDesktop(const ThemeChoice& theme) const;
    const std::optional<QUuid>& saved() const { return m_saved; }
    /// The widgets that are there now came from that saved desktop; none: from nowhere special.
    void note(const std::optional<QUuid>& theme);

Q_SIGNALS:
    void changed(); ///< once for all that changes together

private:
    void judgeLater();
    void judge();

    WidgetManager& m_manager;
    WindowHost& m_host;
    QSet<Skin> m_skins;
    std::optional<QUuid> m_saved;
    QList<WidgetConfig> m_placed; // of m_saved, without their places
    bool m_isJudging = false;
};

} // namespace ambrelle
