#include "OnLineScreen.h"
#include "support/Routines.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The list, the person picked in it, the averages of lines, and what slots and entries tell.
class LinePeople : public OnLineScreen {
protected:
    // What the panel shows from row 1 on: "CK 60".
    static std::vector<std::string> Rows(const LinesScreen& screen)
    {
        std::vector<std::string> rows;
        for (int row = 1; row <= 16; ++row)
            if (!screen.frmStat->lblStat[row]->isHidden())
                rows.push_back(Of(screen.frmStat->lblStatLabel[row]) + " " + Of(screen.frmStat->lblStat[row]));
        return rows;
    }
    static std::string Caption(const LinesScreen& screen) { return screen.frmStat->title().toStdString(); }

    // What pointing at a place of a widget tells, line by line.
    static std::vector<std::string> Tooltip(QWidget* widget, const QPoint& point)
    {
        QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
        QApplication::sendEvent(widget, &help);
        QTextDocument document;
        document.setHtml(QToolTip::text());
        QToolTip::hideText();
        std::vector<std::string> lines;
        for (const QString& line : document.toPlainText().replace(QChar(0x00A0), ' ').split('\n', Qt::SkipEmptyParts))
            lines.push_back(line.toStdString());
        return lines;
    }

    static void ShowGroups()
    {
        LeagueData.ShowAllRatings = false;
        PlayerStatCount = 7;
        GoalieStatCount = 7;
    }

    static void ClickHeading(LinesScreen& screen, const char* name)
    {
        ClickOn(screen, screen.findChild<QLabel*>(name));
    }
};

TEST_F(LinePeople, TheListHoldsSkatersThenGoaliesByIndexWithTheirNumbers)
{
    const Entries entries = Listed(Line());
    ASSERT_EQ(entries.size(), 20U);
    Entries expected;
    for (const int id : Pro.Skaters)
        expected.emplace_back(Players[id].Name.Trimmed(), id * 10 + static_cast<int>(Players[id].Position));
    for (const int id : Pro.GoalieIds)
        expected.emplace_back(Goalies[id].Name.Trimmed(), id * 10 + 5);
    EXPECT_EQ(entries, expected);
}

TEST_F(LinePeople, OnlyDressedHealthyUnsuspendedPeopleOfTheTeamAreListed)
{
    const std::size_t all = Listed(Line()).size();
    Click(Line().cmdExit);
    Players[Pro.Skaters[0]].Condition = 94;
    Players[Pro.Skaters[1]].Suspension = 1;
    Players[Pro.Skaters[2]].Status = status::Scratch;
    Players[Pro.Skaters[3]].Team = 6;
    Players[Pro.Skaters[4]].InUse = false;
    Players[Pro.Skaters[5]].InUse.SetWord(1);
    Players[Pro.Skaters[6]].Condition = 95;
    Players[Pro.Skaters[7]].Contract = 0; // dressed all the same
    Goalies[Pro.GoalieIds[0]].Condition = 94;
    EXPECT_EQ(Listed(Line()).size(), all - 7);
    EXPECT_GE(Line().lstPlayer->RowOf(EntryNumber(Pro.Skaters[6], Players[Pro.Skaters[6]].Position)), 0);
    EXPECT_GE(Line().lstPlayer->RowOf(EntryNumber(Pro.Skaters[7], Players[Pro.Skaters[7]].Position)), 0);
}

TEST_F(LinePeople, ASkaterWithoutAPositionIsToldAndLeftOut)
{
    Players[Pro.Skaters[0]].Position = 0;
    Players[Pro.Skaters[1]].Position = 5;
    Players[Pro.Skaters[2]].Position = 0;
    Players[Pro.Skaters[2]].Status = status::Scratch; // nobody asks for his
    OpenFrom(MainWithLeague(), "Line", "Main");
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{16, Players[Pro.Skaters[0]].Name.Trimmed() + " has no position!"},
                            Box{16, Players[Pro.Skaters[1]].Name.Trimmed() + " has no position!"}));
    EXPECT_EQ(Line().lstPlayer->count(), 17);
    Line().chkPosition[position::Defense]->click();
    EXPECT_EQ(Machine.Boxes().size(), 2U);
}

