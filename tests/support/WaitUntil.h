#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <functional>

namespace ambrelle {

/// Lets the event loop run until the condition holds, or the time is over; whether it holds.
inline bool waitUntil(const std::function<bool()>& condition, int milliseconds = 20'000)
{
    const QDeadlineTimer deadline(milliseconds);
    QTimer look; // ends the waiting for events now and then
    look.start(10);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return condition();
}

} // namespace ambrelle
