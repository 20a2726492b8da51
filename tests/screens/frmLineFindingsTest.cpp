#include "OnLineScreen.h"
#include "support/LeagueImage.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <set>

namespace dravik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Mark = SlotLabel::Mark;

// What the board shows of the judge's findings, and what stands beside his verdict.
class LineFindings : public OnLineScreen {
protected:
    // The names of the slots with a mark.
    static std::set<std::string> Marked(const LinesScreen& screen, Mark mark)
    {
        std::set<std::string> names;
        for (const BoardSlot& slot : screen.TabLine->Slots)
            if (slot.Label->Shown() == mark)
                names.insert(slot.Label->objectName().toStdString());
        return names;
    }

    static std::vector<std::string> Tooltip(SlotLabel* label)
    {
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), label->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(label, &help);
        QToolTip::hideText();
        QTextDocument document;
        document.setHtml(label->toolTip());
        std::vector<std::string> lines;
        for (const QString& line : document.toPlainText().replace(QChar(0x00A0), ' ').split('\n', Qt::SkipEmptyParts))
            lines.push_back(line.toStdString());
        return lines;
    }
};

TEST_F(LineFindings, BothSlotsOfADoubleAreMarkedAndTellTheJudgesWords)
{
    frmLine& line = Line();
    const auto id = static_cast<int>(ProDay().NormalForward(1, 1));
    Pick(line, id, static_cast<int>(Players[id].Position));
    SlotLabel* center = SlotOn(line, LineField::NormalForward, 1, 1);
    SlotLabel* defense = SlotOn(line, LineField::NormalDefense, 1, 2);
    const int before = Reddish(center);
    ClickOn(line, defense);
    EXPECT_EQ(Marked(line, Mark::Twice), (std::set<std::string>{"lblNormalTrioC(1)", "lblNormalTrioD2(1)"}));
    const std::string words = Players[id].Name.Trimmed() + " is used twice in Normal line #1";
    for (SlotLabel* label : {center, defense}) {
        EXPECT_EQ(Tooltip(label).back(), words);
        EXPECT_TRUE(label->accessibleName().endsWith(" (used twice)")) << label->accessibleName().toStdString();
        EXPECT_GT(Reddish(label), before + 100);
    }
    EXPECT_THAT(Tooltip(SlotOn(line, LineField::NormalForward, 1, 3)), ::testing::Not(Contains(words)));
}

TEST_F(LineFindings, AMendedDoubleIsMarkedNoMore)
{
    const auto id = static_cast<int>(ProDay().NormalForward(1, 1));
    const auto other = static_cast<int>(ProDay().NormalForward(1, 2));
    ProDay().NormalForward(1, 2) = id;
    frmLine& line = Line();
    ASSERT_EQ(Marked(line, Mark::Twice).size(), 2U);
    Pick(line, other, static_cast<int>(Players[other].Position));
    EXPECT_EQ(Marked(line, Mark::Twice).size(), 2U);
    ClickOn(line, SlotOn(line, LineField::NormalForward, 1, 2));
    EXPECT_THAT(Marked(line, Mark::Twice), IsEmpty());
    EXPECT_EQ(Marked(line, Mark::Filled).size(), 69U);
}

TEST_F(LineFindings, AGoalieWhoIsHisOwnBackupIsMarkedInBothSlotsOfEitherScreen)
{
    ProDay().BackupGoalie = ProDay().StartGoalie;
    FarmDay().BackupGoalie = FarmDay().StartGoalie;
    const auto expectMarks = [this](LinesScreen& screen) {
        EXPECT_EQ(Marked(screen, Mark::Twice), (std::set<std::string>{"lblStartGoaler", "lblBackupGoaler"}));
        for (BoardSlot* slot : {&StartSlot(screen), &BackupSlot(screen)})
            EXPECT_EQ(Tooltip(slot->Label).back(), "Starting Goalie and BackUp Goalie are the same");
    };
    expectMarks(Line());
    Click(Line().cmdExit);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Lines for Day #1 are Incomplete!"}));
    expectMarks(FarmLine());
}

