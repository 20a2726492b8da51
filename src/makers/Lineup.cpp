#include "makers/Lineup.h"

#include "league/Positions.h"
#include "makers/RatingList.h"
#include "rules/Overall.h"

namespace dravik {

void Lineup::Empty() { EmptyRatingList(Ids, Ratings); }

void InsertInLineup(const Tables& league, Voice& says, Lineup& lineup, int& id)
{
    int rating = 0;
    if (id <= GoalieOffset) {
        rating = CalculateOverall(league, says, static_cast<int>(league.Players[id].Position), id);
    } else {
        id -= GoalieOffset;
        rating = CalculateOverall(league, says, position::Goalie, id);
    }
    InsertByRating(lineup.Ids, lineup.Ratings, id, rating);
}

} // namespace dravik
