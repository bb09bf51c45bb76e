// SPDX-License-Identifier: MIT

#pragma once

#include <xcb/shm.h>

#include <QImage>

#include <map>

namespace ambrelle {

/// The pixels that all windows are painted with, one after the other: memory shared with the X server
/// where that runs on this machine. A window keeps no copy of what it shows; a part that gets lost is painted again.
/// The connection is an own one: on the toolkit's every answer wakes a thread that hands it on.
class PaintBuffer {
public:
    PaintBuffer();
    ~PaintBuffer();
    Q_DISABLE_COPY_MOVE(PaintBuffer)

    /// Pictures of those sizes to be painted on until show(), none of them empty: transparent. Waits until the server
    /// has read what was shown before. None when there is no memory.
    QList<QImage> blank(const QList<QSize>& sizes);
    /// The same over a pixmap of 24 or 32 bits a pixel that has all of the areas: opaque copies of them. Waits once for
    /// the server; none when the pixmap cannot be read.
    QList<QImage> copy(xcb_pixmap_t pixmap, const QList<QRect>& areas);
    /// Puts what was painted into the window, each picture at its place; the server knows the window, whose depth it
    /// is.
    void show(const QList<QImage>& images, const QList<QPoint>& places, xcb_window_t window, uint8_t depth);
    /// Of a window that the server knows, for which it is asked. What most have where that fails.
    uint8_t depthOf(xcb_window_t window) const;

private:
    QList<QImage> images(const QList<QSize>& sizes, QImage::Format format);
    bool fetchShared(xcb_pixmap_t pixmap, const QList<QRect>& areas, const QList<QImage>& into);
    bool fetch(xcb_pixmap_t pixmap, const QRect& area, QImage& into);
    uint32_t offsetOf(const QImage& image) const;
    void awaitReading();
    bool reserve(std::size_t bytes);
    bool share(std::size_t bytes);
    void release();
    xcb_gcontext_t contextFor(xcb_window_t window, uint8_t depth);
    void share(const QImage& image, xcb_window_t window, QPoint place, uint8_t depth);
    void send(const QImage& part, xcb_window_t window, QPoint place, uint8_t depth);

    xcb_connection_t* m_connection; ///< never null; one with an error does nothing
    bool m_shares; ///< whether the server can be handed memory
    uint8_t* m_memory = nullptr;
    std::size_t m_bytes = 0;
    xcb_shm_seg_t m_segment = XCB_NONE; ///< none: the memory is not shared, and pixels are sent
    bool m_beingRead = false; ///< the server may still have to read what was shown last
    std::map<uint8_t, xcb_gcontext_t> m_contexts; ///< one is good for all windows of that depth
};

} // namespace ambrelle
