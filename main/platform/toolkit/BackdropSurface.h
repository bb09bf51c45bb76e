// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/RasterSurface.h"
#include "platform/WindowHost.h"

namespace ambrelle {

/// The toolkit's side of a backdrop: a borderless window that may have the focus.
class BackdropSurface final : public RasterSurface {
public:
    BackdropSurface(BackdropDelegate& delegate, std::unique_ptr<SurfaceCanvas> canvas);

    QRect place() const override { return geometry(); }
    void paintOn(QPainter& painter) const; ///< all of it; only until it is retired

protected:
    bool handle(QEvent& event) override;
    void paint(QPainter& painter, const QRect& area) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    BackdropDelegate& m_delegate;
    bool m_pressed = false;
};

} // namespace ambrelle
