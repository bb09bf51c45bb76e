// SPDX-License-Identifier: MIT

#include "platform/x11/Onlooker.h"

#include <QCoreApplication>
#include <QProcess>

#include <algorithm>
#include <cstring>

namespace ambrelle::test {

void rest(int milliseconds)
{
    waitUntil([] { return false; }, milliseconds);
    QCoreApplication::processEvents(); // what became due meanwhile
}

bool runTool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool ended = waitUntil([&] { return process.state() == QProcess::NotRunning; });
    return ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QImage speckled(const QSize& size, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb((x * 7 + seed) & 255, (y * 5 + seed) & 255, (x + y) & 255));
    }
    return image;
}

Onlooker::Onlooker()
    : m_connection(xcb_connect(nullptr, nullptr))
    , m_screen(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data)
{
}

Onlooker::~Onlooker()
{
    if (m_rootPicture != XCB_PIXMAP_NONE)
        dropRootPicture();
    // The server drops what it has not yet read from a client that leaves with unread events.
    const Reply heard(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    xcb_disconnect(m_connection);
}

xcb_window_t Onlooker::openWindow(const QRect& place, QRgb colour, const char* type)
{
    const xcb_window_t window = xcb_generate_id(m_connection);
    const uint32_t settings[]{colour & 0xFFFFFF, XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_screen->root, static_cast<int16_t>(place.x()),
        static_cast<int16_t>(place.y()), static_cast<uint16_t>(place.width()), static_cast<uint16_t>(place.height()), 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, settings);
    const xcb_atom_t typeAtom = atom(type);
    xcb_change_property(
        m_connection, XCB_PROP_MODE_REPLACE, window, atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &typeAtom);
    // No frame and a position of its own, so that the window covers exactly its rectangle.
    const uint32_t undecorated[]{2, 0, 0, 0, 0};
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom("_MOTIF_WM_HINTS"), atom("_MOTIF_WM_HINTS"),
        32, 5, undecorated);
    uint32_t sizeHints[18]{1 | 4};
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS,
        32, 18, sizeHints);
    xcb_map_window(m_connection, window);
    xcb_flush(m_connection);
    waitUntil([&] { return isViewable(window) && isManaged(window); });
    // A window manager may still be busy with what an earlier window of the same number asked for.
    if (geometry(window) != place) {
        this->place(window, place);
        waitUntil([&] { return geometry(window) == place; });
    }
    return window;
}

void Onlooker::closeWindow(xcb_window_t window)
{
    xcb_destroy_window(m_connection, window);
    xcb_flush(m_connection);
}

void Onlooker::place(xcb_window_t window, const QRect& place)
{
    const uint32_t values[]{static_cast<uint32_t>(place.x()), static_cast<uint32_t>(place.y()),
        static_cast<uint32_t>(place.width()), static_cast<uint32_t>(place.height())};
    constexpr uint16_t all =
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT;
    xcb_configure_window(m_connection, window, all, values);
    xcb_flush(m_connection);
}

void Onlooker::setValues(
    xcb_window_t window, const char* property, xcb_atom_t type, const std::vector<uint32_t>& values)
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(property), type, 32,
        static_cast<uint32_t>(values.size()), values.data());
    xcb_flush(m_connection);
}

void Onlooker::setRootPicture(const QImage& picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    const xcb_pixmap_t pixmap = xcb_generate_id(m_connection);
    xcb_create_pixmap(m_connection, m_screen->root_depth, pixmap, m_screen->root, static_cast<uint16_t>(image.width()),
        static_cast<uint16_t>(image.height()));
    const xcb_gcontext_t context = xcb_generate_id(m_connection);
    xcb_create_gc(m_connection, context, pixmap, 0, nullptr);
    for (int row = 0; row < image.height(); ++row) {
        xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, static_cast<uint16_t>(image.width()), 1,
            0, static_cast<int16_t>(row), 0, m_screen->root_depth, static_cast<uint32_t>(image.bytesPerLine()),
            image.constScanLine(row));
    }
    xcb_free_gc(m_connection, context);
    xcb_change_window_attributes(m_connection, m_screen->root, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(m_connection, 0, m_screen->root, 0, 0, 0, 0);
    xcb_change_property(
        m_connection, XCB_PROP_MODE_REPLACE, m_screen->root, atom("_XROOTPMAP_ID"), XCB_ATOM_PIXMAP, 32, 1, &pixmap);
    if (m_rootPicture != XCB_PIXMAP_NONE)
        xcb_free_pixmap(m_connection, m_rootPicture);
    m_rootPicture = pixmap;
    xcb_flush(m_connection);
}

