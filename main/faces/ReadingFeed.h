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

/// Makes the readings of all widgets from the services, and tells which kinds may read differently now. It holds no
/// state of its own: a widget compares the new reading with the one it shows.
class ReadingFeed : public QObject {
    Q_OBJECT
public:
    struct Sources {
        const SystemMonitor& monitor;
        const LiveServices& services;
        const AppSettings& settings;
    };

    ReadingFeed(const Sources& sources, Clock& clock, const QLocale& locale = QLocale::system());

    /// What the widget shows at this moment. `seconds`: its clock face shows them.
    Reading readingFor(const WidgetConfig& config, bool seconds = false) const;

Q_SIGNALS:
    void changed(const ambrelle::WidgetKinds& kinds);

private:
    template <typename Service> void follow(const Service& service, const WidgetKinds& kinds);

    Sources m_sources;
    Clock& m_clock;
    QLocale m_locale;
    Ticket m_minutes;
};

} // namespace ambrelle
