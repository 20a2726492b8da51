#include "support/ScriptedPlatform.h"

#include "league/Failure.h"
#include "machine/Message.h"
#include "machine/SettingsFailure.h"
#include "support/FailingBoxes.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

// The machine of all tests fails the test that leaves something over on it.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Makes a machine, uses it and ends it, which has to fail the test in exactly one place and with these words.
#define EXPECT_LEFT_OVER(use, words)                                                                                   \
    EXPECT_NONFATAL_FAILURE(                                                                                           \
        {                                                                                                              \
            ScriptedPlatform machine;                                                                                  \
            use;                                                                                                       \
        },                                                                                                             \
        words)

void ExpectCancelled(ScriptedPlatform& machine) { EXPECT_THROW(machine.OpenFileDialog("folder", "*.dvs"), Failure); }

TEST(ScriptedPlatformTest, ABoxThatNobodyLooksAtFailsTheTest)
{
    EXPECT_LEFT_OVER(machine.ShowBox("Told", box::Warning),
                     "nobody looked at Box{48, \"Told\", \"Dravik Hockey Simulator Client\"}");
}

TEST(ScriptedPlatformTest, WhoLooksBeforeABoxComesHasNotLookedAtIt)
{
    EXPECT_LEFT_OVER(EXPECT_THAT(machine.Boxes(), IsEmpty());
                     machine.ShowBox("Late", box::Warning), "nobody looked at Box{48, \"Late\"");
    EXPECT_LEFT_OVER(EXPECT_THAT(machine.TakeBoxes(), IsEmpty());
                     machine.ShowBox("Late", box::Warning), "nobody looked at Box{48, \"Late\"");
}

TEST(ScriptedPlatformTest, BoxesAreClearedOnceTheyHaveBeenLookedAtAndNotBefore)
{
    EXPECT_LEFT_OVER(machine.ShowBox("Unseen", box::Warning);
                     machine.ClearSeenBoxes(), "nobody looked at Box{48, \"Unseen\"");
    ScriptedPlatform machine;
    machine.ShowBox("Seen", box::Warning);
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{box::Warning, "Seen"}));
    machine.ClearSeenBoxes();
    EXPECT_THAT(machine.Boxes(), IsEmpty());
}

TEST(ScriptedPlatformTest, AnAnswerThatNobodyTakesFailsTheTest)
{
    EXPECT_LEFT_OVER(machine.Answer(button::No), "nobody took the answer of button 7");
    EXPECT_LEFT_OVER(machine.Type("55"), "nobody took the answer \"55\"");
    EXPECT_LEFT_OVER(machine.Choose("League.dvs"), "nobody took the choice of \"League.dvs\"");
}

TEST(ScriptedPlatformTest, AQuestionThatNobodyAnswersOrLooksAtFailsTheTest)
{
    EXPECT_LEFT_OVER(machine.AskText("Day?"), "nobody expected Question{\"Day?\"");
    EXPECT_LEFT_OVER(ExpectCancelled(machine), "nobody expected a dialog in \"folder\" for \"*.dvs\"");
    EXPECT_LEFT_OVER(machine.Type("3"); machine.AskText("Day?");
                     machine.AskText("Hour?"), "nobody expected Question{\"Hour?\"");
}

TEST(ScriptedPlatformTest, AFailureThatNothingMeetsFailsTheTest)
{
    EXPECT_LEFT_OVER(machine.FailFileOperation(1, failure::DiskFull), "no file operation met failure 61");
    EXPECT_LEFT_OVER(machine.FailAllFrom(2, failure::DiskFull);
                     machine.FindEntry(machine.InFolder("x")), "no file operation met failure 61");
    EXPECT_LEFT_OVER(machine.FailFileOperation(1, failure::DiskFull); machine.FailFileOperation(1, failure::PathAccess);
                     EXPECT_THROW(machine.FindEntry(machine.InFolder("x")), Failure),
                     "no file operation met failure 61");
    EXPECT_LEFT_OVER(machine.SaveSettingFailure = failure::PathAccess, "no setting met failure 75");
    EXPECT_NONFATAL_FAILURE(FailingBoxes failing(1), "boxes that were to fail and never came");
}

TEST(ScriptedPlatformTest, WhatIsLookedAtTakenMetOrTakenBackIsNotLeftOver)
{
    ScriptedPlatform machine;
    machine.Answer(button::No);
    EXPECT_EQ(machine.ShowBox("Sure?", box::YesNo), button::No);
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{box::YesNo, "Sure?"}));
    machine.Type("3");
    EXPECT_EQ(machine.AskText("Day?"), "3");
    machine.AskText("Hour?");
    EXPECT_EQ(machine.Questions().size(), 2U);
    machine.Choose("League.dvs");
    EXPECT_EQ(machine.OpenFileDialog("folder", "*.dvs"), "League.dvs");
    ExpectCancelled(machine);
    EXPECT_EQ(machine.Dialogs().size(), 2U);
    machine.FailFileOperation(1, failure::DiskFull);
    EXPECT_THROW(machine.FindEntry(machine.InFolder("x")), Failure);
    machine.FailAllFrom(5, failure::DiskFull);
    machine.FailNoMore();
    machine.SaveSettingFailure = failure::PathAccess;
    EXPECT_THROW(machine.SaveSetting("Settings", "Key", "value"), SettingsFailure);
    machine.ShowBox("One of thousands", box::Information);
    machine.ForgetBoxes("they are the way to something else");
    EXPECT_THAT(machine.LeftOver(), IsEmpty());
}

} // namespace
} // namespace dravik
