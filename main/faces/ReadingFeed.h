#pragma once

#include "faces/Readings.h"
#include "foundation/Clock.h"
#include "model/WidgetConfig.h"

#include <QLocale>
#include <QObject>

#include <bitset>

namespace ambrelle {

class AppSettings;
class SystemMonitor;

/// A set of widget kinds, by their number.
using WidgetKinds = std::bitset<rawRows<WidgetKind>.size()>;

constexpr WidgetKinds kindSet(std::initializer_list<WidgetKind> kinds)
{
    unsigned long long bits = 0;
    for (const WidgetKind kind : kinds)
        bits |= 1ULL << static_cast<unsigned>(kind);
    return {bits};
}

/// Makes the readings of all widgets from the services, and tells which kinds may read differently now. It holds no
/// state of its own: a widget compares the new reading with the one it shows.
class ReadingFeed : public QObject {
    Q_OBJECT
public:
    struct Sources {
        const SystemMonitor& monitor;
        const AppSettings& settings;
    };

    ReadingFeed(const Sources& sources, Clock& clock, const QLocale& locale = QLocale::system());

    /// What the widget shows at this moment. `seconds`: its clock face shows them.
    Reading readingFor(const WidgetConfig& config, bool seconds = false) const;

Q_SIGNALS:
    void changed(const ambrelle::WidgetKinds& kinds);

private:
    Sources m_sources;
    Clock& m_clock;
    QLocale m_locale;
    Ticket m_minutes;
};

} // namespace ambrelle
