#include "files/RecordRanges.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr long long Slot = 7;

// What is told of a record that stands in `Slot`.
template <class Record>
std::vector<std::string> ToldOf(const Record& record)
{
    std::vector<std::string> told;
    const TellOutOfRange tell = [&](const std::string& words) { told.push_back(words); };
    if constexpr (requires { CheckRanges(record, Slot, tell); })
        CheckRanges(record, Slot, tell);
    else
        CheckRanges(record, tell);
    return told;
}

// Records that nothing is told of.
League SoundLeague()
{
    League league;
    for (int division = 1; division <= 6; ++division)
        league.Division[division].Conference = 1;
    return league;
}
Team SoundTeam()
{
    Team team;
    team.InUse = true;
    team.Number = Slot;
    team.Division = 1;
    return team;
}
Coach SoundCoach()
{
    Coach coach;
    coach.InUse = true;
    coach.Number = Slot;
    return coach;
}
template <class Person>
Person SoundPerson()
{
    Person person;
    person.InUse = true;
    person.Number = Slot;
    return person;
}
Player SoundPlayer()
{
    auto player = SoundPerson<Player>();
    player.Position = position::Center;
    return player;
}
ScheduleRow SoundRow()
{
    ScheduleRow row;
    row.ProGame = true;
    row.FarmGame = true;
    row.ProAway = row.ProHome = row.FarmAway = row.FarmHome = 1;
    return row;
}
FreeAgentOffer SoundOffer()
{
    FreeAgentOffer offer;
    offer.Id = 1;
    offer.Duration = 1;
    return offer;
}

// One number of a record, by the name that is told, and what it may be at the least and at the most, where there is a most.
template <class Record>
struct Number {
    std::string Name;
    std::function<long long(Record&, long long)> Put; // gives back what stands there then
    long long Least;
    std::optional<long long> Most;
};

// What a field takes at the least and at the most of itself.
template <class T>
constexpr bool Takes(const Field<T>& /*field*/, long long value)
{
    return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max();
}

// The number at `place` of a record; a value that the field itself cannot take leaves it as it is.
template <class Record, class Place>
Number<Record> At(const std::string& name, Place place, long long least, std::optional<long long> most = std::nullopt)
{
    const auto put = [place](Record& record, long long value) {
        auto& field = place(record);
        if (Takes(field, value))
            field = value;
        return static_cast<long long>(field);
    };
    return {.Name = name, .Put = put, .Least = least, .Most = most};
}
template <class Record, class T>
Number<Record> Of(const std::string& name, Field<T> Record::*member, long long least,
                  std::optional<long long> most = std::nullopt)
{
    return At<Record>(
        name, [member](Record& record) -> Field<T>& { return record.*member; }, least, most);
}
template <class Record, class T, long long First, long long Last>
void AddEach(std::vector<Number<Record>>& numbers, const std::string& name, Row<Field<T>, First, Last> Record::*member,
             long long least, std::optional<long long> most = std::nullopt)
{
    for (long long at = First; at <= Last; ++at)
        numbers.push_back(At<Record>(
            name + "(" + std::to_string(at) + ")",
            [member, at](Record& record) -> Field<T>& { return (record.*member)[at]; }, least, most));
}

// Every number may be what it is at the least and at the most, and nothing beyond it, which is told by its name.
template <class Record>
void ExpectBounds(const Record& sound, const std::vector<Number<Record>>& numbers)
{
    ASSERT_THAT(ToldOf(sound), IsEmpty());
    for (const Number<Record>& number : numbers) {
        SCOPED_TRACE(number.Name);
        Record record = sound;
        number.Put(record, number.Least);
        EXPECT_THAT(ToldOf(record), IsEmpty());
        if (number.Most) {
            ASSERT_EQ(number.Put(record, *number.Most), *number.Most);
            EXPECT_THAT(ToldOf(record), IsEmpty());
            if (const long long above = *number.Most + 1; number.Put(record, above) == above) {
                EXPECT_THAT(ToldOf(record),
                            ElementsAre(number.Name + ": " + std::to_string(above) + " is not from " +
                                        std::to_string(number.Least) + " to " + std::to_string(*number.Most)));
            }
        } else {
            constexpr long long most = 32767;
            ASSERT_EQ(number.Put(record, most), most);
            EXPECT_THAT(ToldOf(record), IsEmpty());
        }
        if (const long long below = number.Least - 1; number.Put(record, below) == below) {
            EXPECT_THAT(ToldOf(record), ElementsAre(number.Name + ": " + std::to_string(below) + " is " +
                                                    (number.Most ? "not from " + std::to_string(number.Least) + " to " +
                                                                       std::to_string(*number.Most)
                                                                 : "below " + std::to_string(number.Least))));
        }
    }
}

