// SPDX-License-Identifier: MIT

#include "platform/wayland/IdleWatch.h"
#include "platform/wayland/connection/ToolkitWayland.h"
#include "support/WaitUntil.h"
#include "support/wayland/VirtualInput.h"

#include <gtest/gtest.h>

namespace ambrelle::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct IdleWatchTest : testing::Test {
    const std::unique_ptr<VirtualInput> input = VirtualInput::plugIn(); // some compositors have no seat before
    const WaylandConnection connection{toolkitDisplay()};
    IdleWatch watch{&connection, 300ms};
    QObject asker;

    std::optional<double> seconds()
    {
        std::optional<double> told;
        watch.secondsSinceInput(&asker, [&](std::optional<double> answer) { told = answer; });
        return told;
    }
};

TEST_F(IdleWatchTest, TellsTheTimeSinceTheLastInput)
{
    ASSERT_TRUE(input);
    ASSERT_TRUE(watch.isAvailable());
    int pauses = 0;
    QList<std::optional<double>> afterInput;
    QObject::connect(&watch, &IdleWatch::idleChanged, &asker, [&](bool idle) {
        pauses += idle ? 1 : 0;
        if (!idle)
            afterInput.append(seconds());
    });
    EXPECT_FALSE(seconds()) << "not started";
    watch.start();
    EXPECT_FALSE(seconds()) << "nothing is known yet";
    ASSERT_TRUE(waitUntil([this] { return seconds() > 0.5; }));
    EXPECT_LT(*seconds(), 60);
    EXPECT_EQ(pauses, 1);
    input->moveBy({5, 0});
    ASSERT_TRUE(waitUntil([&] { return pauses == 2; }));
    EXPECT_GE(seconds(), 0.3);
    input->setKey(u"a"_s, true);
    input->setKey(u"a"_s, false);
    EXPECT_TRUE(waitUntil([&] { return pauses == 3; }));
    EXPECT_EQ(afterInput, (QList<std::optional<double>>{0.0, 0.0}));
}

TEST_F(IdleWatchTest, TellsNothingOnceStopped)
{
    watch.start();
    ASSERT_TRUE(waitUntil([this] { return seconds() > 0; }));
    int changes = 0;
    QObject::connect(&watch, &IdleWatch::idleChanged, &asker, [&](bool idle) { changes += idle ? 100 : 1; });
    watch.stop();
    EXPECT_FALSE(seconds());
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(waitUntil([&] { return changes > 1; }, 500));
    watch.start();
    EXPECT_TRUE(waitUntil([&] { return changes == 101; })) << "and may be started again";
}

TEST_F(IdleWatchTest, IsMissingWithoutACompositor)
{
    IdleWatch none(nullptr);
    EXPECT_FALSE(none.isAvailable());
    EXPECT_FALSE(none.whyNot().isEmpty());
    none.start();
    bool isTold = false;
    none.secondsSinceInput(&asker, [&](std::optional<double> seconds) { isTold = !seconds; });
    EXPECT_TRUE(isTold);
}

} // namespace
} // namespace ambrelle::test
