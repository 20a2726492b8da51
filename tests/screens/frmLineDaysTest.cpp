#include "desk/LinesOfAllDays.h"
#include "OnHistory.h"
#include "OnLineScreen.h"
#include "PaintedContrast.h"
#include "rules/LineJudge.h"
#include "screens/panels/VerdictSigns.h"

#include <cstring>
#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// All ten days at once: the signs on the strip, the bars below it, and the command that mends them.
class LineDays : public OnLineScreen {
protected:
    LineDays()
    {
        PutGames(10);
        PutGames(10, true);
        LeagueData.FarmRosterRequired = true;
        for (int day = 2; day <= LineDays::Days; ++day) {
            ProDay(day) = ProDay();
            FarmDay(day) = FarmDay();
        }
    }

    static constexpr int Days = DayStrip::Days;

    // The number of findings that a day's sign tells; 0 for a tick, -1 for the sign of a broken judgement, -2 without a sign.
    static int Told(const LinesScreen& screen, int day)
    {
        const DaySign sign = screen.vscDay->Signs().value(day - 1);
        switch (sign.Shows) {
        case DaySign::Kind::Good:
            return 0;
        case DaySign::Kind::Findings:
            return sign.Count;
        case DaySign::Kind::Unjudged:
            return -1;
        case DaySign::Kind::None:
            break;
        }
        return -2;
    }
    static std::vector<int> AllTold(const LinesScreen& screen)
    {
        std::vector<int> told;
        for (int day = 1; day <= Days; ++day)
            told.push_back(Told(screen, day));
        return told;
    }

    // What the tooltip says at a point of a widget.
    static std::string TipAt(QWidget& widget, const QPoint& point)
    {
        QHelpEvent help(QEvent::ToolTip, point, widget.mapToGlobal(point));
        QApplication::sendEvent(&widget, &help);
        return Plain(QToolTip::text());
    }
};

TEST_F(LineDays, EachDayHasTheSignOfItsVerdictOnBothScreens)
{
    ProDay(3).NormalForward(2, 1) = 0;
    ProDay(3).ExtraForward[5] = 0;
    ProDay(8).BackupGoalie = ProDay(8).StartGoalie;
    FarmDay(10).BackupGoalie = FarmDay(10).StartGoalie;
    EXPECT_THAT(AllTold(Line()), ElementsAre(0, 0, 2, 0, 0, 0, 0, 1, 0, 0));
    Click(Line().cmdExit);
    EXPECT_THAT(AllTold(FarmLine()), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0, 1));
}

TEST_F(LineDays, OpeningOnTenMessyDaysChangesTheShownDayAlone)
{
    for (int day = 1; day <= Days; ++day) {
        ProDay(day).NormalForward(2, 1) = 149;                            // nobody
        ProDay(day).BackupGoalie = 7 + 0 * day;                           // a goalie of nobody
        FarmDay(day).NormalDefense(1, 1) = ProDay(1).NormalDefense(1, 1); // plays for the pro team
    }
    const auto before = Copy(OpenLeague);
    // What the judge does whom the screen asks for its first day.
    MuteVoice mute;
    bool modified = false;
    const Work work{*before, mute, Machine, modified};
    CheckLine(work, 5, false, 1, false);
    CheckLine(work, 5, false, 1, false);
    Line();
    EXPECT_EQ(std::memcmp(&before->Teams, &OpenLeague.Teams, sizeof before->Teams), 0);
    for (int day = 2; day <= Days; ++day)
        EXPECT_GT(Told(Line(), day), 0) << day;
}

TEST_F(LineDays, TheShownDayTellsWhatItsJudgeFoundThoughHeMendedIt)
{
    const int hurt = static_cast<int>(ProDay().NormalForward(1, 1));
    Players[hurt].Condition = 50;
    frmLine& line = Line();
    const LineVerdict again = [this] {
        const auto copy = Copy(OpenLeague);
        MuteVoice mute;
        bool modified = false;
        return JudgeDay({*copy, mute, Machine, modified}, 5, Side::Pro, 1, false);
    }();
    EXPECT_EQ(Told(line, 1), line.txtReasons->toPlainText().count("\n")); // a line each, and one that closes them
    EXPECT_EQ(Told(line, 2), static_cast<int>(again.Findings.size()));
}