TEST_F(LineFindings, LinesOneAndTwoAreMarkedWhereTheyMayNotShare)
{
    const auto id = static_cast<int>(ProDay().NormalForward(1, 2));
    ProDay().NormalDefense(2, 1) = id;
    EXPECT_THAT(Marked(Line(), Mark::Twice), IsEmpty());
    Click(Line().cmdExit);
    LeagueData.LinesOneTwoExclusive = true;
    frmLine& line = Line();
    EXPECT_EQ(Marked(line, Mark::Twice), (std::set<std::string>{"lblNormalTrioLW(1)", "lblNormalTrioD1(2)"}));
    EXPECT_EQ(Tooltip(SlotOn(line, LineField::NormalForward, 1, 2)).back(),
              Players[id].Name.Trimmed() + " is used twice in lines 1 and 2.");
}

TEST_F(LineFindings, DoublesInUnitsAndListsAreMarkedToo)
{
    Lines& day = ProDay();
    day.PPDefense(2, 2) = day.PPDefense(2, 1);
    day.PK3Defense(1, 1) = day.PK3Forward[1];
    day.PenaltyShot[5] = day.PenaltyShot[1];
    EXPECT_EQ(Marked(Line(), Mark::Twice),
              (std::set<std::string>{"lblPPDuoD1(2)", "lblPPDuoD2(2)", "lblPK3TrioC(1)", "lblPK3DuoD1(1)",
                                     "lblPenaltyShot(1)", "lblPenaltyShot(5)"}));
}

TEST_F(LineFindings, EmptySlotsAreNoDoublesToTheEye)
{
    ProDay().NormalForward(3, 1) = ProDay().NormalForward(3, 2) = 0;
    ProDay().StartGoalie = ProDay().BackupGoalie = 0;
    frmLine& line = Line();
    EXPECT_THAT(Marked(line, Mark::Twice), IsEmpty());
    EXPECT_EQ(Marked(line, Mark::Empty),
              (std::set<std::string>{"lblNormalTrioC(3)", "lblNormalTrioLW(3)", "lblStartGoaler", "lblBackupGoaler"}));
    EXPECT_THAT(Tooltip(BackupSlot(line).Label), IsEmpty());
}

TEST_F(LineFindings, SomebodyTakenOutTellsWhyInAllHisSlots)
{
    const auto id = static_cast<int>(ProDay().NormalForward(1, 1));
    Players[id].Condition = 94;
    frmLine& line = Line();
    const auto refused = Marked(line, Mark::Refused);
    ASSERT_GT(refused.size(), 1U);
    for (const BoardSlot& slot : line.TabLine->Slots)
        if (slot.Label->Shown() == Mark::Refused) {
            EXPECT_THAT(Tooltip(slot.Label), Contains(Players[id].Name.Trimmed() + " is injured or suspended."))
                << slot.Label->objectName().toStdString();
        }
}

TEST_F(LineFindings, SomebodyBeyondTheTableIsMarkedAndThoseFoundBeforeHimToo)
{
    ProDay().NormalForward(1, 2) = ProDay().NormalForward(1, 1);
    ProDay().NormalForward(2, 1) = 20000;
    OpenFrom(MainWithLeague(), "Line", "Main");
    const Box failed{16, "9 - Subscript out of range in CheckLine!"};
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in Place!"}, failed, failed));
    EXPECT_THAT(Marked(Line(), Mark::Refused), ElementsAre("lblNormalTrioC(2)"));
    EXPECT_EQ(Marked(Line(), Mark::Twice).size(), 2U);
}

TEST_F(LineFindings, ADoubleOfOneDayIsNoneOfAnother)
{
    PutGames(2);
    FillDay(ProDay(2), Pro);
    ProDay(1).NormalForward(1, 2) = ProDay(1).NormalForward(1, 1);
    frmLine& line = Line();
    ASSERT_EQ(Marked(line, Mark::Twice).size(), 2U);
    line.vscDay->setValue(2);
    EXPECT_THAT(Marked(line, Mark::Twice), IsEmpty());
    ProDay(1).NormalForward(1, 2) = ProDay(2).NormalForward(1, 2);
    line.vscDay->setValue(1);
    EXPECT_THAT(Marked(line, Mark::Twice), IsEmpty());
}

