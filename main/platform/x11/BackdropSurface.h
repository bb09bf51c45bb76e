#pragma once

#include "platform/WindowHost.h"
#include "platform/x11/RasterSurface.h"
#include "platform/x11/WindowGround.h"

namespace ambrelle {

/// The toolkit's side of a backdrop: a borderless window that may have the focus.
class BackdropSurface final : public RasterSurface {
    Q_OBJECT
public:
    BackdropSurface(BackdropDelegate& delegate, X11Parts& parts);

    /// No further call of the delegate; deletes the window, after the event that is being delivered if there is one.
    void retire();
    void groundChanged(); ///< the desktop picture or the need for it has changed

Q_SIGNALS:
    void appeared(); ///< on the screen, and in the window manager's care

protected:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void paint(QPainter& painter, const QRegion& area) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRect nativePlace() const;

    BackdropDelegate* m_delegate;
    WindowGround m_ground;
    int m_delivering = 0;
    bool m_pressed = false;
    bool m_appeared = false;
};

} // namespace ambrelle
