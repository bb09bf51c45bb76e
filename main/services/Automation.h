// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"

#include <QObject>

#include <functional>

namespace ambrelle {

class AppSettings;
class Clock;
class SystemMonitor;

/// The chores that the settings can ask for every so many minutes: another wallpaper, and the count of downloaded bytes
/// begun anew. Both periods begin when this is made. Costs nothing while neither is asked for.
class Automation : public QObject {
public:
    /// `shuffle` puts another wallpaper on the desktop.
    Automation(const AppSettings& settings, SystemMonitor& monitor, Clock& clock, std::function<void()> shuffle);

    /// Looks every half minute from now on whether a chore is due.
    void start();

private:
    void follow();
    void tick();
    bool isDue(double& last, int minutes) const;

    const AppSettings& m_settings;
    SystemMonitor& m_monitor;
    Clock& m_clock;
    std::function<void()> m_shuffle;
    double m_lastShuffle; ///< elapsed seconds, which no setting of the wall clock disturbs
    double m_lastCounterReset; ///< likewise
    bool m_isStarted = false;
    Ticket m_timer;
};

} // namespace ambrelle
