#include "makers/RatingList.h"

#include <gtest/gtest.h>

namespace dravik {
namespace {

// Wherever he would stand, in front of all, among them or behind them.
TEST(RatingListTest, AFullListTakesNobodyOfAnyRatingAndStaysAsItIs)
{
    for (const int rating : {90, 55, 10}) {
        Row<Int16, 1, 3> ids{};
        Row<Int16, 0, 3> ratings{};
        for (int id = 1; id <= 3; ++id)
            InsertByRating(ids, ratings, id, 70 - 10 * id);
        int number = 0;
        try {
            InsertByRating(ids, ratings, 4, rating);
        } catch (const Failure& failed) {
            number = failed.Number;
        }
        EXPECT_EQ(number, failure::OutOfRange) << rating;
        EXPECT_EQ(ratings[0], 3) << rating;
        for (int place = 1; place <= 3; ++place) {
            EXPECT_EQ(ids[place], place) << rating;
            EXPECT_EQ(ratings[place], 70 - 10 * place) << rating;
        }
    }
}

} // namespace
} // namespace dravik
