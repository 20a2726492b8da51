#include "Dragging.h"
#include "Hands.h"
#include "OnStage.h"
#include "rules/People.h"
#include "sample-league/ClientFileWriter.h"
#include "sample-league/SampleLeague.h"
#include "screens/lines/frmFarmLine.h"
#include "screens/lines/frmLine.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/QtPlatform.h"
#include "screens/roster/frmRoster.h"
#include "screens/RosterEntry.h"
#include "screens/team/frmTicket.h"
#include "support/ClientFileBytes.h"
#include "support/Routines.h"

#include <cstring>
#include <memory>
#include <QMenuBar>
#include <QTabBar>
#include <stdexcept>

namespace dravik {
namespace {

constexpr int OwnTeam = 3;
constexpr const char* OwnPassword = "puck";

template <class Record>
bool AreAlike(const Record& left, const Record& right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

// Evenings with the sample league, from the start of the program to its end, by mouse and keyboard alone.
class WholeEveningTest : public OnStage {
protected:
    WholeEveningTest()
    {
        MakeSampleLeague({});
        Given = std::make_unique<Team>(Teams[OwnTeam]);
        // Two dressed defensemen have been scratched since the lines were made, and the first day of the farm was lost.
        for (int index = 1; index <= PlayerTable::last && Scratched.size() < 2; ++index)
            if (const Player& player = Players[index];
                BelongsTo(player, OwnTeam) && player.Status == status::Pro && player.Position == position::Defense)
                Scratched.push_back(index);
        for (const int index : Scratched) {
            Players[index].Status = status::Scratch;
            WipePlayerFromTeamLines(OwnTeam, index);
        }
        WipesLines(OwnTeam, 1, false);
        LeagueData.FarmRosterRequired = true;
        League = Machine.InFolder("Sample.dvs");
        IsWritten = sample::WriteClientFile(League);
    }

    // Starts the program on the real desktop, spends `evening` in its event loop and leaves by the menu.
    void Spend(const std::function<void()>& evening)
    {
        ResetClientVariables();
        const QString folder = ToQString(Machine.Folder());
        QtPlatform desktop({folder + "/settings.ini", folder, folder + "/lock"});
        desktop.SetWaitMilliseconds(0);
        UseMachine(desktop);
        {
            Stage stage;
            Program = &stage;
            EXPECT_TRUE(stage.Start());
            QTimer::singleShot(0, qApp, [&] {
                try {
                    evening();
                    LeaveByTheMenu();
                } catch (const std::exception& failure) {
                    ADD_FAILURE() << failure.what();
                }
                if (stage.Find(Window::Main) != nullptr)
                    QCoreApplication::exit(1);
            });
            EXPECT_EQ(QApplication::exec(), 0);
            Settle();
            Program = nullptr;
        }
        EXPECT_TRUE(Answers.AreIdle());
        UseMachine(Machine);
    }

    // The screen of that name, which must be the one in front.
    template <class T>
    T& Front(const char* name)
    {
        Screen* screen = Program->Find(WindowNamed(name));
        if (screen == nullptr || !screen->isVisible())
            throw std::runtime_error(std::string("not in front: ") + name);
        return *static_cast<T*>(screen);
    }
    frmTeam& Office() { return Front<frmTeam>("Team"); }

    void LeaveByTheMenu()
    {
        auto& main = *static_cast<frmMain*>(Program->Find(Window::Main));
        QMenuBar* bar = main.menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(main.mnuFile->menuAction()).center());
        QTest::mouseClick(main.mnuFile, Qt::LeftButton, {}, main.mnuFile->actionGeometry(main.mnuExit).center());
    }

    // Double-clicks the team and proves the password.
    void EnterOffice()
    {
        for (EntryList* list : Front<frmMain>("Main").lstDivision)
            for (int row = 0; row < list->count(); ++row)
                if (list->item(row)->data(entry::NumberRole).toInt() == OwnTeam) {
                    const QPoint point = list->visualItemRect(list->item(row)).center();
                    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, point);
                    Answers.TypePassword(OwnPassword);
                    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, point);
                    Settle();
                    return;
                }
        ADD_FAILURE() << "The team stands in no list.";
    }

