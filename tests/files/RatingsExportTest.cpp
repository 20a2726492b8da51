#include "files/RatingsExport.h"

#include "support/ClientFileBytes.h"
#include "support/LeagueImage.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* PlayersHeader = "Name,Position,Country,Rookie,Age,Weight,Height,Contract,Salary,Stats 1,Stats "
                                      "2,Stats 3,Stats 4,Stats 5,Stats 6,Stats 7,Stats 8,Stats 9,Stats 10,Stats "
                                      "11,Stats 12,Stats 13,Stats 14\r\n";
constexpr const char* CoachesHeader =
    "Name,Country,Age,Contract,Salary,Physical,Defense,Offense,Discpline,Exp,Lead,Potential\r\n";

class RatingsExportTest : public SmallLeague {
protected:
    [[nodiscard]] std::string Written(const char* name) const
    {
        const ByteVector bytes = ReadWhole(Machine.InFolder(name));
        return {bytes.begin(), bytes.end()};
    }
    // The rows below the header.
    [[nodiscard]] std::string People() const
    {
        const std::string all = Written("PlayersRatings.csv");
        EXPECT_EQ(all.rfind(PlayersHeader, 0), 0U);
        return all.substr(std::string_view(PlayersHeader).size());
    }
    [[nodiscard]] std::string CoachRows() const
    {
        const std::string all = Written("CoachesRatings.csv");
        EXPECT_EQ(all.rfind(CoachesHeader, 0), 0U);
        return all.substr(std::string_view(CoachesHeader).size());
    }

    // Ratings 11, 12, 13 and so on, so that each column is known by its number.
    template <class Person>
    static Person& Counting(Person& person)
    {
        int rating = 10;
        for (auto& stat : person.Stats)
            stat = ++rating;
        return person;
    }

    static Coach& PutCoach(int slot)
    {
        Coach& coach = Coaches[slot];
        coach.InUse = true;
        coach.Name = "Tor Lindqvist";
        coach.Country = "SWE";
        coach.Age = 58;
        coach.Contract = 3;
        coach.Salary = 750000;
        int rating = 10;
        for (auto& each : coach.Ratings)
            each = ++rating;
        return coach;
    }
};

TEST_F(RatingsExportTest, AnEmptyLeagueGivesTwoFilesWithAHeaderOnly)
{
    ExportRatings(Machine.Folder());
    EXPECT_EQ(Written("PlayersRatings.csv"), PlayersHeader);
    EXPECT_EQ(Written("CoachesRatings.csv"), CoachesHeader);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RatingsExportTest, ASkaterIsHisFieldsThirteenRatingsAndHisPotential)
{
    Player& player = Counting(PutSkater(7, 5, position::RightWing, status::Pro));
    player.Name = "Ward Tilton";
    player.Age = 27;
    player.Weight = 195;
    player.Height = 73;
    player.Contract = 4;
    player.Salary = 1250000;
    ExportRatings(Machine.Folder());
    EXPECT_EQ(People(), "Ward Tilton,3,CAN,N,27,195,73,4,1250000,11,12,13,14,15,16,17,18,19,20,21,22,23,25\r\n");
}

TEST_F(RatingsExportTest, AGoalieStandsAtPositionFiveWithElevenRatingsHisPotentialAndTwoZeros)
{
    Goalie& keeper = Counting(PutGoalie(7, 5, status::Pro));
    keeper.Name = "Piet Vos";
    keeper.Age = 31;
    keeper.Weight = 180;
    keeper.Height = 71;
    keeper.Contract = 2;
    keeper.Salary = 900000;
    ExportRatings(Machine.Folder());
    EXPECT_EQ(People(), "Piet Vos,5,CAN,N,31,180,71,2,900000,11,12,13,14,15,16,17,18,19,20,21,23,0,0\r\n");
}

TEST_F(RatingsExportTest, ACoachIsHisFieldsAndSevenRatings)
{
    PutCoach(9);
    ExportRatings(Machine.Folder());
    EXPECT_EQ(CoachRows(), "Tor Lindqvist,SWE,58,3,750000,11,12,13,14,15,16,17\r\n");
}

