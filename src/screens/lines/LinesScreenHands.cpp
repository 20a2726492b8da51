#include "desk/PlaceOnLine.h"
#include "desk/SlotPicks.h"
#include "screens/lines/LineSheet.h"
#include "screens/lines/LinesScreen.h"
#include "screens/lines/SlotPicker.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/PersonCards.h"
#include "screens/panels/PersonDrag.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "session/Session.h"

#include <algorithm>
#include <QCursor>
#include <QKeyEvent>
#include <QShortcut>
#include <QTabBar>
#include <QToolTip>

// Lines made by hand: the picker at a slot, people who change places, a look at who stands somewhere, and the keys.
namespace dravik {

void LinesScreen::MakeHands()
{
    picker = MakePicker(this);
    for (int index = 0; index < static_cast<int>(TabLine->Slots.size()); ++index)
        MakeLive(index, *TabLine->Slots[static_cast<std::size_t>(index)].Label);

    const auto onKey = [this](const QKeySequence& key, const std::function<void()>& run) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, run] {
            if (SettleFocus())
                run();
        });
    };
    for (int number = 1; number <= DayStrip::Days; ++number)
        onKey(QKeySequence("Ctrl+" + QString::number(number % DayStrip::Days)), [this, number] {
            if (vscDay->isEnabled() && number <= vscDay->maximum())
                vscDay->setValue(number);
        });
    onKey(QKeySequence("Ctrl+Tab"), [this] { TurnPage(1); });
    onKey(QKeySequence("Ctrl+Shift+Tab"), [this] { TurnPage(-1); });
    onKey(QKeySequence("F6"), [this] { ChangeSides(); });
    onKey(QKeySequence("Ctrl+B"), [this] { cmdSheet_Click(); });
    onKey(QKeySequence("Ctrl+Shift+M"), [this] { CompareAtFocus(); });
    // Whatever comes up in its place, the picker belongs to the slot that it was opened at.
    connect(TabLine, &QTabWidget::currentChanged, picker, &QWidget::hide);
}

SlotPicker* LinesScreen::MakePicker(QWidget* window)
{
    auto* made = new SlotPicker(window);
    connect(made, &SlotPicker::Placed, this, [this](int row) { PlacePick(row); });
    connect(made, &SlotPicker::Looked, this, [this](int row) {
        const SlotPick& pick = picks[static_cast<std::size_t>(row)];
        RunEvent("Picker", [&] { LookAt(pick.Who, pick.Position); });
    });
    return made;
}

void LinesScreen::MakeLive(int index, SlotLabel& label)
{
    PersonDrag::FromSlot(
        label, [this, index](const SlotLabel& other) { return MaySwap(index, IndexOf(other)); },
        [this, index](SlotLabel& other) { Swap(index, IndexOf(other)); });
    connect(&label, &SlotLabel::Looked, this, [this, index] { LookAtSlot(index); });
    connect(&label, &SlotLabel::PickAsked, this,
            [this, index, &label](const QString& typed) { OpenPicker(index, label, typed); });
    connect(&label, &SlotLabel::TakeAsked, this, [this, index] { TakeUp(index); });
    cards->Serve(&label, [this, &slot = TabLine->Slots[static_cast<std::size_t>(index)]] { return CardOfSlot(slot); });
    label.installEventFilter(this); // behind the drag's own filter
}

void LinesScreen::MakeLive(PickList& people)
{
    PersonDrag::FromList(people, [this](const SlotLabel& label) { return MayDropOn(label); });
    people.viewport()->installEventFilter(this); // behind the drag's own, so that a press held back starts none
    new EntrySigns(&people, [this](int number) { return SignsBeside(EntryPerson(number)); });
    cards->Serve(&people, [this](int number) { return CardOfEntry(number); });
}

int LinesScreen::IndexOf(const SlotLabel& label) const
{
    const auto slot = std::find_if(TabLine->Slots.begin(), TabLine->Slots.end(), [&label](const BoardSlot& other) {
        return other.Label == &label || other.OnSheet == &label;
    });
    return static_cast<int>(slot - TabLine->Slots.begin());
}

QString LinesScreen::WhereOf(int index) const { return TabLine->Slots[static_cast<std::size_t>(index)].Label->Where(); }

void LinesScreen::OpenPicker(int index, SlotLabel& label, const QString& typed)
{
    RunEvent("Picker", [&] {
        const BoardSlot& slot = TabLine->Slots[static_cast<std::size_t>(index)];
        picks = PicksFor(OpenWork(), OwnNumber(), Kind.Side, slot.Slot);
        pickedSlot = index;
        QList<PickRow> rows;
        int standing = -1;
        for (const SlotPick& pick : picks) {
            QStringList aside{ToQString(PositionName[pick.Position])};
            if (LeagueData.ShowOverall)
                aside << (pick.Overall ? QString::number(*pick.Overall) : QString());
            if (pick.Who == slot.Whom(slot.In(ShownLines())))
                standing = static_cast<int>(rows.size());
            rows << PickRow{.Name = NameOf(pick.Who), .Aside = aside, .Signs = SignsBeside(pick.Who)};
        }
        (label.window() == this ? picker : sheetPicker)->OpenAt(label, rows, standing, typed);
    });
}

