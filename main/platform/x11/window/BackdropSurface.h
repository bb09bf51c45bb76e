// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"
#include "platform/x11/window/RasterSurface.h"

namespace ambrelle {

/// The toolkit's side of a backdrop: a borderless window that may have the focus.
class BackdropSurface final : public RasterSurface, public GroundShade {
public:
    BackdropSurface(BackdropDelegate& delegate, X11Parts& parts);

    void shade(QPainter& painter, const QPoint& origin) const override; ///< only until it is retired
    void groundChanged(); ///< the desktop picture or the need for it has changed

protected:
    bool handle(QEvent& event) override;
    void paint(QPainter& painter, const QRect& area) override;
    QPoint nativeCorner() const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    BackdropDelegate& m_delegate;
    bool m_pressed = false;
};

} // namespace ambrelle
