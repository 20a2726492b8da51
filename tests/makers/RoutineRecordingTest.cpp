#include "machine/Reporting.h"
#include "makers/RandomTeam.h"
#include "rules/Finance.h"
#include "rules/Waivers.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/Routines.h"

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <iomanip>
#include <sstream>
#include <zlib.h>

// What every routine of the rules and makers gave, showed, logged and left in the tables over 200 random leagues when it was
// recorded, held against what it does now. However the routines are built, this stays. A routine that is meant to do
// something else is recorded anew by running this test with the variable DRAVIK_RECORD naming the file to write.
namespace dravik {
namespace {

constexpr unsigned LeagueCount = 200;

// The part of the tables that the random leagues use, kept to put it back before each routine.
class KeptTables {
public:
    KeptTables()
    {
        for (const Region& region : Regions())
            bytes.insert(bytes.end(), region.Begin, region.Begin + region.Size);
    }

    void PutBack() const
    {
        const unsigned char* from = bytes.data();
        for (const Region& region : Regions()) {
            std::memcpy(region.Begin, from, region.Size);
            from += region.Size;
        }
    }

    static unsigned long Checksum(unsigned long sum)
    {
        for (const Region& region : Regions())
            sum = crc32(sum, region.Begin, static_cast<unsigned>(region.Size));
        return sum;
    }

private:
    struct Region {
        unsigned char* Begin;
        std::size_t Size;
    };

    template <class Table>
    static Region FirstOf(Table& table, long long count)
    {
        auto& first = *table.begin();
        return {reinterpret_cast<unsigned char*>(&first), sizeof first * static_cast<std::size_t>(count)};
    }

    static std::vector<Region> Regions()
    {
        return {{reinterpret_cast<unsigned char*>(&LeagueData), sizeof LeagueData},
                FirstOf(Teams, 6),
                FirstOf(Players, 160),
                FirstOf(Goalies, 20),
                FirstOf(Coaches, 6),
                FirstOf(RosterChanges, 160),
                FirstOf(RosterChangesGoalie, 20)};
    }

    ByteVector bytes;
};

std::string TextOf(const StatRows& rows)
{
    std::ostringstream text;
    for (const StatRow& row : rows.Ratings)
        text << row.Label << '=' << row.Value << ' ';
    text << rows.Overall;
    if (rows.OverallRow)
        text << rows.OverallRow->Label;
    return text.str();
}

// A figure that was not reached reads "-".
template <class Number>
std::string TextOf(const std::optional<Number>& number)
{
    std::ostringstream text;
    text << std::setprecision(17);
    if (number)
        text << *number;
    else
        text << '-';
    return text.str();
}

std::string TextOf(float number)
{
    std::ostringstream text;
    text << std::setprecision(9) << number;
    return text.str();
}

std::string SeasonOf(int team)
{
    SeasonFigures season;
    Reporting(Machine(), " in the season!", [&] { ProjectSeason(team, season); });
    std::string text = std::to_string(static_cast<int>(season.Form));
    const auto add = [&text](const auto& figure) { text += ' ' + TextOf(figure); };
    add(season.Cash);
    add(season.ProPayroll);
    add(season.FarmPayroll);
    add(season.HomeGamesLeft);
    add(season.GamesLeft);
    add(season.ExpensePerGame);
    add(season.SeasonExpense);
    add(season.AverageAttendance);
    add(season.AverageIncome);
    add(season.BankAccount);
    add(season.Revenue);
    return text;
}

// Calls `told` with every person of the team as a common number: a goalie is his index + 10000.
void EachId(int team, const std::function<void(int)>& told)
{
    for (int index = 1; index <= 150; ++index)
        if (Players[index].Team == team)
            told(index);
    for (int index = 1; index <= 18; ++index)
        if (Goalies[index].Team == team)
            told(index + GoalieOffset);
}

struct Routine {
    const char* Name;
    std::string (*Run)(int team);
};

std::string Truth(bool result) { return result ? "True" : "False"; }

template <void Maker(int, bool, int)>
std::string Made(int team)
{
    for (const int day : {1, 4, 10})
        Maker(team, true, day);
    return {};
}

template <bool Judge(int, bool, int, bool)>
std::string JudgedDays(int team)
{
    std::string text;
    for (int day = 1; day <= 10; ++day) {
        text += Truth(Judge(team, day % 2 == 0, day, day % 3 == 0)) + ": ";
        text += LastLinesText() + '\n';
    }
    return text;
}

constexpr Routine Routines[] = {
    {"CheckRoster",
     [](int team) {
         const bool complete = CheckRoster(team, true, false, true);
         return Truth(complete) + LastRosterText();
     }},
    {"CheckRosterWithCap",
     [](int team) {
         const bool complete = CheckRoster(team, false, true, false);
         return Truth(complete) + LastRosterText() + LastCapText() + std::to_string(RosterFixed);
     }},
    {"CheckSalaryCap",
     [](int team) {
         const bool within = CheckSalaryCap(team, true);
         return Truth(within) + LastCapText();
     }},
    {"CheckLine", JudgedDays<CheckLine>},
    {"CheckLineFarm", JudgedDays<CheckLineFarm>},
    {"CheckLineEmpty", [](int team) { return Truth(CheckLineEmpty(OpenLeague, Machine(), team, 1)); }},
    {"AutoRoster",
     [](int team) {
         AutoRoster(team, true, false);
         return std::string();
     }},
    {"AutoRosterPartial",
     [](int team) {
         AutoRoster(team, true, true);
         return std::string();
     }},
    {"AutoLines", Made<AutoLines>},
    {"AutoLinesPartial", Made<AutoLinesPartial>},
    {"AutoLinesFarm", Made<AutoLinesFarm>},
    {"WipesLines",
     [](int team) {
         WipesLines(team, 2, true);
         WipesLines(team, 3, false);
         return std::string();
     }},
    {"WipePlayerFromTeamLines",
     [](int team) {
         EachId(team, [team](int id) {
             if (id % 3 == 0)
                 WipePlayerFromTeamLines(team, id);
         });
         return std::string();
     }},
    {"WaiverCheck",
     [](int team) {
         std::string text;
         EachId(team, [&text](int id) { text += Truth(WaiverCheck(OpenLeague, Machine(), id)); });
         return text;
     }},
    {"CalculateOverall",
     [](int team) {
         std::string text;
         EachId(team, [&text](int id) {
             const bool isGoalie = id > GoalieOffset;
             const int position = isGoalie ? position::Goalie : static_cast<int>(Players[id].Position);
             text += std::to_string(CalculateOverall(position, isGoalie ? id - GoalieOffset : id)) + ' ';
         });
         return text;
     }},
    {"Payrolls",
     [](int team) {
         return TextOf(ProPayroll(OpenLeague, Machine(), team)) + ' ' +
                TextOf(FarmPayroll(OpenLeague, Machine(), team)) + ' ' +
                TextOf(CoachPayroll(OpenLeague, Machine(), team));
     }},
    {"ExpensePerGame", [](int team) { return std::to_string(ExpensePerGame(OpenLeague, Machine(), team)); }},
    {"Season", SeasonOf},
    {"PlayOnLine",
     [](int team) {
         std::string text;
         EachId(team, [&](int id) {
             if (id > GoalieOffset)
                 return;
             text += PlayOnLineString(team, id, 1) + std::to_string(PlayOnLineInteger(team, id, 2)) +
                     PlayOnLineStringFarm(team, id, 3) + std::to_string(PlayOnLineIntegerFarm(team, id, 4));
         });
         return text;
     }},
    {"StatRows",
     [](int team) {
         std::string text;
         EachId(team, [&text](int id) {
             text += TextOf(id > GoalieOffset ? GoalieStatRows(id - GoalieOffset) : SkaterStatRows(id));
         });
         return text;
     }},
};

class RoutineRecordingTest : public SmallLeague {
protected:
    // What one routine gives for a team, in eight digits.
    std::string Digest(const Routine& routine, int team)
    {
        RosterFixed = 0;
        Modified = false;
        std::string told = routine.Run(team);
        told += std::to_string(RosterFixed) + Truth(Modified);
        for (const Box& box : Machine.TakeBoxes())
            told += '\n' + std::to_string(box.Kind) + box.Text;
        const auto* bytes = reinterpret_cast<const unsigned char*>(told.data());
        std::ostringstream digest;
        digest << std::hex << std::setw(8) << std::setfill('0')
               << KeptTables::Checksum(crc32(0, bytes, static_cast<unsigned>(told.size())));
        return digest.str();
    }

