#include "screens/panels/KeySheet.h"
#include "Dragging.h"
#include "league/RatingNames.h"
#include "league/RatingWords.h"
#include "OnEveryScreen.h"
#include "OnHistory.h"
#include "PersonMenuOf.h"
#include "rules/PersonSigns.h"
#include "screens/lines/frmLine.h"
#include "screens/lines/SlotPicker.h"
#include "screens/main/frmMain.h"
#include "screens/panels/EntryList.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/KeyTable.h"
#include "screens/platform/Palettes.h"
#include "screens/roster/frmRoster.h"
#include "session/PinnedPeople.h"

#include <QAction>
#include <QMenu>
#include <QShortcut>
#include <set>

namespace dravik {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class KeySheetTest : public OnEveryScreen {
protected:
    using Texts = std::set<std::string>;

    // The keys that the table tells of a screen.
    static Texts Told(const Screen& screen)
    {
        Texts keys;
        for (const KeyRow& row : KeyTable())
            if (row.Scope == KeyScope::Screen && IsOn(row, screen.objectName()))
                for (const QString& key : KeysOf(row).split(" / ", Qt::SkipEmptyParts))
                    keys.insert(QKeySequence(key).toString().toStdString());
        return keys;
    }
    // Those that the screen knows.
    static Texts Known(const Screen& screen)
    {
        Texts keys;
        for (const auto* shortcut : screen.findChildren<QShortcut*>())
            if (qobject_cast<QWidget*>(shortcut->parent())->window() == &screen)
                keys.insert(shortcut->key().toString().toStdString());
        for (const auto* action : screen.findChildren<QAction*>())
            for (const QKeySequence& key : action->shortcuts())
                keys.insert(key.toString().toStdString());
        return keys;
    }
    static KeySheet* SheetOf(const Screen& screen) { return screen.findChild<KeySheet*>("KeySheet"); }
    static std::string SheetText(Screen& screen)
    {
        PressScreenKey(screen, Qt::Key_F1, {});
        KeySheet* sheet = SheetOf(screen);
        const std::string text = sheet->txtSheet->toPlainText().toStdString();
        sheet->close();
        return text;
    }
};

TEST_F(KeySheetTest, EveryKeyOfEveryScreenIsToldAndNoOtherIs)
{
    int screens = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        EXPECT_EQ(Told(screen), Known(screen)) << name;
        ++screens;
    });
    EXPECT_GE(screens, 10);
}

TEST_F(KeySheetTest, F1ShowsTheSheetOfEachScreenAndEscOrF1ClosesIt)
{
    std::set<std::string> seen;
    EachScreen([&](Screen& screen, const std::string& name) {
        if (name.find(',') != std::string::npos) // as it opens
            return;
        seen.insert(name);
        PressScreenKey(screen, Qt::Key_F1, {});
        KeySheet* sheet = SheetOf(screen);
        ASSERT_NE(sheet, nullptr) << name;
        EXPECT_TRUE(sheet->isVisible()) << name;
        const std::string text = sheet->txtSheet->toPlainText().toStdString();
        for (const KeyRow& row : KeyTable()) {
            const std::string keys = KeysOf(row).toStdString();
            const std::string words = keys.substr(0, keys.find(" / "));
            if (keys.empty())
                continue;
            if (IsOn(row, screen.objectName())) {
                EXPECT_THAT(text, HasSubstr(row.Does)) << name;
                EXPECT_THAT(text, HasSubstr(words)) << name;
            } else if (std::string(row.Does) != "Exit") {
                EXPECT_THAT(text, Not(HasSubstr("\n" + std::string(row.Does) + "\n"))) << name;
            }
        }
        QTest::keyClick(sheet, Qt::Key_Escape);
        EXPECT_FALSE(sheet->isVisible()) << name;
        PressScreenKey(screen, Qt::Key_F1, {});
        EXPECT_TRUE(sheet->isVisible()) << name;
        sheet->activateWindow();
        QTest::keyClick(sheet, Qt::Key_F1);
        EXPECT_FALSE(sheet->isVisible()) << name;
    });
    EXPECT_EQ(seen.size(), 10U);
}

TEST_F(KeySheetTest, TheSheetGoesWithItsScreen)
{
    MainWithLeague();
    PressScreenKey(Main(), Qt::Key_F1, {});
    KeySheet* sheet = SheetOf(Main());
    ASSERT_TRUE(sheet->isVisible());
    CurrentTeam = OwnTeam;
    TheStage.Open("Team", Main());
    Settle();
    EXPECT_FALSE(sheet->isVisible());
}