// One truth value of a record, by the name that is told.
template <class Record>
struct Truth {
    const char* Name;
    Boolean Record::*Member;
};

// Every truth value may be one of two words, and nothing next to them.
template <class Record>
void ExpectTruths(const Record& sound, const std::vector<Truth<Record>>& truths)
{
    for (const auto& [name, member] : truths) {
        SCOPED_TRACE(name);
        for (const long long word : {0, -1}) {
            Record record = sound;
            (record.*member).SetWord(word);
            EXPECT_THAT(ToldOf(record), IsEmpty());
        }
        for (const long long word : {1, -2}) {
            Record record = sound;
            (record.*member).SetWord(word);
            EXPECT_THAT(ToldOf(record),
                        ElementsAre(std::string(name) + ": " + std::to_string(word) + " is neither true nor false"));
        }
    }
}

template <class Person>
std::vector<Number<Person>> NumbersOfPeople()
{
    std::vector<Number<Person>> numbers{Of("Team", &Person::Team, 0, 100),
                                        Of("Age", &Person::Age, 0),
                                        Of("Weight", &Person::Weight, 0),
                                        Of("Height", &Person::Height, 0),
                                        Of("Salary", &Person::Salary, 0),
                                        Of("Condition", &Person::Condition, 0, 100),
                                        Of("Suspension", &Person::Suspension, 0, 99),
                                        Of("Status", &Person::Status, 0, 2),
                                        Of("ProGames", &Person::ProGames, 0)};
    AddEach(numbers, "Stats", &Person::Stats, 0, 100);
    return numbers;
}

template <class Person>
std::vector<Truth<Person>> TruthsOfPeople()
{
    return {{"Rookie", &Person::Rookie},
            {"Protected", &Person::Protected},
            {"NoApplyRerate", &Person::NoApplyRerate},
            {"TradeAvailable", &Person::TradeAvailable},
            {"NoTrade", &Person::NoTrade}};
}

// A record that is not in use may hold anything, but says so in one of the two words; one that is stands in its slot.
template <class Record>
void ExpectSlots(const Record& sound)
{
    Record record = sound;
    record.Number = Slot + 1;
    EXPECT_THAT(ToldOf(record), ElementsAre("Number: 8 stands in slot 7"));
    record.InUse = false;
    EXPECT_THAT(ToldOf(record), IsEmpty());
    record.InUse.SetWord(1);
    EXPECT_THAT(ToldOf(record), ElementsAre("InUse: 1 is neither true nor false"));
}

TEST(RecordRangesTest, NumbersOfSkatersHaveTheirBounds)
{
    std::vector<Number<Player>> numbers = NumbersOfPeople<Player>();
    numbers.push_back(Of("Position", &Player::Position, 1, 4));
    ExpectBounds(SoundPlayer(), numbers);
    ExpectTruths(SoundPlayer(), TruthsOfPeople<Player>());
    ExpectSlots(SoundPlayer());
}

TEST(RecordRangesTest, NumbersOfGoaliesHaveTheirBounds)
{
    const auto sound = SoundPerson<Goalie>();
    ExpectBounds(sound, NumbersOfPeople<Goalie>());
    ExpectTruths(sound, TruthsOfPeople<Goalie>());
    ExpectSlots(sound);
}

