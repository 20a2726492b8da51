#include "OnLineScreen.h"
#include "screens/lines/AdviceList.h"
#include "support/Routines.h"

#include <algorithm>
#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAreArray;

using Texts = std::vector<std::string>;

// The captions of both lines screens, as they were written, and the ratings that the panel shows.
class LineCaptions : public OnLineScreen {
protected:
    // Both screens, one after the other.
    template <class Visit>
    void EachScreen(Visit&& visit)
    {
        visit(static_cast<LinesScreen&>(Line()), true);
        Click(Line().cmdExit);
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
        visit(static_cast<LinesScreen&>(FarmLine()), false);
    }

    // What the panel shows from row 1 on: "CK 60".
    static Texts Rows(const LinesScreen& screen)
    {
        Texts rows;
        for (int row = 1; row <= 16; ++row)
            if (!screen.frmStat->lblStat[row]->isHidden())
                rows.push_back(Of(screen.frmStat->lblStatLabel[row]) + " " + Of(screen.frmStat->lblStat[row]));
        return rows;
    }

    static void ShowGroups()
    {
        LeagueData.ShowAllRatings = false;
        PlayerStatCount = 7;
        GoalieStatCount = 7;
    }

    // Ratings that tell which one a row shows: `first`, and one more for each.
    template <class Person>
    static void SetRatings(Person& person, int first)
    {
        for (auto& stat : person.Stats)
            stat = first++;
    }

    static bool AreSame(const Lines& a, const Lines& b) { return std::memcmp(&a, &b, sizeof(Lines)) == 0; }
};

TEST_F(LineCaptions, EveryCaptionIsAsWritten)
{
    EachScreen([](LinesScreen& screen, bool isPro) {
        Texts commands{"&Auto Lines",
                       "&Wipe Lines",
                       "&Copy To Day ...",
                       "Copy To A&ll Days",
                       "Repa&ir All Days",
                       "Whole Line-&Up",
                       "Share ...",
                       "Show Player",
                       "E&xit",
                       "W&hy are my lines incomplete?"};
        if (isPro)
            commands.emplace_back("Pa&rtial Auto Lines");
        Texts buttons;
        for (const auto* button : screen.findChildren<QPushButton*>())
            if (!screen.Advice->isAncestorOf(button))
                buttons.push_back(button->text().toStdString());
        EXPECT_THAT(buttons, UnorderedElementsAreArray(commands));

        Texts labels;
        for (const auto* label : screen.findChildren<QLabel*>())
            if (!label->text().isEmpty() && label->objectName().isEmpty() && !screen.frmStat->isAncestorOf(label))
                labels.push_back(Of(label));
        EXPECT_THAT(labels, UnorderedElementsAreArray(
                                Texts{"Da&y", "Show : ", "Enter places", "Playing the Following Lines : ",
                                      "Physical Style : ", "Defense Style : ", "Offense Style : ", "Points Left :",
                                      "Minimum # of Goals :", "Save PCT Under :", "Extra Forwards", "Extra Defensemen",
                                      "Penalty Shots", "Starting Goalie", "Backup Goalie"}));

        Texts tabs;
        for (int tab = 0; tab < screen.TabLine->count(); ++tab)
            tabs.push_back(screen.TabLine->tabText(tab).toStdString());
        EXPECT_THAT(tabs, ElementsAre("&Normal Lines", "&PowerPlay", "&4 vs 4", "&5 vs 4 Penalty Kill",
                                      "* vs &3 Penalty Kill", "&Extras", "Penalty &Shots", "&Goalies", "S&trategy"));

        Texts groups;
        for (const auto* group : screen.findChildren<QGroupBox*>())
            groups.push_back(group->title().toStdString());
        EXPECT_THAT(groups, UnorderedElementsAreArray(Texts{"Stats", "Strategy", "Goalie Pull"}));

        Texts headings;
        for (const BoardHeading& heading : screen.TabLine->Parts.Headings) {
            headings.push_back(Of(heading.Label));
            EXPECT_EQ(heading.Label->toolTip(), "Show the averages");
        }
        EXPECT_THAT(headings, ElementsAre("Line 1", "Line 2", "Line 3", "Line 4", "Unit 1", "Unit 2", "Unit 1",
                                          "Unit 2", "Unit 1", "Unit 2", "Unit 1", "Unit 2"));
    });
}

