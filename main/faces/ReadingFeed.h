// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Readings.h"
#include "foundation/Clock.h"
#include "model/WidgetConfig.h"
#include "model/WidgetKinds.h"

#include <QLocale>
#include <QObject>

namespace ambrelle {

class AppSettings;
class LiveServices;
class SystemMonitor;

/// Makes the readings of all widgets from the services, and tells which kinds may read differently now: when a service
/// says so, at the start of a minute, and at the start of a second where that shows. It keeps no reading: a widget
/// compares the new one with the one it shows.
class ReadingFeed : public QObject {
    Q_OBJECT
public:
    struct Collaborators {
        const SystemMonitor& monitor;
        const LiveServices& services;
        const AppSettings& settings;
    };

    /// Whom changes are told, and what they see.
    struct Audience {
        bool looks = true; ///< nothing is told while nobody does, and every kind once when somebody does again
        WidgetKinds kinds{}; ///< that are shown
        bool seconds = false; ///< some clock shows them

        bool operator==(const Audience&) const = default;
    };

    ReadingFeed(const Collaborators& collaborators, Clock& clock, const QLocale& locale = QLocale::system());

    /// Until it is called somebody looks, and sees nothing that changes by the second.
    void setAudience(const Audience& audience);

    /// What the widget shows at this moment. `seconds`: its clock face shows them.
    Reading readingFor(const WidgetConfig& config, bool seconds = false) const;

Q_SIGNALS:
    void changed(const ambrelle::WidgetKinds& kinds);

private:
    template <typename Service> void follow(const Service& service, const WidgetKinds& kinds);
    void tell(const WidgetKinds& kinds);
    void scheduleMinutes();
    void scheduleSeconds();
    WidgetKinds changingBySecond() const;

    Collaborators m_with;
    Clock& m_clock;
    QLocale m_locale;
    Audience m_audience;
    Ticket m_minutes;
    Ticket m_seconds;
};

} // namespace ambrelle
