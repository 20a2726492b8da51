#include "support/ScriptedPlatform.h"

#include "league/Failure.h"

#include <gtest/gtest.h>

namespace dravik {
namespace {

TEST(PlatformTest, WorkIsDoneOnceWhileTheWaitScreenIsUp)
{
    ScriptedPlatform machine;
    int done = 0;
    machine.ShowWaitOver([&] {
        ++done;
        EXPECT_TRUE(machine.WaitShown);
    });
    EXPECT_EQ(done, 1);
    EXPECT_EQ(machine.WaitCount, 1);
    machine.CloseWait();
}

TEST(PlatformTest, WhatFailsUnderTheWaitScreenGoesOnFromThere)
{
    ScriptedPlatform machine;
    EXPECT_THROW(machine.ShowWaitOver([] { Fail(failure::DiskFull); }), Failure);
    EXPECT_TRUE(machine.WaitShown);
    machine.CloseWait();
}

} // namespace
} // namespace dravik
