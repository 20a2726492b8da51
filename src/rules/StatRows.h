#pragma once

#include "league/Tables.h"
#include "machine/Voice.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace dravik {

// How many ratings the league shows of a skater and of a goalie: the single ones, or their groups.
struct ShownRatings {
    int Skater;
    int Goalie;
};
ShownRatings RatingsShownBy(const League& rules);

// One line of a person's stat panel: a caption of two letters and a number, usually 0 to 99.
struct StatRow {
    std::string_view Label;
    int Value;

    bool operator==(const StatRow&) const = default;
};

// What the league lets a general manager see of a person's ratings.
struct StatRows {
    // The rows from 1 to the count that the league shows: the single ratings, or the group values where the league
    // hides those. The mean of a group is rounded to the nearest integer, ties to even.
    std::vector<StatRow> Ratings;
    int Overall = 0;
    // The row behind them, in a league that shows the overall.
    std::optional<StatRow> OverallRow;
};

// The rows of the skater or goalie in slot `index` of his table. Nothing is changed and no box is shown, save for
// CalculateOverall's when a skater has no position. A slot outside the table, or more rows than there are captions for,
// fails with 9.
StatRows SkaterStatRows(const Tables& league, Voice& says, int index, int count);
StatRows GoalieStatRows(const Tables& league, Voice& says, int index, int count);

// The same rows of ratings that belong to no one skater, such as the averages of a line.
using SkaterRatings = decltype(Player::Stats);
StatRows SkaterStatRows(const League& rules, const SkaterRatings& ratings, int count, int overall);

// Tells the rows of the ratings alone, from row 1 on, each as soon as it is known: `tell(row, shown)`. Fails like the
// above; the rows before the one that failed have been told by then.
using TellStatRow = std::function<void(int row, const StatRow& shown)>;
void TellSkaterRatings(const Tables& league, int index, int count, const TellStatRow& tell);
void TellGoalieRatings(const Tables& league, int index, int count, const TellStatRow& tell);
// The row of an overall, which stands behind the ratings.
StatRow SkaterOverallRow(const League& rules, int overall);
StatRow GoalieOverallRow(const League& rules, int overall);

} // namespace dravik