TEST_F(LineCaptions, EveryFilterHasItsCaptionAndItsWholeName)
{
    EachScreen([](LinesScreen& screen, bool /*isPro*/) {
        Texts captions;
        Texts names;
        for (const QCheckBox* filter : screen.chkPosition) {
            captions.push_back(filter->text().toStdString());
            names.push_back(filter->toolTip().toStdString());
        }
        EXPECT_THAT(captions, ElementsAre("C", "LW", "RW", "D", "G"));
        EXPECT_THAT(names, ElementsAre("Center", "Left Wing", "Right Wing", "Defense", "Goalie"));
    });
}

TEST_F(LineCaptions, EachStyleStandsBesideItsBarAndGoesFromNoneToFive)
{
    EachScreen([](LinesScreen& screen, bool /*isPro*/) {
        screen.TabLine->setCurrentIndex(screen.TabLine->count() - 1);
        Settle();
        const char* styles[] = {"Physical Style : ", "Defense Style : ", "Offense Style : "};
        for (int style = 0; style <= 2; ++style) {
            const QScrollBar* bar = screen.hscStats[style];
            EXPECT_EQ(bar->minimum(), 0);
            EXPECT_EQ(bar->maximum(), 5);
            EXPECT_EQ(bar->singleStep(), 1);
            EXPECT_EQ(bar->pageStep(), 1);
            int beside = 0;
            for (const auto* label : screen.findChildren<QLabel*>())
                if (Of(label) == styles[style]) {
                    ++beside;
                    EXPECT_NEAR(label->mapTo(&screen, label->rect().center()).y(),
                                bar->mapTo(&screen, bar->rect().center()).y(), 2);
                }
            EXPECT_EQ(beside, 1) << styles[style];
        }
    });
}

TEST_F(LineCaptions, TheStripTellsEveryGameTheLastIncluded)
{
    PutGames(4);
    PutGames(3, true);
    Teams[6].Abbre = "IRF";
    Teams[6].Farm.Abbre = "IRC";
    EachScreen([](LinesScreen& screen, bool isPro) {
        EXPECT_EQ(screen.vscDay->Games(), isPro ? QStringList({"vs IRF", "at IRF", "vs IRF", "at IRF"})
                                                : QStringList({"vs IRC", "at IRC", "vs IRC"}));
    });
}

TEST_F(LineCaptions, ListsShowBareNamesOfCaptainsAssistantsAndThoseToBeTraded)
{
    Own().Captain = Pro.Skaters[0];
    Own().Assistant[1] = Pro.Skaters[1];
    Own().Assistant[2] = Pro.Skaters[2];
    for (const int id : {Pro.Skaters[0], Pro.Skaters[3], static_cast<int>(FarmDay().NormalForward(1, 1))})
        Players[id].TradeAvailable = true;
    for (const long long id : {ProDay().StartGoalie, FarmDay().StartGoalie})
        Goalies[id].TradeAvailable = true;
    EachScreen([](LinesScreen& screen, bool isPro) {
        std::size_t people = 0;
        for (const auto& [name, number] : Listed(screen)) {
            if (EntryId(number) > 10000)
                continue; // a placeholder
            const bool isGoalie = EntryPosition(number) == position::Goalie;
            EXPECT_EQ(name, (isGoalie ? "Goalie " : "Skater ") + std::to_string(EntryId(number)));
            ++people;
        }
        EXPECT_EQ(people, 20U) << isPro;
        for (const BoardSlot& slot : screen.TabLine->Slots)
            EXPECT_EQ(Of(slot.Label).find_first_of("(*"), std::string::npos) << Of(slot.Label);
    });
}

TEST_F(LineCaptions, AGoalieShowsHisThirteenRatingsInTheirOrder)
{
    EachScreen([](LinesScreen& screen, bool isPro) {
        const auto id = static_cast<int>(isPro ? ProDay().StartGoalie : FarmDay().StartGoalie);
        SetRatings(Goalies[id], 31);
        Pick(screen, id, position::Goalie);
        EXPECT_THAT(Rows(screen), ElementsAre("SK 31", "DU 32", "ST 33", "SZ 34", "AG 35", "RB 36", "SC 37", "HS 38",
                                              "RT 39", "EX 40", "LD 41", "MO 42", "PO 43",
                                              "OV " + std::to_string(CalculateOverall(position::Goalie, id))));
    });
}