TEST(RecordRangesTest, NumbersOfCoachesHaveTheirBounds)
{
    std::vector<Number<Coach>> numbers{Of("Team", &Coach::Team, 0, 100), Of("Age", &Coach::Age, 0),
                                       Of("Salary", &Coach::Salary, 0)};
    AddEach(numbers, "Ratings", &Coach::Ratings, 0, 100);
    ExpectBounds(SoundCoach(), numbers);
    ExpectSlots(SoundCoach());
}

TEST(RecordRangesTest, NumbersOfTeamsHaveTheirBounds)
{
    const auto farm = [](Int16 FarmTeam::*member) {
        return [member](Team& team) -> Int16& { return team.Farm.*member; };
    };
    std::vector<Number<Team>> numbers{Of("Division", &Team::Division, 1, 6),
                                      Of("Captain", &Team::Captain, 0, 10000),
                                      Of("TotalAttendance", &Team::TotalAttendance, 0),
                                      Of("ProCoach", &Team::ProCoach, -32768, 500),
                                      Of("SeasonGames", &Team::SeasonGames, 0),
                                      Of("ProMorale", &Team::ProMorale, 0, 100),
                                      Of("ProtectedCount", &Team::ProtectedCount, 0),
                                      Of("GamesPlayed", &Team::GamesPlayed, 0),
                                      Of("HomeGames", &Team::HomeGames, 0),
                                      At<Team>("Farm.FarmCoach", farm(&FarmTeam::FarmCoach), -32768, 500),
                                      At<Team>("Farm.FarmMorale", farm(&FarmTeam::FarmMorale), 0, 100),
                                      Of("LinesLoadCount", &Team::LinesLoadCount, 0),
                                      Of("OffersMade", &Team::OffersMade, 0)};
    AddEach(numbers, "Assistant", &Team::Assistant, 0, 10000);
    AddEach(numbers, "ArenaCapacity", &Team::ArenaCapacity, 0);
    AddEach(numbers, "TicketPrice", &Team::TicketPrice, 0);
    ExpectBounds(SoundTeam(), numbers);
    ExpectSlots(SoundTeam());
}

// The slots of a line-up, of which every one names a skater or a goalie, on each of ten days, pro and farm.
std::vector<Number<Team>> SlotsOf(const std::string& where, const std::function<Lines&(Team&)>& lines)
{
    std::vector<Number<Team>> slots;
    const auto grid = [&](const std::string& name, auto member, int numbers, int places) {
        for (int number = 1; number <= numbers; ++number)
            for (int place = 1; place <= places; ++place)
                slots.push_back(At<Team>(
                    where + name + "(" + std::to_string(number) + "," + std::to_string(place) + ")",
                    [=](Team& team) -> Int16& { return (lines(team).*member)(number, place); }, 0, 10000));
    };
    const auto row = [&](const std::string& name, auto member, int last) {
        for (int at = 1; at <= last; ++at)
            slots.push_back(At<Team>(
                where + name + "(" + std::to_string(at) + ")",
                [=](Team& team) -> Int16& { return (lines(team).*member)[at]; }, 0, 10000));
    };
    const auto one = [&](const std::string& name, Int16 Lines::*member, long long least,
                         std::optional<long long> most) {
        slots.push_back(At<Team>(
            where + name, [=](Team& team) -> Int16& { return lines(team).*member; }, least, most));
    };
    grid("NormalForward", &Lines::NormalForward, 4, 3);
    grid("NormalDefense", &Lines::NormalDefense, 4, 2);
    grid("PPForward", &Lines::PPForward, 2, 3);
    grid("PPDefense", &Lines::PPDefense, 2, 2);
    grid("PKForward", &Lines::PKForward, 2, 2);
    grid("PKDefense", &Lines::PKDefense, 2, 2);
    grid("FourVsFourForward", &Lines::FourVsFourForward, 2, 2);
    grid("FourVsFourDefense", &Lines::FourVsFourDefense, 2, 2);
    grid("PK3Defense", &Lines::PK3Defense, 2, 2);
    row("PK3Forward", &Lines::PK3Forward, 2);
    row("ExtraForward", &Lines::ExtraForward, 5);
    row("ExtraDefense", &Lines::ExtraDefense, 5);
    row("PenaltyShot", &Lines::PenaltyShot, 5);
    one("StartGoalie", &Lines::StartGoalie, 0, 1000);
    one("BackupGoalie", &Lines::BackupGoalie, 0, 1000);
    one("PullGoalerMinGoal", &Lines::PullGoalerMinGoal, 0, std::nullopt);
    one("PullGoalerMinPct", &Lines::PullGoalerMinPct, 0, std::nullopt);
    return slots;
}

