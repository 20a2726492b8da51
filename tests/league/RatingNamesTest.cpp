#include "league/RatingNames.h"
#include "league/Positions.h"
#include "league/RatingWords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace dravik {
namespace {

using ::testing::ElementsAre;

template <class Table>
std::vector<std::string> All(const Table& names)
{
    return {names.begin(), names.end()};
}

TEST(RatingNamesTest, ThePositionsHaveTheirNamesInOrder)
{
    EXPECT_THAT(All(PositionName), ElementsAre("C", "LW", "RW", "D", "G"));
    EXPECT_EQ(PositionName[position::LeftWing], "LW");
    EXPECT_EQ(PositionName[position::Goalie], "G");
}

TEST(RatingNamesTest, TheRatingsOfASkaterHaveTheirCaptionsInOrder)
{
    EXPECT_THAT(All(SkaterStatName), ElementsAre("CK", "FG", "DI", "SK", "ST", "DU", "PH", "FO", "PA", "SC", "DF", "EX",
                                                 "LD", "MO", "PO", "OV"));
    EXPECT_THAT(All(SkaterGroupName), ElementsAre("IT", "PY", "PC", "SC", "DF", "ME", "PO", "OV"));
}

TEST(RatingNamesTest, TheRatingsOfAGoalieHaveTheirCaptionsInOrder)
{
    EXPECT_THAT(All(GoalieStatName),
                ElementsAre("SK", "DU", "ST", "SZ", "AG", "RB", "SC", "HS", "RT", "EX", "LD", "MO", "PO", "OV"));
    EXPECT_THAT(All(GoalieGroupName), ElementsAre("PH", "RD", "SC", "HS", "RT", "ME", "PO", "OV"));
}

TEST(RatingNamesTest, EveryCaptionHasItsWords)
{
    EXPECT_THAT(All(SkaterStatWords),
                ElementsAre("Checking", "Fighting", "Discipline", "Skating", "Strength", "Durability", "Puck handling",
                            "Face-offs", "Passing", "Scoring", "Defense", "Experience", "Leadership", "Morale",
                            "Potential", "Overall"));
    EXPECT_THAT(All(SkaterGroupWords), ElementsAre("Intensity", "Physique", "Puck control", "Scoring", "Defense",
                                                   "Mental", "Potential", "Overall"));
    EXPECT_THAT(All(GoalieStatWords),
                ElementsAre("Skating", "Durability", "Strength", "Size", "Agility", "Rebounds", "Shot control",
                            "Hand speed", "Reaction", "Experience", "Leadership", "Morale", "Potential", "Overall"));
    EXPECT_THAT(All(GoalieGroupWords), ElementsAre("Physique", "Rebounds", "Shot control", "Hand speed", "Reaction",
                                                   "Mental", "Potential", "Overall"));
}

TEST(RatingNamesTest, GoaliesAndProspectsAreCountedBehindAllSkaters)
{
    EXPECT_EQ(GoalieOffset, 10000);
    EXPECT_EQ(ProspectOffset, 20000);
}

TEST(RatingNamesTest, TheNamedRatingsStandWhereTheirCaptionsDo)
{
    EXPECT_EQ(SkaterStatName[skater::CK], "CK");
    EXPECT_EQ(SkaterStatName[skater::FG], "FG");
    EXPECT_EQ(SkaterStatName[skater::DI], "DI");
    EXPECT_EQ(SkaterStatName[skater::SK], "SK");
    EXPECT_EQ(SkaterStatName[skater::ST], "ST");
    EXPECT_EQ(SkaterStatName[skater::DU], "DU");
    EXPECT_EQ(SkaterStatName[skater::PH], "PH");
    EXPECT_EQ(SkaterStatName[skater::FO], "FO");
    EXPECT_EQ(SkaterStatName[skater::PA], "PA");
    EXPECT_EQ(SkaterStatName[skater::SC], "SC");
    EXPECT_EQ(SkaterStatName[skater::DF], "DF");
    EXPECT_EQ(SkaterStatName[skater::EX], "EX");
    EXPECT_EQ(SkaterStatName[skater::LD], "LD");
    EXPECT_EQ(SkaterStatName[skater::MO], "MO");
    EXPECT_EQ(SkaterStatName[skater::PO], "PO");
    EXPECT_EQ(GoalieStatName[goalie::SK], "SK");
    EXPECT_EQ(GoalieStatName[goalie::DU], "DU");
    EXPECT_EQ(GoalieStatName[goalie::ST], "ST");
    EXPECT_EQ(GoalieStatName[goalie::SZ], "SZ");
    EXPECT_EQ(GoalieStatName[goalie::AG], "AG");
    EXPECT_EQ(GoalieStatName[goalie::RB], "RB");
    EXPECT_EQ(GoalieStatName[goalie::SC], "SC");
    EXPECT_EQ(GoalieStatName[goalie::HS], "HS");
    EXPECT_EQ(GoalieStatName[goalie::RT], "RT");
    EXPECT_EQ(GoalieStatName[goalie::EX], "EX");
    EXPECT_EQ(GoalieStatName[goalie::LD], "LD");
    EXPECT_EQ(GoalieStatName[goalie::MO], "MO");
    EXPECT_EQ(GoalieStatName[goalie::PO], "PO");
}

} // namespace
} // namespace dravik
