#include "machine/Reporting.h"

#include "session/Session.h"
#include "support/SmallLeague.h"

#include <stdexcept>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ReportingTest : public SmallLeague {};

TEST_F(ReportingTest, EveryFailureNumberIsShownWithItsDescription)
{
    struct Known {
        int Number;
        const char* Message;
    };
    const Known all[] = {
        {5, "5 - Invalid procedure call or argument in CheckRoster!"},
        {6, "6 - Overflow in CheckRoster!"},
        {7, "7 - Out of memory in CheckRoster!"},
        {9, "9 - Subscript out of range in CheckRoster!"},
        {11, "11 - Division by zero in CheckRoster!"},
        {13, "13 - Type mismatch in CheckRoster!"},
        {53, "53 - File not found in CheckRoster!"},
        {61, "61 - Disk full in CheckRoster!"},
        {70, "70 - Permission denied in CheckRoster!"},
        {75, "75 - Path/File access error in CheckRoster!"},
        {76, "76 - Path not found in CheckRoster!"},
        {32755, "32755 - Cancel was selected. in CheckRoster!"},
    };
    for (const Known& known : all) {
        EXPECT_FALSE(Reporting(Machine, " in CheckRoster!", [&] { Fail(known.Number); }));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, known.Message, "Dravik Hockey Simulator Client"}));
    }
}

TEST_F(ReportingTest, ABodyThatComesToItsEndIsDoneWithoutAWord)
{
    int ran = 0;
    EXPECT_TRUE(Reporting(Machine, " in PlaceTeam!", [&] { ++ran; }));
    EXPECT_EQ(ran, 1);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ReportingTest, WhatTheBodyChangedBeforeItsFailureStays)
{
    EXPECT_FALSE(Reporting(Machine, " in AutoRoster!", [] {
        Teams[1].ProMorale = 12;
        Teams[101].ProMorale = 13;
    }));
    EXPECT_EQ(Teams[1].ProMorale, 12);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in AutoRoster!"}));
}

TEST_F(ReportingTest, TheEndingIsShownAsGivenWithOrWithoutItsMark)
{
    Reporting(Machine, " in CheckInput", [] { Fail(failure::Overflow); });
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in CheckInput"}));
}

TEST_F(ReportingTest, ExhaustedMemoryIsNumber7)
{
    EXPECT_FALSE(Reporting(Machine, " in Zlib Compress!", [] { throw std::bad_alloc(); }));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "7 - Out of memory in Zlib Compress!"}));
}

TEST_F(ReportingTest, AnyOtherExceptionIsNumber5)
{
    EXPECT_FALSE(Reporting(Machine, " in mnuOpen!", [] { throw std::runtime_error("something else"); }));
    EXPECT_FALSE(Reporting(Machine, " in mnuOpen!", [] { throw std::out_of_range("at"); }));
    const Box told{16, "5 - Invalid procedure call or argument in mnuOpen!"};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(told, told));
}

TEST_F(ReportingTest, OfTwoReportingsOnlyTheInnerOneTells)
{
    EXPECT_TRUE(Reporting(Machine, " in Outer!",
                          [this] { Reporting(Machine, " in Inner!", [] { Fail(failure::DivisionByZero); }); }));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "11 - Division by zero in Inner!"}));
}

TEST_F(ReportingTest, TheButtonOfTheReportGoesToMsgResult)
{
    Machine.MsgResult = 0;
    Reporting(Machine, " in mnuOpen!", [] { Fail(failure::Overflow); });
    EXPECT_EQ(Machine.MsgResult, 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in mnuOpen!"}));
}

TEST_F(ReportingTest, ACancelledDialogIsToldUnlessItIsDropped)
{
    EXPECT_FALSE(ReportingUnlessCancelled(Machine, " in cmdLoadFile!", [] { Fail(failure::Cancelled); }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Reporting(Machine, " in cmdLoadFile!", [] { Fail(failure::Cancelled); }));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "32755 - Cancel was selected. in cmdLoadFile!"}));
}

TEST_F(ReportingTest, WhereACancelIsDroppedEveryOtherFailureIsToldAllTheSame)
{
    EXPECT_FALSE(ReportingUnlessCancelled(Machine, " in cmdLoadFile!", [] { Fail(failure::PermissionDenied); }));
    EXPECT_FALSE(ReportingUnlessCancelled(Machine, " in cmdLoadFile!", [] { throw std::bad_alloc(); }));
    EXPECT_TRUE(ReportingUnlessCancelled(Machine, " in cmdLoadFile!", [] {}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "70 - Permission denied in cmdLoadFile!"},
                                             Box{16, "7 - Out of memory in cmdLoadFile!"}));
}

TEST_F(ReportingTest, ABoxStandsUnderTheProgramsTitleAndItsButtonStaysInMsgResult)
{
    Machine.Answer(button::No);
    EXPECT_EQ(Machine.ShowBox("Are you sure?", box::YesNo), 7);
    EXPECT_EQ(Machine.MsgResult, 7);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure?", "Dravik Hockey Simulator Client"}));
}

TEST_F(ReportingTest, ANumberOutOfRangeFailsTheIntegrityCheckInACriticalBox)
{
    Machine.ShowIntegrityFailure();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!", "Dravik Hockey Simulator Client"}));
}

TEST_F(ReportingTest, AnInputBoxStandsUnderTheProgramsTitleWithNothingInIt)
{
    Machine.Type("typed");
    EXPECT_EQ(Machine.AskText("Password Required!"), "typed");
    EXPECT_EQ(Machine.AskText("Password Required!"), ""); // cancelled
    const Question asked{"Password Required!", "Dravik Hockey Simulator Client", ""};
    EXPECT_THAT(Machine.Questions(), ElementsAre(asked, asked));
}

} // namespace
} // namespace dravik
