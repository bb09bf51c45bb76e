// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxSystem.h"

#include "foundation/BackgroundThread.h"
#include "platform/linux/JointVisibility.h"
#include "platform/recording/RecordingSessionVisibility.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <thread>

namespace ambrelle {
namespace {

TEST(LinuxSystem, MakesBackgroundThreadsYield)
{
    const LinuxSystem system({}, [] { return nullptr; });
    const int usual = ::getpriority(PRIO_PROCESS, 0);
    int lowered = usual;
    std::thread([&lowered] {
        yieldToOthers();
        lowered = ::getpriority(PRIO_PROCESS, 0);
    }).join();
    EXPECT_GE(lowered, 10);
    EXPECT_EQ(::getpriority(PRIO_PROCESS, 0), usual) << "the main thread would yield too";
}

TEST(JointVisibility, TellsChangesOfTheWholeOnly)
{
    RecordingSessionVisibility locker;
    RecordingSessionVisibility screen;
    const JointVisibility joint({&locker, &screen});
    int changes = 0;
    QObject::connect(&joint, &JointVisibility::changed, [&changes] { ++changes; });
    locker.setVisible(false);
    screen.setVisible(false);
    EXPECT_EQ(changes, 1);
    locker.setVisible(true);
    EXPECT_FALSE(joint.isVisible()) << "the screen is still dark";
    screen.setVisible(true);
    EXPECT_TRUE(joint.isVisible());
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace ambrelle