TEST(RecordRangesTest, SlotsOfEveryDayHaveTheirBounds)
{
    for (int day = 1; day <= 10; ++day) {
        const std::string number = std::to_string(day);
        ExpectBounds(SoundTeam(),
                     SlotsOf("ProLines(" + number + ").", [day](Team& team) -> Lines& { return team.ProLines[day]; }));
        ExpectBounds(SoundTeam(), SlotsOf("Farm.FarmLines(" + number + ").",
                                          [day](Team& team) -> Lines& { return team.Farm.FarmLines[day]; }));
    }
}

TEST(RecordRangesTest, AStrategyHasFivePointsAtTheMost)
{
    Team team = SoundTeam();
    Lines& lines = team.ProLines[3];
    for (int part = 0; part <= 2; ++part) {
        lines.Strategy = {};
        lines.Strategy[part] = 5;
        EXPECT_THAT(ToldOf(team), IsEmpty());
        const std::string name = "ProLines(3).Strategy(" + std::to_string(part) + "): ";
        lines.Strategy[part] = 6;
        EXPECT_THAT(ToldOf(team), ElementsAre(name + "6 is not from 0 to 5",
                                              "ProLines(3).Strategy, all points: 6 is not from 0 to 5"));
        lines.Strategy[part] = -1;
        EXPECT_THAT(ToldOf(team), ElementsAre(name + "-1 is not from 0 to 5",
                                              "ProLines(3).Strategy, all points: -1 is not from 0 to 5"));
    }
    lines.Strategy[0] = 1;
    lines.Strategy[1] = 2;
    lines.Strategy[2] = 2;
    EXPECT_THAT(ToldOf(team), IsEmpty());
    lines.Strategy[2] = 3;
    EXPECT_THAT(ToldOf(team), ElementsAre("ProLines(3).Strategy, all points: 6 is not from 0 to 5"));
}

TEST(RecordRangesTest, NumbersOfTheLeagueHaveTheirBounds)
{
    ExpectBounds(SoundLeague(), {Of("SalaryCap", &League::SalaryCap, 0), Of("MinSalary", &League::MinSalary, 0),
                                 Of("MaxSalary", &League::MaxSalary, 0), Of("FarmSalaryPct", &League::FarmSalaryPct, 0),
                                 Of("MaxProtected", &League::MaxProtected, 0)});
    ExpectTruths<League>(SoundLeague(), {{"PayrollSkipsSuspended", &League::PayrollSkipsSuspended},
                                         {"ShowOverall", &League::ShowOverall},
                                         {"ShowAllRatings", &League::ShowAllRatings},
                                         {"TradeDeadlinePassed", &League::TradeDeadlinePassed},
                                         {"LinesOneTwoExclusive", &League::LinesOneTwoExclusive},
                                         {"TicketRuleFlag", &League::TicketRuleFlag},
                                         {"FantasyDraft", &League::FantasyDraft},
                                         {"EntryDraft", &League::EntryDraft},
                                         {"ScheduleShown", &League::ScheduleShown},
                                         {"TradeDeadlineInForce", &League::TradeDeadlineInForce},
                                         {"WaiverAllowed", &League::WaiverAllowed},
                                         {"FarmEnabled", &League::FarmEnabled},
                                         {"HideFinanceAverages", &League::HideFinanceAverages},
                                         {"OffSeason", &League::OffSeason},
                                         {"ExpenseFlag", &League::ExpenseFlag},
                                         {"FarmPayrollInCap", &League::FarmPayrollInCap},
                                         {"PayrollIncludesBonus", &League::PayrollIncludesBonus},
                                         {"AutoRosterDisabled", &League::AutoRosterDisabled},
                                         {"OfferRuleFlag", &League::OfferRuleFlag},
                                         {"CoachPayrollInCap", &League::CoachPayrollInCap},
                                         {"FarmRosterRequired", &League::FarmRosterRequired}});
}

