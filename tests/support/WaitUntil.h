// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <functional>

namespace ambrelle {

/// Lets the event loop run until the condition holds, or the time is over; whether it holds. The usual time is what a
/// very busy machine may take: it is used up only by a fault.
inline bool waitUntil(const std::function<bool()>& condition, int milliseconds = 60'000)
{
    const QDeadlineTimer deadline(milliseconds);
    QTimer look; // ends the waiting for events now and then
    look.start(10);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace ambrelle
