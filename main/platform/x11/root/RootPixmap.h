// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/X11Connection.h"

#include <QHash>
#include <QImage>
#include <QRect>

#include <optional>

namespace ambrelle {

/// The picture of the root window, read and replaced on a connection of its own, so that it can be used on any thread
/// and what it leaves on the server belongs to nobody else. Everything here waits for the server.
class RootPixmap {
public:
    using Record = QHash<QString, QString>; ///< the file that shows on each connector

    RootPixmap();
    ~RootPixmap();
    RootPixmap(const RootPixmap&) = delete;
    RootPixmap& operator=(const RootPixmap&) = delete;

    QString fault() const { return m_fault; } ///< why nothing works, as a sentence; empty when it does
    QSize size() const;
    QImage picture() const; ///< of the whole root window; null when there is none
    Record record() const; ///< empty unless this program set the picture, also in an earlier run

    /// Shows a picture of the root window's size and makes it known to others; it stays when the connection ends. The
    /// answer is why not, as a sentence. On failure the old picture stays.
    QString publish(const QImage& image, const Record& record);

private:
    QString whyUnsuitable() const;
    QString upload(xcb_pixmap_t pixmap, const QImage& image) const;
    void makeKnown(xcb_pixmap_t pixmap, const Record& record);

    xcb_connection_t* m_connection = nullptr;
    xcb_screen_t* m_screen = nullptr;
    std::optional<X11Connection> m_x;
    QString m_fault;
};

} // namespace ambrelle
