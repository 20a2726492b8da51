#include "makers/Lineup.h"

#include "makers/RatingList.h"
#include "rules/Function.h"

namespace dravik {

Row<Int16, 1, 11000> LineupIds;
Row<Int16, 0, 11000> LineupRatings;

void EmptyLineup() { EmptyRatingList(LineupIds, LineupRatings); }

void InsertInLineup(int& id)
{
    int rating = 0;
    if (id <= GoalieOffset) {
        rating = CalculateOverall(static_cast<int>(Players[id].Position), id);
    } else {
        id -= GoalieOffset;
        rating = CalculateOverall(position::Goalie, id);
    }
    InsertByRating(LineupIds, LineupRatings, id, rating);
}

int LineupCount() { return static_cast<int>(LineupRatings[0]); }

Player& SkaterAtPlace(long long place) { return Players[LineupIds[place]]; }

} // namespace dravik