    static void ClickEntry(PickList* list, int number, Qt::KeyboardModifiers modifiers = {})
    {
        const int row = list->RowOf(number);
        ASSERT_GE(row, 0) << "no entry " << number;
        list->scrollToItem(list->item(row));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualItemRect(list->item(row)).center());
        Settle();
    }
    static int NumberOf(int skater) { return EntryNumber(skater, Players[skater].Position); }

    static void GoToDay(LinesScreen& screen, int day)
    {
        QTest::mouseClick(screen.vscDay, Qt::LeftButton, {}, screen.vscDay->CellOf(day).center());
        Settle();
        ASSERT_EQ(screen.Day(), day);
    }
    static void GoToPageOf(LinesScreen& screen, const QWidget* widget)
    {
        QTabBar* tabs = screen.TabLine->tabBar();
        for (int tab = 0; tab < tabs->count(); ++tab)
            if (screen.TabLine->widget(tab)->isAncestorOf(widget))
                QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
        Settle();
        ASSERT_TRUE(widget->isVisible());
    }

    enum class Way { TwoClicks, Drag, EnterKey };
    static void Put(LinesScreen& screen, int skater, SlotLabel* slot, Way way)
    {
        GoToPageOf(screen, slot);
        if (way == Way::Drag) {
            DragEntry(screen.lstPlayer, screen.lstPlayer->RowOf(NumberOf(skater)), slot);
            return;
        }
        ClickEntry(screen.lstPlayer, NumberOf(skater));
        if (way == Way::TwoClicks) {
            Click(slot);
        } else {
            slot->setFocus();
            Press(slot, Qt::Key_Return);
        }
    }

    // Types into a box and leaves it by the tab key.
    static void Enter(EditBox* box, const QString& text)
    {
        Click(box);
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, text);
        Press(box, Qt::Key_Tab);
    }

    void FixRoster()
    {
        Answers.Read(Name() + " Roster Error : \n"
                              "Not enough Defenseman available in Pro Team! 4 Dressed. 6 Required.\n"
                              "Not enough players available in Pro Team! 16 Dressed. 18 Required.\n"
                              "Not enough Defenseman available in Pro and Farm Team! 10 Dressed. 12 Required.\n"
                              "Some errors will be automatically fixed.\n");
        Click(Office().CmdRoster);
        auto& roster = Front<frmRoster>("Roster");
        EXPECT_EQ(roster.lblComplete->text(), "Roster Is Incomplete");
        PickList* scratches = roster.lstPlayer[status::Scratch];
        for (const int index : Scratched)
            ClickEntry(scratches, NumberOf(index), Qt::ControlModifier);
        EXPECT_EQ(scratches->ChosenCount(), 2);
        Click(roster.cmdToPro);
        EXPECT_EQ(roster.lblComplete->text(), "Roster Is Complete");
        Click(roster.cmdExit);
    }

    // Day 1 by hand, as it was; day 2 by the partial maker, day 3 anew by the maker, day 4 as a copy of day 1.
    void MakeProLines()
    {
        Click(Office().cmdLines);
        auto& lines = Front<frmLine>("Line");
        EXPECT_EQ(lines.lblComplete->text(), "Lines are Incomplete");
        int filled = 0;
        for (const LineSlot& slot : SkaterSlots) {
            const int wanted = static_cast<int>(At(Given->ProLines[1], slot));
            if (At(Teams[OwnTeam].ProLines[1], slot) != wanted)
                Put(lines, wanted, lines.TabLine->SlotAt(slot.Field, slot.Number, slot.Place).Label,
                    static_cast<Way>(filled++ % 3));
        }
        EXPECT_GE(filled, 6);
        EXPECT_EQ(lines.lblComplete->text(), "Lines are Complete");
        EXPECT_TRUE(AreAlike(Teams[OwnTeam].ProLines[1], Given->ProLines[1]));

        GoToPageOf(lines, lines.hscStats[0]);
        for (int style = 0; style <= 2; ++style)
            for (int presses = 0; presses < 5; ++presses)
                Press(lines.hscStats[style], Qt::Key_Left);
        for (const int style : {0, 2, 2, 2})
            Press(lines.hscStats[style], Qt::Key_Right);
        EXPECT_EQ(lines.lblPoint->text(), "1");
        Enter(lines.txtPullGoalerMinGoal, "4");

        GoToDay(lines, 2);
        Answers.Read("Auto Lines Partial Function has been run successfully.");
        Click(lines.cmdPartialLine);
        EXPECT_EQ(lines.lblComplete->text(), "Lines are Complete");
        GoToDay(lines, 3);
        Answers.Agree("Are you sure you want to wipe your lines?");
        Click(lines.cmdWipeLines);
        EXPECT_EQ(lines.lblComplete->text(), "Lines are Incomplete");
        Answers.Read("Auto Lines Function has been run successfully.");
        Click(lines.cmdAutoLines);
        EXPECT_EQ(lines.lblComplete->text(), "Lines are Complete");
        GoToDay(lines, 1);
        Answers.Type("What day do you have to copy your lines?", "4");
        Answers.Agree("Are you want to you want to copy the lines from day 1 to day 4?");
        Answers.Read("Lines 1 was successfully copy to Lines 4.");
        Click(lines.cmdCopy);
        Click(lines.cmdExit);
    }

    // The farm's day 1 by the maker, and one more penalty shot by hand.
    void MakeFarmLines()
    {
        Click(Office().cmdFarmLines);
        auto& lines = Front<frmFarmLine>("FarmLine");
        EXPECT_EQ(lines.lblComplete->text(), "Lines are Incomplete");
        Answers.Read("Auto Lines Function has been run successfully.");
        Click(lines.cmdAutoLines);
        EXPECT_EQ(lines.lblComplete->text(), "Lines are Complete");
        FarmShooter = static_cast<int>(Teams[OwnTeam].Farm.FarmLines[1].NormalDefense(3, 1));
        Put(lines, FarmShooter, lines.TabLine->SlotAt(LineField::PenaltyShot, 5).Label, Way::Drag);
        EXPECT_EQ(Teams[OwnTeam].Farm.FarmLines[1].PenaltyShot[5], FarmShooter);
        EXPECT_EQ(lines.lblComplete->text(), "Lines are Complete");
        Click(lines.cmdExit);
    }

    void SetPrices()
    {
        Click(Office().cmdTicketArena);
        auto& tickets = Front<frmTicket>("Ticket");
        Enter(tickets.txtTicket[2], "77");
        Click(tickets.cmdExit);
    }

    void SaveLines()
    {
        LinesPath = LinesFilePath(OwnTeam);
        ASSERT_TRUE(Office().cmdSaveToFile->isEnabled());
        Answers.TypePassword(OwnPassword);
        Answers.Read("Lines file for " + Name() + " successfully save at\n" + ToQString(LinesPath));
        Click(Office().cmdSaveToFile);
    }
    void LoadLines()
    {
        Answers.Choose(ToQString(LinesPath).toStdString());
        Answers.Read("Lines file for " + Name() + " successfully load from\n" + ToQString(LinesPath));
        Click(Office().cmdLoadFile);
    }
    static QString Name() { return ToQString(Teams[OwnTeam].Name.Trimmed()); }

    std::unique_ptr<Team> Given; // the team as it was when it was whole
    std::vector<int> Scratched;
    std::string League;
    bool IsWritten = false;
    std::string LinesPath;
    int FarmShooter = 0;
    Stage* Program = nullptr;
    Hands Answers;
};

