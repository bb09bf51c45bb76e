// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/RasterSurface.h"
#include "platform/WindowHost.h"

namespace ambrelle {

class PanelAccess;
class ScreenList;

/// The toolkit's side of a panel: hands painting and the pointer on to the delegate.
class PanelSurface final : public RasterSurface {
    Q_OBJECT
public:
    PanelSurface(PanelDelegate& delegate, const ScreenList& screens, std::unique_ptr<SurfaceCanvas> canvas);
    ~PanelSurface() override;

    void moveTo(const QRect& geometry);
    void repaint(const QRectF& area); ///< asks for a paint of those points, rounded out to whole pixels
    void groundChanged(); ///< the desktop picture or the need for it has changed
    void groundShaded(); ///< backdrops came or went
    void namesChanged();

    /// While a window manager takes the window over, and sometimes from then on, geometry() tells another place.
    QRect place() const override { return {m_place, size()}; }
    bool isHeld() const { return m_held; } ///< some button went down on it and is not up again
    /// Nobody tells any more when that button is up: from now on it is.
    void letGo();
    void checkPixelRatio(); ///< to be called when that of its screen may have changed
    const PanelDelegate* delegate() const { return isRetired() ? nullptr : &m_delegate; } ///< null once retired
    void pressButton(qsizetype index); ///< may end in retire()
    QAccessibleInterface* accessibleRoot() const override;
    /// What assistive technology sees of the panel; null once it has gone.
    void setAccess(PanelAccess* access) { m_access = access; }

Q_SIGNALS:
    void pixelRatioChanged();
    void pressed(); ///< before the delegate hears of it
    void released(); ///< no button is held any more, and the delegate has heard of it

protected:
    bool handle(QEvent& event) override;
    void paint(QPainter& painter, const QRect& area) override;
    void moveEvent(QMoveEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void setHeld(bool held);
    PointerEvent pointerEvent(const QMouseEvent& event);

    PanelDelegate& m_delegate;
    const ScreenList& m_screens;
    QPoint m_place; ///< where the window is or was last sent
    double m_pixelRatio;
    bool m_held = false;
    QPointF m_pointer; ///< where it was pressed or moved last, in the toolkit's points
    PanelAccess* m_access = nullptr;
};

} // namespace ambrelle
