// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/ScreenScene.h"
#include "model/WidgetConfig.h"

#include <QObject>

#include <vector>

namespace ambrelle {

class AppSettings;
class ThemeAccent;
class WidgetController;

/// The scenes behind the widgets, one for each screen, all of the skin of most widgets. Main thread only.
class SceneController : public QObject {
    Q_OBJECT
public:
    using Model = SceneModel;
    struct Collaborators {
        WindowHost& host;
        AppSettings& settings;
        ThemeAccent& accents;
        Clock& clock;
    };

    /// `widgets` are all those on the desktop, in the manager's order, whichever there are at the time. Settings and
    /// accents are followed.
    SceneController(const Collaborators& collaborators, const QList<WidgetController*>& widgets);

    /// Recomputes the scene of every screen at once.
    void refresh();
    /// The same, at most thirty times a second: for what changes many times on end.
    void follow();

    const std::vector<std::unique_ptr<ScreenScene>>& scenes() const { return m_scenes; } ///< one for each screen
    QList<Model> models() const; ///< in the order of the host's screens

    /// What a screen shows: the skin of most of all widgets, also of those on other screens (`fallback` where there are
    /// none), and where `isShown` the widgets of that skin on this one.
    static Model model(const QList<WidgetConfig>& widgets, const QRectF& screen, bool isShown, Skin fallback);

Q_SIGNALS:
    void motionChanged(); ///< marks move elsewhere than before, or some began or ceased to

private:
    QList<QRectF> movingPlaces() const;

    Collaborators m_with;
    const QList<WidgetController*>& m_widgets;
    std::vector<std::unique_ptr<ScreenScene>> m_scenes;
    Ticket m_pause; ///< while it lasts, follow() waits for its end
    bool m_isOutdated = false;
};

} // namespace ambrelle