TEST_F(LineFindings, MarkingJudgesNothingAnewAndRepairsNothing)
{
    ProDay().NormalForward(1, 2) = ProDay().NormalForward(1, 1);
    frmLine& line = Line();
    const auto marked = Marked(line, Mark::Twice);
    Players[Pro.Skaters[7]].Condition = 50; // a judge would take him out
    const auto before = AllTables();
    Pick(line, Pro.Skaters[5], static_cast<int>(Players[Pro.Skaters[5]].Position));
    for (const BoardSlot& slot : line.TabLine->Slots)
        Tooltip(slot.Label);
    EXPECT_TRUE(AllTables() == before);
    EXPECT_EQ(Marked(line, Mark::Twice), marked);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LineFindings, AfterTheQuestionWhyTheReasonsAreThoseOfItsBox)
{
    ProDay().StartGoalie = 0;
    frmLine& line = Line();
    ASSERT_EQ(line.txtReasons->toPlainText(), "Starting Goaler is empty.\nSome errors will be automatically fixed.");
    ProDay().PenaltyShot[5] = ProDay().PenaltyShot[1];
    Click(line.cmdDebug);
    const std::string words = Players[ProDay().PenaltyShot[1]].Name.Trimmed() +
                              " is used twice in Extra Penalty Shot\r\nStarting Goaler is empty.\r\n"
                              "Some errors will be automatically fixed.\r\n";
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, words}));
    EXPECT_EQ(line.txtReasons->toPlainText() + "\n", QString::fromStdString(words).replace("\r\n", "\n"));
    EXPECT_EQ(Marked(line, Mark::Twice), (std::set<std::string>{"lblPenaltyShot(1)", "lblPenaltyShot(5)"}));
}

// The first judgement has taken the injured man out; nothing is left for the second one to find.
TEST_F(LineFindings, TheQuestionWhyCanFindNothingMoreAndLeavesTheVerdict)
{
    Players[FarmDay().NormalForward(1, 1)].Condition = 50;
    frmFarmLine& farm = FarmLine();
    ASSERT_NE(farm.txtReasons->toPlainText(), "");
    Click(farm.cmdDebug);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lines are perfect!"}));
    EXPECT_EQ(farm.txtReasons->toPlainText(), "");
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Incomplete");
    EXPECT_TRUE(farm.cmdDebug->isEnabled());
}

TEST_F(LineFindings, TheQuestionWhyStaysWhereItIsWhateverTheVerdict)
{
    PutGames(2);
    frmLine& line = Line();
    ASSERT_EQ(Of(line.lblComplete), "Lines are Complete");
    const QRect before = line.cmdDebug->geometry();
    line.vscDay->setValue(2);
    Settle();
    ASSERT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_EQ(line.cmdDebug->geometry(), before);
    EXPECT_GE(line.lblComplete->width(), line.lblComplete->sizeHint().width());
}

TEST_F(LineFindings, AHeadingTakesTheSlotsOfTheManBeforeOffThePanel)
{
    const auto playing = [this](LinesScreen& screen, int id) {
        Pick(screen, id, static_cast<int>(Players[id].Position));
        EXPECT_NE(Of(screen.lblPlaying), "");
        ClickOn(screen, screen.TabLine->Parts.Headings[0].Label);
        return Of(screen.lblPlaying);
    };
    EXPECT_EQ(playing(Line(), static_cast<int>(ProDay().NormalForward(1, 1))), "");
    Click(Line().cmdExit);
    EXPECT_EQ(playing(FarmLine(), static_cast<int>(FarmDay().NormalForward(1, 1))), "");
}

} // namespace
} // namespace dravik