TEST_F(KeySheetTest, RatingsAreThoseThatTheLeagueShows)
{
    LeagueData.ShowAllRatings = true;
    const std::string all = SheetText(MainWithLeague());
    for (int number = 1; number <= 16; ++number)
        EXPECT_THAT(all,
                    HasSubstr(std::string(SkaterStatName[number]) + "\n  \n" + std::string(SkaterStatWords[number])));
    for (int number = 1; number <= 14; ++number)
        EXPECT_THAT(all,
                    HasSubstr(std::string(GoalieStatName[number]) + "\n  \n" + std::string(GoalieStatWords[number])));
    EXPECT_THAT(all, HasSubstr("Checking"));
    LeagueData.ShowAllRatings = false;
    LeagueData.ShowOverall = false;
    const std::string groups = SheetText(Main());
    EXPECT_THAT(groups, Not(HasSubstr("Checking")));
    EXPECT_THAT(groups, HasSubstr("Intensity"));
    EXPECT_THAT(groups, Not(HasSubstr("Overall")));
}

TEST_F(KeySheetTest, TheSignsOfAScreenAreDrawnWithTheirMeaning)
{
    EachScreen([&](Screen& screen, const std::string& name) {
        if (name.find(',') != std::string::npos)
            return;
        screen.activateWindow();
        Settle();
        const std::string text = SheetText(screen);
        const bool isLines = name == "Line" || name == "FarmLine";
        const bool isOwn = isLines || name == "Roster";
        const bool hasAny = isOwn || name == "FreeAgent" || name == "Draft";
        int drawn = 0;
        for (const SignRow& row : SignTable) {
            const bool isHere = row.Kind == Sign::NoContract      ? isOwn
                                : row.Place == SignPlace::Anybody ? hasAny
                                : row.Place == SignPlace::Own     ? isOwn
                                                                  : isLines;
            EXPECT_EQ(text.find("\n" + std::string(row.Meaning) + "\n") != std::string::npos, isHere)
                << name << row.Meaning;
            drawn += isHere ? 1 : 0;
        }
        drawn += isLines ? 3 : 0;
        QTextDocument& sheet = *SheetOf(screen)->txtSheet->document();
        for (int number = 1; number <= drawn; ++number) {
            const auto picture =
                sheet.resource(QTextDocument::ImageResource, QUrl(QString("sign:%1").arg(number))).value<QImage>();
            QImage empty(picture.size(), picture.format());
            empty.fill(Qt::transparent);
            EXPECT_FALSE(picture.isNull()) << name << number;
            empty.setDevicePixelRatio(picture.devicePixelRatio());
            EXPECT_NE(picture, empty) << name << number;
        }
        EXPECT_EQ(text.find("\nSigns\n") != std::string::npos, hasAny) << name;
    });
}

// Somebody with everything that a sign tells of stands in every list.
TEST_F(KeySheetTest, NoSignIsExplainedThatNoEntryOfTheScreenCanShow)
{
    const auto putAll = [](auto& people) {
        for (auto& person : people) {
            person.Condition = 50;
            person.Suspension = 2;
            person.Contract = 0;
            person.Rookie = true;
        }
    };
    int compared = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        if (name != "FreeAgent" && name != "Draft")
            return;
        putAll(Players);
        putAll(Goalies);
        for (const EntryList* list : screen.findChildren<EntryList*>())
            for (int row = 0; row < list->count(); ++row) // of prospects none is pinned
                if (const PersonId who = PersonOf(*NumberOf(list->item(row)));
                    OpenPins().Has(OpenLeague, who) || OpenPins().Toggle(OpenLeague, who))
                    break;
        PersonSigns shown;
        for (const EntryList* list : screen.findChildren<EntryList*>())
            if (const EntrySigns* signs = EntrySigns::On(list))
                for (int row = 0; row < list->count(); ++row)
                    signs->Of(*NumberOf(list->item(row))).Each([&](const PersonSign& sign) { shown.Add(sign.Kind); });
        ASSERT_TRUE(shown.Has(Sign::Injured) && shown.Has(Sign::Suspended) && shown.Has(Sign::Rookie)) << name;
        shown.Add(Sign::OnWaivers); // nobody is suspended and on waivers
        const std::string text = SheetText(screen);
        for (const SignRow& row : SignTable)
            EXPECT_EQ(text.find("\n" + std::string(row.Meaning) + "\n") != std::string::npos, shown.Has(row.Kind))
                << name << row.Meaning;
        ++compared;
    });
    EXPECT_EQ(compared, 2);
}

