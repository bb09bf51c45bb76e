// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/PaintBuffer.h"
#include "platform/x11/connection/X11Connection.h"

#include <QImage>
#include <QRect>

namespace ambrelle {

/// The desktop picture as the program that set it left it on the root window. Only the parts asked for are fetched, so
/// that a large screen costs no more memory than the windows on it.
class RootPicture {
public:
    explicit RootPicture(const X11Connection& connection);

    void forget() { m_known = false; } ///< the picture has changed: look for it again when next needed
    bool isThere(); ///< there is a picture that can be read; may wait for the server
    bool isOutdated() const; ///< another picture was set since it was looked for; waits once for the server
    /// The picture below a rectangle of native pixels of the root window, of the same size and opaque; black where the
    /// picture does not reach, null where there is none. Waits once for the server.
    QImage part(const QRect& area);
    /// The same of several rectangles in the buffer's pixels, to be painted on; transparent where there is no picture,
    /// none where there is no memory.
    QList<QImage> ground(PaintBuffer& buffer, const QList<QRect>& areas);

private:
    xcb_pixmap_t named() const;
    void find();

    const X11Connection& m_connection;
    bool m_known = false;
    xcb_pixmap_t m_named = XCB_PIXMAP_NONE;
    xcb_pixmap_t m_pixmap = XCB_PIXMAP_NONE; ///< the one named, if it can be read
    QRect m_bounds;
};

} // namespace ambrelle
