// SPDX-License-Identifier: MIT

#include "platform/linux/bus/GeoClueLocation.h"
#include "support/BusTest.h"

#include <QDBusContext>
#include <QDBusError>
#include <QDBusObjectPath>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class FakePosition : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.GeoClue2.Location")
    Q_PROPERTY(double Latitude MEMBER latitude)
    Q_PROPERTY(double Longitude MEMBER longitude)
    Q_PROPERTY(QString Description MEMBER description)
public:
    double latitude = 60.39299;
    double longitude = 5.32415;
    QString description = u"WiFi"_s;
};

class FakeClient : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.GeoClue2.Client")
    Q_PROPERTY(QString DesktopId MEMBER desktopId)
    Q_PROPERTY(uint RequestedAccuracyLevel MEMBER accuracy)
public:
    QString desktopId;
    uint accuracy = 0;
    QDBusError::ErrorType refusal = QDBusError::NoError;
    int starts = 0;
    int stops = 0;

public Q_SLOTS:
    void Start()
    {
        ++starts;
        if (refusal != QDBusError::NoError)
            sendErrorReply(refusal, u"No."_s);
    }
    void Stop() { ++stops; }

Q_SIGNALS:
    void LocationUpdated(const QDBusObjectPath& before, const QDBusObjectPath& now);
};

class FakeManager : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.GeoClue2.Manager")
public:
    bool open = true;
    int deleted = 0;

public Q_SLOTS:
    QDBusObjectPath GetClient()
    {
        if (!open)
            sendErrorReply(QDBusError::AccessDenied, u"Not for you."_s);
        return QDBusObjectPath(u"/client/1"_s);
    }
    void DeleteClient(const QDBusObjectPath& client) { deleted += client.path() == "/client/1"_L1; }
};

namespace {

using enum LocationAuthorization;

/// A location service on a bus of its own.
class GeoClueLocationTest : public BusTest {
protected:
    explicit GeoClueLocationTest(std::chrono::milliseconds patience = 60s)
        : source(bus.opener(), {patience, 0ms})
    {
        QObject::connect(&source, &LocationSource::changed, [this] { answers.append(source.authorization()); });
        QObject::connect(&source, &LocationSource::located, [this](const Location& where) { places.append(where); });
        QObject::connect(&source, &LocationSource::failed, [this] { ++failures; });
    }
    void startService()
    {
        auto service = bus.connection(u"service"_s);
        constexpr auto everything = QDBusConnection::ExportAllContents;
        ASSERT_TRUE(service.registerObject(u"/org/freedesktop/GeoClue2/Manager"_s, &manager, everything));
        ASSERT_TRUE(service.registerObject(u"/client/1"_s, &client, everything));
        ASSERT_TRUE(service.registerObject(u"/client/1/location"_s, &position, everything));
        ASSERT_TRUE(service.registerService(u"org.freedesktop.GeoClue2"_s));
    }
    void tellPosition()
    {
        Q_EMIT client.LocationUpdated(QDBusObjectPath(u"/"_s), QDBusObjectPath(u"/client/1/location"_s));
    }

