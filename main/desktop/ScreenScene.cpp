// SPDX-License-Identifier: MIT

#include "desktop/ScreenScene.h"

#include "skins/SceneRecipes.h"

#include <QPainter>

namespace ambrelle {

namespace {

constexpr std::chrono::milliseconds settlesAfter{1000};
constexpr double outlineCell = 4; // points: what is left of the desktop around a mark is no wider
constexpr int looseCell = 64; // the same while marks move

} // namespace

ScreenScene::ScreenScene(WindowHost& host, Clock& clock)
    : m_host(host)
    , m_clock(clock)
    , m_motion(clock, [this](const QRectF& area) { repaint(area); })
{
}

void ScreenScene::show(const QRectF& screen, const SceneModel& model, const std::optional<QColor>& accent)
{
    const bool moved = std::exchange(m_screen, screen) != screen;
    m_model = model;
    const Scene scene = sceneOf(model.skin, model.items, screen.size(), accent);
    if (moved)
        m_window.reset();
    if (scene.sprites.isEmpty()) {
        m_window.reset();
        m_settling.reset();
        m_scene = scene;
        m_motion.drawn({}, {});
    } else if (!m_window) {
        m_scene = scene;
        open();
    } else if (scene != m_scene) {
        change(scene);
    }
}

void ScreenScene::open()
{
    m_window.reset();
    m_composited = m_host.isComposited();
    m_window = m_host.makeScene(*this);
    settle();
    m_window->show();
}

QList<QRectF> ScreenScene::movingPlaces() const
{
    QList<QRectF> places;
    for (const Canvas::MovingArea& each : m_scene.moving()) {
        const QRectF& area = each.area;
        places.append({m_screen.x() + area.x(), m_screen.bottom() - area.bottom(), area.width(), area.height()});
    }
    return places;
}

void ScreenScene::setMotionActive(bool active)
{
    m_motionActive = active;
    applyMotion();
}

void ScreenScene::setOccluded(bool occluded)
{
    m_occluded = occluded;
    applyMotion();
}

void ScreenScene::applyMotion()
{
    const bool active = m_motionActive && !m_occluded;
    if (active == m_motion.isActive())
        return;
    m_motion.setActive(active);
    for (const Canvas::MovingArea& each : m_scene.moving())
        repaint(each.area);
}

void ScreenScene::repaint(const QRectF& area)
{
    if (m_window)
        m_window->update(area.translated(-m_area.topLeft()));
}

void ScreenScene::change(const Scene& scene)
{
    const QList<QRectF> changes = Scene::changes(m_scene, scene);
    m_scene = scene;
    if (!m_area.contains(marks()))
        putOn({{0, 0}, m_screen.size()});
    for (const QRectF& area : changes)
        repaint(area);
    outline(Outline::loose);
    m_settling = m_clock.after(settlesAfter, [this] { settle(); });
}

/// The screen's part that has marks, in whole points.
QRectF ScreenScene::marks() const
{
    return QRectF(m_scene.bounds().toAlignedRect()) & QRectF({0, 0}, m_screen.size());
}

void ScreenScene::putOn(const QRectF& area)
{
    if (m_window->frame().isValid() && area == m_area)
        return;
    m_area = area;
    m_window->setFrame({m_screen.x() + area.x(), m_screen.bottom() - area.bottom(), area.width(), area.height()});
}

void ScreenScene::settle()
{
    m_settling.reset();
    putOn(marks());
    outline(Outline::exact);
}

/// Where nothing composites the window shows a copy of the desktop picture, which is to cover as few icons as possible.
/// While marks move, whatever moves on the screen costs the more the finer the outline, and so does every change of it.
void ScreenScene::outline(Outline outline)
{
    QRegion needed;
    if (!m_composited && outline == Outline::exact) {
        for (const QRectF& area : m_scene.inked(outlineCell))
            needed += area.toAlignedRect();
    } else if (!m_composited) {
        needed = m_scene.covered(looseCell);
        if (needed.subtracted(m_outline).isEmpty())
            return;
    }
    m_outline = needed;
    QList<QRectF> areas;
    for (const QRect& area : m_outline)
        areas.append(QRectF(area).translated(-m_area.topLeft()));
    m_window->setOutline(areas);
}

void ScreenScene::paint(QPainter& painter, const QRectF& area)
{
    painter.save();
    painter.translate(-m_area.topLeft());
    const QRectF painted = area.translated(m_area.topLeft());
    m_scene.draw(painter, painted, m_motion.time());
    painter.restore();
    m_motion.drawn(m_scene.moving(), painted);
}

void ScreenScene::appearanceChanged()
{
    if (m_composited != m_host.isComposited())
        return open(); // nothing of the former window is touched any more
    outline(Outline::exact);
    m_window->update({{0, 0}, m_area.size()});
}

} // namespace ambrelle