// The second judgement finds the slots empty that the first one emptied.
TEST_F(LineDays, JudgedAgainInABoxTheShownDayTellsWhatWasFoundThen)
{
    Players[ProDay().NormalForward(1, 1)].Condition = 50;
    frmLine& line = Line();
    const QString first = line.vscDay->Signs()[0].Words;
    Click(line.cmdDebug);
    const QString again = line.vscDay->Signs()[0].Words;
    EXPECT_NE(again, first);
    EXPECT_TRUE(line.txtReasons->toPlainText().startsWith(again + '\n'));
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
}

TEST_F(LineDays, ADayThatCannotBeJudgedHasTheWarningSign)
{
    ProDay(4).NormalForward(1, 1) = -7;
    EXPECT_EQ(Told(Line(), 4), -1);
    EXPECT_EQ(Line().vscDay->WordsOfDay(4, true).toStdString(), "Day 4, at T6: cannot be judged");
    EXPECT_EQ(Told(Line(), 5), 0);
}

TEST_F(LineDays, EveryCommandRefreshesTheSigns)
{
    ProDay(2).NormalForward(2, 1) = 0;
    frmLine& line = Line();
    EXPECT_THAT(AllTold(line), ElementsAre(0, 1, 0, 0, 0, 0, 0, 0, 0, 0));
    QTest::mouseClick(line.vscDay, Qt::LeftButton, {}, line.vscDay->CellOf(2).center());
    Settle();
    Machine.Answer(button::Yes);
    Click(line.cmdCopyAll);
    EXPECT_THAT(AllTold(line), ElementsAre(1, 1, 1, 1, 1, 1, 1, 1, 1, 1));
    Click(line.cmdPartialLine);
    EXPECT_THAT(AllTold(line), ElementsAre(1, 0, 1, 1, 1, 1, 1, 1, 1, 1));
    Machine.Type("7");
    Machine.Answer(button::Yes);
    Click(line.cmdCopy);
    EXPECT_THAT(AllTold(line), ElementsAre(1, 0, 1, 1, 1, 1, 0, 1, 1, 1));
    Undo(line);
    EXPECT_THAT(AllTold(line), ElementsAre(1, 0, 1, 1, 1, 1, 1, 1, 1, 1));
    Machine.Answer(button::Yes);
    Click(line.cmdWipeLines);
    EXPECT_GT(Told(line, 2), 60);
    Pick(line, static_cast<int>(ProDay(1).NormalForward(1, 1)), position::Center);
    const int before = Told(line, 2);
    ClickOn(line, SlotOn(line, LineField::NormalForward, 1, 1));
    EXPECT_LT(Told(line, 2), before);
    Machine.ForgetBoxes("the commands of the lines tell what they did, as their own tests show");
}

TEST_F(LineDays, TheStripTellsTheJudgesWordsInATooltipAndToAReader)
{
    ProDay(3).NormalForward(2, 1) = 0;
    ProDay(3).ExtraForward[5] = 0;
    frmLine& line = Line();
    const LineVerdict verdict = LookAtAllDays(OpenLeague, Machine, 5, Side::Pro, *MakeTables())[2];
    ASSERT_EQ(verdict.Findings.size(), 2U);
    EXPECT_EQ(TipAt(*line.vscDay, line.vscDay->CellOf(3).center()),
              "Day 3, vs T6: 2 findings\n" + WordsOf(OpenLeague, verdict, verdict.Findings[0]) + '\n' +
                  WordsOf(OpenLeague, verdict, verdict.Findings[1]));
    EXPECT_EQ(TipAt(*line.vscDay, line.vscDay->CellOf(4).center()), "Day 4, at T6: complete");
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(line.vscDay);
    EXPECT_EQ(reader->text(QAccessible::Description).toStdString(),
              "Day 1, vs T6: complete; Day 2, at T6: complete; Day 3, vs T6: 2 findings " +
                  WordsOf(OpenLeague, verdict, verdict.Findings[0]) + ' ' +
                  WordsOf(OpenLeague, verdict, verdict.Findings[1]) +
                  "; Day 4, at T6: complete; "
                  "Day 5, vs T6: complete; Day 6, at T6: complete; Day 7, vs T6: complete; Day 8, at T6: complete; "
                  "Day 9, vs T6: complete; Day 10, at T6: complete");
    EXPECT_EQ(reader->text(QAccessible::Name).toStdString(), "Day 1, vs T6, Lines are Complete");
}