void LinesScreen::ClosePickers()
{
    for (SlotPicker* open : {picker, sheetPicker})
        if (open != nullptr)
            open->hide();
}

void LinesScreen::PlacePick(int row)
{
    const SlotPick pick = picks[static_cast<std::size_t>(row)];
    RunStep("Place " + NameOf(pick.Who) + ", " + WhereOf(pickedSlot) + Subject(),
            [&] { PlaceIn(pickedSlot, pick.Who, pick.Position); });
}

void LinesScreen::PlaceIn(int index, PersonId who, int position)
{
    BoardSlot& slot = TabLine->Slots[static_cast<std::size_t>(index)];
    RunEvent(slot.Name, [&] {
        if (!PlaceOnLine(OpenWork(), OwnNumber(), ShownDay(), Kind.Side, slot.Slot, who, position))
            return;
        ShowIn(slot, who.Slot);
        Check();
    });
}

void LinesScreen::LookAtSlot(int index)
{
    RunEvent("Look", [&] {
        const BoardSlot& slot = TabLine->Slots[static_cast<std::size_t>(index)];
        const PersonId who = slot.Whom(slot.In(ShownLines()));
        if (who.HasSlot())
            LookAt(who, OnPerson(OpenLeague, who, [](const auto& person) { return PositionOf(person); }));
    });
}

// Whoever is in the list is chosen there; of somebody whom the list leaves out nothing can be placed, but he is shown.
void LinesScreen::LookAt(PersonId who, int position)
{
    if (who.Slot == 0)
        return; // the placeholder is nobody
    const int row = lstPlayer->RowOf(EntryNumber(who.Slot, position));
    if (row >= 0) {
        lstPlayer->setCurrentRow(row);
        lstPlayer->scrollToItem(lstPlayer->item(row));
        return;
    }
    lstPlayer->Unchoose();
    selectedPosition = position;
    SelectPerson(who);
    lblPlaying->clear();
    ShowPicked();
    RefreshMarks();
}

bool LinesScreen::MaySwap(int one, int other) const
{
    const auto count = static_cast<int>(TabLine->Slots.size());
    return one < count && other < count &&
           MaySwapOnLine(OpenLeague, OwnNumber(), ShownDay(), Kind.Side,
                         TabLine->Slots[static_cast<std::size_t>(one)].Slot,
                         TabLine->Slots[static_cast<std::size_t>(other)].Slot);
}

void LinesScreen::Swap(int one, int other)
{
    BoardSlot& first = TabLine->Slots[static_cast<std::size_t>(one)];
    BoardSlot& second = TabLine->Slots[static_cast<std::size_t>(other)];
    RunStep("Swap " + WhereOf(one) + " and " + WhereOf(other) + Subject(), [&] {
        RunEvent("Swap", [&] {
            if (!SwapOnLine(OpenWork(), OwnNumber(), ShownDay(), Kind.Side, first.Slot, second.Slot))
                return;
            for (BoardSlot* slot : {&first, &second})
                ShowIn(*slot, slot->In(ShownLines()));
            Check();
        });
    });
}

void LinesScreen::TakeUp(int index)
{
    if (!taken) {
        if (TabLine->Slots[static_cast<std::size_t>(index)].Label->Shown() == SlotLabel::Mark::Empty)
            return;
        taken = index;
        ShowTaken(true);
        return;
    }
    const int from = *taken;
    LetGoOfTaken();
    if (from == index)
        return;
    if (MaySwap(from, index))
        Swap(from, index);
    else
        QToolTip::showText(QCursor::pos(), "They cannot change places");
}

void LinesScreen::LetGoOfTaken()
{
    if (taken)
        ShowTaken(false);
    taken.reset();
}

void LinesScreen::ShowTaken(bool isTaken)
{
    TabLine->Slots[static_cast<std::size_t>(*taken)].OnLabels([isTaken](SlotLabel& label) { label.SetTaken(isTaken); });
}

// A key that nobody else has a use for.
void LinesScreen::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && taken)
        LetGoOfTaken();
    else
        Screen::keyPressEvent(event);
}

// The sheet has no pages.
void LinesScreen::TurnPage(int by)
{
    if (Sheet != nullptr && Sheet->isActiveWindow())
        return;
    const int pages = TabLine->count();
    const bool wasOnBoard = TabLine->isAncestorOf(focusWidget());
    TabLine->setCurrentIndex((TabLine->currentIndex() + by + pages) % pages);
    if (wasOnBoard)
        FocusBoard();
}

void LinesScreen::FocusBoard()
{
    if (lastSlot != nullptr && lastSlot->isVisible()) {
        lastSlot->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    for (QWidget* walked : TabLine->Parts.Walk)
        if (walked->isVisible() && qobject_cast<SlotLabel*>(walked) != nullptr) {
            walked->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    hscStats[0]->setFocus(Qt::ShortcutFocusReason);
}

void LinesScreen::ChangeSides()
{
    if (Sheet != nullptr && Sheet->isActiveWindow())
        Sheet->ChangeSides();
    else if (lstPlayer->hasFocus())
        FocusBoard();
    else
        lstPlayer->setFocus(Qt::ShortcutFocusReason);
}

} // namespace dravik