TEST_F(LinePeople, TheFiltersTakeTheirPositionOut)
{
    frmLine& line = Line();
    const int counts[] = {4, 4, 4, 6, 2};
    for (int position = 1; position <= 5; ++position) {
        line.chkPosition[position]->click();
        EXPECT_EQ(line.lstPlayer->count(), 20 - counts[position - 1]) << position;
        for (const auto& [name, number] : Listed(line))
            EXPECT_NE(number % 10, position);
        line.chkPosition[position]->click();
        EXPECT_EQ(line.lstPlayer->count(), 20);
    }
}

TEST_F(LinePeople, AFilterTakesTheSelectionButNotThePlayerPickedLast)
{
    frmLine& line = Line();
    const int id = Pro.Skaters[0];
    Pick(line, id, position::Center);
    line.chkPosition[position::Defense]->click();
    EXPECT_EQ(line.lstPlayer->Chosen(), nullptr);
    EXPECT_EQ(SelectedPlayer, id);
    EXPECT_THAT(Rows(line), IsEmpty());
    EXPECT_TRUE(line.frmStat->lblStat[0]->isHidden());
    EXPECT_TRUE(line.frmStat->lblStatLabel[0]->isHidden());
}

TEST_F(LinePeople, PickingASkaterShowsHisNamePositionRatingsAndSlots)
{
    frmLine& line = Line();
    const auto id = static_cast<int>(ProDay().NormalForward(1, 1));
    Players[id].Name = "  \xC9mile & Co  ";
    Players[id].Stats[skater::PA] = 83;
    const auto digit = static_cast<int>(Players[id].Position);
    Pick(line, id, digit);
    EXPECT_EQ(SelectedPlayer, id);
    EXPECT_FALSE(SelectedIsGoalie);
    EXPECT_EQ(line.SelectedPosition(), digit);
    EXPECT_EQ(line.frmStat->title(), QString::fromUtf8("\xC3\x89mile && Co")); // the eye sees one "&"
    EXPECT_EQ(Of(line.frmStat->lblStat[0]), "C");
    EXPECT_FALSE(line.frmStat->lblStatLabel[0]->isHidden());
    const auto rows = Rows(line);
    ASSERT_EQ(rows.size(), 16U);
    EXPECT_EQ(rows[8], "PA 83");
    EXPECT_EQ(rows[15], "OV " + std::to_string(CalculateOverall(digit, id)));
    EXPECT_EQ(Of(line.lblPlaying),
              "(" + std::to_string(PlayOnLineInteger(5, id, 1)) + ") - " + PlayOnLineString(5, id, 1));
}

TEST_F(LinePeople, PickingAGoalieAfterASkaterHidesTheRowsHeHasNot)
{
    frmLine& line = Line();
    Pick(line, Pro.Skaters[0], position::Center);
    Pick(line, Pro.GoalieIds[0], position::Goalie);
    EXPECT_TRUE(SelectedIsGoalie);
    EXPECT_EQ(SelectedPlayer, Pro.GoalieIds[0]);
    EXPECT_EQ(Of(line.frmStat->lblStat[0]), "G");
    EXPECT_EQ(Rows(line).size(), 14U);
    EXPECT_EQ(Of(line.lblPlaying), "");
    EXPECT_EQ(Caption(line), Goalies[Pro.GoalieIds[0]].Name.Trimmed());
}

TEST_F(LinePeople, ALeagueThatHidesRatingsShowsSevenGroups)
{
    ShowGroups();
    LeagueData.ShowOverall = false;
    frmLine& line = Line();
    Players[Pro.Skaters[0]].Stats[1] = 44;
    Players[Pro.Skaters[0]].Stats[2] = 45;
    Players[Pro.Skaters[0]].Stats[3] = 45;
    Pick(line, Pro.Skaters[0], position::Center);
    const auto rows = Rows(line);
    ASSERT_EQ(rows.size(), 7U);
    EXPECT_EQ(rows[0], "IT 45");
}

