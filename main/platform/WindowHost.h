// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <functional>
#include <memory>
#include <optional>

class QPainter;
class QWindow;

namespace ambrelle {

/// One connected display. All rectangles are global points: origin at the lower left corner of the main display, y up.
struct ScreenInfo {
    QString id; ///< maker, model and serial number, else the connector; equal across reconnections
    QString connector;
    QRectF frame;
    QRectF visibleFrame; ///< the frame without panels and docks
    double pixelRatio = 1;
    double widthInMillimetres = 0; ///< 0 when unknown
    QString maker{}; ///< as the display tells it; empty when unknown
    QString model{}; ///< likewise

    bool operator==(const ScreenInfo&) const = default;
};

enum class WindowLevel {
    desktop, ///< above the desktop picture and icons, below every normal window
    floating, ///< above normal windows
};

struct PointerEvent {
    QPointF local; ///< points in the window, origin at its upper left corner, y down
    QPointF global; ///< global points, y up
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

/// A button drawn in a panel, as assistive technology knows it.
struct PanelButton {
    QString name;
    QRectF area; ///< window points, y down; also while it is not drawn

    bool operator==(const PanelButton&) const = default;
};

/// What a panel does with its window: draws it and hears the pointer. Nothing is called after the window is destroyed.
class PanelDelegate {
public:
    virtual ~PanelDelegate() = default;

    /// Draws the part of the window inside `area` (window points, y down); the painter is clipped to it and already
    /// transparent, or shows the desktop where nothing composites.
    virtual void paint(QPainter& painter, const QRectF& area) = 0;
    virtual void pointerPressed(const PointerEvent& event) = 0;
    virtual void pointerMoved(const PointerEvent& event) = 0; ///< with or without a button held
    virtual void pointerReleased(const PointerEvent& event) = 0;
    virtual void pointerEntered() = 0;
    virtual void pointerLeft() = 0;
    /// The pixel ratio changed, or the desktop picture behind a window that shows it.
    virtual void appearanceChanged() = 0;

    // For assistive technology, which alone asks for these.
    virtual QString accessibleName() const { return {}; } ///< empty: an ornament that nobody is told of
    virtual QString accessibleText() const { return {}; } ///< what is to be read in the panel at present
    virtual QList<PanelButton> buttons() const { return {}; }
    virtual void pressButton(qsizetype /*index*/) { } ///< of buttons(); any other is ignored
};

/// Draws a panel that clicks go through, and that has no use for the pointer.
class OrnamentDelegate : public PanelDelegate {
public:
    void pointerPressed(const PointerEvent&) final { }
    void pointerMoved(const PointerEvent&) final { }
    void pointerReleased(const PointerEvent&) final { }
    void pointerEntered() final { }
    void pointerLeft() final { }
};

/// Part of a window, in window points (y down): a rectangle with round corners, and what it shows of itself inside.
struct RoundedArea {
    QRectF area;
    double corner = 0; ///< its radius
    QPolygonF shape{}; ///< in place of the rectangle where what lies behind is not known either; empty: none

    bool operator==(const RoundedArea&) const = default;
};

/// A borderless, translucent window that never takes the focus, on every workspace, out of every list of windows.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    virtual void setFrame(const QRectF& frame) = 0; ///< global points
    virtual QRectF frame() const = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual void setLevel(WindowLevel level) = 0; ///< a change puts it above all others of its new level
    virtual void setOpacity(double opacity) = 0; ///< 0 to 1, of the whole window
    virtual void setClickThrough(bool through) = 0; ///< the pointer reaches what lies below
    /// The part that hears the pointer (window points, y down); clicks elsewhere reach what lies below.
    virtual void setInputArea(const QRectF& area) = 0;
    /// What stays visible of the window where nothing composites; all of it where no areas are given.
    virtual void setOutline(const QList<RoundedArea>& areas) = 0;
    virtual void update(const QRectF& area) = 0; ///< asks for a paint of that part (window points, y down)
    virtual double pixelRatio() const = 0;
    virtual void namesChanged() = 0; ///< of the delegate or its buttons; costs nothing unless they were asked for
};

/// The window of the decorations on one screen: translucent, below every panel and above the desktop picture and the
/// desktop's icons, on every workspace, out of every list of windows. The pointer and the focus never come to it. It
/// goes from the screen when it is destroyed.
class SceneWindow {
public:
    virtual ~SceneWindow() = default;

