// SPDX-License-Identifier: MIT

#include "platform/x11/root/RootPixmap.h"

#include "foundation/Wording.h"
#include "platform/x11/connection/PixelBands.h"
#include "platform/x11/connection/Reply.h"
#include "platform/x11/root/RootPicture.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

xcb_screen_t* screenOf(xcb_connection_t* connection, int number)
{
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int index = 0; index < number && screen.rem > 1; ++index)
        xcb_screen_next(&screen);
    return screen.data;
}

uint32_t first(const std::vector<uint32_t>& values)
{
    return values.empty() ? 0 : values.front();
}

bool hasUsualColours(const xcb_screen_t& screen)
{
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0; xcb_depth_next(&depth)) {
        for (auto kind = xcb_depth_visuals_iterator(depth.data); kind.rem > 0; xcb_visualtype_next(&kind)) {
            const xcb_visualtype_t& visual = *kind.data;
            if (visual.visual_id == screen.root_visual)
                return visual.red_mask == 0xFF0000 && visual.green_mask == 0xFF00 && visual.blue_mask == 0xFF;
        }
    }
    return false;
}

int bitsPerPixel(xcb_connection_t* connection, uint8_t depth)
{
    auto format = xcb_setup_pixmap_formats_iterator(xcb_get_setup(connection));
    for (; format.rem > 0; xcb_format_next(&format)) {
        if (format.data->depth == depth)
            return format.data->bits_per_pixel;
    }
    return 0;
}

} // namespace

RootPixmap::RootPixmap()
{
    int number = 0;
    m_connection = xcb_connect(nullptr, &number);
    if (xcb_connection_has_error(m_connection) != 0) {
        m_fault = Wording::tr("The X server takes no further connection.");
        return;
    }
    m_screen = screenOf(m_connection, number);
    m_x.emplace(m_connection, number);
}

RootPixmap::~RootPixmap()
{
    xcb_disconnect(m_connection);
}

QSize RootPixmap::size() const
{
    const Reply root(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, m_screen->root), nullptr));
    return root ? QSize(root->width, root->height) : QSize();
}

QImage RootPixmap::picture() const
{
    return RootPicture(*m_x).part({{0, 0}, size()});
}

RootPixmap::Record RootPixmap::record() const
{
    const auto pixmap = m_x->ask(m_screen->root, Atom::rootPixmap);
    const QJsonObject noted = QJsonDocument::fromJson(m_x->text(m_screen->root, Atom::desktopPicture)).object();
    const double named = first(m_x->values(pixmap));
    Record record;
    if (named == 0 || noted.value("pixmap"_L1).toDouble() != named)
        return record;
    const QJsonObject files = noted.value("files"_L1).toObject();
    for (auto file = files.begin(); file != files.end(); ++file)
        record.insert(file.key(), file->toString());
    return record;
}

QString RootPixmap::publish(const QImage& image, const Record& record)
{
    if (QString reason = whyUnsuitable(); !reason.isEmpty())
        return reason;
    const xcb_pixmap_t pixmap = xcb_generate_id(m_connection);
    if (QString error = upload(pixmap, image); !error.isEmpty())
        return error;
    makeKnown(pixmap, record);
    // Once the server answers this it has done all of it.
    const Reply answer(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return answer ? QString() : Wording::tr("The X server closed the connection.");
}

QString RootPixmap::whyUnsuitable() const
{
    const bool sameOrder = (xcb_get_setup(m_connection)->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST)
        == (QSysInfo::ByteOrder == QSysInfo::LittleEndian);
    if (sameOrder && bitsPerPixel(m_connection, m_screen->root_depth) == 32 && hasUsualColours(*m_screen))
        return {};
    return Wording::tr("Pictures cannot be set on a screen with this depth of colour.");
}

QString RootPixmap::upload(xcb_pixmap_t pixmap, const QImage& image) const
{
    QString noMemory = Wording::tr("The X server has no room for the picture.");
    const auto width = static_cast<uint16_t>(image.width());
    const auto height = static_cast<uint16_t>(image.height());
    const auto made =
        xcb_create_pixmap_checked(m_connection, m_screen->root_depth, pixmap, m_screen->root, width, height);
    if (const Reply error(xcb_request_check(m_connection, made)); error)
        return noMemory;
    const xcb_gcontext_t context = xcb_generate_id(m_connection);
    xcb_create_gc(m_connection, context, pixmap, 0, nullptr);
    const auto put = [&](const uint8_t* pixels, uint32_t bytes, int row, int count) {
        const auto asked = xcb_put_image_checked(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width,
            static_cast<uint16_t>(count), 0, static_cast<int16_t>(row), 0, m_screen->root_depth, bytes, pixels);
        return Reply(xcb_request_check(m_connection, asked)) == nullptr;
    };
    if (!sendInBands(m_connection, image, put))
        return noMemory;
    xcb_free_gc(m_connection, context);
    return {};
}

void RootPixmap::makeKnown(xcb_pixmap_t pixmap, const Record& record)
{
    const xcb_window_t root = m_screen->root;
    const auto named = m_x->ask(root, Atom::rootPixmap);
    const auto alsoNamed = m_x->ask(root, Atom::otherRootPixmap);
    const uint32_t old = first(m_x->values(named));
    const bool isAbandoned = old != 0 && old == first(m_x->values(alsoNamed));

    QJsonObject files;
    for (auto file = record.begin(); file != record.end(); ++file)
        files.insert(file.key(), *file);
    const QJsonObject noted{{u"pixmap"_s, static_cast<double>(pixmap)}, {u"files"_s, files}};
    if (record.isEmpty())
        m_x->removeProperty(root, Atom::desktopPicture);
    else
        m_x->setText(root, m_x->atom(Atom::desktopPicture), m_x->atom(Atom::utf8String),
            QJsonDocument(noted).toJson(QJsonDocument::Compact));

    xcb_set_close_down_mode(m_connection, XCB_CLOSE_DOWN_RETAIN_PERMANENT);
    m_x->setProperty(root, Atom::rootPixmap, XCB_ATOM_PIXMAP, {pixmap});
    m_x->setProperty(root, Atom::otherRootPixmap, XCB_ATOM_PIXMAP, {pixmap});
    xcb_change_window_attributes(m_connection, root, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(m_connection, 0, root, 0, 0, 0, 0);
    // By custom a picture under both names was left by a program that has ended, and whoever replaces it clears it
    // away.
    if (isAbandoned)
        xcb_kill_client(m_connection, old);
}

} // namespace ambrelle
