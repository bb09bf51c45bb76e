// SPDX-License-Identifier: MIT

#include "platform/wayland/connection/PixelBuffer.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <utility>

namespace ambrelle {

namespace {

constexpr int bytesOfPixel = 4;

std::size_t bytesOf(QSize size)
{
    return static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()) * bytesOfPixel;
}

/// Of a file without a name; null when there is no memory.
uchar* mapped(int file, std::size_t bytes)
{
    if (::ftruncate(file, static_cast<off_t>(bytes)) != 0)
        return nullptr;
    // A page that cannot be had would end the program when it is painted on.
    if (::posix_fallocate(file, 0, static_cast<off_t>(bytes)) != 0)
        return nullptr;
    void* memory = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    return memory == MAP_FAILED ? nullptr : static_cast<uchar*>(memory);
}

} // namespace

std::unique_ptr<PixelBuffer> PixelBuffer::make(wl_shm* memory, QSize pixels)
{
    const std::size_t bytes = bytesOf(pixels);
    const int file = pixels.isEmpty() ? -1 : ::memfd_create("ambrelle", MFD_CLOEXEC);
    if (file < 0)
        return nullptr;
    uchar* view = mapped(file, bytes);
    std::unique_ptr<PixelBuffer> made;
    if (view) {
        const Handle<wl_shm_pool> pool(wl_shm_create_pool(memory, file, static_cast<int32_t>(bytes)));
        wl_buffer* buffer = wl_shm_pool_create_buffer(
            pool.get(), 0, pixels.width(), pixels.height(), pixels.width() * bytesOfPixel, WL_SHM_FORMAT_ARGB8888);
        made.reset(new PixelBuffer(buffer, view, pixels));
    }
    ::close(file);
    return made;
}

std::unique_ptr<PixelBuffer> PixelBuffer::showNothing(wl_shm* memory, wl_surface* surface, QSize pixels)
{
    std::unique_ptr<PixelBuffer> nothing = surface ? make(memory, pixels) : nullptr;
    if (nothing) {
        wl_surface_set_buffer_scale(surface, 1);
        nothing->attachTo(surface);
        wl_surface_damage_buffer(surface, 0, 0, pixels.width(), pixels.height());
        wl_surface_commit(surface);
    }
    return nothing;
}

PixelBuffer::PixelBuffer(wl_buffer* buffer, uchar* pixels, QSize size)
    : m_buffer(buffer)
    , m_pixels(pixels)
    , m_size(size)
{
    static const wl_buffer_listener listener{
        .release = [](void* self, wl_buffer*) { static_cast<PixelBuffer*>(self)->m_beingRead = false; },
    };
    wl_buffer_add_listener(buffer, &listener, this);
}

PixelBuffer::~PixelBuffer()
{
    forgetPixels();
}

QImage PixelBuffer::image() const
{
    if (!m_pixels)
        return {};
    return {
        m_pixels, m_size.width(), m_size.height(), m_size.width() * bytesOfPixel, QImage::Format_ARGB32_Premultiplied};
}

void PixelBuffer::forgetPixels()
{
    if (uchar* pixels = std::exchange(m_pixels, nullptr))
        ::munmap(pixels, bytesOf(m_size));
}

void PixelBuffer::attachTo(wl_surface* surface)
{
    wl_surface_attach(surface, m_buffer.get(), 0, 0);
    m_beingRead = true;
}

} // namespace ambrelle