TEST_F(LinePeople, TheSlotsOfThePickedSkaterFollowTheDayAndEveryChange)
{
    PutGames(2);
    frmLine& line = Line();
    const int id = Pro.Skaters[0];
    Pick(line, id, position::Center);
    line.vscDay->setValue(2);
    EXPECT_EQ(Of(line.lblPlaying), "(0) - ");
    ClickOn(line, SlotOn(line, LineField::PenaltyShot, 2));
    EXPECT_EQ(Of(line.lblPlaying), "(1) - PS-2, ");
}

// The judge goes first, so that the lookups no longer tell of the slots he takes away.
TEST_F(LinePeople, CheckTellsOfTheSlotsThatTheJudgeHasLeft)
{
    frmLine& line = Line();
    const auto id = static_cast<int>(ProDay().NormalForward(1, 1));
    Pick(line, id, position::Center);
    ASSERT_GT(PlayOnLineInteger(5, id, 1), 0);
    Players[id].Condition = 50;
    line.Check();
    EXPECT_EQ(Of(line.lblPlaying), "(0) - ");
}

TEST_F(LinePeople, ASkaterAtHandFromElsewhereIsLookedUpOnOpening)
{
    MainWithLeague();
    const auto id = static_cast<int>(ProDay().NormalForward(1, 1));
    SelectedPlayer = id;
    SelectedIsGoalie = false;
    ASSERT_GT(PlayOnLineInteger(5, id, 1), 0);
    EXPECT_EQ(Of(Line().lblPlaying),
              "(" + std::to_string(PlayOnLineInteger(5, id, 1)) + ") - " + PlayOnLineString(5, id, 1));
}

TEST_F(LinePeople, AGoalieAtHandFromElsewhereIsNotLookedUpOnOpening)
{
    MainWithLeague();
    SelectedPlayer = ProDay().NormalForward(1, 1); // a skater's number, too
    SelectedIsGoalie = true;
    EXPECT_EQ(Of(Line().lblPlaying), "");
}

TEST_F(LinePeople, TheSlotsOfThePickedPersonStandOut)
{
    frmLine& line = Line();
    const auto id = static_cast<int>(ProDay().NormalForward(1, 1));
    Pick(line, id, position::Center);
    for (const BoardSlot& slot : line.TabLine->Slots)
        EXPECT_EQ(slot.Label->IsPicked(), !slot.IsGoalies() && slot.In(ProDay()) == id);
    Pick(line, Pro.GoalieIds[0], position::Goalie);
    for (const BoardSlot& slot : line.TabLine->Slots)
        EXPECT_EQ(slot.Label->IsPicked(), slot.IsGoalies() && slot.In(ProDay()) == Pro.GoalieIds[0]);
}

TEST_F(LinePeople, AClickOnAHeadingShowsTheAveragesOfItsLine)
{
    frmLine& line = Line();
    const std::vector<long long> members{ProDay().NormalForward(2, 1), ProDay().NormalForward(2, 2),
                                         ProDay().NormalForward(2, 3), ProDay().NormalDefense(2, 1),
                                         ProDay().NormalDefense(2, 2)};
    int rating = 60;
    for (const long long id : members)
        Players[id].Stats[skater::CK] = rating++;
    Players[members[0]].Stats[skater::FG] = 99;
    for (std::size_t i = 1; i < members.size(); ++i)
        Players[members[i]].Stats[skater::FG] = 0;
    ClickHeading(line, "lblNormalTrio(2)");
    EXPECT_EQ(Caption(line), "Normal Line 2");
    EXPECT_EQ(Of(line.frmStat->lblStat[0]), "T");
    EXPECT_FALSE(line.frmStat->lblStatLabel[0]->isHidden());
    const auto rows = Rows(line);
    ASSERT_EQ(rows.size(), 16U);
    EXPECT_EQ(rows[0], "CK 62");
    EXPECT_EQ(rows[1], "FG 20"); // 19.8
}

