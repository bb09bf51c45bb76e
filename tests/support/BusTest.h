// SPDX-License-Identifier: MIT

#pragma once

#include "support/PrivateBus.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

namespace ambrelle {

/// Tests on a bus of their own; skipped where there can be none.
class BusTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not installed";
    }

    const PrivateBus bus;
};

} // namespace ambrelle
