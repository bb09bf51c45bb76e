// SPDX-License-Identifier: MIT

#include "platform/x11/session/X11InputMonitor.h"

#include "foundation/Wording.h"
#include "platform/toolkit/GlobalSpace.h"
#include "platform/toolkit/NativeScreens.h"
#include "platform/x11/connection/Reply.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSocketNotifier>

#include <xcb/xcbext.h>
#include <xcb/xinput.h>

#include <chrono>
#include <utility>

namespace ambrelle {

namespace {

// A moving mouse sends up to a thousand events a second; ten looks at it tell its way as well.
constexpr std::chrono::milliseconds motionPause{100};
constexpr uint32_t leftButton = 1;
constexpr uint32_t rightButton = 3;

xcb_window_t rootOf(xcb_connection_t* connection, int screenNumber)
{
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int index = 0; index < screenNumber && screen.rem > 1; ++index)
        xcb_screen_next(&screen);
    return screen.data->root;
}

double seconds(qint64 milliseconds)
{
    return static_cast<double>(milliseconds) / 1000;
}

bool isPresent(xcb_connection_t* connection, xcb_extension_t& extension)
{
    const xcb_query_extension_reply_t* reply = xcb_get_extension_data(connection, &extension);
    return reply && reply->present;
}

GlobalSpace globalSpace()
{
    const QScreen* main = QGuiApplication::primaryScreen();
    return {main ? QRectF(main->geometry()).bottomLeft() : QPointF()};
}

} // namespace

X11InputMonitor::X11InputMonitor()
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(motionPause);
    connect(&m_pause, &QTimer::timeout, this, &X11InputMonitor::pauseEnded);
}

X11InputMonitor::~X11InputMonitor()
{
    stop();
}

QString X11InputMonitor::whyNot() const
{
    return isAvailable() ? QString() : Wording::tr("The X server does not tell what is done at the machine.");
}

void X11InputMonitor::start()
{
    if (m_connection)
        return;
    int screenNumber = 0;
    xcb_connection_t* connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(connection) != 0) {
        xcb_disconnect(connection);
        m_tellsIdle = m_tellsPointer = false;
        return;
    }
    m_connection = connection;
    m_root = rootOf(connection, screenNumber);
    findExtensions();
    m_entered = QGuiApplication::topLevelAt(QCursor::pos());
    qGuiApp->installEventFilter(this);
    m_notifier = new QSocketNotifier(xcb_get_file_descriptor(connection), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &X11InputMonitor::pump);
    if (m_tellsPointer)
        selectRawEvents(true);
    pump();
}

void X11InputMonitor::stop()
{
    if (!m_connection)
        return;
    qGuiApp->removeEventFilter(this);
    m_pause.stop();
    m_sinceHeard.invalidate();
    m_notifier->setEnabled(false);
    m_notifier->deleteLater(); // it may be calling
    m_notifier = nullptr;
    xcb_disconnect(std::exchange(m_connection, nullptr));
    m_pointerAsked.reset();
    m_toldPlace.reset();
    for (const Question& question : std::exchange(m_questions, {})) {
        if (question.context)
            question.answer(std::nullopt);
    }
}

/// Waits twice for the server, whatever is there.
void X11InputMonitor::findExtensions()
{
    xcb_prefetch_extension_data(m_connection, &xcb_input_id);
    xcb_prefetch_extension_data(m_connection, &xcb_screensaver_id);
    m_tellsPointer = isPresent(m_connection, xcb_input_id);
    m_tellsIdle = isPresent(m_connection, xcb_screensaver_id);
    if (!m_tellsPointer)
        return;
    m_inputOpcode = xcb_get_extension_data(m_connection, &xcb_input_id)->major_opcode;
    const Reply version(
        xcb_input_xi_query_version_reply(m_connection, xcb_input_xi_query_version(m_connection, 2, 2), nullptr));
    // Before 2.1 raw events fail to come while another client has a grab, but they come.
    m_tellsPointer = version && version->major_version >= 2;
}

void X11InputMonitor::selectRawEvents(bool motion)
{
    struct {
        xcb_input_event_mask_t head{.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1};
        uint32_t events = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    } mask;
    if (motion)
        mask.events |= XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    xcb_input_xi_select_events(m_connection, m_root, 1, &mask.head);
}

