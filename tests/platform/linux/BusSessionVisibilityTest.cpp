// SPDX-License-Identifier: MIT

#include "platform/linux/bus/BusSessionVisibility.h"
#include "support/MockBus.h"
#include "support/Variable.h"

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
namespace {

const QString saverName = u"org.gnome.ScreenSaver"_s;
const QString saverPath = u"/org/gnome/ScreenSaver"_s;
const QString loginName = u"org.freedesktop.login1"_s;
const QString sessionPath = u"/org/freedesktop/login1/session/c7"_s;
constexpr auto sessionInterface = "org.freedesktop.login1.Session";

class BusSessionVisibilityTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not installed";
    }

    void open()
    {
        visibility = std::make_unique<BusSessionVisibility>(bus.opener(), bus.opener());
        QObject::connect(visibility.get(), &SessionVisibility::changed, visibility.get(), [this] { ++told; });
    }
    bool becomes(bool visible) const
    {
        return waitUntil([&] { return visibility->isVisible() == visible; });
    }
    bool becomesAvailable() const
    {
        return waitUntil([&] { return visibility->isAvailable(); });
    }
    bool setSaverActive(bool active)
    {
        return bus.call("org.gnome.ScreenSaver", saverPath, "org.gnome.ScreenSaver", "SetActive", {active});
    }
    /// A session of that type on a seat, as the login manager tells it.
    QProcess* startLogin(const QString& type)
    {
        QProcess* login = bus.start(u"logind"_s, loginName);
        const QVariantList session{u"c7"_s, u"seat0"_s, 1000U, u"anna"_s, true};
        if (!login
            || !bus.call("org.freedesktop.login1", u"/org/freedesktop/login1"_s, "org.freedesktop.DBus.Mock",
                "AddSession", session)
            || !setSession("Type", type))
            return nullptr;
        return login;
    }
    bool setSession(const char* property, const QVariant& value)
    {
        const QVariantMap changes{{QLatin1StringView(property), value}};
        return bus.call("org.freedesktop.login1", sessionPath, "org.freedesktop.DBus.Mock", "UpdateProperties",
            {QLatin1StringView(sessionInterface), changes});
    }

    const test::Variable session{"XDG_SESSION_ID", "c7"};
    MockBus bus;
    std::unique_ptr<BusSessionVisibility> visibility;
    int told = 0;
};

TEST_F(BusSessionVisibilityTest, FollowsALockerAndForgetsItWhenItEnds)
{
    QProcess* saver = bus.start(u"gnome_screensaver"_s, saverName);
    if (!saver)
        GTEST_SKIP() << "dbusmock is not installed";
    ASSERT_TRUE(setSaverActive(true));
    open();
    EXPECT_TRUE(visibility->isVisible()) << "until somebody says otherwise";
    EXPECT_TRUE(becomes(false)) << "locked before we came";
    ASSERT_TRUE(setSaverActive(false));
    EXPECT_TRUE(becomes(true));
    ASSERT_TRUE(setSaverActive(true));
    EXPECT_TRUE(becomes(false));
    bus.stop(saver);
    EXPECT_TRUE(becomes(true)) << "the locker has crashed";
    EXPECT_EQ(told, 4);
    ASSERT_TRUE(bus.start(u"gnome_screensaver"_s, saverName));
    ASSERT_TRUE(setSaverActive(true));
    EXPECT_TRUE(becomes(false)) << "a locker that came later";
}

TEST_F(BusSessionVisibilityTest, FollowsTheLoginManager)
{
    if (!startLogin(u"x11"_s))
        GTEST_SKIP() << "dbusmock is not installed";
    open();
    ASSERT_TRUE(becomesAvailable());
    EXPECT_TRUE(visibility->isVisible());
    ASSERT_TRUE(setSession("LockedHint", true));
    EXPECT_TRUE(becomes(false));
    ASSERT_TRUE(setSession("LockedHint", false));
    EXPECT_TRUE(becomes(true));
    ASSERT_TRUE(setSession("Active", false));
    EXPECT_TRUE(becomes(false)) << "another session is on the screen";
    ASSERT_TRUE(setSession("IdleHint", true));
    ASSERT_TRUE(setSession("Active", true));
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(told, 4);
}

TEST_F(BusSessionVisibilityTest, ADisplayStartedFromATextConsoleStaysVisible)
{
    if (!startLogin(u"tty"_s))
        GTEST_SKIP() << "dbusmock is not installed";
    open();
    ASSERT_TRUE(setSession("LockedHint", true));
    EXPECT_TRUE(becomes(false));
    ASSERT_TRUE(setSession("Active", false));
    ASSERT_TRUE(setSession("LockedHint", false));
    EXPECT_TRUE(becomes(true));
}

TEST_F(BusSessionVisibilityTest, SurvivesBusesThatAreNotThere)
{
    const auto none = [] { return QDBusConnection(u"none"_s); };
    BusSessionVisibility lost(none, none);
    QCoreApplication::processEvents();
    EXPECT_TRUE(lost.isVisible());
    EXPECT_FALSE(lost.isAvailable());
    EXPECT_FALSE(lost.whyNot().isEmpty());
}

} // namespace
} // namespace ambrelle
