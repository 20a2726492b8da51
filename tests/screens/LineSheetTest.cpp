#include "screens/lines/LineSheet.h"
#include "Dragging.h"
#include "OnHistory.h"
#include "OnLineScreen.h"
#include "screens/lines/SlotPicker.h"
#include "screens/panels/PersonCards.h"

#include <cstring>
#include <QScreen>

namespace dravik {
namespace {

using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr QSize SmallDisplay(1280, 800 - 24); // without the title bar
constexpr QSize WideDisplay(1880, 1000);

// The whole line-up of a day on one sheet.
class WholeLineUp : public OnLineScreen {
protected:
    WholeLineUp() { PutGames(10); }

    // A key where the focus is in a window.
    static void Key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        window.activateWindow();
        Settle();
        ASSERT_TRUE(window.isActiveWindow());
        QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window, key, modifiers);
        QApplication::processEvents();
    }
    static LineSheet& SheetOf(LinesScreen& screen)
    {
        Key(screen, Qt::Key_B, Qt::ControlModifier);
        EXPECT_NE(screen.Sheet, nullptr);
        EXPECT_TRUE(screen.Sheet->isActiveWindow());
        return *screen.Sheet;
    }
    static SlotLabel* OnSheet(const LinesScreen& screen, LineField field, int number, int place = 1)
    {
        return screen.Sheet->Parts.LabelOf(field, number, place);
    }
    static bool IsDay(const Lines& wanted, int day = 1)
    {
        return std::memcmp(&ProDay(day), &wanted, sizeof wanted) == 0;
    }
    // Each slot of the sheet tells what that of the pages tells.
    static void ExpectAsOnThePages(const LinesScreen& screen)
    {
        for (const BoardSlot& slot : screen.TabLine->Slots) {
            EXPECT_EQ(slot.OnSheet->text(), slot.Label->text()) << slot.Name;
            EXPECT_EQ(slot.OnSheet->accessibleName(), slot.Label->accessibleName()) << slot.Name;
            EXPECT_EQ(slot.OnSheet->accessibleDescription(), slot.Label->accessibleDescription()) << slot.Name;
            EXPECT_EQ(slot.OnSheet->Shown(), slot.Label->Shown()) << slot.Name;
            EXPECT_EQ(slot.OnSheet->Aside(), slot.Label->Aside()) << slot.Name;
            EXPECT_EQ(slot.OnSheet->Signs(), slot.Label->Signs()) << slot.Name;
            EXPECT_EQ(slot.OnSheet->IsPicked(), slot.Label->IsPicked()) << slot.Name;
            EXPECT_EQ(slot.OnSheet->IsTaken(), slot.Label->IsTaken()) << slot.Name;
        }
        for (std::size_t heading = 0; heading < screen.TabLine->Parts.Headings.size(); ++heading)
            EXPECT_EQ(Of(screen.Sheet->Parts.Headings[heading].Average),
                      Of(screen.TabLine->Parts.Headings[heading].Average));
    }
};

TEST_F(WholeLineUp, ShowsAllSlotsAtOnceOnASmallDisplay)
{
    for (LinesScreen* screen : std::initializer_list<LinesScreen*>{&Line(), &FarmLine()}) {
        LineSheet& sheet = SheetOf(*screen);
        sheet.resize(SmallDisplay);
        Settle();
        EXPECT_EQ(sheet.size(), SmallDisplay);
        for (const SlotLabel* label : sheet.Parts.Labels) {
            EXPECT_TRUE(label->isVisible()) << label->Where().toStdString();
            EXPECT_TRUE(sheet.rect().contains(QRect(label->mapTo(&sheet, QPoint()), label->size())))
                << label->Where().toStdString();
            for (const SlotLabel* other : sheet.Parts.Labels)
                EXPECT_TRUE(other == label || !other->geometry()
                                                   .translated(other->parentWidget()->mapTo(&sheet, QPoint()))
                                                   .intersects(label->geometry().translated(
                                                       label->parentWidget()->mapTo(&sheet, QPoint()))));
        }
        EXPECT_EQ(sheet.Parts.Headings.size(), screen->TabLine->Parts.Headings.size());
        EXPECT_FALSE(sheet.lstPeople->isVisible());
        ExpectAsOnThePages(*screen);
        screen->close();
        Settle();
    }
}

