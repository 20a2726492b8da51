#include "rules/SlotPositions.h"
#include "screens/lines/LinesScreen.h"
#include "screens/panels/EntrySigns.h"
#include "screens/RosterEntry.h"
#include "session/Session.h"

// The signs beside the entries and in the slots.
namespace dravik {

void LinesScreen::MakeSigns()
{
    new EntrySigns(lstPlayer, [this](int number) { return SignsOfEntry(number); });
}

PersonSigns LinesScreen::SignsOfEntry(int number) const
{
    const PersonId who = EntryPerson(number);
    PersonSigns signs = SignsOf(OpenLeague, who, OwnNumber());
    if (!who.HasSlot() || !HasLineDay(OwnNumber(), ShownDay()))
        return signs;
    if (const int held = SlotsHeld(ShownLines(), who); held > 0)
        signs.Add(Sign::InSlots, held);
    else
        signs.Add(Sign::NotUsed);
    return signs;
}

PersonSigns LinesScreen::SignsIn(const BoardSlot& slot, PersonId who) const
{
    PersonSigns signs = SignsOf(OpenLeague, who, OwnNumber());
    if (!who.IsGoalie && who.HasSlot() && who.Slot != 0 &&
        IsOutOfPosition(slot.Slot, PositionOf(OpenLeague.Players[who.Slot])))
        signs.Add(Sign::OutOfPosition);
    return signs;
}

} // namespace dravik