TEST_F(LineCaptions, ASkaterShowsHisFifteenRatingsInTheirOrder)
{
    EachScreen([](LinesScreen& screen, bool isPro) {
        const auto id = static_cast<int>((isPro ? ProDay() : FarmDay()).NormalForward(1, 1));
        SetRatings(Players[id], 31);
        Pick(screen, id, position::Center);
        EXPECT_THAT(Rows(screen), ElementsAre("CK 31", "FG 32", "DI 33", "SK 34", "ST 35", "DU 36", "PH 37", "FO 38",
                                              "PA 39", "SC 40", "DF 41", "EX 42", "LD 43", "MO 44", "PO 45",
                                              "OV " + std::to_string(CalculateOverall(position::Center, id))));
    });
}

TEST_F(LineCaptions, EveryGroupRowOfSkatersGoaliesAndLinesIsTheMeanOfItsRatings)
{
    ShowGroups();
    LeagueData.ShowOverall = false;
    EachScreen([](LinesScreen& screen, bool isPro) {
        const Lines& day = isPro ? ProDay() : FarmDay();
        const auto id = static_cast<int>(day.PK3Forward[1]);
        SetRatings(Players[id], 10); // 10 to 24
        Pick(screen, id, static_cast<int>(Players[id].Position));
        EXPECT_THAT(Rows(screen), ElementsAre("IT 11", "PY 14", "PC 17", "SC 19", "DF 20", "ME 22", "PO 24"));

        const auto keeper = static_cast<int>(day.StartGoalie);
        SetRatings(Goalies[keeper], 10); // 10 to 22
        Pick(screen, keeper, position::Goalie);
        EXPECT_THAT(Rows(screen), ElementsAre("PH 12", "RD 15", "SC 16", "HS 17", "RT 18", "ME 20", "PO 22"));

        SetRatings(Players[day.PK3Defense(1, 1)], 13);
        SetRatings(Players[day.PK3Defense(1, 2)], 16);
        ClickOn(screen, screen.findChild<QLabel*>("lblPK3Trio(1)"));
        EXPECT_THAT(Rows(screen), ElementsAre("IT 14", "PY 17", "PC 20", "SC 22", "DF 23", "ME 25", "PO 27"));
    });
}

TEST_F(LineCaptions, ALeagueThatHidesOverallsHasNoRowForThem)
{
    LeagueData.ShowOverall = false;
    EachScreen([](LinesScreen& screen, bool isPro) {
        const Lines& day = isPro ? ProDay() : FarmDay();
        const auto last = [&screen] {
            const Texts rows = Rows(screen);
            return std::pair(rows.size(), rows.back().substr(0, 3));
        };
        const auto id = static_cast<int>(day.NormalForward(1, 1));
        Pick(screen, id, position::Center);
        EXPECT_EQ(last(), std::pair(std::size_t{15}, std::string("PO ")));
        ClickOn(screen, screen.findChild<QLabel*>("lblNormalTrio(1)"));
        EXPECT_EQ(last(), std::pair(std::size_t{15}, std::string("PO ")));
        Pick(screen, static_cast<int>(day.StartGoalie), position::Goalie);
        EXPECT_EQ(last(), std::pair(std::size_t{13}, std::string("PO ")));
    });
}