TEST_F(LinePeople, EveryHeadingHasItsPrefixMembersAndDivisor)
{
    struct Case {
        const char* Name;
        std::string Caption;
        std::vector<long long> Members;
    };
    frmLine& line = Line();
    const Lines& day = ProDay();
    const Case cases[] = {
        {"lblNormalTrio(4)",
         "Normal Line 4",
         {day.NormalForward(4, 1), day.NormalForward(4, 2), day.NormalForward(4, 3), day.NormalDefense(4, 1),
          day.NormalDefense(4, 2)}},
        {"lblPPTrio(2)",
         "PP Unit 2",
         {day.PPForward(2, 1), day.PPForward(2, 2), day.PPForward(2, 3), day.PPDefense(2, 1), day.PPDefense(2, 2)}},
        {"lbl44Trio(1)",
         "4 vs 4 Unit 1",
         {day.FourVsFourForward(1, 1), day.FourVsFourForward(1, 2), day.FourVsFourDefense(1, 1),
          day.FourVsFourDefense(1, 2)}},
        {"lblPKTrio(2)",
         "PK Unit 2",
         {day.PKForward(2, 1), day.PKForward(2, 2), day.PKDefense(2, 1), day.PKDefense(2, 2)}},
        {"lblPK3Trio(1)", "PK3 Unit 1", {day.PK3Forward[1], day.PK3Defense(1, 1), day.PK3Defense(1, 2)}},
    };
    for (const Case& heading : cases) {
        for (int id = 1; id <= 10000; ++id)
            if (Players[id].InUse)
                Players[id].Stats[skater::DI] = 0;
        // Nobody stands twice in a line, so each member gives a share of his own.
        int share = 1;
        int sum = 0;
        for (const long long id : heading.Members) {
            Players[id].Stats[skater::DI] = share;
            sum += share;
            share *= 3;
        }
        int overalls = 0;
        for (const long long id : heading.Members)
            overalls += CalculateOverall(static_cast<int>(Players[id].Position), static_cast<int>(id));
        ClickHeading(line, heading.Name);
        EXPECT_EQ(Caption(line), heading.Caption);
        const auto size = static_cast<double>(heading.Members.size());
        const auto rows = Rows(line);
        ASSERT_EQ(rows.size(), 16U);
        EXPECT_EQ(rows[2], "DI " + std::to_string(static_cast<int>(std::nearbyint(sum / size)))) << heading.Name;
        EXPECT_EQ(rows[15], "OV " + std::to_string(static_cast<int>(std::nearbyint(overalls / size)))) << heading.Name;
    }
}

TEST_F(LinePeople, AveragesAreRoundedTiesToEven)
{
    frmLine& line = Line();
    const Lines& day = ProDay();
    const long long members[] = {day.PKForward(1, 1), day.PKForward(1, 2), day.PKDefense(1, 1), day.PKDefense(1, 2)};
    for (const long long id : members)
        Players[id].Stats[skater::CK] = Players[id].Stats[skater::FG] = 0;
    Players[members[0]].Stats[skater::CK] = 178; // 44.5
    Players[members[0]].Stats[skater::FG] = 182; // 45.5
    ClickHeading(line, "lblPKTrio(1)");
    EXPECT_EQ(Rows(line).at(0), "CK 44");
    EXPECT_EQ(Rows(line).at(1), "FG 46");
}

TEST_F(LinePeople, AnEmptySlotIsAveragedAsThePlaceholder)
{
    for (auto& stat : Players[0].Stats)
        stat = 10;
    ProDay().PK3Forward[1] = 0;
    frmLine& line = Line();
    Players[ProDay().PK3Defense(1, 1)].Stats[skater::SC] = 70;
    Players[ProDay().PK3Defense(1, 2)].Stats[skater::SC] = 70;
    ClickHeading(line, "lblPK3Trio(1)");
    EXPECT_EQ(Rows(line).at(9), "SC 50");
}

TEST_F(LinePeople, ThePlaceholdersOverallCountsInALine)
{
    for (auto& stat : Players[0].Stats)
        stat = 90;
    ProDay().PK3Forward[1] = 0;
    frmLine& line = Line();
    const auto first = static_cast<int>(ProDay().PK3Defense(1, 1));
    const auto second = static_cast<int>(ProDay().PK3Defense(1, 2));
    for (const int id : {first, second})
        for (auto& stat : Players[id].Stats)
            stat = 30;
    ClickHeading(line, "lblPK3Trio(1)");
    EXPECT_EQ(Rows(line).at(15), "OV 50");
}