TEST_F(WholeEveningTest, WhatIsDecidedInOneEveningIsFoundAgainInTheNext)
{
    ASSERT_TRUE(IsWritten);
    ASSERT_EQ(Scratched.size(), 2U);
    const ByteVector client = ReadWhole(League);
    auto saved = std::make_unique<Team>();
    Spend([&] {
        Answers.Choose(League);
        Click(Front<frmMain>("Main").findChild<QPushButton*>("cmdOpen"));
        EnterOffice();
        EXPECT_FALSE(Office().cmdSaveToFile->isEnabled());
        FixRoster();
        MakeProLines();
        MakeFarmLines();
        SetPrices();
        SaveLines();
        *saved = Teams[OwnTeam];
        Click(Office().cmdExit);
    });
    ASSERT_FALSE(HasFailure());
    EXPECT_TRUE(ReadWhole(League) == client) << "nothing is ever written back";

    Spend([&] {
        EnterOffice(); // the league of last time is open
        ASSERT_EQ(Players[Scratched[0]].Status, status::Scratch);
        EXPECT_FALSE(Office().cmdSaveToFile->isEnabled());
        LoadLines();
        EXPECT_TRUE(Office().cmdSaveToFile->isEnabled());
        EXPECT_TRUE(AreAlike(Teams[OwnTeam].ProLines, saved->ProLines));
        EXPECT_TRUE(AreAlike(Teams[OwnTeam].Farm.FarmLines, saved->Farm.FarmLines));

        Click(Office().CmdRoster);
        auto& roster = Front<frmRoster>("Roster");
        for (const int index : Scratched)
            EXPECT_GE(roster.lstPlayer[status::Pro]->RowOf(NumberOf(index)), 0);
        EXPECT_EQ(roster.lblComplete->text(), "Roster Is Complete");
        Click(roster.cmdExit);

        Click(Office().cmdLines);
        auto& lines = Front<frmLine>("Line");
        for (const int day : {1, 2, 3, 4}) {
            GoToDay(lines, day);
            EXPECT_EQ(lines.lblComplete->text(), "Lines are Complete");
            for (const BoardSlot& slot : lines.TabLine->Slots)
                OnPerson(OpenLeague, slot.Whom(slot.In(saved->ProLines[day])),
                         [&](const auto& person) { EXPECT_EQ(slot.Label->text(), ToQString(person.Name.Trimmed())); });
        }
        GoToDay(lines, 1);
        GoToPageOf(lines, lines.hscStats[0]);
        EXPECT_EQ(lines.lblStatsPoint[0]->text(), "1");
        EXPECT_EQ(lines.lblStatsPoint[1]->text(), "0");
        EXPECT_EQ(lines.lblStatsPoint[2]->text(), "3");
        EXPECT_EQ(lines.txtPullGoalerMinGoal->text(), "4");
        Click(lines.cmdExit);

        Click(Office().cmdFarmLines);
        auto& farm = Front<frmFarmLine>("FarmLine");
        EXPECT_EQ(farm.lblComplete->text(), "Lines are Complete");
        EXPECT_EQ(farm.TabLine->SlotAt(LineField::PenaltyShot, 5).Label->text(),
                  ToQString(Players[FarmShooter].Name.Trimmed()));
        Click(farm.cmdExit);

        Click(Office().cmdTicketArena);
        auto& tickets = Front<frmTicket>("Ticket");
        EXPECT_EQ(tickets.txtTicket[2]->text(), "77");
        Click(tickets.cmdExit);
        Click(Office().cmdExit);
    });
    EXPECT_TRUE(ReadWhole(League) == client) << "nothing is ever written back";
}

} // namespace
} // namespace dravik
