// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/FaceMotion.h"
#include "foundation/Clock.h"
#include "model/Skin.h"
#include "platform/WindowHost.h"
#include "scenes/Scene.h"
#include "scenes/SceneOrnament.h"

#include <QRegion>

#include <memory>

namespace ambrelle {

/// What a screen's scene is drawn from, beside the screen's size and the skin's accent.
struct SceneModel {
    Skin skin = Skin::glass;
    QList<SceneOrnament::Item> items;

    bool operator==(const SceneModel&) const = default;
};

/// The scene of one screen. Its window is there only while there are marks, and no larger than they need once they have
/// been the same for a moment; while they change it is as large as the screen, which moves no window to and fro. Its
/// marks move only while they are told to.
class ScreenScene final : public OrnamentDelegate {
public:
    ScreenScene(WindowHost& host, Clock& clock);

    void show(const QRectF& screen, const SceneModel& model, const std::optional<QColor>& accent);
    const SceneModel& model() const { return m_model; }

    bool moves() const { return !m_scene.moving().isEmpty(); } ///< some marks do, at rest or not
    QList<QRectF> movingPlaces() const; ///< where marks move, at rest or not; global points
    void setMotionActive(bool active);
    /// Nobody sees the marks that move: they rest meanwhile.
    void setOccluded(bool occluded);

    void paint(QPainter& painter, const QRectF& area) override;
    void appearanceChanged() override;

private:
    QRectF marks() const;
    void open();
    void applyMotion();
    void repaint(const QRectF& area);
    void change(const Scene& scene);
    void putOn(const QRectF& area);
    void settle();
    enum class Outline { exact, loose };
    void outline(Outline outline);

    WindowHost& m_host;
    Clock& m_clock;
    FaceMotion m_motion;
    bool m_motionActive = false;
    bool m_occluded = false;
    QRectF m_screen; ///< global points
    SceneModel m_model;
    Scene m_scene;
    bool m_composited = false; ///< when the window was made
    QRectF m_area; ///< of the window, points of the screen, y down
    QRegion m_outline; ///< likewise; nothing: all of it
    Ticket m_settling;
    std::unique_ptr<SceneWindow> m_window; // last: it calls back until it is gone
};

} // namespace ambrelle
