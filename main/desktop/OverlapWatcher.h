// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"

#include <QList>
#include <QObject>

namespace ambrelle {

class AppSettings;
class Clock;
class SceneController;
class SessionVisibility;
class WidgetController;
class WindowList;
struct OnscreenWindow;

/// Sees to it that raised widgets give way to the windows they lie over, and that nothing moves on a widget or in a
/// scene nobody sees. Watches windows only while that matters.
class OverlapWatcher : public QObject {
public:
    struct Senses {
        WindowList& windows;
        SessionVisibility& session;
    };

    /// `widgets` may change; update() follows.
    OverlapWatcher(const Senses& senses, const AppSettings& settings, Clock& clock,
        const QList<WidgetController*>& widgets, const SceneController& scenes);

    /// After any change of the widgets and the scenes behind them, of where they are, or of what the settings say about
    /// them: starts or stops watching, and restores widgets that need no watching.
    void update();
    void check(); ///< looks at the windows of now; does nothing while their list cannot be had

private:
    bool mayFade() const;
    bool mayPause() const;
    void judge(const QList<OnscreenWindow>& windows); ///< of all that count

    Senses m_senses;
    const AppSettings& m_settings;
    Clock& m_clock;
    const QList<WidgetController*>& m_widgets;
    const SceneController& m_scenes;
    bool m_watching = false;
    Ticket m_soon;
    Ticket m_again;
};

} // namespace ambrelle
