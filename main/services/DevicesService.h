// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "platform/DeviceSource.h"
#include "services/DeviceKind.h"

namespace ambrelle {

/// One connected accessory.
struct DeviceRow {
    QString id; ///< the name: there is one row for each
    QString name;
    DeviceKind kind = DeviceKind::other;
    std::optional<double> battery; ///< level of the main battery, 0 to 1
    bool charging = false;
    QString detail; ///< levels of the parts, "L 82 · R 85 · Case 60"; empty without any

    bool operator==(const DeviceRow&) const = default;
};

/// One row for each name, sorted by name. What an earlier source tells of a device stands; later ones fill in what is
/// missing. A device charges when any source says so.
QList<DeviceRow> deviceRows(const QList<ConnectedDevice>& told);

/// The accessories that are connected and their batteries, for all devices widgets.
class DevicesService : public QObject {
    Q_OBJECT
public:
    /// The first source is the one that has to work for devices to be found at all; the others add to it.
    DevicesService(QList<DeviceSource*> sources, Clock& clock);

    /// Looks for devices from now on. Nothing more once started, or while showing samples.
    void start();
    /// Asks all sources afresh.
    void refresh();
    /// Fixed rows in place of found ones, for pictures, for good.
    void loadPreviewData();

    const QList<DeviceRow>& devices() const { return m_found.devices; }
    bool isSearching() const { return m_found.searching; } ///< some source has not answered yet
    /// Why devices cannot be found, one sentence; empty while they can.
    const QString& whyNot() const { return m_found.whyNot; }

Q_SIGNALS:
    void changed(); ///< any of the values above

private:
    struct Findings {
        QList<DeviceRow> devices;
        bool searching = true;
        QString whyNot;

        bool operator==(const Findings&) const = default;
    };

    void look();
    void publish(const Findings& findings);

    QList<DeviceSource*> m_sources;
    Clock& m_clock;
    Findings m_found;
    bool m_started = false;
    bool m_preview = false;
    Ticket m_timer;
};

} // namespace ambrelle
