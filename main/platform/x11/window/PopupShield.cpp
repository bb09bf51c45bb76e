// SPDX-License-Identifier: MIT

#include "platform/x11/window/PopupShield.h"

#include "platform/x11/connection/ToolkitConnection.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

bool isOnWayland()
{
    // Newer servers say so, older ones call their screens so.
    constexpr std::string_view name = "XWAYLAND";
    xcb_connection_t* const connection = toolkitConnection();
    const std::unique_ptr<xcb_query_extension_reply_t, decltype(&std::free)> told(
        xcb_query_extension_reply(
            connection, xcb_query_extension(connection, static_cast<uint16_t>(name.size()), name.data()), nullptr),
        &std::free);
    return (told && told->present != 0) || std::ranges::any_of(QGuiApplication::screens(), [](const QScreen* screen) {
        return screen->name().startsWith("XWAYLAND"_L1);
    });
}

} // namespace

/// The server fills it with nothing; the toolkit never paints on it.
class PopupShield::Shield final : public QWindow {
public:
    explicit Shield(PopupShield& owner)
        : m_owner(owner)
    {
        QSurfaceFormat transparent;
        transparent.setAlphaBufferSize(8);
        setFormat(transparent);
        setFlags(Qt::BypassWindowManagerHint | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
        setGeometry(QGuiApplication::primaryScreen()->virtualGeometry());
        create();
        const uint32_t nothing = 0;
        xcb_change_window_attributes(
            toolkitConnection(), static_cast<xcb_window_t>(winId()), XCB_CW_BACK_PIXEL, &nothing);
        show();
    }

protected:
    bool event(QEvent* event) override
    {
        // It ends in the end of this window.
        if (event->type() == QEvent::MouseButtonPress)
            QMetaObject::invokeMethod(
                &m_owner, [&owner = m_owner] { owner.closeAll(); }, Qt::QueuedConnection);
        return QWindow::event(event);
    }

private:
    PopupShield& m_owner;
};

PopupShield::PopupShield()
{
    qGuiApp->installEventFilter(this);
}

PopupShield::~PopupShield() = default;

bool PopupShield::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->isWindowType()) {
        auto& window = static_cast<QWindow&>(*watched);
        if (window.type() == Qt::Popup && !m_popups.contains(&window))
            opened(window);
    }
    return false;
}

/// The toolkit is about to show it.
void PopupShield::opened(QWindow& popup)
{
    if (!isOnWayland())
        return;
    m_popups.append(&popup);
    connect(&popup, &QWindow::visibleChanged, this, [this, &popup](bool visible) {
        if (!visible)
            closed(&popup);
    });
    connect(&popup, &QObject::destroyed, this, [this, &popup] { closed(&popup); });
    if (!m_shield)
        m_shield = std::make_unique<Shield>(*this);
    const uint32_t above = XCB_STACK_MODE_ABOVE; // it is the older one
    xcb_configure_window(
        toolkitConnection(), static_cast<xcb_window_t>(popup.winId()), XCB_CONFIG_WINDOW_STACK_MODE, &above);
}

void PopupShield::closed(QWindow* popup)
{
    disconnect(popup, nullptr, this, nullptr);
    m_popups.removeOne(popup);
    if (m_popups.isEmpty())
        m_shield.reset();
}

void PopupShield::closeAll()
{
    while (!m_popups.isEmpty()) {
        QWindow* const last = m_popups.last();
        last->close();
        if (m_popups.contains(last)) // whatever became of it
            closed(last);
    }
}

} // namespace ambrelle
