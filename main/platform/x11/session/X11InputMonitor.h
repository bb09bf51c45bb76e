// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <xcb/screensaver.h>
#include <xcb/xcb.h>

#include <deque>
#include <optional>

class QSocketNotifier;

namespace ambrelle {

/// Input as the X server tells it to anyone who asks: raw events of buttons and pointer, and the idle time its screen
/// saver counts. Grabs nothing. On a connection of its own, whose answers nobody waits for; a pointer that rests costs
/// nothing. Needs the application object on the "xcb" platform plugin.
class X11InputMonitor final : public InputMonitor {
public:
    X11InputMonitor();
    ~X11InputMonitor() override;

    using InputMonitor::metresPerPoint;

    bool isAvailable() const override { return m_tellsIdle || m_tellsPointer; }
    QString whyNot() const override;
    bool tellsPointer() const override { return m_tellsPointer; }
    void start() override;
    void stop() override;
    void secondsSinceInput(QObject* context, Answer answer) override;
    double metresPerPoint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Question {
        xcb_screensaver_query_info_cookie_t cookie;
        QPointer<QObject> context;
        Answer answer;
    };

    void findExtensions();
    void selectRawEvents(bool motion);
    void askPointer();
    void pump();
    bool hearEvents();
    void hear(const xcb_generic_event_t& event);
    void motionSeen();
    void pauseEnded();
    bool takePointer();
    bool takeIdleTimes();
    bool isInOwnWindow() const;

    xcb_connection_t* m_connection = nullptr; ///< while started
    xcb_window_t m_root = XCB_WINDOW_NONE;
    QSocketNotifier* m_notifier = nullptr;
    bool m_tellsIdle = true; ///< until start() finds otherwise, as the next
    bool m_tellsPointer = true;
    uint8_t m_inputOpcode = 0;
    QElapsedTimer m_sinceHeard; ///< since the last raw event, in case nothing else tells the idle time
    QTimer m_pause; ///< while it runs, no motion is heard
    std::optional<xcb_query_pointer_cookie_t> m_pointerAsked;
    std::optional<QPoint> m_toldPlace; ///< native pixels of the root window
    std::deque<Question> m_questions; ///< about the idle time, the oldest first
    QPointer<QWindow> m_entered; ///< the window of ours that the pointer went into last
};

} // namespace ambrelle