TEST_F(KeySheetTest, AnOpenSheetFollowsAChangeOfTheColours)
{
    MainWithLeague();
    CurrentTeam = OwnTeam;
    CallerScreen = "Main";
    TheStage.Open("Roster", Main());
    Settle();
    Machine.ForgetBoxes("what opening finds in the sample league is not asked here");
    Screen& roster = *TheStage.Find("Roster");
    const QPalette usual = QApplication::palette();
    UseLightLook();
    PressScreenKey(roster, Qt::Key_F1, {});
    QTextDocument& sheet = *SheetOf(roster)->txtSheet->document();
    const auto picture = [&sheet] {
        return sheet.resource(QTextDocument::ImageResource, QUrl("sign:5")).value<QImage>();
    };
    const QImage light = picture();
    UseDarkLook();
    Settle();
    EXPECT_NE(picture(), light);
    UseLightLook();
    Settle();
    EXPECT_EQ(picture(), light);
    QApplication::setPalette(usual);
}

// A key of one control is told with a check here that it does what is told.
TEST_F(KeySheetTest, EveryKeyOfAControlDoesWhatIsTold)
{
    MainWithLeague();
    CurrentTeam = OwnTeam;
    CallerScreen = "Main";
    TheStage.Open("Line", Main());
    Settle();
    Machine.ForgetBoxes("what opening finds in the sample league is not asked here");
    auto& line = *static_cast<frmLine*>(TheStage.Find("Line"));
    const auto key = [&](QWidget* where, Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
        where->setFocus();
        QTest::keyClick(where, pressed, modifiers);
        Settle();
    };
    SlotLabel* slot = line.TabLine->SlotAt(LineField::NormalForward, 1, 1).Label;
    SlotLabel* wing = line.TabLine->SlotAt(LineField::NormalForward, 1, 3).Label;
    auto* picker = line.findChild<SlotPicker*>("Picker");
    using Check = std::function<bool()>;
    std::map<std::string, Check> checks = {
        {"a list: Up / Down / Home / End",
         [&] {
             key(line.lstPlayer, Qt::Key_End);
             const int last = line.lstPlayer->currentRow();
             key(line.lstPlayer, Qt::Key_Up);
             const int above = line.lstPlayer->currentRow();
             key(line.lstPlayer, Qt::Key_Home);
             key(line.lstPlayer, Qt::Key_Down);
             return last == line.lstPlayer->count() - 1 && above == last - 1 && line.lstPlayer->currentRow() == 1 &&
                    line.lstPlayer->Chosen() != nullptr;
         }},
        {"a list: letters",
         [&] {
             const QString wanted = line.lstPlayer->item(6)->text();
             key(line.lstPlayer, Qt::Key_Home);
             QTest::keyClicks(line.lstPlayer, wanted.section(' ', -1).left(5));
             Settle();
             return line.lstPlayer->currentItem()->text().contains(wanted.section(' ', -1).left(5));
         }},
        {"a list: Menu / right press",
         [&] {
             line.lstPlayer->setCurrentRow(1);
             bool all = true;
             for (const bool isByKey : {true, false}) {
                 QMenu* menu = isByKey ? MenuByKey(*line.lstPlayer) : MenuByMouse(*line.lstPlayer, 2);
                 all = all && menu != nullptr && menu->isVisible() && line.lstPlayer->currentRow() == 1;
                 if (menu != nullptr)
                     menu->close();
                 line.activateWindow(); // which the test platform takes for a popup
                 Settle();
             }
             return all;
         }},
        {"a slot: Left / Right / Up / Down",
         [&] {
             key(slot, Qt::Key_Right);
             const bool right = wing->hasFocus();
             key(wing, Qt::Key_Left);
             const bool left = slot->hasFocus();
             key(slot, Qt::Key_Down);
             const auto* below = qobject_cast<SlotLabel*>(line.focusWidget());
             const bool down = below != nullptr && below != slot;
             key(line.focusWidget(), Qt::Key_Up);
             return right && left && down && qobject_cast<SlotLabel*>(line.focusWidget()) != below;
         }},
        {"a slot: Space / Return",
         [&] {
             bool placed = true;
             for (const auto& [row, pressed] : {std::pair(1, Qt::Key_Space), std::pair(2, Qt::Key_Return)}) {
                 line.lstPlayer->setCurrentRow(row);
                 key(slot, pressed);
                 placed = placed && slot->text() == line.lstPlayer->item(row)->text();
             }
             return placed;
         }},
        {"a slot: F2 / Menu / a letter / right press",
         [&] {
             bool all = true;
             const std::function<void()> ways[] = {[&] { key(slot, Qt::Key_F2); }, [&] { key(slot, Qt::Key_Menu); },
                                                   [&] {
                                                       slot->setFocus();
                                                       QTest::keyClick(slot, 'a');
                                                   },
                                                   [&] { QTest::mouseClick(slot, Qt::RightButton); }};
             for (const auto& way : ways) {
                 way();
                 all = all && picker->IsOpen();
                 QTest::keyClick(picker->txtName, Qt::Key_Escape);
                 all = all && !picker->IsOpen();
             }
             return all;
         }},
        {"a slot: Ctrl+Space",
         [&] {
             key(slot, Qt::Key_Space, Qt::ControlModifier);
             const bool isTaken = slot->IsTaken();
             key(slot, Qt::Key_Escape);
             return isTaken && !slot->IsTaken();
         }},
        {"a slot: drag",
         [&] {
             const QString first = slot->text();
             const QString second = wing->text();
             DragSlot(slot, wing);
             return first != second && slot->text() == second && wing->text() == first;
         }},
        {"a slot: Shift+press / middle press",
         [&] {
             QTest::mouseClick(wing, Qt::MiddleButton);
             const bool middle = line.frmStat->title() == wing->text();
             QTest::mouseClick(slot, Qt::LeftButton, Qt::ShiftModifier);
             return middle && line.frmStat->title() == slot->text();
         }},
        {"the days: Left / Right",
         [&] {
             key(line.vscDay, Qt::Key_Right);
             const bool isSecond = line.Day() == 2;
             key(line.vscDay, Qt::Key_Left);
             return isSecond && line.Day() == 1;
         }},
    };
    const auto roster = [&]() -> frmRoster& {
        if (TheStage.Find("Roster") == nullptr) {
            line.close();
            Settle();
            CallerScreen = "Main";
            TheStage.Open("Roster", Main());
            Settle();
        }
        return *static_cast<frmRoster*>(TheStage.Find("Roster"));
    };
    checks["a list of the roster: drag"] = [&] {
        PickList& pro = *roster().lstPlayer[status::Pro];
        PickList& scratches = *roster().lstPlayer[status::Scratch];
        const QString name = pro.item(0)->text();
        const int before = scratches.count();
        DragEntry(&pro, 0, &scratches);
        return scratches.count() == before + 1 && scratches.item(before)->text() == name;
    };
    checks["To Scratch: Ctrl+press"] = [&] {
        PickList& pro = *roster().lstPlayer[status::Pro];
        const int before = roster().lstPlayer[status::Farm]->count() + roster().lstPlayer[status::Scratch]->count();
        pro.setCurrentRow(0);
        QTest::mouseClick(roster().cmdToScratchesFromPro, Qt::LeftButton, Qt::ControlModifier);
        return UndoWords(roster()).starts_with("Undo: To Farm: ") &&
               roster().lstPlayer[status::Farm]->count() + roster().lstPlayer[status::Scratch]->count() == before + 1;
    };
    for (const KeyRow& row : KeyTable())
        if (row.Scope == KeyScope::Control) {
            const auto check = checks.find(std::string(row.Where) + ": " + row.Keys);
            ASSERT_NE(check, checks.end()) << row.Keys;
            EXPECT_TRUE(check->second()) << row.Where << ' ' << row.Keys;
        }
    Machine.ForgetBoxes("the judges' boxes are not asked here");
}

