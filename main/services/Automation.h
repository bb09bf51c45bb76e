// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"

#include <QDateTime>
#include <QObject>

#include <functional>

namespace ambrelle {

class AppSettings;
class Clock;
class SystemMonitor;

/// The chores that the settings can ask for every so many minutes: another wallpaper, and the count of downloaded bytes
/// begun anew. Both periods begin when this is made, and run on while the machine sleeps. Costs nothing while neither
/// is asked for.
class Automation : public QObject {
public:
    /// `shuffle` puts another wallpaper on the desktop.
    Automation(const AppSettings& settings, SystemMonitor& monitor, Clock& clock, std::function<void()> shuffle);

    /// Looks every half minute from now on, and when the machine wakes up, whether a chore is due.
    void start();

private:
    void follow();
    void tick();
    bool isDue(QDateTime& last, int minutes) const;

    const AppSettings& m_settings;
    SystemMonitor& m_monitor;
    Clock& m_clock;
    std::function<void()> m_shuffle;
    QDateTime m_lastShuffle; ///< of the wall clock, which goes on while the machine sleeps
    QDateTime m_lastCounterReset; ///< likewise
    bool m_isStarted = false;
    Ticket m_timer;
    Ticket m_jumps;
};

} // namespace ambrelle