// Overalls go by the position that a man has, wherever he stands.
TEST_F(LineCaptions, AHeadingOfMenOutOfPositionAveragesTheirOwnOveralls)
{
    Lines& day = ProDay();
    const auto defender = static_cast<int>(day.NormalDefense(3, 1));
    const auto center = static_cast<int>(day.NormalForward(3, 1));
    day.NormalForward(3, 1) = defender;
    day.NormalDefense(3, 1) = center;
    Players[defender].Stats[skater::DF] = 99;
    Players[defender].Stats[skater::SC] = 20;
    Players[center].Stats[skater::SC] = 99;
    Players[center].Stats[skater::DF] = 20;
    const int members[] = {defender, static_cast<int>(day.NormalForward(3, 2)),
                           static_cast<int>(day.NormalForward(3, 3)), center,
                           static_cast<int>(day.NormalDefense(3, 2))};
    int sum = 0;
    for (const int id : members)
        sum += CalculateOverall(static_cast<int>(Players[id].Position), id);
    // What it would be by the slots.
    const int elsewhere = sum - CalculateOverall(position::Defense, defender) -
                          CalculateOverall(position::Center, center) + CalculateOverall(position::Center, defender) +
                          CalculateOverall(position::Defense, center);
    const auto average = [](int total) { return std::to_string(static_cast<int>(std::nearbyint(total / 5.0))); };
    ASSERT_NE(average(sum), average(elsewhere));
    frmLine& line = Line();
    ClickOn(line, line.findChild<QLabel*>("lblNormalTrio(3)"));
    EXPECT_EQ(Rows(line).at(15), "OV " + average(sum));
    EXPECT_EQ(Of(line.TabLine->Parts.Headings[2].Average), "average " + average(sum));
}

TEST_F(LineCaptions, AChangeOfDayEmptiesTheSlotsOfWhoIsNoLongerAtHand)
{
    PutGames(2);
    PutGames(2, true);
    EachScreen([](LinesScreen& screen, bool isPro) {
        const auto id = static_cast<int>((isPro ? ProDay() : FarmDay()).NormalForward(1, 1));
        for (const bool isGone : {true, false}) {
            Pick(screen, id, position::Center);
            ASSERT_NE(Of(screen.lblPlaying), "");
            SelectedIsGoalie = !isGone;
            SelectedPlayer = isGone ? 0 : id;
            screen.vscDay->setValue(3 - screen.vscDay->value());
            EXPECT_EQ(Of(screen.lblPlaying), "");
        }
        Pick(screen, id, position::Center);
        screen.Place();
        EXPECT_EQ(Of(screen.lblPlaying), "");
    });
}

TEST_F(LineCaptions, ACopyLeavesTheOtherSidesDaysAndModifiedAlone)
{
    PutGames(3);
    PutGames(3, true);
    for (int day = 2; day <= 10; ++day) {
        ProDay(day).NormalForward(1, 1) = day;
        FarmDay(day).NormalForward(1, 1) = 100 + day;
    }
    EachScreen([this](LinesScreen& screen, bool isPro) {
        const auto pro = Own().ProLines;
        const auto farm = Own().Farm.FarmLines;
        Modified = false;
        Machine.Type("2");
        Click(screen.cmdCopy);
        EXPECT_FALSE(Modified);
        Click(screen.cmdCopyAll);
        EXPECT_FALSE(Modified);
        EXPECT_THAT(
            Machine.TakeBoxes(),
            ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day 2?"},
                        Box{64, "Lines 1 was successfully copy to Lines 2."},
                        Box{36, "Are you want to you want to copy the lines from day 1 to day all the others day?"},
                        Box{64, "Lines 1 was successfully copy to day all the others day."}));
        for (int day = 1; day <= 10; ++day) {
            EXPECT_TRUE(AreSame(isPro ? FarmDay(day) : ProDay(day), isPro ? farm[day] : pro[day])) << day;
            EXPECT_EQ((isPro ? ProDay(day) : FarmDay(day)).NormalForward(1, 1),
                      (isPro ? pro : farm)[1].NormalForward(1, 1))
                << day;
        }
    });
}

TEST_F(LineCaptions, EmptyFarmSlotsNameThePlaceholdersInALeagueWithStrictFarmLinesToo)
{
    LeagueData.FarmRosterRequired = true;
    FarmDay() = {};
    frmFarmLine& farm = FarmLine();
    for (const BoardSlot& slot : farm.TabLine->Slots) {
        EXPECT_EQ(Of(slot.Label), slot.IsGoalies() ? "Unknown Goalie" : "Unknown Player");
        EXPECT_EQ(slot.Label->Shown(), SlotLabel::Mark::Empty);
    }
    for (const auto& [name, number] : Listed(farm))
        EXPECT_LT(EntryId(number), 32000) << name;
}

} // namespace
} // namespace dravik