    // One line a league: its number, then a digest for each routine in turn.
    std::string Record(unsigned seed)
    {
        ResetClientVariables();
        Machine.MessagesAllowed = true;
        SetOrdinaryRules();
        int team = 1;
        if (seed % 2 == 0) {
            Dice dice(seed);
            RollLeague(dice);
        } else {
            RandomTeam random(seed);
            team = RandomTeam::Team;
            if (seed % 4 == 1)
                random.FillForLines();
            else
                random.FillLoosely();
            random.ScatterOnLines();
        }
        LeagueData.ShowAllRatings = seed % 3 != 0;
        PlayerStatCount = LeagueData.ShowAllRatings ? 15 : 7;
        GoalieStatCount = LeagueData.ShowAllRatings ? 13 : 7;
        const KeptTables start;
        std::string line = std::to_string(seed);
        for (const Routine& routine : Routines) {
            start.PutBack();
            line += ' ' + Digest(routine, team);
        }
        return line;
    }
};

TEST_F(RoutineRecordingTest, EveryRoutineDoesWhatItDidWhenItWasRecorded)
{
    if (const char* target = std::getenv("DRAVIK_RECORD")) {
        std::ofstream file(target);
        for (unsigned seed = 1; seed <= LeagueCount; ++seed)
            file << Record(seed) << '\n';
    }
    std::ifstream recorded(DRAVIK_RECORDINGS "/routines.txt");
    ASSERT_TRUE(recorded) << "there is no recording";
    for (unsigned seed = 1; seed <= LeagueCount; ++seed) {
        std::string expected;
        ASSERT_TRUE(std::getline(recorded, expected));
        std::istringstream before(expected);
        std::istringstream now(Record(seed));
        std::string was;
        std::string is;
        before >> was;
        now >> is;
        ASSERT_EQ(was, is);
        for (const Routine& routine : Routines) {
            ASSERT_TRUE(before >> was && now >> is);
            EXPECT_EQ(was, is) << routine.Name << " in league " << seed;
        }
    }
}

} // namespace
} // namespace dravik
