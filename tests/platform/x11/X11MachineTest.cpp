// SPDX-License-Identifier: MIT

#include "platform/x11/X11Machine.h"

#include "support/Variable.h"

#include <gtest/gtest.h>

namespace ambrelle::test {
namespace {

using namespace Qt::StringLiterals;

TEST(X11Machine, OffersItselfWhereADisplayAnswers)
{
    const HostOffer offer = X11Machine::offer();
    EXPECT_EQ(offer.whyNot(), QString());
    {
        const Variable display("DISPLAY", {});
        EXPECT_TRUE(offer.whyNot().contains(u"names none"_s)) << qPrintable(offer.whyNot());
    }
    const Variable display("DISPLAY", ":59871");
    EXPECT_TRUE(offer.whyNot().contains(u"“:59871”"_s)) << qPrintable(offer.whyNot());
}

TEST(X11Machine, WatchesPointerAndRootWindowWhereTheUserSeesThem)
{
    const Variable desktop("XDG_CURRENT_DESKTOP", "openbox");
    const Variable sway("SWAYSOCK", {});
    struct Case {
        const char* wayland;
        bool seen;
    };
    for (const Case& each : {Case{"", true}, Case{"wayland-0", false}}) {
        const Variable wayland("WAYLAND_DISPLAY", each.wayland);
        const std::unique_ptr<Machine> machine = X11Machine::offer().make({});
        ASSERT_TRUE(machine);
        const Machine::Ports ports = machine->ports();
        EXPECT_TRUE(ports.windows.isAvailable());
        EXPECT_FALSE(ports.windows.screens().isEmpty());
        EXPECT_EQ(ports.input.tellsPointer(), each.seen) << each.wayland;
        EXPECT_EQ(ports.desktopPicture.isAvailable(), each.seen) << each.wayland;
        EXPECT_EQ(ports.trays.size(), 2);
        EXPECT_EQ(ports.desktopNames, QStringList{u"openbox"_s});
    }
}

} // namespace
} // namespace ambrelle::test
