#include "AnswerDialog.h"
#include "OnEveryScreen.h"
#include "OnHistory.h"
#include "screens/lines/LineSheet.h"
#include "screens/lines/LinesScreen.h"
#include "screens/lines/SlotPicker.h"
#include "screens/Looks.h"
#include "screens/main/frmCompare.h"
#include "screens/main/GuideWindow.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/panels/LookWindow.h"
#include "screens/Pins.h"
#include "screens/platform/Palettes.h"
#include "screens/platform/QtPlatform.h"
#include "screens/squad/frmSquad.h"
#include "session/OpenChanges.h"
#include "support/ClientFileBytes.h"
#include "support/LeagueImage.h"
#include "WidgetRecording.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <QMessageBox>
#include <QTextBrowser>

// Every window on the sample league against what it was when it was recorded: where everything stands, what it says and paints. What
// is meant to be something else is recorded anew with the variable DRAVIK_RECORD_WINDOWS, which names the folder to write to;
// there, too, is what each digest is of, to be compared with that of an earlier program.
namespace dravik {
namespace {

class WindowRecordingTest : public OnEveryScreen {
protected:
    WindowRecordingTest() : flashed(QApplication::cursorFlashTime())
    {
        QApplication::setCursorFlashTime(0); // a caret that stands
        UseLightLook();
        Teams[OwnTeam].Password = "";
    }
    ~WindowRecordingTest() override
    {
        LetGoOfPinned();
        UseLightLook();
        QApplication::setCursorFlashTime(flashed);
    }

    // Takes a window in its state, in light and dark.
    void Take(QWidget& window, const std::string& name, const std::string& state)
    {
        Settle();
        WidgetRecording& recording = recordings[name];
        recording.Mask(Machine.Folder());
        recording.Take(window, state);
        UseDarkLook();
        Settle();
        recording.TakeInOne(window, state + ", dark");
        UseLightLook();
        Settle();
    }
    void CompareAll()
    {
        for (const auto& [name, recording] : recordings)
            Compare(name, recording);
    }

    Screen& Opened(const char* name, int team = OwnTeam)
    {
        MainWithLeague();
        CurrentTeam = team;
        CallerScreen = "Main";
        TheStage.Open(name, Main());
        Settle();
        return *TheStage.Find(name);
    }
    void TakePages(QWidget& window, const std::string& name)
    {
        Take(window, name, "first");
        if (auto* tabs = window.findChild<QTabWidget*>())
            for (int page = 1; page < tabs->count(); ++page) {
                tabs->setCurrentIndex(page);
                Take(window, name, "page " + std::to_string(page));
            }
    }

    // Takes the box that `show` brings up.
    template <class T>
    void OnDesktopBox(const std::string& state, const std::function<void()>& show)
    {
        OnDialog<T>([&](T& dialog) {
            Take(dialog, "Boxes", state);
            dialog.reject();
        });
        show();
    }

    std::map<std::string, WidgetRecording> recordings;

private:
    static void Compare(const std::string& name, const WidgetRecording& recording)
    {
        if (const char* folder = std::getenv("DRAVIK_RECORD_WINDOWS")) {
            std::ofstream file(std::string(folder) + '/' + name + ".txt");
            file << WidgetRecording::Toolkit() << '\n';
            for (const std::string& line : recording.Lines())
                file << line << '\n';
            std::ofstream(std::string(folder) + '/' + name + ".whole") << recording.Whole().toStdString();
        }
        std::ifstream recorded(DRAVIK_RECORDINGS "/" + name + ".txt");
        ASSERT_TRUE(recorded) << "there is no recording of " << name;
        std::string line;
        std::getline(recorded, line);
        if (line != WidgetRecording::Toolkit())
            GTEST_SKIP() << "recorded with another toolkit or font: " << line;
        std::vector<std::string> expected;
        while (std::getline(recorded, line))
            expected.push_back(line);
        const std::vector<std::string>& now = recording.Lines();
        constexpr int most = 10;
        int different = 0;
        for (std::size_t place = 0; place < std::max(expected.size(), now.size()) && different < most; ++place) {
            const std::string was = place < expected.size() ? expected[place] : "";
            const std::string is = place < now.size() ? now[place] : "";
            EXPECT_EQ(was, is) << name << ", line " << place + 2;
            different += was == is ? 0 : 1;
        }
    }

