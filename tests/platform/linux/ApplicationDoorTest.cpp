// SPDX-License-Identifier: MIT

#include "platform/linux/bus/ApplicationDoor.h"

#include "support/BusTest.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

const QString doorName = u"org.ambrelle.Ambrelle"_s;
const QString doorPath = u"/org/ambrelle/Ambrelle"_s;

struct ApplicationDoorTest : BusTest {
    ApplicationDoor door{bus.opener()};
    QStringList heard;

    void SetUp() override
    {
        BusTest::SetUp();
        QObject::connect(&door, &ProgramDoor::activated, &door,
            [this](const QString& token) { heard += u"activate %1"_s.arg(token); });
        QObject::connect(
            &door, &ProgramDoor::filesGiven, &door, [this](const QStringList& files, const QString& token) {
                heard += u"open %1 %2"_s.arg(files.join(u'|'), token);
            });
        QObject::connect(&door, &ProgramDoor::actionWanted, &door,
            [this](const QString& action, const QString& token) { heard += u"do %1 %2"_s.arg(action, token); });
    }
    /// The answer to a call from another connection, an error's name for an error.
    QString call(const QString& method, const QVariantList& arguments) const
    {
        auto message = QDBusMessage::createMethodCall(doorName, doorPath, u"org.freedesktop.Application"_s, method);
        message.setArguments(arguments);
        const QDBusPendingCallWatcher answer(bus.connection(u"caller"_s).asyncCall(message));
        EXPECT_TRUE(waitUntil([&] { return answer.isFinished(); }));
        return answer.isError() ? answer.error().name() : QString();
    }
    bool isNamed() const { return bus.connection(u"caller"_s).interface()->isServiceRegistered(doorName); }
};

TEST_F(ApplicationDoorTest, HearsWhatOthersAskFor)
{
    door.open();
    ASSERT_TRUE(waitUntil([&] { return door.isAvailable(); }));
    EXPECT_EQ(door.whyNot(), QString());
    EXPECT_EQ(call(u"Activate"_s, {QVariantMap()}), QString());
    EXPECT_EQ(call(u"Activate"_s, {QVariantMap{{u"desktop-startup-id"_s, u"host_TIME7"_s}}}), QString());
    EXPECT_EQ(call(u"ActivateAction"_s,
                  {u"edit"_s, QVariantList{7, u"x"_s},
                      QVariantMap{{u"desktop-startup-id"_s, u"host_TIME7"_s}, {u"activation-token"_s, u"word"_s}}}),
        QString());
    EXPECT_EQ(
        call(u"Open"_s, {QStringList{u"file:///a%20b.ambrelle"_s, u"file://localhost/c"_s}, QVariantMap()}), QString());
    EXPECT_EQ(
        heard, (QStringList{u"activate "_s, u"activate host_TIME7"_s, u"do edit word"_s, u"open /a b.ambrelle|/c "_s}));
}

TEST_F(ApplicationDoorTest, LeavesOutWhatIsNoFileOfThisMachine)
{
    door.open();
    ASSERT_TRUE(waitUntil([&] { return door.isAvailable(); }));
    const QStringList strange{u""_s, u"a"_s, u"/plain/path"_s, u"file:relative"_s, u"file://elsewhere/share/x"_s,
        u"http://example.org/x.ambrelle"_s, u"file://%zz"_s, u"data:,x"_s, QString(100'000, u'x')};
    EXPECT_EQ(call(u"Open"_s, {strange, QVariantMap{{u"activation-token"_s, 7.5}}}), QString());
    EXPECT_EQ(call(u"Open"_s, {QStringList(ApplicationDoor::mostFiles + 5, u"file:///x"_s), QVariantMap()}), QString());
    ASSERT_EQ(heard.size(), 2);
    EXPECT_EQ(heard.first(), u"open  7.5"_s);
    EXPECT_EQ(heard.last().count(u"/x"_s), ApplicationDoor::mostFiles);
    heard.clear();
    const auto unknown = u"org.freedesktop.DBus.Error.UnknownMethod"_s;
    EXPECT_EQ(call(u"Open"_s, {7}), unknown);
    EXPECT_EQ(call(u"Activate"_s, {}), unknown);
    EXPECT_EQ(call(u"filesGiven"_s, {QStringList{u"/x"_s}, QString()}), unknown)
        << "what is within is nobody's business";
    EXPECT_EQ(call(u"deleteLater"_s, {}), unknown);
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(ApplicationDoorTest, LeavesTheNameToWhoeverHasIt)
{
    ASSERT_TRUE(bus.connection(u"other"_s).registerService(doorName));
    door.open();
    // The daemon answers in order: after this one the door has had its answer.
    EXPECT_TRUE(bus.connection(u"client"_s).interface()->isServiceRegistered(doorName));
    QCoreApplication::processEvents();
    EXPECT_FALSE(door.isAvailable());
    EXPECT_FALSE(door.whyNot().isEmpty());
    ASSERT_TRUE(bus.connection(u"other"_s).unregisterService(doorName));
    EXPECT_FALSE(isNamed()) << "it waited for the name";
}

TEST(ApplicationDoor, NeedsNoBus)
{
    ApplicationDoor door([] { return QDBusConnection(u"none"_s); });
    door.open();
    EXPECT_FALSE(door.isAvailable());
    EXPECT_FALSE(door.whyNot().isEmpty());
}

} // namespace
} // namespace ambrelle
