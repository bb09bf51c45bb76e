// SPDX-License-Identifier: MIT

#include "platform/x11/window/StartupToken.h"

#include "platform/x11/connection/WindowManager.h"

#include <algorithm>

namespace ambrelle {

namespace {

/// A value of a message, in quotation marks.
QByteArray quoted(const QByteArray& value)
{
    QByteArray text = "\"";
    for (const char letter : value) {
        if (letter == '"' || letter == '\\')
            text += '\\';
        text += letter;
    }
    return text + '"';
}

} // namespace

StartupToken::StartupToken(const X11Connection& connection, const QString& token)
    : m_connection(connection)
    , m_token(token.toUtf8())
{
}

std::optional<uint32_t> StartupToken::timeIn(const QByteArray& token)
{
    static const QByteArray mark = "_TIME";
    const qsizetype place = token.lastIndexOf(mark);
    bool isNumber = false;
    const uint32_t time = place < 0 ? 0 : token.sliced(place + mark.size()).toUInt(&isNumber);
    return isNumber && time > 0 ? std::optional(time) : std::nullopt; // 0 is now, whenever it is read
}

void StartupToken::mark(xcb_window_t window) const
{
    m_connection.setText(window, m_connection.atom(Atom::startupId), m_connection.atom(Atom::utf8String), m_token);
}

bool StartupToken::activate(xcb_window_t window) const
{
    const std::optional<uint32_t> time = timeIn(m_token);
    if (!time)
        return false;
    m_connection.setProperty(window, Atom::userTime, XCB_ATOM_CARDINAL, {*time});
    m_connection.tellManager(window, Atom::activeWindow, {WindowHint::fromApplication, *time, XCB_WINDOW_NONE});
    return true;
}

void StartupToken::end() const
{
    const QByteArray message = "remove: ID=" + quoted(m_token) + '\0';
    xcb_connection_t* connection = m_connection.handle();
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = xcb_generate_id(connection); // what tells the pieces of one message from those of others
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, event.window, m_connection.root(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    event.type = m_connection.atom(Atom::startupInfoBegin);
    constexpr qsizetype pieceSize = sizeof event.data.data8;
    for (qsizetype start = 0; start < message.size(); start += pieceSize) {
        const QByteArray piece = message.sliced(start, std::min(pieceSize, message.size() - start));
        std::fill(std::begin(event.data.data8), std::end(event.data.data8), uint8_t{0});
        std::copy(piece.begin(), piece.end(), event.data.data8);
        xcb_send_event(
            connection, 0, m_connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE, reinterpret_cast<char*>(&event));
        event.type = m_connection.atom(Atom::startupInfo);
    }
    xcb_destroy_window(connection, event.window);
    m_connection.flush();
}

} // namespace ambrelle