TEST_F(KeySheetTest, TeamCommandsOfTheMainScreenHaveKeysOnceALeagueIsOpen)
{
    frmMain& main = MainWithLeague();
    for (const auto& [menu, item] :
         {std::pair(main.mnuTeam, main.mnuSetRoster), std::pair(main.mnuTeam, main.mnuDraft)}) {
        EXPECT_FALSE(item->shortcut().isEmpty());
        EXPECT_TRUE(menu->actions().contains(item));
    }
}

TEST_F(KeySheetTest, NoTwoMnemonicsOfAMenuAreAlike)
{
    MainWithLeague();
    for (const QMenu* menu : Main().findChildren<QMenu*>()) {
        std::set<std::string> letters;
        for (const QAction* item : menu->actions())
            if (const QString letter = QKeySequence::mnemonic(item->text()).toString(); !letter.isEmpty()) {
                EXPECT_TRUE(letters.insert(letter.toStdString()).second) << item->text().toStdString();
            }
    }
}

TEST_F(KeySheetTest, F1WorksWhateverHasTheFocus)
{
    int times = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        screen.activateWindow();
        Settle();
        PressScreenKey(screen, Qt::Key_F1, {});
        KeySheet* sheet = SheetOf(screen);
        ASSERT_NE(sheet, nullptr) << name;
        EXPECT_TRUE(sheet->isVisible()) << name;
        QTest::keyClick(sheet, Qt::Key_F1);
        EXPECT_FALSE(sheet->isVisible()) << name;
        Settle();
        PressScreenKey(screen, Qt::Key_F1, {});
        EXPECT_TRUE(sheet->isVisible()) << "again " << name;
        sheet->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(sheet));
        QTest::keyClick(sheet, Qt::Key_F1);
        ++times;
    });
    EXPECT_GT(times, 30);
}
} // namespace
} // namespace dravik