    const int flashed;
};

TEST_F(WindowRecordingTest, Screens)
{
    EachScreen(
        [this](Screen& screen, const std::string& state) { Take(screen, state.substr(0, state.find(',')), state); });
    CompareAll();
}

// Every screen at the size at which it comes up by itself.
TEST_F(WindowRecordingTest, ScreensAsTheyOpen)
{
    for (const char* name : {"Main", "Team", "Roster", "Line", "FarmLine", "FreeAgent", "Draft", "About", "EditPlayer",
                             "Coach", "Prospect"}) {
        Screen& screen = std::string_view(name) == "Main" ? MainWithLeague() : Opened(name);
        recordings["Opened"].TakeInOne(screen, name);
        if (std::string_view(name) != "Main") {
            screen.close();
            Settle();
        }
    }
    CompareAll();
}

// Teams whose rosters or lines are not whole: what is wrong is marked and told.
TEST_F(WindowRecordingTest, TeamsWithHoles)
{
    for (const TeamHole& hole : SampleHoles)
        for (const char* name : {"Roster", "Line"}) {
            Teams[hole.Team].Password = "";
            Screen& screen = Opened(name, hole.Team);
            static_cast<void>(Machine.TakeBoxes());
            recordings[std::string(name) + "Hole"].TakeInOne(screen, "team " + std::to_string(hole.Team));
            screen.close();
            Settle();
        }
    CompareAll();
}

TEST_F(WindowRecordingTest, Squad)
{
    MainWithLeague();
    TheStage.ShowSquad(Main());
    frmSquad& squad = *TheStage.Squad();
    Take(squad, "Squad", "first");
    auto* tables = squad.findChild<QTabBar*>("tabKind");
    ASSERT_NE(tables, nullptr);
    for (int kind = 1; kind < tables->count(); ++kind) {
        tables->setCurrentIndex(kind);
        Take(squad, "Squad", "kind " + std::to_string(kind));
    }
    tables->setCurrentIndex(0);
    for (int person = 1; person <= 3; ++person)
        TogglePin({false, person});
    Take(squad, "Squad", "three pinned");
    CompareAll();
}

TEST_F(WindowRecordingTest, CalendarAndGraphs)
{
    for (const auto& [look, name] : {std::pair(Look::Calendar, "Calendar"), std::pair(Look::Graphs, "Graphs")}) {
        MainWithLeague();
        CurrentTeam = OwnTeam;
        OpenLook(look, TheStage, Main(), {});
        auto* window = Main().findChild<LookWindow*>();
        ASSERT_NE(window, nullptr);
        TakePages(*window, name);
        window->close();
        delete window;
    }
    CompareAll();
}

TEST_F(WindowRecordingTest, BesideTheLines)
{
    Screen& lines = Opened("Line");
    PressScreenKey(lines, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    auto* units = lines.findChild<LookWindow*>();
    ASSERT_NE(units, nullptr);
    Take(*units, "Units", "two lines");
    units->close();
    Settle();
    PressScreenKey(lines, Qt::Key_B);
    LineSheet* sheet = dynamic_cast<LinesScreen&>(lines).Sheet;
    ASSERT_NE(sheet, nullptr);
    Take(*sheet, "Sheet", "first");
    sheet->close();
    Settle();
    dynamic_cast<LinesScreen&>(lines).TabLine->Slots[0].Label->setFocus();
    PressScreenKey(lines, Qt::Key_F2, Qt::NoModifier);
    Take(lines, "Picker", "at a slot");
    CompareAll();
}

TEST_F(WindowRecordingTest, KeysAndCards)
{
    for (const char* name : {"Main", "Team", "Roster", "Line", "FreeAgent", "Draft", "EditPlayer"}) {
        Screen& screen = std::string_view(name) == "Main" ? MainWithLeague() : Opened(name);
        PressScreenKey(screen, Qt::Key_F1, Qt::NoModifier);
        auto* keys = screen.findChild<QWidget*>("KeySheet");
        ASSERT_NE(keys, nullptr) << name;
        Take(*keys, "Keys", name);
        keys->close();
        Settle();
        if (std::string_view(name) != "Main") {
            screen.close();
            Settle();
        }
    }
    CompareAll();
}

// Somebody pinned: what is held against him on panels and cards.
TEST_F(WindowRecordingTest, Pinned)
{
    TogglePin({false, 1});
    TogglePin({true, 1});
    for (const char* name : {"Roster", "Line", "FreeAgent", "Draft", "EditPlayer"}) {
        Screen& screen = Opened(name);
        for (EntryList* list : screen.findChildren<EntryList*>())
            if (list->isVisible() && list->isEnabled() && list->count() > 1) {
                list->setFocus();
                Press(list, Qt::Key_Down);
                Press(list, Qt::Key_I, Qt::ControlModifier);
                break;
            }
        Take(screen, "Pinned", name);
        screen.close();
        Settle();
    }
    CompareAll();
}

TEST_F(WindowRecordingTest, WhatIf)
{
    auto& offers = dynamic_cast<frmFreeAgentClient&>(Opened("FreeAgent"));
    offers.cmdWhatIf->click();
    Settle();
    auto* window = offers.findChild<LookWindow*>();
    ASSERT_NE(window, nullptr);
    Take(*window, "WhatIf", "first");
    CompareAll();
}

TEST_F(WindowRecordingTest, Guide)
{
    MainWithLeague();
    Main().mnuGuide->trigger();
    Settle();
    TheStage.Guide()->findChild<QTextBrowser*>()->clear(); // the machine's own font of even letters stands in it
    Settle();
    recordings["Guide"].Take(*TheStage.Guide(), "first"); // another look would write its words anew
    CompareAll();
}

// What changed between two files of the league, on the main screen and on that of the comparison.
TEST_F(WindowRecordingTest, Changes)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    TempFile = Machine.InFolder("ClientTemp.dvt");
    KeepDigests(std::filesystem::path(Machine.Folder()) / "leagues");
    const auto save = [this](const char* name) {
        WriteSparse(Machine.InFolder(name), ClientSlots());
        return Machine.InFolder(name);
    };
    for (auto* person : {&Goalies[1], &Goalies[GoalieTable::last]}) {
        *person = Goalies[5];
        person->InUse = true;
        person->Condition = 100;
    }
    for (auto* person : {&Players[1], &Players[PlayerTable::last]}) {
        *person = Players[5];
        person->InUse = true;
        person->Condition = 100;
    }
    const std::string earlier = save("Earlier.dvs");
    int turn = 0;
    for (int slot = 1; slot <= PlayerTable::last; ++slot) {
        Player& person = Players[slot];
        if (!person.InUse || !TeamTable::Has(person.Team) || ++turn % 9 != 0)
            continue;
        switch (turn / 9 % 5) {
        case 0:
            person.Condition = 70;
            break;
        case 1:
            person.Condition = 100;
            break;
        case 2:
            person.Stats[skater::SC] = static_cast<int>(person.Stats[skater::SC]) - 3;
            break;
        case 3:
            person.Stats[skater::SC] = static_cast<int>(person.Stats[skater::SC]) + 3;
            break;
        default:
            person.Team = person.Team % 30 + 1;
        }
    }
    for (int slot = 1; slot <= 60; slot += 7)
        if (Goalies[slot].InUse)
            Goalies[slot].Condition = 60;
    Teams[OwnTeam].Cash = 1000;
    LeagueData.FileDate = LeagueData.FileDate + 2;
    const std::string later = save("Later.dvs");
    for (const std::string& path : {earlier, later}) {
        Machine.Choose(path);
        Main().mnuOpen->trigger();
        Settle();
    }
    static_cast<void>(Machine.TakeBoxes());
    Take(Main(), "Changes", "main");
    Machine.Choose(earlier);
    Main().findChild<QAction*>("mnuCompare")->trigger();
    Settle();
    auto* compare = TheStage.Find(Window::Compare);
    ASSERT_NE(compare, nullptr);
    Take(*compare, "Compare", "first");
    compare->close();
    Settle();
    KeepDigests({});
    CompareAll();
}

TEST_F(WindowRecordingTest, Boxes)
{
    QtPlatform desktop({QString::fromStdString(Machine.InFolder("settings.ini")),
                        QString::fromStdString(Machine.Folder()), QString::fromStdString(Machine.InFolder("lock"))});
    for (const int kind : {box::Critical, box::Warning, box::Information, box::YesNo, box::YesNoCancel})
        OnDesktopBox<QMessageBox>("kind " + std::to_string(kind),
                                  [&] { desktop.MessageBox("What is to be told.", kind, "Title"); });
    OnDesktopBox<QDialog>("input", [&] { desktop.InputBox("What is asked?", "Title", "Answer"); });
    CompareAll();
}

// A main screen on which no league is open yet.
TEST_F(WindowRecordingTest, BeforeALeague)
{
    Take(Main(), "Empty", "first");
    CompareAll();
}

} // namespace
} // namespace dravik