void X11InputMonitor::secondsSinceInput(QObject* context, Answer answer)
{
    if (!m_connection || !m_tellsIdle)
        return answer(m_sinceHeard.isValid() ? std::optional(seconds(m_sinceHeard.elapsed())) : std::nullopt);
    m_questions.push_back({xcb_screensaver_query_info(m_connection, m_root), context, std::move(answer)});
    pump();
}

double X11InputMonitor::metresPerPoint() const
{
    const QScreen* main = QGuiApplication::primaryScreen();
    return main ? metresPerPoint(main->physicalSize().width(), main->geometry().width()) : usualMetresPerPoint;
}

/// Sends what is to be sent and handles what came. Sending may read too, and what it read no longer wakes the event
/// loop; so this ends only after a round in which nothing was there.
void X11InputMonitor::pump()
{
    bool handled = true;
    while (m_connection && handled) {
        xcb_flush(m_connection);
        handled = hearEvents();
        handled |= takePointer();
        handled |= takeIdleTimes();
    }
    // A closed connection stays readable for ever.
    if (m_connection && xcb_connection_has_error(m_connection) != 0) {
        m_tellsIdle = m_tellsPointer = false;
        stop();
    }
}

bool X11InputMonitor::hearEvents()
{
    bool heard = false;
    while (m_connection) {
        const Reply event{xcb_poll_for_event(m_connection)};
        if (!event)
            break;
        hear(*event);
        heard = true;
    }
    return heard;
}

void X11InputMonitor::hear(const xcb_generic_event_t& event)
{
    if ((event.response_type & static_cast<uint8_t>(~sentByClient)) != XCB_GE_GENERIC)
        return;
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    if (generic.extension != m_inputOpcode)
        return;
    m_sinceHeard.start();
    if (generic.event_type == XCB_INPUT_RAW_MOTION)
        return motionSeen();
    if (generic.event_type != XCB_INPUT_RAW_BUTTON_PRESS || isInOwnWindow())
        return;
    const uint32_t button = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event).detail;
    if (button == leftButton || button == rightButton) // the others are the middle and the wheel
        Q_EMIT clicked();
}

void X11InputMonitor::motionSeen()
{
    if (m_pause.isActive())
        return;
    askPointer();
    selectRawEvents(false);
    m_pause.start();
}

void X11InputMonitor::pauseEnded()
{
    selectRawEvents(true); // first, so that no motion falls between
    askPointer();
    pump();
}

/// The raw events do not say where the pointer is: they count in the device's own unit, before acceleration.
void X11InputMonitor::askPointer()
{
    if (!m_pointerAsked)
        m_pointerAsked = xcb_query_pointer(m_connection, m_root);
}

bool X11InputMonitor::takePointer()
{
    void* answer = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (!m_connection || !m_pointerAsked
        || xcb_poll_for_reply(m_connection, m_pointerAsked->sequence, &answer, &error) == 0)
        return false;
    m_pointerAsked.reset();
    const Reply refused(error);
    const Reply reply(static_cast<xcb_query_pointer_reply_t*>(answer));
    if (!reply || !reply->same_screen || isInOwnWindow())
        return true;
    const QPoint place(reply->root_x, reply->root_y);
    if (std::exchange(m_toldPlace, place) != place)
        Q_EMIT moved(globalSpace().turned(NativeScreens().toolkitPoint(place)));
    return true;
}

bool X11InputMonitor::takeIdleTimes()
{
    bool taken = false;
    while (m_connection && !m_questions.empty()) {
        void* answer = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (xcb_poll_for_reply(m_connection, m_questions.front().cookie.sequence, &answer, &error) == 0)
            break;
        const Question question = std::move(m_questions.front());
        m_questions.pop_front();
        taken = true;
        const Reply refused(error);
        const Reply info(static_cast<xcb_screensaver_query_info_reply_t*>(answer));
        if (question.context)
            question.answer(info ? std::optional(seconds(info->ms_since_user_input)) : std::nullopt);
    }
    return taken;
}

bool X11InputMonitor::isInOwnWindow() const
{
    return m_entered && m_entered->isVisible();
}

/// Raw events come whichever window they are for.
bool X11InputMonitor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter && watched->isWindowType())
        m_entered = static_cast<QWindow*>(watched);
    else if (event->type() == QEvent::Leave && watched == m_entered)
        m_entered = nullptr;
    return false;
}

} // namespace ambrelle