TEST_F(LineDays, OneFindingIsNamedAsOne)
{
    ProDay(6).NormalForward(2, 1) = 0;
    EXPECT_EQ(Line().vscDay->WordsOfDay(6, false).toStdString(), "Day 6, at T6: 1 finding");
}

TEST_F(LineDays, OnePressMendsAllDaysAndTellsOnce)
{
    for (const int day : {2, 5, 6}) {
        ProDay(day).NormalForward(2, 1) = 0;
        FarmDay(day).BackupGoalie = 0;
    }
    const auto press = [&](LinesScreen& screen) {
        Click(screen.cmdRepairAll);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Mended: days 2, 5 and 6."}));
        EXPECT_THAT(AllTold(screen), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
        EXPECT_EQ(UndoWords(screen), "Undo: Repair All Days");
        Undo(screen);
        EXPECT_THAT(AllTold(screen), ElementsAre(0, 1, 0, 0, 1, 1, 0, 0, 0, 0));
        Redo(screen);
        EXPECT_THAT(AllTold(screen), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    };
    press(Line());
    Click(Line().cmdExit);
    press(FarmLine());
}

TEST_F(LineDays, ItLeavesWhatAPressOnEachDayLeaves)
{
    for (const int day : {1, 4, 10}) {
        ProDay(day).NormalForward(2, 1) = 149;
        ProDay(day).PPDefense(1, 2) = 0;
        ProDay(day).BackupGoalie = 0;
    }
    const auto begun = Copy(OpenLeague);
    Click(Line().cmdRepairAll);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Mended: days 1, 4 and 10."}));
    const auto once = Copy(OpenLeague);
    Click(Line().cmdExit);
    OpenLeague = *begun;
    frmLine& line = Line();
    for (int day = 1; day <= Days; ++day) {
        QTest::mouseClick(line.vscDay, Qt::LeftButton, {}, line.vscDay->CellOf(day).center());
        Settle();
        if (!line.lblComplete->IsGood())
            Click(line.cmdPartialLine);
    }
    EXPECT_EQ(std::memcmp(once.get(), &OpenLeague, sizeof OpenLeague), 0);
    EXPECT_THAT(AllTold(line), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    Machine.ForgetBoxes("each press tells that it was run, as the tests of the command show");
}

TEST_F(LineDays, WithoutMakersItIsClosed)
{
    LeagueData.AutoRosterDisabled = true;
    EXPECT_FALSE(Line().cmdRepairAll->isEnabled());
    Click(Line().cmdExit);
    EXPECT_FALSE(FarmLine().cmdRepairAll->isEnabled());
}

TEST_F(LineDays, TheBarsTellTheStrengthOfEachDay)
{
    ProDay(2).NormalForward(3, 1) = 0;
    frmLine& line = Line();
    ASSERT_TRUE(line.Strength->isVisible());
    ASSERT_EQ(line.Strength->Strengths().size(), Days);
    for (int day = 1; day <= Days; ++day)
        EXPECT_EQ(line.Strength->Strengths()[day - 1], StrengthOfLines(OpenLeague, ProDay(day))) << day;
    const LineStrength strength = StrengthOfLines(OpenLeague, ProDay(2));
    const auto number = [&](std::size_t at) { return strength[at] ? std::to_string(*strength[at]) : "-"; };
    EXPECT_EQ(number(2), "-");
    EXPECT_EQ(TipAt(*line.Strength, {line.vscDay->CellOf(2).center().x(), 3}),
              "Day 2: lines " + number(0) + ", " + number(1) + ", - and " + number(3) + ", pairs " + number(4) + ", " +
                  number(5) + ", " + number(6) + " and " + number(7) + ", goalie " + number(8));
    EXPECT_THAT(line.Strength->accessibleDescription().toStdString(), ::testing::HasSubstr("; Day 2: lines "));
}

TEST_F(LineDays, BarsStandUnderTheirDayEachAsHighAsItsNumber)
{
    ProDay(2).NormalForward(3, 1) = 0;
    frmLine& line = Line();
    const auto& all = line.Strength->Strengths();
    for (int day = 1; day <= Days; ++day) {
        const QRect cell = line.vscDay->CellOf(day);
        int last = cell.left();
        for (int place = 0; place < 9; ++place) {
            const QRect bar = line.Strength->BarOf(day, place);
            if (day == 2 && place == 2) {
                EXPECT_TRUE(bar.isEmpty());
                continue;
            }
            EXPECT_GT(bar.left(), last);
            EXPECT_LE(bar.right(), cell.right());
            EXPECT_EQ(bar.bottom(), line.Strength->height() - 1);
            EXPECT_GT(bar.top(), -1);
            last = bar.right();
            for (int other = 0; other < 9; ++other) {
                const auto mine = all[day - 1][static_cast<std::size_t>(place)];
                const auto others = all[0][static_cast<std::size_t>(other)];
                EXPECT_LE(mine < others ? bar.height() : 0, line.Strength->BarOf(1, other).height());
            }
        }
    }
}

TEST_F(LineDays, AHiddenOverallHidesTheBars)
{
    LeagueData.ShowOverall = false;
    EXPECT_FALSE(Line().Strength->isVisible());
    EXPECT_THAT(Line().Strength->Strengths(), IsEmpty());
}

TEST_F(LineDays, ASignStandsBesideTheNumberOfItsDay)
{
    DayStrip strip;
    strip.resize(strip.sizeHint());
    const QImage plain = strip.grab().toImage();
    strip.SetSigns({{.Shows = DaySign::Kind::Good},
                    {.Shows = DaySign::Kind::Findings, .Count = 7},
                    {},
                    {.Shows = DaySign::Kind::Unjudged}});
    const QImage signs = strip.grab().toImage();
    for (int day = 1; day <= Days; ++day) {
        const QRect cell = strip.CellOf(day);
        const QRect right(cell.center().x() + 8, cell.top(), cell.width() / 2 - 8, cell.height());
        const QRect left(cell.left(), cell.top(), cell.width() / 2 + 7, cell.height());
        EXPECT_EQ(plain.copy(left), signs.copy(left)) << day;
        EXPECT_EQ(plain.copy(right) != signs.copy(right), day == 1 || day == 2 || day == 4) << day;
    }
}

TEST_F(LineDays, ANumberOnItsDiscCanBeReadOnEveryGround)
{
    for (const QColor& ground : {QColor(Qt::white), QColor(Qt::black), QColor(0xef, 0xef, 0xef),
                                 QColor(0x30, 0x32, 0x36), QColor(0x80, 0x80, 0x80)}) {
        QImage picture(120, 40, QImage::Format_RGB32);
        picture.fill(ground);
        QPainter painter(&picture);
        PaintCount(painter, QRectF(60, 4, 32, 32), 8, QApplication::font(), ground);
        painter.end();
        const QRect inside(68, 12, 16, 16);
        const auto contrast = PaintedContrast(picture, inside);
        ASSERT_TRUE(contrast.has_value());
        EXPECT_GE(*contrast, 4.5) << ground.name().toStdString();
    }
}

TEST_F(LineDays, ManyFindingsWidenTheDiscToTheLeft)
{
    const auto width = [](int count) {
        QImage picture(120, 40, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        PaintCount(painter, QRectF(80, 4, 32, 32), count, QApplication::font(), Qt::white);
        painter.end();
        int left = 0;
        while (picture.pixelColor(left, 20) == QColor(Qt::white))
            ++left;
        EXPECT_EQ(picture.pixelColor(113, 20), QColor(Qt::white));
        return 112 - left;
    };
    EXPECT_NEAR(width(3), 32, 1);
    EXPECT_GT(width(75), 33);
    EXPECT_EQ(width(100), width(2000));
}

} // namespace
} // namespace dravik
