#include "screens/lines/LineSheet.h"
#include "screens/lines/LinesScreen.h"
#include "screens/lines/SlotPicker.h"

// The whole line-up of the shown day on one sheet.
namespace dravik {

void LinesScreen::cmdSheet_Click()
{
    if (Sheet == nullptr)
        MakeSheet();
    if (Sheet->isVisible() && Sheet->isActiveWindow())
        LeaveSheet();
    else
        Sheet->Open();
}

void LinesScreen::MakeSheet()
{
    Sheet = new LineSheet(this);
    for (std::size_t index = 0; index < TabLine->Slots.size(); ++index) {
        BoardSlot& slot = TabLine->Slots[index];
        slot.OnSheet = Sheet->Parts.Labels[index];
        slot.OnSheet->SetName(slot.Label->text());
        slot.OnSheet->SetTaken(slot.Label->IsTaken());
        MakeLive(static_cast<int>(index), *slot.OnSheet);
    }
    for (const BoardHeading& heading : Sheet->Parts.Headings) {
        heading.Label->installEventFilter(this);
        OfferComparison(heading);
    }
    sheetPicker = MakePicker(Sheet);
    MakeLive(*Sheet->lstPeople);
    connect(&Sheet->Parts, &BoardParts::SlotPressed, &TabLine->Parts, &BoardParts::SlotPressed);
    connect(&Sheet->Parts, &BoardParts::HeadingPressed, &TabLine->Parts, &BoardParts::HeadingPressed);
    connect(Sheet->lstPeople, &PickList::Picked, this, [this] { PickOnSheet(); });
    connect(Sheet, &LineSheet::LeaveAsked, this, [this] { LeaveSheet(); });
    Sheet->List(*lstPlayer);
    RefreshMarks();
}

void LinesScreen::ShowOnSheet()
{
    for (const BoardHeading& heading : Sheet->Parts.Headings)
        RefreshAverage(heading);
    Sheet->Tell(lblGame->text(), lblComplete->text(), lblComplete->IsGood(), txtReasons->toPlainText());
    Sheet->FollowChoice(*lstPlayer);
    Sheet->lstPeople->viewport()->update();
}

// A pick on the sheet is one in the list. There a click counts even on who is chosen already.
void LinesScreen::PickOnSheet()
{
    const std::optional<int> picked = NumberOf(Sheet->lstPeople->Chosen());
    if (!picked)
        return;
    if (picked == NumberOf(lstPlayer->Chosen()))
        lstPlayer_Click();
    else
        lstPlayer->Choose(picked);
}

void LinesScreen::LeaveSheet()
{
    if (taken) {
        LetGoOfTaken();
        return;
    }
    Sheet->close();
    activateWindow();
}

// It goes with its screen.
bool LinesScreen::event(QEvent* event)
{
    if (event->type() == QEvent::Hide && Sheet != nullptr)
        Sheet->close();
    return Screen::event(event);
}

} // namespace dravik
