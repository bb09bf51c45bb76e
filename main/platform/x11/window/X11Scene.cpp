// SPDX-License-Identifier: MIT

#include "platform/x11/window/X11Scene.h"

#include <QPainter>

#include <chrono>

namespace ambrelle {

namespace {

// Two frames of most screens: until then all of a new panel is painted and composited.
constexpr std::chrono::milliseconds seenAfter{40};
constexpr std::chrono::milliseconds seenAtLatest{1500};

} // namespace

/// One panel with the marks, which may be drawn for another place of the window.
class X11Scene::View final : public OrnamentDelegate {
public:
    explicit View(X11Scene& scene)
        : m_scene(scene)
        , m_panel(*this, scene.m_parts, X11Panel::Rank::scene)
    {
        m_panel.setClickThrough(true);
    }

    void paint(QPainter& painter, const QRectF& area) override
    {
        const QPointF shift = m_scene.shiftOf(*this);
        painter.translate(shift);
        m_scene.m_delegate.paint(painter, area.translated(-shift));
        m_scene.painted(*this);
    }
    void appearanceChanged() override
    {
        if (m_scene.m_view.get() == this)
            m_scene.m_delegate.appearanceChanged();
    }
    void outline(const QList<QRectF>& areas)
    {
        QList<RoundedArea> rounded;
        for (const QRectF& area : areas)
            rounded.append({area.translated(m_scene.shiftOf(*this))});
        m_panel.setOutline(rounded);
    }

    X11Panel& panel() { return m_panel; }
    const X11Panel& panel() const { return m_panel; }

private:
    X11Scene& m_scene;
    X11Panel m_panel;
};

X11Scene::X11Scene(OrnamentDelegate& delegate, X11Parts& parts, Taken taken)
    : m_delegate(delegate)
    , m_parts(parts)
    , m_taken(std::move(taken))
    , m_view(makeView())
{
    m_farewell.setSingleShot(true);
    QObject::connect(&m_farewell, &QTimer::timeout, &m_farewell, [this] { m_former.reset(); });
}

X11Scene::~X11Scene() = default;

std::unique_ptr<X11Scene::View> X11Scene::makeView()
{
    auto view = std::make_unique<View>(*this);
    m_taken(view->panel());
    return view;
}

X11Panel& X11Scene::panel()
{
    return m_view->panel();
}

void X11Scene::setFrame(const QRectF& frame)
{
    if (frame == m_frame)
        return;
    for (QRectF& area : m_outline) // stays where it is on the screen
        area.translate(m_frame.left() - frame.left(), frame.bottom() - m_frame.bottom());
    m_frame = frame;
    const QRectF place = placeFor(frame);
    if (place == m_view->panel().frame())
        return;
    if (m_view->panel().isOnScreen() && !m_view->panel().isHeldBack()) {
        m_farewell.start(seenAtLatest);
        m_former = std::exchange(m_view, makeView());
        m_view->panel().setFrame(place);
        m_view->outline(m_outline);
        m_view->panel().show();
    } else {
        m_view->panel().setFrame(place); // nobody has seen it yet
        m_view->panel().update({{0, 0}, place.size()});
    }
}

/// A large panel costs nothing where the server keeps no copy of it. Some window managers put a new one above all
/// others, which then have to leave the screen for a moment to rise.
QRectF X11Scene::placeFor(const QRectF& frame) const
{
    const WindowManager& manager = m_parts.manager;
    if (m_parts.compositor.isActive() && (manager.canRestack() || !manager.keepsPanels()))
        return frame;
    for (const ScreenInfo& screen : m_parts.screens.screens()) {
        if (screen.frame.contains(frame))
            return screen.frame;
    }
    return frame;
}

void X11Scene::show()
{
    m_view->panel().show();
}

void X11Scene::update(const QRectF& area)
{
    m_view->panel().update(area.translated(shiftOf(*m_view)));
    if (m_former)
        m_former->panel().update(area.translated(shiftOf(*m_former)));
}

void X11Scene::setOutline(const QList<QRectF>& areas)
{
    m_outline = areas;
    m_view->outline(areas);
    if (m_former)
        m_former->outline(areas);
}

/// From the upper left corner of the view's panel to that of the whole.
QPointF X11Scene::shiftOf(const View& view) const
{
    const QRectF own = view.panel().frame();
    return own.isValid() ? QPointF(m_frame.left() - own.left(), own.bottom() - m_frame.bottom()) : QPointF();
}

void X11Scene::painted(const View& view)
{
    if (&view == m_view.get() && !view.panel().isHeldBack() && m_farewell.remainingTimeAsDuration() > seenAfter)
        m_farewell.start(seenAfter);
}

} // namespace ambrelle