TEST(RecordRangesTest, ADateIsFromTheYear100To9999)
{
    League league = SoundLeague();
    for (const double date : {-657434.0, 0.0, 2958465.999}) {
        league.FileDate = date;
        EXPECT_THAT(ToldOf(league), IsEmpty()) << date;
    }
    for (const double date : {-657434.001, 2958466.0, std::numeric_limits<double>::quiet_NaN()}) {
        league.FileDate = date;
        EXPECT_THAT(ToldOf(league), ElementsAre("FileDate is no date")) << date;
    }
}

// With any other number than six the third and the sixth division are not played.
TEST(RecordRangesTest, DivisionsThatArePlayedAreInOneOfTwoConferences)
{
    for (const int count : {4, 5, 6, 7})
        for (int division = 1; division <= 6; ++division)
            for (const int conference : {0, 3}) {
                League league = SoundLeague();
                league.DivisionCount = count;
                league.Division[division].Conference = 2;
                EXPECT_THAT(ToldOf(league), IsEmpty());
                league.Division[division].Conference = conference;
                if (count != 6 && (division == 3 || division == 6))
                    EXPECT_THAT(ToldOf(league), IsEmpty()) << count << " " << division;
                else
                    EXPECT_THAT(ToldOf(league), ElementsAre("Division(" + std::to_string(division) + ").Conference: " +
                                                            std::to_string(conference) + " is not from 1 to 2"))
                        << count;
            }
}

TEST(RecordRangesTest, TeamsOfAGameAreLookedAtWhereThereIsOne)
{
    ExpectBounds(SoundRow(),
                 {Of("ProAway", &ScheduleRow::ProAway, 1, 100), Of("ProHome", &ScheduleRow::ProHome, 1, 100),
                  Of("FarmAway", &ScheduleRow::FarmAway, 1, 100), Of("FarmHome", &ScheduleRow::FarmHome, 1, 100)});
    ExpectTruths<ScheduleRow>(SoundRow(),
                              {{"ProPlayed", &ScheduleRow::ProPlayed}, {"FarmPlayed", &ScheduleRow::FarmPlayed}});
    ScheduleRow row = SoundRow();
    row.ProAway = row.ProHome = row.FarmAway = row.FarmHome = 0;
    row.ProPlayed.SetWord(5);
    row.FarmPlayed.SetWord(5);
    row.FarmGame = false;
    EXPECT_THAT(ToldOf(row), ElementsAre("ProPlayed: 5 is neither true nor false", "ProAway: 0 is not from 1 to 100",
                                         "ProHome: 0 is not from 1 to 100"));
    row.ProGame = false;
    EXPECT_THAT(ToldOf(row), IsEmpty());
    row.ProGame.SetWord(2);
    row.FarmGame.SetWord(3);
    EXPECT_THAT(ToldOf(row),
                ElementsAre("ProGame: 2 is neither true nor false", "FarmGame: 3 is neither true nor false"));
}

TEST(RecordRangesTest, NumbersOfRosterChangesAndOffersHaveTheirBounds)
{
    ExpectBounds(RosterChange{}, {Of("Status", &RosterChange::Status, 0, 2)});
    ExpectTruths<RosterChange>(
        {}, {{"Protected", &RosterChange::Protected}, {"TradeAvailable", &RosterChange::TradeAvailable}});
    ExpectBounds(SoundOffer(), {Of("Id", &FreeAgentOffer::Id, 1, 11000), Of("Salary", &FreeAgentOffer::Salary, 0),
                                Of("Duration", &FreeAgentOffer::Duration, 1, 9)});
}

} // namespace
} // namespace dravik