TEST_F(LinePeople, GroupValuesAreMadeOfTheAverages)
{
    ShowGroups();
    frmLine& line = Line();
    const Lines& day = ProDay();
    const long long members[] = {day.PK3Forward[2], day.PK3Defense(2, 1), day.PK3Defense(2, 2)};
    for (const long long id : members)
        for (int stat = 1; stat <= 3; ++stat)
            Players[id].Stats[stat] = 0;
    Players[members[0]].Stats[1] = 5; // 1.67 shows as 2
    Players[members[0]].Stats[2] = 5;
    Players[members[0]].Stats[3] = 1; // 0.33 shows as 0
    ClickHeading(line, "lblPK3Trio(2)");
    const auto rows = Rows(line);
    ASSERT_EQ(rows.size(), 8U);
    EXPECT_EQ(rows[0], "IT 1"); // (2 + 2 + 0) / 3
    EXPECT_THAT(rows[7], ::testing::StartsWith("OV "));
}

TEST_F(LinePeople, ALineWithSomebodyBeyondTheTableIsAFailureOfItsHeading)
{
    frmLine& line = Line();
    ProDay().PPForward(1, 2) = 10001;
    ClickHeading(line, "lblPPTrio(1)");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in lblPPTrio!"}));
}

TEST_F(LinePeople, AHeadingIsPressedByEnterToo)
{
    frmLine& line = Line();
    auto* heading = line.findChild<QLabel*>("lblNormalTrio(1)");
    heading->setFocus();
    Press(heading, Qt::Key_Return);
    EXPECT_EQ(Caption(line), "Normal Line 1");
}

TEST_F(LinePeople, TheEntryPickedAgainAfterAHeadingShowsItsPersonAgain)
{
    frmLine& line = Line();
    Pick(line, Pro.Skaters[0], position::Center);
    ClickHeading(line, "lblNormalTrio(1)");
    Pick(line, Pro.Skaters[0], position::Center);
    EXPECT_EQ(Caption(line), Players[Pro.Skaters[0]].Name.Trimmed());
    EXPECT_EQ(Of(line.frmStat->lblStat[0]), "C");
}

TEST_F(LinePeople, AnEntryTellsNamePositionOverallConditionAndSlots)
{
    frmLine& line = Line();
    const int id = Pro.Skaters[0];
    Players[id].Condition = 97;
    const QRect entry = line.lstPlayer->visualItemRect(line.lstPlayer->item(0));
    EXPECT_THAT(Tooltip(line.lstPlayer->viewport(), entry.center()),
                ElementsAre(Players[id].Name.Trimmed(), "Position: C",
                            "Overall: " + std::to_string(CalculateOverall(1, id)), "Condition: 97",
                            "Lines: " + PlayOnLineString(5, id, 1)));
}

TEST_F(LinePeople, ASlotTellsOfWhoStandsThere)
{
    LeagueData.ShowOverall = false;
    frmLine& line = Line();
    const auto id = static_cast<int>(ProDay().NormalDefense(1, 2));
    Players[id].Name = "Ward <b> Tilton";
    SlotLabel* label = SlotOn(line, LineField::NormalDefense, 1, 2);
    EXPECT_THAT(Tooltip(label, label->rect().center()), ElementsAre("Ward <b> Tilton", "Position: D", "Condition: 100",
                                                                    "Lines: " + PlayOnLineString(5, id, 1)));
}

TEST_F(LinePeople, AGoalieTellsNoLinesAndAnEmptySlotTellsNothing)
{
    ProDay().BackupGoalie = 0;
    frmLine& line = Line();
    line.TabLine->setCurrentIndex(7);
    Settle();
    const auto id = static_cast<int>(ProDay().StartGoalie);
    EXPECT_THAT(Tooltip(StartSlot(line).Label, QPoint(5, 5)),
                ElementsAre(Goalies[id].Name.Trimmed(), "Position: G",
                            "Overall: " + std::to_string(CalculateOverall(5, id)), "Condition: 100"));
    Tooltip(BackupSlot(line).Label, QPoint(5, 5));
    EXPECT_EQ(BackupSlot(line).Label->toolTip(), "");
}

} // namespace
} // namespace dravik