void Onlooker::dropRootPicture()
{
    xcb_delete_property(m_connection, m_screen->root, atom("_XROOTPMAP_ID"));
    const uint32_t black = 0;
    xcb_change_window_attributes(m_connection, m_screen->root, XCB_CW_BACK_PIXEL, &black);
    xcb_clear_area(m_connection, 0, m_screen->root, 0, 0, 0, 0);
    xcb_free_pixmap(m_connection, m_rootPicture);
    m_rootPicture = XCB_PIXMAP_NONE;
    xcb_flush(m_connection);
}

bool Onlooker::hasPixmap(xcb_pixmap_t pixmap) const
{
    return Reply(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, pixmap), nullptr)) != nullptr;
}

void Onlooker::showDesktop(bool on)
{
    tellManager(m_screen->root, "_NET_SHOWING_DESKTOP", on ? 1 : 0);
}

void Onlooker::fillScreen(xcb_window_t window)
{
    constexpr uint32_t add = 1;
    tellManager(window, "_NET_WM_STATE", add, atom("_NET_WM_STATE_FULLSCREEN"));
}

QRgb Onlooker::pixel(const QPoint& place) const
{
    const QImage one = picture({place, QSize(1, 1)});
    return one.isNull() ? 0 : one.pixel(0, 0);
}

QImage Onlooker::picture(const QRect& area) const
{
    const auto cookie = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root,
        static_cast<int16_t>(area.x()), static_cast<int16_t>(area.y()), static_cast<uint16_t>(area.width()),
        static_cast<uint16_t>(area.height()), ~0U);
    const Reply reply(xcb_get_image_reply(m_connection, cookie, nullptr));
    if (!reply)
        return {};
    return QImage(xcb_get_image_data(reply.get()), area.width(), area.height(), QImage::Format_RGB32).copy();
}

std::vector<uint32_t> Onlooker::values(xcb_window_t window, const char* property) const
{
    const auto cookie = xcb_get_property(m_connection, 0, window, atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, 4096);
    const Reply reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* first = static_cast<const uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

QStringList Onlooker::atoms(xcb_window_t window, const char* property) const
{
    QStringList names;
    for (const uint32_t value : values(window, property)) {
        const Reply reply(xcb_get_atom_name_reply(m_connection, xcb_get_atom_name(m_connection, value), nullptr));
        if (reply)
            names.append(
                QString::fromLatin1(xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get())));
    }
    names.sort();
    return names;
}

xcb_window_t Onlooker::activeWindow() const
{
    const std::vector<uint32_t> active = values(m_screen->root, "_NET_ACTIVE_WINDOW");
    return active.empty() ? xcb_window_t{XCB_WINDOW_NONE} : active.front();
}

bool Onlooker::isAbove(xcb_window_t upper, xcb_window_t lower) const
{
    const std::vector<uint32_t> order = values(m_screen->root, "_NET_CLIENT_LIST_STACKING");
    const auto above = std::ranges::find(order, upper);
    const auto below = std::ranges::find(order, lower);
    return above != order.end() && below != order.end() && below < above;
}

bool Onlooker::isManaged(xcb_window_t window) const
{
    const std::vector<uint32_t> all = values(m_screen->root, "_NET_CLIENT_LIST");
    return std::ranges::find(all, window) != all.end();
}

bool Onlooker::isViewable(xcb_window_t window) const
{
    const auto cookie = xcb_get_window_attributes(m_connection, window);
    const Reply reply(xcb_get_window_attributes_reply(m_connection, cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

QRect Onlooker::geometry(xcb_window_t window) const
{
    const Reply size(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
    const Reply place(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, window, m_screen->root, 0, 0), nullptr));
    return size && place ? QRect(place->dst_x, place->dst_y, size->width, size->height) : QRect();
}

bool Onlooker::isComposited() const
{
    const auto cookie = xcb_get_selection_owner(m_connection, atom("_NET_WM_CM_S0"));
    const Reply reply(xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

int Onlooker::clicks(xcb_window_t window)
{
    while (const Reply event{xcb_poll_for_event(m_connection)}) {
        if ((event->response_type & 0x7F) == XCB_BUTTON_PRESS)
            ++m_clicks[reinterpret_cast<const xcb_button_press_event_t*>(event.get())->event];
    }
    return m_clicks[window];
}

xcb_atom_t Onlooker::atom(const char* name) const
{
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(std::strlen(name)), name);
    const Reply reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void Onlooker::tellManager(xcb_window_t window, const char* message, uint32_t first, uint32_t second) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    event.data.data32[0] = first;
    event.data.data32[1] = second;
    xcb_send_event(m_connection, 0, m_screen->root,
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, reinterpret_cast<char*>(&event));
    xcb_flush(m_connection);
}

} // namespace ambrelle::test
