#include "rules/SlotPositions.h"
#include "screens/lines/LinesScreen.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/PersonCards.h"
#include "screens/PersonWords.h"
#include "screens/Pins.h"
#include "screens/RosterEntry.h"
#include "session/Session.h"

// The signs beside the entries and in the slots, and the cards of people.
namespace dravik {

PersonSigns LinesScreen::SignsBeside(PersonId who) const
{
    PersonSigns signs = WithPin(SignsOf(OpenLeague, who, OwnNumber()), who);
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
    PersonSigns signs = WithPin(SignsOf(OpenLeague, who, OwnNumber()), who);
    if (!who.IsGoalie && who.HasSlot() && who.Slot != 0 &&
        IsOutOfPosition(slot.Slot, PositionOf(OpenLeague.Players[who.Slot])))
        signs.Add(Sign::OutOfPosition);
    return signs;
}

QString LinesScreen::SlotsToday(PersonId who) const
{
    const int count = SlotsHeld(ShownLines(), who);
    if (count == 0)
        return "not used";
    QStringList held = SlotsOf(who).split(", ", Qt::SkipEmptyParts);
    for (const BoardSlot& slot : TabLine->Slots)
        if (who.IsGoalie && slot.IsGoalies() && slot.In(ShownLines()) == who.Slot)
            held << slot.Label->Where();
    return QString("%1 (%2)").arg(held.join(", ")).arg(count);
}

std::optional<CardWords> LinesScreen::CardOfEntry(int number) const
{
    const PersonId who = EntryPerson(number);
    if (!who.HasSlot() || !HasLineDay(OwnNumber(), ShownDay()))
        return std::nullopt;
    return CardOf(who, SignsOf(OpenLeague, who, OwnNumber()), SlotsToday(who));
}

std::optional<CardWords> LinesScreen::CardOfSlot(const BoardSlot& slot) const
{
    if (!HasLineDay(OwnNumber(), ShownDay()))
        return std::nullopt;
    const long long standing = slot.In(ShownLines());
    const PersonId who = slot.Whom(standing != 0 ? standing : slot.Shown); // a wiped one still stands there by name
    if (!who.HasSlot())
        return std::nullopt;
    PersonSigns signs = SignsIn(slot, who);
    if (slot.Label->Shown() == SlotLabel::Mark::Refused)
        signs.Add(Sign::MayNotPlay);
    else if (slot.Label->Shown() == SlotLabel::Mark::Twice)
        signs.Add(Sign::UsedTwice);
    return CardOf(who, signs, SlotsToday(who), FindingsOn(slot));
}

} // namespace dravik
