#include "machine/Voice.h"

#include "league/Failure.h"

#include <gtest/gtest.h>
#include <string>

namespace dravik {
namespace {

int NumberThrownBy(auto&& action)
{
    try {
        action();
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

TEST(VoiceTest, TheKindsOfABoxAndItsButtonsHaveTheirNumbers)
{
    EXPECT_EQ(box::Critical, 16);
    EXPECT_EQ(box::YesNoCancel, 35);
    EXPECT_EQ(box::YesNo, 36);
    EXPECT_EQ(box::Warning, 48);
    EXPECT_EQ(box::Information, 64);
    EXPECT_EQ(button::Ok, 1);
    EXPECT_EQ(button::Cancel, 2);
    EXPECT_EQ(button::Yes, 6);
    EXPECT_EQ(button::No, 7);
}

TEST(VoiceTest, AVoiceThatHasJustStartedMayNotReportAndHasNoAnswer)
{
    const MuteVoice voice;
    EXPECT_FALSE(voice.MessagesAllowed);
    EXPECT_EQ(voice.MsgResult, 0);
}

TEST(VoiceTest, AMuteVoiceTakesEveryBoxAndFailsAtEveryQuestion)
{
    MuteVoice voice;
    for (const int kind : {box::Critical, box::Warning, box::Information})
        EXPECT_EQ(voice.ShowBox("Told", kind), button::Ok) << kind;
    for (const int kind : {box::YesNo, box::YesNoCancel})
        EXPECT_EQ(NumberThrownBy([&] { voice.ShowBox("Asked", kind); }), failure::InvalidCall) << kind;
    EXPECT_EQ(NumberThrownBy([&] { voice.AskText("Asked"); }), failure::InvalidCall);
}

TEST(VoiceTest, ABoxThatFailsLeavesTheButtonOfTheLastOne)
{
    MuteVoice voice;
    voice.MsgResult = button::No;
    EXPECT_THROW(voice.ShowBox("Asked", box::YesNo), Failure);
    EXPECT_EQ(voice.MsgResult, button::No);
}

TEST(VoiceTest, OnlyAReportThatWasAskedForIsShownAndNotBeforeMessagesAreAllowed)
{
    MuteVoice voice;
    EXPECT_FALSE(voice.MayReport(true));
    EXPECT_FALSE(voice.MayReport(false));
    voice.MessagesAllowed = true;
    EXPECT_TRUE(voice.MayReport(true));
    EXPECT_FALSE(voice.MayReport(false));
}

} // namespace
} // namespace dravik