    FakeManager manager;
    FakeClient client;
    FakePosition position;
    QList<LocationAuthorization> answers; // told by the source
    QList<Location> places;
    int failures = 0;
    GeoClueLocation source;
};

TEST_F(GeoClueLocationTest, TellsOneLocationForAllWhoAskMeanwhile)
{
    startService();
    EXPECT_EQ(source.authorization(), undetermined);
    source.requestLocation();
    ASSERT_TRUE(waitUntil([this] { return source.authorization() == authorized; }));
    EXPECT_EQ(client.desktopId, u"org.ambrelle.Ambrelle"_s);
    EXPECT_EQ(client.accuracy, 5U);
    source.requestLocation();
    tellPosition();
    ASSERT_TRUE(waitUntil([this] { return manager.deleted > 0; })) << "the service is let go";
    tellPosition(); // nobody listens any more

    position.latitude = -33.87;
    source.requestLocation();
    ASSERT_TRUE(waitUntil([this] { return client.starts == 2; }));
    tellPosition();
    ASSERT_TRUE(waitUntil([this] { return manager.deleted == 2; }));
    EXPECT_EQ(places, (QList<Location>{{60.39299, 5.32415}, {-33.87, 5.32415}}));
    EXPECT_EQ(client.stops, 2);
    EXPECT_EQ(answers, QList{authorized});
    EXPECT_EQ(failures, 0);
}

TEST_F(GeoClueLocationTest, ARefusalHoldsUntilItIsTakenBack)
{
    startService();
    client.refusal = QDBusError::AccessDenied;
    source.requestLocation();
    ASSERT_TRUE(waitUntil([this] { return manager.deleted == 1; }));
    client.refusal = QDBusError::NoError;
    EXPECT_EQ(source.authorization(), undetermined) << "after a while it may be asked again";
    source.requestLocation();
    ASSERT_TRUE(waitUntil([this] { return source.authorization() == authorized; }));
    EXPECT_TRUE(source.isAvailable());
    EXPECT_EQ(failures, 0);
}

TEST_F(GeoClueLocationTest, EveryRefusalIsTold)
{
    startService();
    const struct {
        const char* what;
        bool open;
        QDBusError::ErrorType refusal;
        LocationAuthorization expected;
    } cases[] = {{"not for this user", false, QDBusError::NoError, restricted},
        {"not for this program", true, QDBusError::AccessDenied, denied},
        {"nobody was there to allow it", true, QDBusError::NoReply, denied}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        manager.open = each.open;
        client.refusal = each.refusal;
        GeoClueLocation firm(bus.opener(), {60s, 1h});
        bool told = false;
        QObject::connect(&firm, &LocationSource::changed, [&told] { told = true; });
        firm.requestLocation();
        EXPECT_TRUE(waitUntil([&told] { return told; }));
        EXPECT_EQ(firm.authorization(), each.expected);
    }
}

TEST_F(GeoClueLocationTest, WithoutTheServiceLocationIsOff)
{
    const auto isDenied = [](GeoClueLocation&& asked) {
        asked.requestLocation();
        return waitUntil([&asked] { return asked.authorization() == denied; });
    };
    EXPECT_TRUE(isDenied(GeoClueLocation(bus.opener())));
    EXPECT_TRUE(isDenied(GeoClueLocation([] { return QDBusConnection(u"none"_s); }))) << "no bus at all";

    source.requestLocation();
    ASSERT_TRUE(waitUntil([this] { return !source.isAvailable(); }));
    EXPECT_FALSE(source.whyNot().isEmpty());
    startService(); // installed meanwhile
    EXPECT_EQ(source.authorization(), undetermined);
    source.requestLocation();
    EXPECT_TRUE(waitUntil([this] { return source.authorization() == authorized; }));
    EXPECT_TRUE(source.isAvailable());
}

struct ImpatientLocationTest : GeoClueLocationTest {
    ImpatientLocationTest()
        : GeoClueLocationTest(300ms)
    {
    }
};

TEST_F(ImpatientLocationTest, FailsWhenNoUsableLocationComes)
{
    startService();
    source.requestLocation();
    EXPECT_TRUE(waitUntil([this] { return failures == 1; })) << "silence";
    EXPECT_EQ(source.authorization(), authorized);

    position.latitude = 123;
    source.requestLocation();
    ASSERT_TRUE(waitUntil([this] { return client.starts == 2; }));
    tellPosition();
    EXPECT_TRUE(waitUntil([this] { return failures == 2; })) << "beyond the pole";

    client.refusal = QDBusError::InternalError;
    source.requestLocation();
    EXPECT_TRUE(waitUntil([this] { return failures == 3; }));
    EXPECT_EQ(source.authorization(), authorized) << "a fault is no refusal";
    EXPECT_TRUE(places.isEmpty());
}

TEST(LocationFromTest, NeedsBothCoordinatesOnTheGlobe)
{
    const auto of = [](const QVariant& latitude, const QVariant& longitude) {
        return locationFrom(
            {{u"Latitude"_s, latitude}, {u"Longitude"_s, longitude}, {u"Description"_s, u"GeoIP (from WiFi data)"_s}});
    };
    EXPECT_EQ(of(-90.0, 180.0), (Location{-90, 180})) << "how it was found is no name";
    EXPECT_FALSE(of(90.5, 0.0));
    EXPECT_FALSE(of(0.0, -181.0));
    EXPECT_FALSE(of(std::nan(""), 0.0));
    EXPECT_FALSE(of(QVariant(), 0.0));
    EXPECT_FALSE(of(u"north"_s, 0.0));
    EXPECT_FALSE(locationFrom({}));
}

} // namespace
} // namespace ambrelle

#include "GeoClueLocationTest.moc"
