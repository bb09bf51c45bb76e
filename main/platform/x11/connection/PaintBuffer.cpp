// SPDX-License-Identifier: MIT

#include "platform/x11/connection/PaintBuffer.h"

#include "platform/x11/connection/PixelBands.h"
#include "platform/x11/connection/Reply.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace ambrelle {

namespace {

constexpr std::size_t pageBytes = 4096;
/// What a panel needs at twice the usual pixel ratio. More, as for a backdrop, is given back at once.
constexpr std::size_t keptBytes = 2 << 20;

/// A descriptor goes through a local socket only, not through a tunnel to another machine.
bool isLocal(xcb_connection_t* connection)
{
    sockaddr_storage address{};
    socklen_t length = sizeof address;
    const int socket = xcb_get_file_descriptor(connection);
    return getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length) == 0 && address.ss_family == AF_UNIX;
}

bool takesDescriptors(xcb_connection_t* connection)
{
    const xcb_query_extension_reply_t* shm = xcb_get_extension_data(connection, &xcb_shm_id);
    if (!shm || !shm->present || !isLocal(connection))
        return false;
    const Reply version(xcb_shm_query_version_reply(connection, xcb_shm_query_version(connection), nullptr));
    return version && std::pair(version->major_version, version->minor_version) >= std::pair<uint16_t, uint16_t>(1, 2);
}

/// What nobody asked for: news of the keyboard, and errors of windows that went away meanwhile.
void discardEvents(xcb_connection_t* connection)
{
    while (xcb_generic_event_t* event = xcb_poll_for_queued_event(connection))
        std::free(event);
}

constexpr int pixelBytes = sizeof(QRgb);

std::size_t bytesOf(QSize size)
{
    return static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()) * pixelBytes;
}

} // namespace

PaintBuffer::PaintBuffer()
    : m_connection(xcb_connect(nullptr, nullptr))
    , m_shares(takesDescriptors(m_connection))
{
}

PaintBuffer::~PaintBuffer()
{
    release();
    xcb_disconnect(m_connection);
}

QImage PaintBuffer::image(QSize size, QImage::Format format)
{
    if (size.isEmpty() || !reserve(bytesOf(size)))
        return {};
    return {m_memory, size.width(), size.height(), size.width() * pixelBytes, format};
}

QImage PaintBuffer::blank(QSize size)
{
    awaitReading();
    QImage blank = image(size, QImage::Format_ARGB32_Premultiplied);
    if (!blank.isNull())
        blank.fill(Qt::transparent);
    return blank;
}

QImage PaintBuffer::copy(xcb_pixmap_t pixmap, const QRect& area)
{
    QImage copy = image(area.size(), QImage::Format_RGB32);
    if (copy.isNull() || !fetch(pixmap, area))
        return {};
    m_beingRead = false; // the server answers in the order of the requests
    return copy;
}

void PaintBuffer::awaitReading()
{
    if (!std::exchange(m_beingRead, false))
        return;
    const Reply answer(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

bool PaintBuffer::fetch(xcb_pixmap_t pixmap, const QRect& from)
{
    const auto x = static_cast<int16_t>(from.x());
    const auto y = static_cast<int16_t>(from.y());
    const auto width = static_cast<uint16_t>(from.width());
    const auto height = static_cast<uint16_t>(from.height());
    if (m_segment != XCB_NONE) {
        const auto cookie =
            xcb_shm_get_image(m_connection, pixmap, x, y, width, height, ~0U, XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, 0);
        return Reply(xcb_shm_get_image_reply(m_connection, cookie, nullptr)) != nullptr;
    }
    const auto cookie = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, x, y, width, height, ~0U);
    const Reply reply(xcb_get_image_reply(m_connection, cookie, nullptr));
    if (!reply || static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) < bytesOf(from.size()))
        return false;
    std::memcpy(m_memory, xcb_get_image_data(reply.get()), bytesOf(from.size()));
    return true;
}

void PaintBuffer::show(const QImage& image, QPoint place, xcb_window_t window, uint8_t depth)
{
    if (m_segment == XCB_NONE || depth < 24) {
        send(depth < 24 ? image.convertToFormat(QImage::Format_RGB16) : image, window, place, depth);
    } else {
        const auto width = static_cast<uint16_t>(image.width());
        const auto height = static_cast<uint16_t>(image.height());
        xcb_shm_put_image(m_connection, window, contextFor(window, depth), width, height, 0, 0, width, height,
            static_cast<int16_t>(place.x()), static_cast<int16_t>(place.y()), depth, XCB_IMAGE_FORMAT_Z_PIXMAP, 0,
            m_segment, 0);
        m_beingRead = true;
    }
    xcb_flush(m_connection);
    discardEvents(m_connection);
    if (m_bytes > keptBytes)
        release(); // the server holds on to what it has yet to read
}

uint8_t PaintBuffer::depthOf(xcb_window_t window) const
{
    const Reply geometry(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
    return geometry ? geometry->depth : 24;
}

xcb_gcontext_t PaintBuffer::contextFor(xcb_window_t window, uint8_t depth)
{
    xcb_gcontext_t& context = m_contexts[depth];
    if (context == XCB_NONE) {
        context = xcb_generate_id(m_connection);
        xcb_create_gc(m_connection, context, window, 0, nullptr);
    }
    return context;
}

void PaintBuffer::send(const QImage& part, xcb_window_t window, QPoint place, uint8_t depth)
{
    const xcb_gcontext_t context = contextFor(window, depth);
    sendInBands(m_connection, part, [&](const uint8_t* pixels, uint32_t bytes, int row, int count) {
        xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, context, static_cast<uint16_t>(part.width()),
            static_cast<uint16_t>(count), static_cast<int16_t>(place.x()), static_cast<int16_t>(place.y() + row), 0,
            depth, bytes, pixels);
        return true;
    });
}

bool PaintBuffer::reserve(std::size_t bytes)
{
    if (bytes <= m_bytes)
        return true;
    release();
    const std::size_t whole = (bytes + pageBytes - 1) / pageBytes * pageBytes;
    if (m_shares && share(whole))
        return true;
    void* memory = mmap(nullptr, whole, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return false;
    m_memory = static_cast<uint8_t*>(memory);
    m_bytes = whole;
    return true;
}

bool PaintBuffer::share(std::size_t bytes)
{
    const int descriptor = memfd_create("ambrelle", MFD_CLOEXEC);
    if (descriptor < 0)
        return false;
    void* memory = MAP_FAILED;
    if (ftruncate(descriptor, static_cast<off_t>(bytes)) == 0)
        memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    if (memory == MAP_FAILED) {
        close(descriptor);
        return false;
    }
    const xcb_shm_seg_t segment = xcb_generate_id(m_connection);
    const auto attached = xcb_shm_attach_fd_checked(m_connection, segment, descriptor, 0); // closes the descriptor
    if (const Reply error(xcb_request_check(m_connection, attached)); error) {
        munmap(memory, bytes);
        m_shares = false;
        return false;
    }
    m_memory = static_cast<uint8_t*>(memory);
    m_bytes = bytes;
    m_segment = segment;
    return true;
}

void PaintBuffer::release()
{
    m_beingRead = false; // the server keeps the memory until then
    if (m_segment != XCB_NONE)
        xcb_shm_detach(m_connection, std::exchange(m_segment, XCB_NONE));
    if (m_memory)
        munmap(std::exchange(m_memory, nullptr), std::exchange(m_bytes, 0));
}

} // namespace ambrelle
