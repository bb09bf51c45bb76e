// SPDX-License-Identifier: MIT

#include "app/Hosts.h"

#include "foundation/Clock.h"
#include "foundation/UserDefaults.h"
#include "platform/DesktopPicture.h"
#include "support/Variable.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

HostOffer offer(const QList<QByteArray>& plugins, const QString& whyNot)
{
    return {.plugins = plugins, .whyNot = [whyNot] { return whyNot; }, .make = {}};
}

TEST(Hosts, TheFirstThatWorksAndIsWishedIsTaken)
{
    const QString none;
    struct Case {
        const char* what;
        QList<HostOffer> offers;
        QByteArray wished;
        QByteArray plugin;
        QString whyNot;
    };
    for (const Case& each : {
             Case{"no wish", {offer({"one"}, none), offer({"two"}, none)}, "", "one", none},
             Case{"the preferred one cannot", {offer({"one"}, u"No."_s), offer({"two"}, none)}, "", "two", none},
             Case{"nothing can", {offer({"one"}, u"No."_s), offer({"two"}, u"Nor I."_s)}, "", "", u"No. Nor I."_s},
             Case{"the user prefers another", {offer({"one"}, none), offer({"two"}, none)}, "two", "two", none},
             Case{"options stay", {offer({"one"}, none)}, "one:dpi=96", "one:dpi=96", none},
             Case{"one stands for another", {offer({"one", "two"}, none)}, "two-egl", "one", none},
             Case{"the wished one cannot", {offer({"one"}, u"No."_s), offer({"two"}, none)}, "one", "one", u"No."_s},
         }) {
        const HostChoice choice = chooseHost(each.offers, each.wished);
        EXPECT_EQ(choice.plugin, each.plugin) << each.what;
        EXPECT_EQ(choice.whyNot, each.whyNot) << each.what;
    }
}

TEST(Hosts, TheUserAsksForOneByVariableElseBySetting)
{
    UserDefaults defaults = UserDefaults::temporary();
    const test::Variable unset("QT_QPA_PLATFORM", "");
    EXPECT_EQ(wishedPlugin(defaults), QByteArray());
    defaults.set(u"windowSystem"_s, u"x11"_s);
    EXPECT_EQ(wishedPlugin(defaults), "xcb");
    defaults.set(u"windowSystem"_s, u"wayland"_s);
    EXPECT_EQ(wishedPlugin(defaults), "wayland");
    {
        const test::Variable variable("QT_QPA_PLATFORM", "offscreen");
        EXPECT_EQ(wishedPlugin(defaults), "offscreen");
    }
    for (const QString& unknown : {u"mir"_s, u"X11"_s, QString()}) {
        defaults.set(u"windowSystem"_s, unknown);
        EXPECT_EQ(wishedPlugin(defaults), QByteArray()) << unknown.toStdString();
    }
    defaults.set(u"windowSystem"_s, 3);
    EXPECT_EQ(wishedPlugin(defaults), QByteArray());
}

TEST(Hosts, TheSettingYieldsWhereItCannotBeFollowedAndTheVariableDoesNot)
{
    UserDefaults defaults = UserDefaults::temporary();
    defaults.set(u"windowSystem"_s, u"x11"_s);
    const QList<HostOffer> offers{offer({"wayland"}, {}), offer({"xcb"}, u"No."_s)};
    {
        const test::Variable variable("QT_QPA_PLATFORM", "xcb");
        EXPECT_EQ(chooseUsersHost(offers, defaults).whyNot, u"No."_s);
    }
    const test::Variable none("QT_QPA_PLATFORM", "");
    EXPECT_EQ(chooseUsersHost(offers, defaults).plugin, "wayland");
    EXPECT_EQ(chooseUsersHost({offer({"wayland"}, {}), offer({"xcb"}, {})}, defaults).plugin, "xcb");
    EXPECT_EQ(
        chooseUsersHost({offer({"wayland"}, u"Nor I."_s), offer({"xcb"}, u"No."_s)}, defaults).whyNot, u"Nor I. No."_s);
}

TEST(Hosts, OneThatIsThereAloneLeavesNoChoice)
{
    const auto offered = [](std::optional<bool> isThere) {
        HostOffer made = offer({"one"}, {});
        if (isThere)
            made.isThere = [isThere] { return *isThere; };
        return made;
    };
    EXPECT_FALSE(hasChoiceOfHosts({offered(true), offered(false), offered({})}));
    EXPECT_TRUE(hasChoiceOfHosts({offered(true), offered(false), offered(true)}));
    const test::Variable noX("DISPLAY", "");
    const test::Variable noWayland("WAYLAND_DISPLAY", "");
    EXPECT_FALSE(hasChoiceOfHosts(hostOffers()));
}

TEST(Hosts, WhereNothingCanBeShownADisplayIsStartedThatLastsAsLongAsItIsNeeded)
{
    bool isUp = false;
    HostOffer able = offer({"two"}, {});
    able.whyNot = [&isUp] { return isUp ? QString() : u"Not yet."_s; };
    able.startDisplay = [&isUp] {
        isUp = true;
        return std::shared_ptr<void>(&isUp, [](void* up) { *static_cast<bool*>(up) = false; });
    };
    HostOffer broken = offer({"one"}, u"No."_s);
    broken.startDisplay = [] { return std::shared_ptr<void>(); };
    {
        const HostChoice choice = chooseDisplay({offer({"none"}, u"Never."_s), broken, able});
        EXPECT_EQ(choice.plugin, "two");
        EXPECT_EQ(choice.whyNot, QString());
        EXPECT_TRUE(isUp);
    }
    EXPECT_FALSE(isUp);
    EXPECT_EQ(chooseDisplay({broken}).whyNot, u"No."_s);
    EXPECT_EQ(chooseDisplay({offer({"works"}, {}), able}).plugin, "works");
    EXPECT_FALSE(isUp) << "there is a display already";
}

TEST(Hosts, APluginThatNobodyStandsForShowsNothing)
{
    const HostChoice choice = chooseHost(hostOffers(), "offscreen");
    EXPECT_EQ(choice.plugin, "offscreen");
    ASSERT_EQ(choice.whyNot, QString());
    const std::unique_ptr<Machine> machine = choice.host.make({});
    ASSERT_TRUE(machine);
    const Machine::Ports ports = machine->ports();
    EXPECT_FALSE(ports.desktopPicture.isAvailable()) << "pictures of a desktop that nobody sees would be set";
    EXPECT_LT(qAbs(ports.clock.now().secsTo(QDateTime::currentDateTime())), 5);
}

} // namespace
} // namespace ambrelle
