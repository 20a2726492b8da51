#include "screens/lines/UnitWindow.h"
#include "OnHistory.h"
#include "OnLineScreen.h"
#include "rules/LineStrength.h"
#include "rules/Overall.h"
#include "screens/panels/CompareCells.h"
#include "screens/panels/GhostWords.h"
#include "screens/PersonWords.h"

#include <QAction>

// Two lines or units side by side.
namespace dravik {
namespace {

using ::testing::HasSubstr;

class UnitWindowTest : public OnLineScreen {
protected:
    UnitWindowTest()
    {
        LeagueData.ShowAllRatings = true;
        LeagueData.ShowOverall = true;
        int rating = 40;
        for (const int slot : Pro.Skaters)
            for (auto stat = SkaterRatings::first; stat <= SkaterRatings::last; ++stat)
                Players[slot].Stats[stat] = 40 + (rating += 7) % 50;
    }
    static int ColumnOf(const UnitWindow& units, const QString& caption)
    {
        for (int column = 0; column < units.tblAverages->columnCount(); ++column)
            if (units.tblAverages->horizontalHeaderItem(column)->text() == caption)
                return column;
        return -1;
    }
    static QString TextAt(const UnitWindow& units, int row, const QString& caption)
    {
        const QTableWidgetItem* item = units.tblAverages->item(row, ColumnOf(units, caption));
        return item == nullptr ? QString("no such column") : item->text();
    }
    // The window, asked for by the key at a heading.
    static UnitWindow& UnitsAt(LinesScreen& line, std::size_t heading)
    {
        line.TabLine->Parts.Headings[heading].Label->setFocus();
        PressScreenKey(line, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_NE(UnitWindow::On(line), nullptr);
        return *UnitWindow::On(line);
    }
};

TEST_F(UnitWindowTest, TheKeyHoldsALineAgainstTheNextInTheFiguresOfTheBoard)
{
    frmLine& line = Line();
    const UnitWindow& units = UnitsAt(line, 1);
    EXPECT_EQ(units.cboUnit[0]->currentText(), "Normal Line 2");
    EXPECT_EQ(units.cboUnit[1]->currentText(), "Normal Line 3");
    const GroupAverages second = AveragesOf(OpenLeague, Machine, ProDay(), NormalLines, 2);
    const GroupAverages third = AveragesOf(OpenLeague, Machine, ProDay(), NormalLines, 3);
    EXPECT_EQ(TextAt(units, 0, "OV"), QString::number(second.Overall));
    EXPECT_EQ(TextAt(units, 1, "OV"), QString::number(third.Overall));
    const LineStrength strength = StrengthOfLines(OpenLeague, ProDay());
    EXPECT_EQ(TextAt(units, 0, "Fwd"), QString::number(*strength[1]));
    EXPECT_EQ(TextAt(units, 1, "Pair"), QString::number(*strength[6]));
    const StatRows one = SkaterStatRows(LeagueData, second.Ratings, 15, second.Overall);
    const StatRows other = SkaterStatRows(LeagueData, third.Ratings, 15, third.Overall);
    for (std::size_t row = 0; row < one.Ratings.size(); ++row) {
        const QString caption = QString::fromLatin1(one.Ratings[row].Label.data(), 2);
        EXPECT_EQ(TextAt(units, 0, caption), QString::number(one.Ratings[row].Value));
        const QTableWidgetItem* cell = units.tblAverages->item(1, ColumnOf(units, caption));
        EXPECT_EQ(cell->text(), QString::number(other.Ratings[row].Value));
        EXPECT_EQ(cell->data(compare::DifferenceRole).toString(),
                  SignedText(other.Ratings[row].Value - one.Ratings[row].Value));
        EXPECT_FALSE(units.tblAverages->item(0, ColumnOf(units, caption))->data(compare::DifferenceRole).isValid());
    }
    ASSERT_EQ(units.tblPeople->rowCount(), 5);
    for (int place = 0; place < 5; ++place) {
        const GroupMember& member = NormalLines.Members[static_cast<std::size_t>(place)];
        const auto who = [&](int number) {
            return PersonIn<Player>(static_cast<int>(At(ProDay(), SlotOf(member.Field, number, member.Place))));
        };
        EXPECT_THAT(units.tblPeople->TextAt(place, 0).toStdString(), HasSubstr(NameOf(who(2)).toStdString()));
        EXPECT_EQ(units.tblPeople->TextAt(place, 1), OverallOf(who(2)));
        EXPECT_THAT(units.tblPeople->TextAt(place, 2).toStdString(), HasSubstr(NameOf(who(3)).toStdString()));
        EXPECT_EQ(units.tblPeople->TextAt(place, 4), SignedText(OverallOf(who(3)).toInt() - OverallOf(who(2)).toInt()));
    }
}

TEST_F(UnitWindowTest, AChoiceByKeysHoldsItAgainstAnotherSortAndDay)
{
    frmLine& line = Line();
    UnitWindow& units = UnitsAt(line, 0);
    ASSERT_TRUE(units.cboUnit[1]->hasFocus() || units.focusWidget() == units.cboUnit[1]);
    Press(units.cboUnit[1], Qt::Key_P); // the first power play
    EXPECT_EQ(units.cboUnit[1]->currentText(), "PP Unit 1");
    const GroupAverages averages = AveragesOf(OpenLeague, Machine, ProDay(), PowerPlayUnits, 1);
    EXPECT_EQ(TextAt(units, 1, "OV"), QString::number(averages.Overall));
    EXPECT_EQ(TextAt(units, 1, "Fwd"), QString(QChar(0x2013))); // of lines alone
    Press(units.cboDay[1], Qt::Key_Down);
    EXPECT_EQ(units.cboDay[1]->currentIndex(), 1);
    const GroupAverages nobody =
        AveragesOf(OpenLeague, Machine, ProDay(2), PowerPlayUnits, 1); // the board tells that too
    EXPECT_EQ(TextAt(units, 1, "OV"), QString::number(nobody.Overall));
    EXPECT_EQ(units.tblPeople->TextAt(0, 2), "empty");
    EXPECT_THAT(units.lblNote->text().toStdString(), HasSubstr("PP Unit 1, day 2"));
    QTest::keyClick(&units, Qt::Key_Escape);
    EXPECT_EQ(UnitWindow::On(line), nullptr);
}

TEST_F(UnitWindowTest, TheMenuOfAHeadingOpensItAndWhatIsPlacedIsSeenAtOnce)
{
    frmLine& line = Line();
    line.TabLine->Parts.Headings[2].Label->actions().constFirst()->trigger();
    UnitWindow* units = UnitWindow::On(line);
    ASSERT_NE(units, nullptr);
    EXPECT_EQ(units->cboUnit[0]->currentText(), "Normal Line 3");
    At(ProDay(), SlotOf(LineField::NormalForward, 3, 1)) = 0;
    line.ShowAnew();
    EXPECT_EQ(units->tblPeople->TextAt(0, 0), "empty");
    EXPECT_EQ(TextAt(*units, 0, "OV"),
              QString::number(AveragesOf(OpenLeague, Machine, ProDay(), NormalLines, 3).Overall));
    EXPECT_THAT(units->lblNote->text().toStdString(), HasSubstr("Normal Line 3, day 1"));
    Pick(line, Pro.Skaters[0], position::Center); // and put there with the hands
    Click(line.TabLine->SlotAt(LineField::NormalForward, 3, 1).Label);
    EXPECT_THAT(units->tblPeople->TextAt(0, 0).toStdString(),
                HasSubstr(NameOf(PersonIn<Player>(Pro.Skaters[0])).toStdString()));
}

TEST_F(UnitWindowTest, WhatTheLeagueHidesHasNoFigures)
{
    LeagueData.ShowOverall = false;
    LeagueData.ShowAllRatings = false;
    PlayerStatCount = RatingsShownBy(LeagueData).Skater;
    frmLine& line = Line();
    const UnitWindow& units = UnitsAt(line, 0);
    EXPECT_EQ(units.tblAverages->columnCount(), 1 + 7);
    for (const char* caption : {"OV", "Fwd", "Pair"})
        EXPECT_EQ(ColumnOf(units, caption), -1);
    EXPECT_EQ(units.tblPeople->columnCount(), 2);
}

} // namespace
} // namespace dravik
