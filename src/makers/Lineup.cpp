#include "makers/Lineup.h"

#include "league/PersonId.h"
#include "makers/RatingList.h"
#include "rules/Overall.h"

namespace dravik {

void Lineup::Empty() { EmptyRatingList(Ids, Ratings); }

void InsertInLineup(const Tables& league, Voice& says, Lineup& lineup, int& id)
{
    const PersonId who = PersonOf(id);
    id = who.Slot;
    InsertByRating(lineup.Ids, lineup.Ratings, id, CalculateOverall(league, says, who));
}

} // namespace dravik
