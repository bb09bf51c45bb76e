// SPDX-License-Identifier: MIT

#include "platform/x11/connection/PaintBuffer.h"

#include "platform/x11/connection/PixelBands.h"
#include "platform/x11/connection/Reply.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

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

QList<QImage> PaintBuffer::images(const QList<QSize>& sizes, QImage::Format format)
{
    std::size_t bytes = 0;
    for (const QSize& size : sizes)
        bytes += bytesOf(size);
    if (bytes == 0 || !reserve(bytes))
        return {};
    QList<QImage> images;
    uint8_t* memory = m_memory;
    for (const QSize& size : sizes) {
        images.append(QImage(memory, size.width(), size.height(), size.width() * pixelBytes, format));
        memory += bytesOf(size);
    }
    return images;
}

QList<QImage> PaintBuffer::blank(const QList<QSize>& sizes)
{
    awaitReading();
    QList<QImage> blank = images(sizes, QImage::Format_ARGB32_Premultiplied);
    for (QImage& image : blank)
        image.fill(Qt::transparent);
    return blank;
}

QList<QImage> PaintBuffer::copy(xcb_pixmap_t pixmap, const QList<QRect>& areas)
{
    QList<QSize> sizes;
    for (const QRect& area : areas)
        sizes.append(area.size());
    QList<QImage> copies = images(sizes, QImage::Format_RGB32);
    if (copies.isEmpty())
        return {};
    bool there = true;
    if (m_segment != XCB_NONE) {
        there = fetchShared(pixmap, areas, copies);
    } else {
        for (qsizetype index = 0; index < areas.size() && there; ++index)
            there = fetch(pixmap, areas[index], copies[index]);
    }
    if (!there)
        return {};
    m_beingRead = false; // the server answers in the order of the requests
    return copies;
}

void PaintBuffer::awaitReading()
{
    if (!std::exchange(m_beingRead, false))
        return;
    const Reply answer(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

bool PaintBuffer::fetchShared(xcb_pixmap_t pixmap, const QList<QRect>& areas, const QList<QImage>& into)
{
    std::vector<xcb_shm_get_image_cookie_t> cookies;
    for (qsizetype index = 0; index < areas.size(); ++index) {
        const QRect& area = areas[index];
        cookies.push_back(xcb_shm_get_image(m_connection, pixmap, static_cast<int16_t>(area.x()),
            static_cast<int16_t>(area.y()), static_cast<uint16_t>(area.width()), static_cast<uint16_t>(area.height()),
            ~0U, XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, offsetOf(into[index])));
    }
    bool there = true;
    for (const xcb_shm_get_image_cookie_t cookie : cookies)
        there = Reply(xcb_shm_get_image_reply(m_connection, cookie, nullptr)) != nullptr && there;
    return there;
}

bool PaintBuffer::fetch(xcb_pixmap_t pixmap, const QRect& area, QImage& into)
{
    const auto cookie = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, static_cast<int16_t>(area.x()),
        static_cast<int16_t>(area.y()), static_cast<uint16_t>(area.width()), static_cast<uint16_t>(area.height()), ~0U);
    const Reply reply(xcb_get_image_reply(m_connection, cookie, nullptr));
    if (!reply || static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) < bytesOf(area.size()))
        return false;
    std::memcpy(into.bits(), xcb_get_image_data(reply.get()), bytesOf(area.size()));
    return true;
}

void PaintBuffer::show(const QList<QImage>& images, const QList<QPoint>& places, xcb_window_t window, uint8_t depth)
{
    for (qsizetype index = 0; index < images.size(); ++index) {
        const QImage& image = images[index];
        if (depth < 24)
            send(image.convertToFormat(QImage::Format_RGB16), window, places[index], depth);
        else if (m_segment == XCB_NONE)
            send(image, window, places[index], depth);
        else
            share(image, window, places[index], depth);
    }
    xcb_flush(m_connection);
    discardEvents(m_connection);
    if (m_bytes > keptBytes)
        release(); // the server holds on to what it has yet to read
}

void PaintBuffer::share(const QImage& image, xcb_window_t window, QPoint place, uint8_t depth)
{
    const auto width = static_cast<uint16_t>(image.width());
    const auto height = static_cast<uint16_t>(image.height());
    xcb_shm_put_image(m_connection, window, contextFor(window, depth), width, height, 0, 0, width, height,
        static_cast<int16_t>(place.x()), static_cast<int16_t>(place.y()), depth, XCB_IMAGE_FORMAT_Z_PIXMAP, 0,
        m_segment, offsetOf(image));
    m_beingRead = true;
}

uint32_t PaintBuffer::offsetOf(const QImage& image) const
{
    return static_cast<uint32_t>(image.constBits() - m_memory);
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