    /// Global points; a part of the screen. What it shows stays where it is, and what was beside it is painted unasked.
    virtual void setFrame(const QRectF& frame) = 0;
    virtual QRectF frame() const = 0;
    virtual void show() = 0;
    virtual void update(const QRectF& area) = 0; ///< asks for a paint of that part (window points, y down)
    /// What stays visible of the window where nothing composites (window points, y down): the desktop's icons show
    /// beside it. All of it where no areas are given.
    virtual void setOutline(const QList<QRectF>& areas) = 0;
};

/// What stands behind the widgets of one screen while they are arranged: draws its window, and hears what ends the
/// arranging. Any call may end with the window's destruction; nothing is called afterwards.
class BackdropDelegate {
public:
    virtual ~BackdropDelegate() = default;

    /// As PanelDelegate::paint(), always for the whole window of `size` points.
    virtual void paint(QPainter& painter, const QSizeF& size) = 0;
    virtual void clicked() = 0; ///< the left button was pressed and released on it
    virtual void keyPressed(Qt::Key key) = 0;
    virtual void closeRequested() = 0; ///< the window system or the user asks it to go; it stays until destroyed
};

/// A translucent window over one screen, on every workspace and out of every list of windows: above the desktop and
/// normal windows, below the panels of the floating level. It goes from the screen when it is destroyed.
class BackdropWindow {
public:
    virtual ~BackdropWindow() = default;

    virtual void setFrame(const QRectF& screen) = 0; ///< global points
    virtual QRectF frame() const = 0;
    virtual void show() = 0; ///< without taking the focus
    virtual void takeFocus() = 0; ///< the keyboard comes here, now or as soon as the window is on the screen
    virtual void update() = 0; ///< asks for a paint
};

/// Tells where a button is let go that is held in one of the toolkit's windows, on a system that does not tell where
/// those are.
class DropSpotter {
public:
    using Found = std::function<void(const std::optional<QPointF>& place)>; ///< global points; none: nobody tells

    virtual ~DropSpotter() = default; ///< nothing is told afterwards

    /// To be called when the button is let go; `found` is called a moment later, and may end this object.
    virtual void released(Found found) = 0;
};

/// The windows, screens and pointer of the machine. The only place where coordinates are turned over.
class WindowHost : public Port {
    Q_OBJECT
public:
    /// The main display first; empty for the moment in which none is connected.
    virtual QList<ScreenInfo> screens() const = 0;
    virtual QPointF pointer() const = 0; ///< global points
    /// To be made while a button is held in one of the toolkit's windows. Null: pointer() tells it then as ever.
    virtual std::unique_ptr<DropSpotter> makeDropSpotter() { return nullptr; }
    /// The place of `rect` (global points) as the toolkit counts, for its own windows: y down.
    virtual QRectF toolkitRect(const QRectF& rect) const = 0;
    virtual bool isComposited() const = 0; ///< translucent windows blend with what lies below
    virtual std::unique_ptr<PanelWindow> makePanel(PanelDelegate& delegate) = 0;
    virtual std::unique_ptr<BackdropWindow> makeBackdrop(BackdropDelegate& delegate) = 0;
    /// Made for as long as isComposited() stays what it is: the delegate hears of a change, and makes another one.
    virtual std::unique_ptr<SceneWindow> makeScene(OrnamentDelegate& delegate) = 0;

    /// Somebody asked for `window`, one of the toolkit's, and the desktop gave them `token` for it: the window may take
    /// the focus. To be called before the window is shown or comes forward. True: it comes forward by this already.
    virtual bool admit(QWindow& /*window*/, const QString& /*token*/) { return false; }
    /// What was asked for with `token` is done: the desktop need not wait for a window, or for another one.
    virtual void dismiss(const QString& /*token*/) { }

Q_SIGNALS:
    /// Displays were added, removed, rearranged or changed in size or scale; given once a change has settled.
    void screensChanged();
};

} // namespace ambrelle