TEST_F(RatingsExportTest, SkatersComeBeforeGoaliesAndBothInTheOrderOfTheirSlots)
{
    for (const int slot : {10000, 3, 1})
        PutSkater(slot, 5, position::Center, status::Pro).Name = "S" + std::to_string(slot);
    for (const int slot : {1000, 1})
        PutGoalie(slot, 5, status::Pro).Name = "G" + std::to_string(slot);
    ExportRatings(Machine.Folder());
    std::vector<std::string> names;
    const std::string rows = People();
    for (std::size_t at = 0; at < rows.size(); at = rows.find('\n', at) + 1)
        names.push_back(rows.substr(at, rows.find(',', at) - at));
    EXPECT_THAT(names, ElementsAre("S1", "S3", "S10000", "G1", "G1000"));
}

TEST_F(RatingsExportTest, TheLastCoachOfTheTableIsWrittenToo)
{
    PutCoach(500).Name = "Last";
    PutCoach(1).Name = "First";
    ExportRatings(Machine.Folder());
    EXPECT_EQ(CoachRows(),
              "First,SWE,58,3,750000,11,12,13,14,15,16,17\r\nLast,SWE,58,3,750000,11,12,13,14,15,16,17\r\n");
}

TEST_F(RatingsExportTest, OnlySlotsInUseAreWrittenAndThePlaceholdersNever)
{
    Players[0].InUse = true;
    Goalies[0].InUse = true;
    PutSkater(4, 5, position::Center, status::Pro).InUse.SetWord(1); // neither True nor False
    PutGoalie(4, 5, status::Pro).InUse = false;
    PutCoach(4).InUse.SetWord(1);
    ExportRatings(Machine.Folder());
    EXPECT_EQ(People(), "");
    EXPECT_EQ(CoachRows(), "");
}

TEST_F(RatingsExportTest, APotentialOfFiveIsFiveAndOneOfAHundredIsTen)
{
    for (const auto& [slot, potential] : {std::pair(1, 5), std::pair(2, 100), std::pair(3, 99), std::pair(4, -15)})
        PutSkater(slot, 5, position::Center, status::Pro).Stats[skater::PO] = potential;
    ExportRatings(Machine.Folder());
    std::vector<std::string> last;
    const std::string rows = People();
    for (std::size_t end = rows.find('\r'); end != std::string::npos; end = rows.find('\r', end + 1))
        last.push_back(rows.substr(rows.rfind(',', end) + 1, end - rows.rfind(',', end) - 1));
    EXPECT_THAT(last, ElementsAre("5", "10", "99", "-1"));
}

TEST_F(RatingsExportTest, EveryOtherRatingOfAHundredIsWhole)
{
    Player& player = PutSkater(1, 5, position::Center, status::Pro, 100);
    player.Stats[skater::MO] = 77; // left out
    Goalie& keeper = PutGoalie(1, 5, status::Pro, 100);
    keeper.Stats[goalie::MO] = 77;
    ExportRatings(Machine.Folder());
    EXPECT_EQ(People(),
              "Skater 1,1,CAN,N,25,200,72,2,1000000,100,100,100,100,100,100,100,100,100,100,100,100,100,10\r\n"
              "Goalie 1,5,CAN,N,25,200,72,2,1000000,100,100,100,100,100,100,100,100,100,100,100,100,0,0\r\n");
}

TEST_F(RatingsExportTest, ACoachsPotentialLosesItsThirdDigitAndHisOtherRatingsDoNot)
{
    for (auto& rating : PutCoach(1).Ratings)
        rating = 100;
    ExportRatings(Machine.Folder());
    EXPECT_EQ(CoachRows(), "Tor Lindqvist,SWE,58,3,750000,100,100,100,100,100,100,10\r\n");
}

TEST_F(RatingsExportTest, ANameWithACommaBreaksTheColumnCount)
{
    PutSkater(1, 5, position::Center, status::Pro).Name = "Tilton, \"Ward\"";
    ExportRatings(Machine.Folder());
    const std::string row = People();
    EXPECT_EQ(row.rfind("Tilton, \"Ward\",1,CAN,", 0), 0U);
    EXPECT_EQ(std::count(row.begin(), row.end(), ','), 23);
}

TEST_F(RatingsExportTest, NamesAreTrimmedAndCountriesAreNot)
{
    PutSkater(1, 5, position::Center, status::Pro).Name = "  Ward Tilton ";
    Players[1].Country = " U";
    PutGoalie(1, 5, status::Pro).Country = "US";
    PutCoach(1).Country = "S";
    ExportRatings(Machine.Folder());
    EXPECT_EQ(People().rfind("Ward Tilton,1, U ,N,", 0), 0U);
    EXPECT_NE(People().find("\r\nGoalie 1,5,US ,N,"), std::string::npos);
    EXPECT_EQ(CoachRows().rfind("Tor Lindqvist,S  ,58,", 0), 0U);
}

