// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/Handle.h"

#include <wayland-client.h>

#include <QImage>
#include <QSize>

#include <memory>

namespace ambrelle {

/// Pixels in memory that is shared with the compositor: premultiplied, transparent in the beginning.
class PixelBuffer {
public:
    /// Null when there is no memory.
    static std::unique_ptr<PixelBuffer> make(wl_shm* memory, QSize pixels);
    /// Makes a surface that has a role transparent, `pixels` large, for as long as the buffer lives; likewise.
    static std::unique_ptr<PixelBuffer> showNothing(wl_shm* memory, wl_surface* surface, QSize pixels);
    ~PixelBuffer();
    Q_DISABLE_COPY_MOVE(PixelBuffer)

    QSize size() const { return m_size; }
    /// To be painted on while the compositor does not read; null after forgetPixels().
    QImage image() const;
    /// This program's own view of the pixels goes; the compositor keeps what it reads.
    void forgetPixels();

    bool isBeingRead() const { return m_beingRead; }
    void attachTo(wl_surface* surface); ///< with the next commit of the surface the compositor reads it

private:
    PixelBuffer(wl_buffer* buffer, uchar* pixels, QSize size);

    Handle<wl_buffer> m_buffer;
    uchar* m_pixels;
    QSize m_size;
    bool m_beingRead = false;
};

} // namespace ambrelle
