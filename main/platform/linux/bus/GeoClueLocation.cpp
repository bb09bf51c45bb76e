// SPDX-License-Identifier: MIT

#include "platform/linux/bus/GeoClueLocation.h"

#include "foundation/Wording.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto geoClue = u"org.freedesktop.GeoClue2"_s;
const auto geoCluePath = u"/org/freedesktop/GeoClue2/Manager"_s;
const auto managerInterface = u"org.freedesktop.GeoClue2.Manager"_s;
const auto clientInterface = u"org.freedesktop.GeoClue2.Client"_s;
const auto locationInterface = u"org.freedesktop.GeoClue2.Location"_s;
const auto desktopId = u"org.ambrelle.Ambrelle"_s; // by which the user knows who asks
constexpr uint neighbourhood = 5; // the accuracy level of some three kilometres

// The service waits for the desktop's agent, a minute or more, and the agent may ask the user.
constexpr auto permission = 2min;

} // namespace

std::optional<Location> locationFrom(const QVariantMap& properties)
{
    bool hasLatitude = false;
    bool hasLongitude = false;
    const double latitude = properties.value(u"Latitude"_s).toDouble(&hasLatitude);
    const double longitude = properties.value(u"Longitude"_s).toDouble(&hasLongitude);
    // Written so that what is not a number fails too.
    if (!hasLatitude || !hasLongitude || !(std::abs(latitude) <= 90) || !(std::abs(longitude) <= 180))
        return std::nullopt;
    return Location{latitude, longitude};
}

GeoClueLocation::GeoClueLocation(OpenBus openBus)
    : GeoClueLocation(std::move(openBus), Patience())
{
}

GeoClueLocation::GeoClueLocation(OpenBus openBus, const Patience& patience)
    : m_openBus(std::move(openBus))
    , m_patience(patience)
{
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, &GeoClueLocation::giveUp);
}

GeoClueLocation::~GeoClueLocation()
{
    finish();
}

QString GeoClueLocation::whyNot() const
{
    return m_present ? QString() : Wording::tr("The location service GeoClue is not installed.");
}

LocationAuthorization GeoClueLocation::authorization() const
{
    return m_holds.hasExpired() ? LocationAuthorization::undetermined : m_authorization;
}

void GeoClueLocation::requestLocation()
{
    if (std::exchange(m_asking, true))
        return;
    ++m_request;
    // Later, so that whoever asks sees the answer only after the call.
    QMetaObject::invokeMethod(this, &GeoClueLocation::askForClient, Qt::QueuedConnection);
}

void GeoClueLocation::askForClient()
{
    m_bus = m_openBus();
    if (!m_bus.isConnected()) {
        missing();
        return;
    }
    call(QDBusMessage::createMethodCall(geoClue, geoCluePath, managerInterface, u"GetClient"_s), permission,
        [this](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage)
                startClient(reply);
            else
                refused(reply, LocationAuthorization::restricted);
        });
}

void GeoClueLocation::startClient(const QDBusMessage& client)
{
    m_present = true;
    // The owner's own name: a connection to it need not be watched for another owner.
    m_service = client.service();
    m_client = client.arguments().value(0).value<QDBusObjectPath>().path();
    if (m_client.isEmpty()) {
        giveUp();
        return;
    }
    m_bus.connect(
        m_service, m_client, clientInterface, u"LocationUpdated"_s, this, SLOT(locationUpdated(QDBusMessage)));
    setProperty("DesktopId", desktopId);
    setProperty("RequestedAccuracyLevel", neighbourhood);
    call(QDBusMessage::createMethodCall(m_service, m_client, clientInterface, u"Start"_s), permission,
        [this](const QDBusMessage& reply) {
            if (reply.type() != QDBusMessage::ReplyMessage) {
                refused(reply, LocationAuthorization::denied);
                return;
            }
            m_deadline.start(m_patience.location);
            settle(LocationAuthorization::authorized);
        });
}

void GeoClueLocation::locationUpdated(const QDBusMessage& message)
{
    if (m_asking && message.path() == m_client)
        readLocation(message.arguments().value(1).value<QDBusObjectPath>().path());
}

void GeoClueLocation::readLocation(const QString& object)
{
    auto read = QDBusMessage::createMethodCall(m_service, object, propertiesInterface, u"GetAll"_s);
    read.setArguments({locationInterface});
    call(read, m_patience.location, [this](const QDBusMessage& reply) {
        const auto location = locationFrom(qdbus_cast<QVariantMap>(reply.arguments().value(0)));
        if (!location)
            return; // another one may follow
        settle(LocationAuthorization::authorized);
        finish();
        Q_EMIT located(*location);
    });
}

void GeoClueLocation::setProperty(const char* name, const QVariant& value)
{
    auto set = QDBusMessage::createMethodCall(m_service, m_client, propertiesInterface, u"Set"_s);
    set.setArguments({clientInterface, QString::fromLatin1(name), QVariant::fromValue(QDBusVariant(value))});
    m_bus.asyncCall(set); // a failure shows when the client is started
}

void GeoClueLocation::call(const QDBusMessage& message, Milliseconds timeOut, Reply answered)
{
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, static_cast<int>(timeOut.count())), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
        [this, watcher, request = m_request, answered = std::move(answered)] {
            watcher->deleteLater();
            if (m_asking && request == m_request)
                answered(watcher->reply());
        });
}

void GeoClueLocation::refused(const QDBusMessage& error, LocationAuthorization refusal)
{
    switch (QDBusError(error).type()) {
    case QDBusError::AccessDenied:
    case QDBusError::NoReply: // nobody was there to allow it
        finish();
        settle(refusal, QDeadlineTimer(m_patience.refusal));
        break;
    case QDBusError::ServiceUnknown: missing(); break;
    default: giveUp();
    }
}

void GeoClueLocation::missing()
{
    finish();
    m_present = false;
    settle(LocationAuthorization::denied, QDeadlineTimer(m_patience.refusal));
}

void GeoClueLocation::settle(LocationAuthorization answer, QDeadlineTimer holds)
{
    const LocationAuthorization before = authorization();
    m_authorization = answer;
    m_holds = holds;
    if (answer != before)
        Q_EMIT changed();
}

void GeoClueLocation::finish()
{
    m_asking = false;
    m_deadline.stop();
    if (m_client.isEmpty())
        return;
    m_bus.disconnect(
        m_service, m_client, clientInterface, u"LocationUpdated"_s, this, SLOT(locationUpdated(QDBusMessage)));
    m_bus.asyncCall(QDBusMessage::createMethodCall(m_service, m_client, clientInterface, u"Stop"_s));
    auto release = QDBusMessage::createMethodCall(m_service, geoCluePath, managerInterface, u"DeleteClient"_s);
    release.setArguments({QVariant::fromValue(QDBusObjectPath(m_client))});
    m_bus.asyncCall(release);
    m_client.clear();
}

void GeoClueLocation::giveUp()
{
    finish();
    Q_EMIT failed();
}

} // namespace ambrelle