TEST_F(RatingsExportTest, AnEmptyNameIsAnEmptyColumn)
{
    PutSkater(1, 5, position::Center, status::Pro).Name = "";
    ExportRatings(Machine.Folder());
    EXPECT_EQ(People().rfind(",1,CAN,N,25,", 0), 0U);
}

TEST_F(RatingsExportTest, ARookieIsYOnlyWhenTheWordIsTrue)
{
    PutSkater(1, 5, position::Center, status::Pro).Rookie = true;
    PutSkater(2, 5, position::Center, status::Pro).Rookie.SetWord(1);
    PutGoalie(1, 5, status::Pro).Rookie = true;
    ExportRatings(Machine.Folder());
    EXPECT_NE(People().find("Skater 1,1,CAN,Y,25,"), std::string::npos);
    EXPECT_NE(People().find("Skater 2,1,CAN,N,25,"), std::string::npos);
    EXPECT_NE(People().find("Goalie 1,5,CAN,Y,25,"), std::string::npos);
}

TEST_F(RatingsExportTest, AccentedNamesKeepTheirBytes)
{
    PutCoach(1).Name = "R\xE9mi Gauthi\xE8re";
    ExportRatings(Machine.Folder());
    EXPECT_EQ(CoachRows().rfind("R\xE9mi Gauthi\xE8re,SWE,", 0), 0U);
}

TEST_F(RatingsExportTest, EarlierFilesAreReplacedAndNothingElseIsLeft)
{
    WriteWhole(Machine.InFolder("PlayersRatings.csv"), ByteVector(5000, 'x'));
    WriteWhole(Machine.InFolder("CoachesRatings.csv"), ByteVector(5000, 'x'));
    ExportRatings(Machine.Folder());
    EXPECT_EQ(Written("PlayersRatings.csv"), PlayersHeader);
    EXPECT_EQ(Written("CoachesRatings.csv"), CoachesHeader);
    namespace fs = std::filesystem;
    EXPECT_EQ(std::distance(fs::directory_iterator(Machine.Folder()), fs::directory_iterator()), 2);
}

TEST_F(RatingsExportTest, TheFirstFileIsClosedBeforeTheSecondIsMade)
{
    ExportRatings(Machine.Folder());
    EXPECT_THAT(Machine.FileOperations(), ElementsAre("create", "write", "close", "create", "write", "close"));
}

TEST_F(RatingsExportTest, ExportingTouchesNoRecord)
{
    TeamMaker(5).DressesFullRoster();
    PutCoach(1);
    const ByteVector before[] = {ImageOf(LeagueData), ImageOf(Teams), ImageOf(Players), ImageOf(Goalies),
                                 ImageOf(Coaches)};
    ExportRatings(Machine.Folder());
    EXPECT_TRUE(ImageOf(LeagueData) == before[0]);
    EXPECT_TRUE(ImageOf(Teams) == before[1]);
    EXPECT_TRUE(ImageOf(Players) == before[2]);
    EXPECT_TRUE(ImageOf(Goalies) == before[3]);
    EXPECT_TRUE(ImageOf(Coaches) == before[4]);
}

TEST_F(RatingsExportTest, AFileHeldOpenIsAFailure)
{
    Machine.FailFileOperation(1, failure::PermissionDenied);
    EXPECT_THROW(ExportRatings(Machine.Folder()), Failure);
    EXPECT_FALSE(std::filesystem::exists(Machine.InFolder("CoachesRatings.csv")));
}

TEST_F(RatingsExportTest, AFileBeingWrittenStaysAsFarAsItCame)
{
    for (int slot = 1; slot <= 10000; ++slot)
        PutSkater(slot, 5, position::Center, status::Pro);
    ExportRatings(Machine.Folder());
    const std::string whole = Written("PlayersRatings.csv");
    ASSERT_THAT(std::vector(Machine.FileOperations().begin(), Machine.FileOperations().begin() + 4),
                ElementsAre("create", "write", "write", "write"));
    Machine.FailFileOperation(4, failure::DiskFull);
    EXPECT_THROW(ExportRatings(Machine.Folder()), Failure);
    const std::string part = Written("PlayersRatings.csv");
    EXPECT_GT(part.size(), 100000U);
    EXPECT_LT(part.size(), whole.size());
    EXPECT_EQ(whole.compare(0, part.size(), part), 0);
}

} // namespace
} // namespace dravik
