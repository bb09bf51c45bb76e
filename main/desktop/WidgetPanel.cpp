// SPDX-License-Identifier: MIT

#include "desktop/WidgetPanel.h"

#include "desktop/LatePanel.h"
#include "desktop/LocateRing.h"
#include "placement/PanelGeometry.h"

#include <ranges>

namespace ambrelle {

WidgetPanel::WidgetPanel(WindowHost& host, Clock& clock, LayerCache& layers, FaceView view, Hooks hooks)
    : m_hooks(std::move(hooks))
    , m_face(std::move(view), layers)
    , m_motion(
          clock, [this](const QRectF& area) { m_window->update(m_face.scaled(area).translated(faceArea().topLeft())); })
    , m_hover(clock, [this](bool) { hoverChanged(); })
    , m_window(std::make_unique<LatePanel>(host, *this))
{
}

void WidgetPanel::close()
{
    m_closed = true;
    m_motion.setActive(false);
    m_window->hide();
}

QRectF WidgetPanel::faceArea() const
{
    return PanelGeometry::faceArea(m_face.look().size);
}

void WidgetPanel::place(const QRectF& frame, const QRectF& room)
{
    m_room = room;
    const QRectF toolbar = PanelGeometry::toolbarArea(frame, room);
    m_toolbar.setArea(toolbar, PanelGeometry::coversFace(toolbar, frame.size()));
    const QRectF panel = PanelGeometry::panelFrame(frame);
    if (panel != m_window->frame())
        m_window->setFrame(panel);
    applyAreas();
}

RoundedArea WidgetPanel::plate() const
{
    return {m_face.outline().translated(faceArea().topLeft()), m_face.outlineCorner()};
}

void WidgetPanel::applyAreas()
{
    QRectF input = faceArea();
    RoundedArea seen = m_ring ? LocateRing::around(plate()) : plate();
    if (!m_ring)
        seen.shape = m_face.silhouette().translated(faceArea().topLeft());
    QList<RoundedArea> outline{seen};
    if (isHovering()) {
        input |= m_toolbar.area();
        outline.append({m_toolbar.area(), m_toolbar.area().height() / 2});
    }
    m_window->setInputArea(input);
    m_window->setOutline(outline);
}

void WidgetPanel::setLevel(WindowLevel level)
{
    if (std::exchange(m_level, level) != level)
        endDrag();
    m_window->setLevel(level);
}

void WidgetPanel::setClickThrough(bool through)
{
    m_clickThrough = through;
    m_window->setClickThrough(through);
    // Not every window system says that the pointer is elsewhere from now on.
    if (through)
        pointerLeft();
}

void WidgetPanel::setRing(bool shown)
{
    if (std::exchange(m_ring, shown) == shown)
        return;
    applyAreas();
    m_window->update(LocateRing::around(plate()).area);
}

void WidgetPanel::setView(FaceView view)
{
    m_face.setView(std::move(view));
    applyAreas();
    repaint();
    m_window->namesChanged();
}

void WidgetPanel::setLook(const FaceLook& look)
{
    if (look == m_face.look())
        return;
    m_face.setLook(look);
    applyAreas();
    m_window->update({{}, m_window->frame().size()});
}

void WidgetPanel::setReading(const std::shared_ptr<const Reading>& reading)
{
    const std::shared_ptr<const Reading>& shown = m_face.reading();
    if (shown == reading || (shown && *shown == *reading))
        return;
    m_window->update(m_face.setReading(reading).translated(faceArea().topLeft()));
}

void WidgetPanel::setToolbar(const WidgetToolbar::State& state)
{
    if (state == m_toolbar.state())
        return;
    m_toolbar.setState(state);
    m_window->namesChanged();
    if (isHovering())
        m_window->update(m_toolbar.area());
}

void WidgetPanel::setMotionActive(bool active)
{
    if (active == m_motion.isActive() || m_closed)
        return;
    m_motion.setActive(active);
    if (moves())
        repaint();
}

void WidgetPanel::repaint()
{
    m_window->update(m_face.reach().translated(faceArea().topLeft()));
}

void WidgetPanel::paint(QPainter& painter, const QRectF& area)
{
    m_painted = true;
    const QPointF origin = faceArea().topLeft();
    const QRectF painted = area.translated(-origin);
    const bool moved = moves();
    painter.save();
    painter.translate(origin);
    m_face.paint(painter, painted, m_motion.time());
    painter.restore();
    if (m_ring)
        LocateRing::paint(painter, plate(), view().style().accent);
    if (isHovering() && area.intersects(m_toolbar.area()))
        m_toolbar.paint(painter);
    const double scale = m_face.look().scale;
    m_motion.drawn(m_face.result().moving, {painted.topLeft() / scale, painted.size() / scale});
    if (moves() != moved)
        m_hooks.motionChanged();
}

QImage WidgetPanel::picture()
{
    const QRectF area = m_face.reach();
    QImage image((area.size() * pixelRatio()).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    m_face.paint(painter, area, m_motion.time());
    return image;
}

void WidgetPanel::pointerPressed(const PointerEvent& event)
{
    if (m_closed)
        return;
    m_hooks.pressed();
    if (event.button == Qt::RightButton && !m_drag.isPressed())
        m_hooks.menuRequested();
    if (event.button != Qt::LeftButton)
        return;
    m_drag.press(event.global);
    m_dragStart = m_window->frame().topLeft();
    const bool onToolbar = isHovering() && m_toolbar.area().contains(event.local);
    if (onToolbar && m_toolbar.press(event.local))
        m_window->update(m_toolbar.area());
    m_pressedAction = onToolbar ? std::nullopt : actionAt(event.local);
}

void WidgetPanel::pointerMoved(const PointerEvent& event)
{
    if (m_closed)
        return;
    if (isHovering() && m_toolbar.hover(event.local))
        m_window->update(m_toolbar.area());
    if (m_drag.isPressed() && event.button != Qt::LeftButton)
        endDrag(); // the button was released where this window did not hear it
    if (!m_drag.isPressed() || m_hooks.isLocked())
        return;
    const std::optional<DragGesture::Step> step = m_drag.move(event.global);
    if (!step)
        return;
    if (step->began)
        clickCancelled();
    const QRectF wanted(PanelGeometry::widgetOrigin(m_dragStart + step->by), m_face.look().size);
    const QPointF placed = m_hooks.dragged(wanted, event.modifiers);
    m_window->setFrame({PanelGeometry::panelFrame({placed, wanted.size()}).topLeft(), m_window->frame().size()});
}

void WidgetPanel::endDrag()
{
    const bool dragged = m_drag.isDragging();
    m_drag.cancel();
    clickCancelled();
    if (dragged)
        m_hooks.dragEnded(PanelGeometry::widgetOrigin(m_window->frame().topLeft()));
}

void WidgetPanel::clickCancelled()
{
    m_pressedAction.reset();
    if (m_toolbar.cancelPress())
        m_window->update(m_toolbar.area());
}

void WidgetPanel::pointerReleased(const PointerEvent& event)
{
    if (m_closed || event.button != Qt::LeftButton)
        return;
    if (m_drag.isDragging())
        endDrag();
    else if (m_drag.release() == DragGesture::Outcome::click)
        click(event.local);
}

void WidgetPanel::click(QPointF local)
{
    const std::optional<FaceAction> pressed = std::exchange(m_pressedAction, std::nullopt);
    const std::optional<WidgetToolbar::Button> button = m_toolbar.release(local);
    if (isHovering())
        m_window->update(m_toolbar.area());
    if (button)
        m_hooks.toolbarUsed(*button);
    else if (pressed && pressed == actionAt(local))
        m_hooks.clicked(*pressed);
}

/// A press on the face asks for its action; while widgets are arranged a face answers nothing.
std::optional<FaceAction> WidgetPanel::actionAt(QPointF local) const
{
    const QRectF face = faceArea();
    if (m_face.look().editing || !face.contains(local))
        return std::nullopt;
    const QPointF point = (local - face.topLeft()) / m_face.look().scale;
    for (const Canvas::HitArea& hit : std::views::reverse(m_face.result().hits)) {
        if (hit.area.contains(point))
            return hit.action;
    }
    return FaceAction{};
}

void WidgetPanel::pointerEntered()
{
    if (!m_closed)
        m_hover.enter();
}

void WidgetPanel::pointerLeft()
{
    if (m_closed)
        return;
    if (m_toolbar.hover(std::nullopt))
        m_window->update(m_toolbar.area());
    m_hover.leave();
}

void WidgetPanel::hoverChanged()
{
    if (!isHovering())
        m_toolbar.hover(std::nullopt);
    applyAreas();
    m_window->update(m_toolbar.area());
}

void WidgetPanel::appearanceChanged()
{
    m_window->update({{}, m_window->frame().size()});
}

QString WidgetPanel::accessibleName() const
{
    return title(m_face.view().face().kind);
}

QList<PanelButton> WidgetPanel::buttons() const
{
    QList<PanelButton> all;
    for (const WidgetToolbar::Button button : WidgetToolbar::buttons())
        all += {m_toolbar.buttonName(button), m_toolbar.buttonArea(button)};
    return all;
}

void WidgetPanel::pressButton(qsizetype index)
{
    const auto known = WidgetToolbar::buttons();
    if (!m_closed && index >= 0 && index < std::ssize(known))
        m_hooks.toolbarUsed(known[static_cast<size_t>(index)]);
}

} // namespace ambrelle
