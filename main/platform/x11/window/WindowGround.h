// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/window/X11Parts.h"

#include <QImage>
#include <QRect>

class QPainter;

namespace ambrelle {

/// The desktop picture behind one window, which the window draws itself where nothing composites.
class WindowGround {
public:
    explicit WindowGround(X11Parts& parts);

    void forget(); ///< the picture or the need for it has changed
    /// Draws nothing while something composites. `place` is the window's, in native pixels of the root window.
    void draw(QPainter& painter, const QRect& place, double pixelRatio);

private:
    X11Parts& m_parts;
    QImage m_picture;
    QRect m_area; ///< of the root window shown by m_picture
};

} // namespace ambrelle
