#include "screens/Pins.h"

#include "screens/PersonWords.h"
#include "session/PinnedPeople.h"
#include "session/Session.h"

namespace dravik {

PinNews& NewsOfPins()
{
    static PinNews news;
    return news;
}

QString TogglePin(PersonId who)
{
    const bool isDone = OpenPins().Toggle(OpenLeague, who);
    const QString name = NameOf(who);
    if (isDone)
        emit NewsOfPins().Changed();
    else if (OpenPins().HasNoRoomFor(OpenLeague, who))
        return QString("%1 people are compared at most.").arg(PinnedPeople::Most);
    else
        return {};
    return name + (IsPinned(who) ? " is pinned." : " is let go.");
}

QString LetGoOfPinned()
{
    const bool wasSomebody = IsAnybodyPinned();
    OpenPins().LetGoOfAll();
    emit NewsOfPins().Changed();
    return wasSomebody ? "All who were pinned are let go." : "Nobody is pinned.";
}

bool IsAnybodyPinned()
{
    return OpenPins().First(OpenLeague, false).has_value() || OpenPins().First(OpenLeague, true).has_value();
}

bool IsPinned(PersonId who) { return OpenPins().Has(OpenLeague, who); }

PersonSigns WithPin(PersonSigns signs, PersonId who)
{
    if (IsPinned(who))
        signs.Add(Sign::Pinned);
    return signs;
}

std::optional<PinnedFigures> PinnedAgainst(PersonId who)
{
    const auto first = OpenPins().First(OpenLeague, who.IsGoalie);
    if (!first || *first == who)
        return std::nullopt;
    return PinnedFigures{.Who = *first, .Name = NameOf(*first), .Rows = QuietStatRowsOf(*first)};
}

std::vector<int> NumbersOf(const StatRows& rows)
{
    std::vector<int> numbers;
    for (const StatRow& row : rows.Ratings)
        numbers.push_back(row.Value);
    if (rows.OverallRow)
        numbers.push_back(rows.OverallRow->Value);
    return numbers;
}

} // namespace dravik
