// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/DragGesture.h"
#include "desktop/FaceMotion.h"
#include "desktop/HoverDelay.h"
#include "desktop/WidgetToolbar.h"
#include "faces/FacePainter.h"
#include "platform/WindowHost.h"

namespace ambrelle {

/// The window of one widget: draws the face and the toolbar over it, and turns what the pointer does into a drag, a
/// click on the face or a button of the toolbar.
class WidgetPanel final : public PanelDelegate {
public:
    struct Hooks {
        std::function<void()> pressed; ///< with any button
        std::function<bool()> isLocked; ///< asked while dragging
        /// Asked while dragging: the place for a face dragged to `widget`. Lower left corners, global points.
        std::function<QPointF(const QRectF& widget, Qt::KeyboardModifiers modifiers)> dragged;
        std::function<void(QPointF origin)> dragEnded; ///< likewise
        std::function<void(const FaceAction&)> clicked;
        std::function<void(WidgetToolbar::Button)> toolbarUsed;
        std::function<void()> menuRequested;
        std::function<void()> motionChanged; ///< the face has moving parts now, or none any more; told while painting
    };

    WidgetPanel(WindowHost& host, Clock& clock, LayerCache& layers, FaceView view, Hooks hooks);

    void show() { m_window->show(); }
    void close(); ///< for good: nothing is heard or drawn any more
    /// Puts the face at `frame` (global points); the toolbar stays inside `room` as far as it can.
    void place(const QRectF& frame, const QRectF& room);
    void setLevel(WindowLevel level); ///< a drag ends with it: the window may lose the pointer
    void setOpacity(double opacity) { m_window->setOpacity(opacity); } ///< of all that is on it, 0 to 1
    void setClickThrough(bool through); ///< the pointer reaches what lies below the window
    bool isClickThrough() const { return m_clickThrough; }
    void setRing(bool shown); ///< the mark round the face that points it out
    void setView(FaceView view);
    void setLook(const FaceLook& look);
    /// Repaints if it differs from the one shown.
    void setReading(const std::shared_ptr<const Reading>& reading);
    void setToolbar(const WidgetToolbar::State& state);
    void setMotionActive(bool active);
    void repaint(); ///< the face

    bool isPainted() const { return m_painted; } ///< in part at least, since it is shown
    /// The face as it is shown, on nothing, with its shadow; in the pixels of the screen.
    QImage picture();
    bool isHovering() const { return m_hover.isHovering(); }
    bool moves() const { return !m_face.result().moving.isEmpty(); } ///< the face has moving parts, paused or not
    const FaceView& view() const { return m_face.view(); }
    const WidgetToolbar& toolbar() const { return m_toolbar; }
    QRectF faceArea() const; ///< window points, y down
    double pixelRatio() const { return m_window->pixelRatio(); }

    void paint(QPainter& painter, const QRectF& area) override;
    void pointerPressed(const PointerEvent& event) override;
    void pointerMoved(const PointerEvent& event) override;
    void pointerReleased(const PointerEvent& event) override;
    void pointerEntered() override;
    void pointerLeft() override;
    void appearanceChanged() override;
    QString accessibleName() const override;
    QString accessibleText() const override { return m_face.texts().join(u' '); }
    QList<PanelButton> buttons() const override;
    void pressButton(qsizetype index) override;

private:
    std::optional<FaceAction> actionAt(QPointF local) const;
    void hoverChanged();
    RoundedArea plate() const; ///< window points, y down
    void applyAreas();
    void clickCancelled();
    void endDrag();
    void click(QPointF local);

    Hooks m_hooks;
    FacePainter m_face;
    FaceMotion m_motion;
    HoverDelay m_hover;
    DragGesture m_drag;
    WidgetToolbar m_toolbar;
    QRectF m_room;
    WindowLevel m_level = WindowLevel::desktop;
    bool m_clickThrough = false;
    bool m_ring = false;
    bool m_painted = false;
    QPointF m_dragStart; // origin of the window
    std::optional<FaceAction> m_pressedAction;
    bool m_closed = false;
    std::unique_ptr<PanelWindow> m_window; // last: it calls back until it is gone
};

} // namespace ambrelle
