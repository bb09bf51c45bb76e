// SPDX-License-Identifier: MIT

#include "platform/x11/root/RootPicture.h"

#include "platform/x11/connection/Reply.h"

#include <QPainter>

#include <algorithm>
#include <cstring>

namespace ambrelle {

RootPicture::RootPicture(const X11Connection& connection)
    : m_connection(connection)
{
}

bool RootPicture::isThere()
{
    if (!m_known)
        find();
    return m_pixmap != XCB_PIXMAP_NONE;
}

bool RootPicture::isOutdated() const
{
    return m_known && named() != m_named;
}

xcb_pixmap_t RootPicture::named() const
{
    const std::vector<uint32_t> ids = m_connection.values(m_connection.root(), Atom::rootPixmap);
    return ids.empty() ? xcb_pixmap_t{XCB_PIXMAP_NONE} : ids.front();
}

void RootPicture::find()
{
    m_known = true;
    m_pixmap = XCB_PIXMAP_NONE;
    m_named = named();
    if (m_named == XCB_PIXMAP_NONE)
        return;
    xcb_connection_t* connection = m_connection.handle();
    const Reply size(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, m_named), nullptr));
    // The property may name a picture whose owner has gone, or one in a form that few servers still have.
    const bool readable = size && (size->depth == 24 || size->depth == 32) && size->root == m_connection.root();
    if (!readable)
        return;
    m_pixmap = m_named;
    m_bounds = QRect(0, 0, size->width, size->height);
}

QList<QImage> RootPicture::ground(PaintBuffer& buffer, const QList<QRect>& areas)
{
    if (!m_known)
        find();
    const auto isInside = [this](const QRect& area) { return m_bounds.contains(area); };
    if (m_pixmap != XCB_PIXMAP_NONE && std::ranges::all_of(areas, isInside)) {
        if (QList<QImage> copies = buffer.copy(m_pixmap, areas); !copies.isEmpty())
            return copies;
    }
    QList<QSize> sizes;
    for (const QRect& area : areas)
        sizes.append(area.size());
    QList<QImage> blank = buffer.blank(sizes);
    for (qsizetype index = 0; index < blank.size(); ++index)
        QPainter(&blank[index]).drawImage(QPoint(), part(areas[index]));
    return blank;
}

QImage RootPicture::part(const QRect& area)
{
    if (!m_known)
        find();
    if (m_pixmap == XCB_PIXMAP_NONE || area.isEmpty())
        return {};
    const QRect there = area & m_bounds;
    QImage image(area.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    if (there.isEmpty())
        return image;
    xcb_connection_t* connection = m_connection.handle();
    const auto cookie = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_pixmap, static_cast<int16_t>(there.x()),
        static_cast<int16_t>(there.y()), static_cast<uint16_t>(there.width()), static_cast<uint16_t>(there.height()),
        ~0U);
    const Reply reply(xcb_get_image_reply(connection, cookie, nullptr));
    const auto rowBytes = static_cast<std::size_t>(there.width()) * sizeof(QRgb);
    const std::size_t wanted = rowBytes * static_cast<std::size_t>(there.height());
    if (!reply || static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) < wanted)
        return {};
    const uint8_t* source = xcb_get_image_data(reply.get());
    const QPoint shift = there.topLeft() - area.topLeft();
    for (int row = 0; row < there.height(); ++row, source += rowBytes) {
        QRgb* target = reinterpret_cast<QRgb*>(image.scanLine(row + shift.y())) + shift.x();
        std::memcpy(target, source, rowBytes);
    }
    return image;
}

} // namespace ambrelle