TEST_F(WholeLineUp, OpensByItsCommandAndGoesWithTheSameKeyAndWithEscape)
{
    frmLine& line = Line();
    QTest::mouseClick(line.cmdSheet, Qt::LeftButton);
    Settle();
    ASSERT_NE(line.Sheet, nullptr);
    EXPECT_TRUE(line.Sheet->isVisible());
    EXPECT_TRUE(line.screen()->availableGeometry().contains(line.Sheet->geometry()));
    Key(*line.Sheet, Qt::Key_Escape);
    EXPECT_FALSE(line.Sheet->isVisible());
    EXPECT_EQ(TheStage.Find("Line"), &line) << "the screen stays";
    LineSheet& sheet = SheetOf(line);
    Key(sheet, Qt::Key_B, Qt::ControlModifier);
    EXPECT_FALSE(sheet.isVisible());
}

TEST_F(WholeLineUp, GoesWithItsScreen)
{
    frmLine& line = Line();
    const QPointer<LineSheet> sheet = &SheetOf(line);
    line.hide();
    Settle();
    EXPECT_FALSE(sheet->isVisible());
    line.show();
    Settle();
    line.close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(sheet, nullptr);
}

TEST_F(WholeLineUp, APressPlacesWhoIsPickedAsOnThePages)
{
    frmLine& line = Line();
    const Lines before = ProDay();
    LineSheet& sheet = SheetOf(line);
    const int picked = Pro.Skaters[7];
    Pick(line, picked, static_cast<int>(Players[picked].Position));
    QTest::mouseClick(OnSheet(line, LineField::PenaltyShot, 2), Qt::LeftButton);
    Settle();
    Lines expected = before;
    expected.PenaltyShot[2] = picked;
    EXPECT_TRUE(IsDay(expected));
    EXPECT_EQ(SlotOn(line, LineField::PenaltyShot, 2, 1)->text().toStdString(), Players[picked].Name.Trimmed());
    ExpectAsOnThePages(line);
    EXPECT_THAT(UndoWords(line), HasSubstr("Place " + Players[picked].Name.Trimmed() + ", Penalty Shot 2, day 1"));
    Key(sheet, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(IsDay(before));
    ExpectAsOnThePages(line);
    Key(sheet, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(IsDay(expected));
}

TEST_F(WholeLineUp, TheKeysOfTheScreenGoOnWorking)
{
    Own().ProLines[3].PenaltyShot[1] = Pro.Skaters[5];
    frmLine& line = Line();
    LineSheet& sheet = SheetOf(line);
    Key(sheet, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(line.Day(), 3);
    EXPECT_EQ(Of(sheet.lblDay), Of(line.lblGame));
    EXPECT_EQ(sheet.lblVerdict->text(), line.lblComplete->text());
    EXPECT_EQ(sheet.lblVerdict->IsGood(), line.lblComplete->IsGood());
    EXPECT_FALSE(sheet.lblVerdict->IsGood());
    EXPECT_EQ(sheet.lblReasons->toolTip(), line.txtReasons->toPlainText());
    EXPECT_FALSE(sheet.lblReasons->text().isEmpty());
    ExpectAsOnThePages(line);
    const int page = line.TabLine->currentIndex();
    Key(sheet, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(line.TabLine->currentIndex(), page) << "the sheet has no pages";
}

TEST_F(WholeLineUp, PeopleChangePlacesByADragAndByKeys)
{
    frmLine& line = Line();
    LineSheet& sheet = SheetOf(line);
    const Lines before = ProDay();
    Lines expected = before;
    std::swap(expected.NormalForward(1, 1), expected.NormalForward(3, 1));
    DragSlot(OnSheet(line, LineField::NormalForward, 1), OnSheet(line, LineField::NormalForward, 3));
    Settle();
    EXPECT_TRUE(IsDay(expected));
    ExpectAsOnThePages(line);
    OnSheet(line, LineField::NormalForward, 1)->setFocus();
    Key(sheet, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(SlotOn(line, LineField::NormalForward, 1, 1)->IsTaken());
    ExpectAsOnThePages(line);
    Key(sheet, Qt::Key_Escape);
    EXPECT_TRUE(sheet.isVisible()) << "the first one lets him go";
    EXPECT_FALSE(OnSheet(line, LineField::NormalForward, 1)->IsTaken());
    Key(sheet, Qt::Key_Space, Qt::ControlModifier);
    OnSheet(line, LineField::NormalForward, 3)->setFocus();
    Key(sheet, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(IsDay(before));
    // Skaters and goalies never do.
    DragSlot(OnSheet(line, LineField::NormalForward, 1), sheet.Parts.Labels.back());
    EXPECT_TRUE(IsDay(before));
}

TEST_F(WholeLineUp, ThePickerOpensAtASlotOfTheSheetWithinIt)
{
    frmLine& line = Line();
    LineSheet& sheet = SheetOf(line);
    const Lines before = ProDay();
    OnSheet(line, LineField::PPForward, 2, 2)->setFocus();
    Key(sheet, Qt::Key_F2);
    auto* picker = sheet.findChild<SlotPicker*>("Picker");
    ASSERT_NE(picker, nullptr);
    ASSERT_TRUE(picker->IsOpen());
    EXPECT_EQ(picker->window(), &sheet);
    EXPECT_TRUE(sheet.rect().contains(picker->geometry()));
    EXPECT_EQ(Of(picker->lblSlot), OnSheet(line, LineField::PPForward, 2, 2)->Where().toStdString());
    Key(sheet, Qt::Key_Escape);
    EXPECT_FALSE(picker->IsOpen());
    EXPECT_TRUE(sheet.isVisible());
    Key(sheet, Qt::Key_F2);
    picker->lstPick->setCurrentRow(picker->lstPick->currentRow() == 0 ? 1 : 0);
    const std::string placed = picker->lstPick->currentItem()->text().toStdString();
    Key(sheet, Qt::Key_Return);
    EXPECT_FALSE(IsDay(before));
    EXPECT_EQ(OnSheet(line, LineField::PPForward, 2, 2)->text().toStdString(), placed);
    EXPECT_TRUE(OnSheet(line, LineField::PPForward, 2, 2)->hasFocus());
    ExpectAsOnThePages(line);
    // Another day takes it away.
    Key(sheet, Qt::Key_F2);
    ASSERT_TRUE(picker->IsOpen());
    Key(sheet, Qt::Key_2, Qt::ControlModifier);
    EXPECT_FALSE(picker->IsOpen());
}

TEST_F(WholeLineUp, TheCardComesUpInTheWindowOfTheFocus)
{
    frmLine& line = Line();
    LineSheet& sheet = SheetOf(line);
    const auto* cards = line.findChild<PersonCards*>();
    OnSheet(line, LineField::NormalForward, 1)->setFocus();
    Key(sheet, Qt::Key_I, Qt::ControlModifier);
    ASSERT_NE(cards->Shown(), nullptr);
    EXPECT_EQ(cards->Shown()->parentWidget(), &sheet);
    Key(sheet, Qt::Key_Escape);
    EXPECT_EQ(cards->Shown(), nullptr);
    EXPECT_TRUE(sheet.isVisible());
    Key(sheet, Qt::Key_Escape);
    EXPECT_FALSE(sheet.isVisible());
    SlotOn(line, LineField::NormalForward, 1, 1)->setFocus();
    Key(line, Qt::Key_I, Qt::ControlModifier);
    ASSERT_NE(cards->Shown(), nullptr);
    EXPECT_EQ(cards->Shown()->parentWidget(), &line);
}

TEST_F(WholeLineUp, AMessyDayLooksAsOnThePages)
{
    const int hurt = Pro.Skaters[0];
    Players[hurt].Condition = 50;
    frmLine& line = Line();
    SheetOf(line);
    Lines& day = ProDay();
    day.NormalForward(1, 2) = static_cast<int>(day.NormalForward(1, 3)); // twice on a line
    day.NormalForward(2, 1) = 0;
    day.NormalDefense(1, 1) = static_cast<int>(day.NormalForward(3, 1)); // out of his position
    Own().Captain = static_cast<int>(day.NormalForward(4, 1));
    line.Place();
    line.Check();
    ExpectAsOnThePages(line);
    EXPECT_EQ(OnSheet(line, LineField::NormalForward, 2)->Shown(), SlotLabel::Mark::Empty);
    EXPECT_TRUE(OnSheet(line, LineField::NormalDefense, 1)->Signs().Has(Sign::OutOfPosition));
}

TEST_F(WholeLineUp, AHeadingShowsTheAveragesAndAMiddlePressLooksWithoutPlacing)
{
    frmLine& line = Line();
    LineSheet& sheet = SheetOf(line);
    const Lines before = ProDay();
    QTest::mouseClick(sheet.Parts.Headings[4].Label, Qt::LeftButton);
    Settle();
    EXPECT_EQ(line.frmStat->title(), "PP Unit 1");
    SlotLabel* slot = OnSheet(line, LineField::NormalForward, 2, 2);
    QTest::mouseClick(slot, Qt::MiddleButton);
    Settle();
    EXPECT_EQ(line.lstPlayer->Chosen()->text(), slot->text());
    EXPECT_TRUE(slot->IsPicked());
    EXPECT_TRUE(IsDay(before));
    QHelpEvent help(QEvent::ToolTip, slot->rect().center(), slot->mapToGlobal(slot->rect().center()));
    QApplication::sendEvent(slot, &help);
    EXPECT_THAT(slot->toolTip().toStdString(), HasSubstr("Position:"));
}

TEST_F(WholeLineUp, OnAWideDisplayTheListStandsBesideTheSlotsAndPicks)
{
    frmLine& line = Line();
    LineSheet& sheet = SheetOf(line);
    sheet.resize(WideDisplay);
    Settle();
    ASSERT_TRUE(sheet.lstPeople->isVisible());
    ASSERT_EQ(sheet.lstPeople->count(), line.lstPlayer->count());
    for (int row = 0; row < line.lstPlayer->count(); ++row)
        for (const int role : {static_cast<int>(Qt::DisplayRole), static_cast<int>(entry::NumberRole),
                               static_cast<int>(entry::AsideRole), static_cast<int>(Qt::AccessibleDescriptionRole)})
            EXPECT_EQ(sheet.lstPeople->item(row)->data(role), line.lstPlayer->item(row)->data(role)) << row;
    const QListWidgetItem* entry = sheet.lstPeople->item(4);
    QTest::mouseClick(sheet.lstPeople->viewport(), Qt::LeftButton, {}, sheet.lstPeople->visualItemRect(entry).center());
    Settle();
    EXPECT_EQ(NumberOf(line.lstPlayer->Chosen()), NumberOf(entry));
    EXPECT_EQ(line.frmStat->title(), entry->text());
    SlotLabel* slot = OnSheet(line, LineField::PenaltyShot, 5);
    QTest::mouseClick(slot, Qt::LeftButton);
    Settle();
    EXPECT_EQ(slot->text(), entry->text());
    // A drag from it is a press, too.
    DragEntry(sheet.lstPeople, 2, OnSheet(line, LineField::PenaltyShot, 4));
    Settle();
    EXPECT_EQ(OnSheet(line, LineField::PenaltyShot, 4)->text(), sheet.lstPeople->item(2)->text());
    ExpectAsOnThePages(line);
    // Who is picked beside the pages is picked here.
    line.lstPlayer->setCurrentRow(6);
    EXPECT_EQ(NumberOf(sheet.lstPeople->Chosen()), NumberOf(line.lstPlayer->item(6)));
    line.chkPosition[position::Center]->setChecked(false);
    EXPECT_LT(sheet.lstPeople->count(), static_cast<int>(Pro.Skaters.size() + Pro.GoalieIds.size()));
    EXPECT_EQ(sheet.lstPeople->count(), line.lstPlayer->count());
    sheet.resize(SmallDisplay);
    Settle();
    EXPECT_FALSE(sheet.lstPeople->isVisible());
}

TEST_F(WholeLineUp, ArrowsWalkItAndF6GoesToTheListAndBack)
{
    frmLine& line = Line();
    LineSheet& sheet = SheetOf(line);
    sheet.resize(WideDisplay);
    Settle();
    OnSheet(line, LineField::NormalForward, 1, 2)->setFocus(); // the left wing
    Key(sheet, Qt::Key_Right);
    EXPECT_TRUE(OnSheet(line, LineField::NormalForward, 1, 1)->hasFocus());
    Key(sheet, Qt::Key_Down);
    EXPECT_THAT(sheet.focusWidget(),
                AnyOf(OnSheet(line, LineField::NormalDefense, 1, 1), OnSheet(line, LineField::NormalDefense, 1, 2)));
    QWidget* slot = sheet.focusWidget();
    Key(sheet, Qt::Key_F6);
    EXPECT_TRUE(sheet.lstPeople->hasFocus());
    Key(sheet, Qt::Key_Down);
    EXPECT_NE(line.lstPlayer->Chosen(), nullptr);
    Key(sheet, Qt::Key_F6);
    EXPECT_TRUE(slot->hasFocus());
    Key(sheet, Qt::Key_Space);
    EXPECT_EQ(static_cast<SlotLabel*>(slot)->text(), line.lstPlayer->Chosen()->text());
}

// As a manager does it who has read the sheet of keys: on each slot the first letters of a name until he stands first, Enter, and on
// to the next one.
TEST_F(WholeLineUp, AWholeDayIsMadeByKeysAlone)
{
    const char* names[] = {"Anders Vanderson", "Boris Lesnik",    "Clay Pruford",    "Dale Greshlow",
                           "Egon Tarrant",     "Felix Moravec",   "Grady McTarvish", "Hudson Kirbmore",
                           "Imants Berzalns",  "Jorma Salovaara", "Kalevi Kallion",  "Lothar Turkthal",
                           "Magnus Wahlstrom", "Niilo Ojanen",    "Otto Dressler",   "Perry Pemlow",
                           "Quentin Yardley",  "Rastislav Zeman"};
    for (std::size_t skater = 0; skater < Pro.Skaters.size(); ++skater)
        Players[Pro.Skaters[skater]].Name = names[skater % std::size(names)];
    const Lines wanted = ProDay(1);
    for (const DaySlot& slot : DaySlots)
        At(ProDay(), slot) = 0;
    frmLine& line = Line();
    int keys = 0;
    const auto press = [&keys](QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        Key(window, key, modifiers);
        ++keys;
    };
    press(line, Qt::Key_B, Qt::ControlModifier);
    LineSheet& sheet = *line.Sheet;
    auto* picker = sheet.findChild<SlotPicker*>("Picker");
    sheet.Parts.Walk.front()->setFocus();
    for (std::size_t walked = 1; walked < DaySlots.size() + sheet.Parts.Headings.size(); ++walked) {
        press(sheet, Qt::Key_Tab);
        auto* label = qobject_cast<SlotLabel*>(sheet.focusWidget());
        if (label == nullptr)
            continue; // a heading
        const auto index = static_cast<std::size_t>(
            std::find(sheet.Parts.Labels.begin(), sheet.Parts.Labels.end(), label) - sheet.Parts.Labels.begin());
        ASSERT_LT(index, DaySlots.size());
        const PersonId who{.IsGoalie = DaySlots[index].IsGoalies(),
                           .Slot = static_cast<int>(At(wanted, DaySlots[index]))};
        const QString name =
            QString::fromStdString(OnPerson(OpenLeague, who, [](const auto& person) { return person.Name.Trimmed(); }));
        for (qsizetype letter = 0; letter < name.size(); ++letter) {
            if (picker->IsOpen() && picker->lstPick->currentItem()->text() == name)
                break;
            QTest::keyClick(sheet.focusWidget(), name[letter].toLatin1());
            ++keys;
            QApplication::processEvents();
        }
        press(sheet, Qt::Key_Return);
        EXPECT_EQ(label->text(), name);
    }
    for (std::size_t slot = 0; slot < DaySlots.size(); ++slot)
        EXPECT_EQ(At(ProDay(), DaySlots[slot]), At(wanted, DaySlots[slot])) << slot;
    EXPECT_EQ(line.lblComplete->text(), "Lines are Complete");
    EXPECT_TRUE(sheet.lblVerdict->IsGood());
    RecordProperty("keys", keys);
    // A tab, a letter or two of a name, and Enter for each.
    EXPECT_LE(keys, 245);
}

TEST_F(WholeLineUp, ATextThatIsRefusedHoldsAPressBack)
{
    frmLine& line = Line();
    LineSheet& sheet = SheetOf(line);
    const int picked = Pro.Skaters[7];
    Pick(line, picked, static_cast<int>(Players[picked].Position));
    const Lines before = ProDay();
    line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
    line.activateWindow();
    Settle();
    ASSERT_TRUE(line.isActiveWindow());
    line.txtPullGoalerMinGoal->setFocus();
    line.txtPullGoalerMinGoal->setText("many");
    sheet.activateWindow();
    Settle();
    ASSERT_TRUE(sheet.isActiveWindow());
    QTest::mouseClick(OnSheet(line, LineField::PenaltyShot, 2), Qt::LeftButton);
    Settle();
    EXPECT_TRUE(IsDay(before));
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    line.txtPullGoalerMinGoal->setText("4");
    QTest::mouseClick(OnSheet(line, LineField::PenaltyShot, 2), Qt::LeftButton);
    Settle();
    EXPECT_EQ(ProDay().PenaltyShot[2], picked);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

} // namespace
} // namespace dravik
