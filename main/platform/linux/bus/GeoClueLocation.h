// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/OpenBus.h"
#include "platform/LocationSource.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

namespace ambrelle {

/// The location in the properties of a GeoClue location object; nothing unless both coordinates are there and within
/// the globe. The place stays without a name: what the service describes is the way it was found, such as "WiFi".
std::optional<Location> locationFrom(const QVariantMap& properties);

/// The location that the GeoClue service tells. Nothing is asked, and nothing runs, until a location is requested;
/// after each answer the service is let go.
class GeoClueLocation final : public LocationSource {
    Q_OBJECT
public:
    using Milliseconds = std::chrono::milliseconds;

    struct Patience {
        Milliseconds location = std::chrono::minutes(1); ///< for a location once it is allowed
        /// How long a refusal, or the lack of the service, holds before a request asks again. Nobody tells when it is
        /// taken back, or when the desktop's agent, which a session may start after this program, is there to be asked.
        Milliseconds refusal = std::chrono::minutes(10);
    };

    explicit GeoClueLocation(OpenBus openBus = &QDBusConnection::systemBus);
    GeoClueLocation(OpenBus openBus, const Patience& patience);
    ~GeoClueLocation() override;

    bool isAvailable() const override { return m_present; }
    QString whyNot() const override;
    LocationAuthorization authorization() const override;
    void requestLocation() override;

private Q_SLOTS:
    void locationUpdated(const QDBusMessage& message);

private:
    using Reply = std::function<void(const QDBusMessage& reply)>;

    void askForClient();
    void startClient(const QDBusMessage& client);
    void readLocation(const QString& object);
    void setProperty(const char* name, const QVariant& value);
    /// Calls a method; `answered` hears the reply unless the request is over by then.
    void call(const QDBusMessage& message, Milliseconds timeOut, Reply answered);
    void refused(const QDBusMessage& error, LocationAuthorization refusal);
    void missing();
    void settle(LocationAuthorization answer, QDeadlineTimer holds = QDeadlineTimer::Forever);
    void finish();
    void giveUp();

    OpenBus m_openBus;
    Patience m_patience;
    QDBusConnection m_bus{QString()};
    bool m_present = true; // until it turns out otherwise
    LocationAuthorization m_authorization = LocationAuthorization::undetermined;
    QDeadlineTimer m_holds{QDeadlineTimer::Forever}; // until then m_authorization is the answer
    int m_request = 0; // number of the current or last request
    bool m_asking = false;
    QString m_service; // the unique name of the service that answers the current request
    QString m_client; // path of its client object
    QTimer m_deadline;
};

} // namespace ambrelle
