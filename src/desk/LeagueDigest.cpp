#include "desk/LeagueDigest.h"

#include "desk/Journal.h"
#include "league/Failure.h"
#include "rules/Overall.h"
#include "rules/SalaryCap.h"
#include "rules/StatRows.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace dravik {

namespace {

constexpr std::string_view DigestMagic = "DRVKDIGFV1S";

struct HeadRecord {
    Int16 MagicLength;
    Text<DigestMagic.size()> Magic;
    Text<5> LeagueCode;
    Float64 FileDate;
    Byte Flags;
    Byte SalaryCapMode;
    Int32 SalaryCap;
    Int16 Teams;
    Int16 Skaters;
    Int16 Goalies;
};
static_assert(sizeof(HeadRecord) == 38 && alignof(HeadRecord) == 1);

struct TeamRecord {
    Byte Number;
    Byte HasPayroll;
    Int32 Cash;
    Int32 Payroll;
    Int16 LinesLoaded;
};
static_assert(sizeof(TeamRecord) == 12 && alignof(TeamRecord) == 1);

struct PersonRecord {
    Int16 Slot;
    Int32 Identity;
    Byte Team;
    Byte Age;
    Byte Contract;
    Byte Condition;
    Byte Suspension;
    Byte Status;
    Byte Overall;
    Byte NameLength;  // of the name behind the record; 0 = it is not kept
    Byte RatingCount; // of the ratings behind that, a byte each; 0 = they are not kept
};
static_assert(sizeof(PersonRecord) == 15 && alignof(PersonRecord) == 1);

constexpr unsigned FlagAllRatings = 1;
constexpr unsigned FlagOverall = 2;
constexpr unsigned FlagDeadline = 4;
constexpr unsigned AllFlags = 7;

std::uint8_t AsByte(long long number)
{
    return static_cast<std::uint8_t>(std::clamp<long long>(number, 0, std::numeric_limits<std::uint8_t>::max()));
}

std::size_t LengthOf(const Text<40>& name) { return name.Trimmed().size(); }

// Different for different names but for a chance in thousands of millions.
std::uint32_t IdentityOf(const std::string& name)
{
    constexpr std::uint32_t start = 0x811C9DC5U;
    constexpr std::uint32_t factor = 0x01000193U;
    std::uint32_t number = start;
    for (const char character : name)
        number = (number ^ static_cast<unsigned char>(character)) * factor;
    return number;
}

template <class Person>
PersonDigest DigestOf(const Tables& league, const ShownRatings& shown, const Person& person, PersonId who)
{
    PersonDigest digest{.Who = who,
                        .Identity = IdentityOf(person.Name.Trimmed()),
                        .Name = person.Name,
                        .Team = TeamTable::Has(person.Team) ? AsByte(person.Team) : std::uint8_t{0},
                        .Age = AsByte(person.Age),
                        .Contract = AsByte(person.Contract),
                        .Condition = AsByte(person.Condition),
                        .Suspension = AsByte(person.Suspension),
                        .Status = AsByte(person.Status)};
    if (league.LeagueData.ShowOverall)
        digest.Overall = AsByte(OverallAt(league, PositionOf(person), who.Slot).value_or(0));
    const auto tell = [&digest](int row, const StatRow& rating) {
        digest.Ratings.at(static_cast<std::size_t>(row) - 1) = AsByte(rating.Value);
        digest.RatingCount = AsByte(row);
    };
    if (who.IsGoalie)
        TellGoalieRatings(league, who.Slot, shown.Goalie, tell);
    else
        TellSkaterRatings(league, who.Slot, shown.Skater, tell);
    return digest;
}

template <class Table>
void AddPeople(const Tables& league, const Table& people, std::vector<PersonDigest>& to)
{
    const ShownRatings shown = RatingsShownBy(league.LeagueData);
    for (int slot = 1; slot <= Table::last; ++slot)
        if (const auto& person = people[slot]; person.InUse)
            to.push_back(DigestOf(league, shown, person, PersonIn<std::decay_t<decltype(person)>>(slot)));
}

std::optional<long long> PayrollOf(const Tables& league, int team)
{
    try {
        return StandingAgainstCap(league, team).Total;
    } catch (const Failure&) {
        return std::nullopt;
    }
}

template <class Record>
void Append(std::string& to, const Record& record)
{
    to.append(reinterpret_cast<const char*>(&record), sizeof record);
}

// What of a person is kept behind his record.
struct Kept {
    bool Name = false;
    bool Ratings = false;
};

// Names and ratings in the order in which they are missed, as far as `room` goes.
std::vector<Kept> KeepWithin(const std::vector<PersonDigest>& people, std::size_t room)
{
    std::vector<Kept> kept(people.size());
    const auto keep = [&](bool hasTeam, bool Kept::*what, const auto& size) {
        for (std::size_t i = 0; i < people.size(); ++i)
            if ((people[i].Team != 0) == hasTeam)
                if (const std::size_t wanted = size(people[i]); wanted <= room) {
                    room -= wanted;
                    kept[i].*what = true;
                }
    };
    const auto name = [](const PersonDigest& person) { return LengthOf(person.Name); };
    const auto ratings = [](const PersonDigest& person) { return std::size_t{person.RatingCount}; };
    for (const bool hasTeam : {true, false}) {
        keep(hasTeam, &Kept::Name, name);
        keep(hasTeam, &Kept::Ratings, ratings);
    }
    return kept;
}

// Takes records off the front of bytes, as long as there are enough.
class Taking {
public:
    explicit Taking(std::string_view all) : bytes(all) {}

    template <class Record>
    bool Take(Record& record)
    {
        if (bytes.size() < sizeof record)
            return false;
        std::memcpy(&record, bytes.data(), sizeof record);
        bytes.remove_prefix(sizeof record);
        return true;
    }
    std::optional<std::string_view> TakeBytes(std::size_t count)
    {
        if (bytes.size() < count)
            return std::nullopt;
        const std::string_view taken = bytes.substr(0, count);
        bytes.remove_prefix(count);
        return taken;
    }
    [[nodiscard]] bool IsDone() const { return bytes.empty(); }

private:
    std::string_view bytes;
};

bool TakeTeam(Taking& from, LeagueDigest& digest)
{
    TeamRecord record;
    if (!from.Take(record) || !TeamTable::Has(record.Number) || record.HasPayroll > 1 ||
        (!digest.Teams.empty() && record.Number <= digest.Teams.back().Number))
        return false;
    TeamDigest team{.Number = static_cast<int>(record.Number),
                    .Cash = record.Cash,
                    .LinesLoaded = record.LinesLoaded,
                    .Payroll = {}};
    if (record.HasPayroll == 1)
        team.Payroll = record.Payroll;
    digest.Teams.push_back(team);
    return true;
}

bool TakePerson(Taking& from, LeagueDigest& digest, bool isGoalie)
{
    constexpr std::size_t longest = sizeof(PersonDigest::Name);
    PersonRecord record;
    if (!from.Take(record))
        return false;
    PersonDigest person{.Who = {.IsGoalie = isGoalie, .Slot = static_cast<int>(record.Slot)},
                        .Identity = static_cast<std::uint32_t>(static_cast<std::int32_t>(record.Identity)),
                        .Team = AsByte(record.Team),
                        .Age = AsByte(record.Age),
                        .Contract = AsByte(record.Contract),
                        .Condition = AsByte(record.Condition),
                        .Suspension = AsByte(record.Suspension),
                        .Status = AsByte(record.Status),
                        .Overall = AsByte(record.Overall),
                        .RatingCount = AsByte(record.RatingCount)};
    const bool isBehind = digest.People.empty() || digest.People.back().Who.IsGoalie != isGoalie ||
                          digest.People.back().Who.Slot < person.Who.Slot;
    if (!person.Who.HasSlot() || person.Who.Slot == 0 || !isBehind || record.Team > TeamTable::last ||
        record.NameLength > static_cast<long long>(longest) || record.RatingCount > static_cast<long long>(MostRatings))
        return false;
    const auto name = from.TakeBytes(static_cast<std::size_t>(static_cast<long long>(record.NameLength)));
    const auto ratings = from.TakeBytes(person.RatingCount);
    if (!name || !ratings)
        return false;
    if (!name->empty())
        person.Name = *name;
    for (std::size_t i = 0; i < ratings->size(); ++i)
        person.Ratings.at(i) = static_cast<unsigned char>((*ratings)[i]);
    digest.People.push_back(person);
    return true;
}

} // namespace

bool PersonDigest::operator==(const PersonDigest& other) const
{
    return Who == other.Who && Identity == other.Identity && Name.Trimmed() == other.Name.Trimmed() &&
           Team == other.Team && Age == other.Age && Contract == other.Contract && Condition == other.Condition &&
           Suspension == other.Suspension && Status == other.Status && Overall == other.Overall &&
           RatingCount == other.RatingCount && Ratings == other.Ratings;
}

LeagueDigest DigestOf(const Tables& league)
{
    const League& rules = league.LeagueData;
    LeagueDigest digest{.LeagueCode = rules.LeagueCode,
                        .FileDate = rules.FileDate,
                        .ShowsAllRatings = static_cast<bool>(rules.ShowAllRatings),
                        .ShowsOverall = static_cast<bool>(rules.ShowOverall),
                        .IsDeadlineOver = static_cast<bool>(rules.TradeDeadlinePassed),
                        .SalaryCapMode = static_cast<int>(rules.SalaryCapMode),
                        .SalaryCap = rules.SalaryCap,
                        .Teams = {},
                        .People = {}};
    for (int number = 1; number <= TeamTable::last; ++number)
        if (const Team& team = league.Teams[number]; team.InUse)
            digest.Teams.push_back({.Number = number,
                                    .Cash = team.Cash,
                                    .LinesLoaded = team.LinesLoadCount,
                                    .Payroll = PayrollOf(league, number)});
    AddPeople(league, league.Players, digest.People);
    AddPeople(league, league.Goalies, digest.People);
    return digest;
}

std::string WriteDigest(const LeagueDigest& digest, std::size_t most)
{
    const auto goalies = std::count_if(digest.People.begin(), digest.People.end(),
                                       [](const PersonDigest& person) { return person.Who.IsGoalie; });
    HeadRecord head{.MagicLength = DigestMagic.size(),
                    .Magic = DigestMagic,
                    .LeagueCode = digest.LeagueCode,
                    .FileDate = digest.FileDate,
                    .Flags = (digest.ShowsAllRatings ? FlagAllRatings : 0) | (digest.ShowsOverall ? FlagOverall : 0) |
                             (digest.IsDeadlineOver ? FlagDeadline : 0),
                    .SalaryCapMode = digest.SalaryCapMode,
                    .SalaryCap = digest.SalaryCap,
                    .Teams = static_cast<long long>(digest.Teams.size()),
                    .Skaters = static_cast<long long>(digest.People.size()) - goalies,
                    .Goalies = goalies};
    const std::size_t ofEverybody =
        sizeof head + digest.Teams.size() * sizeof(TeamRecord) + digest.People.size() * sizeof(PersonRecord) + SealSize;
    const auto kept = KeepWithin(digest.People, most > ofEverybody ? most - ofEverybody : 0);
    std::string bytes;
    bytes.reserve(std::max(most, ofEverybody));
    Append(bytes, head);
    for (const TeamDigest& team : digest.Teams)
        Append(bytes, TeamRecord{.Number = team.Number,
                                 .HasPayroll = team.Payroll ? 1 : 0,
                                 .Cash = team.Cash,
                                 .Payroll = team.Payroll.value_or(0),
                                 .LinesLoaded = team.LinesLoaded});
    for (std::size_t i = 0; i < digest.People.size(); ++i) {
        const PersonDigest& person = digest.People[i];
        const std::string name = kept[i].Name ? person.Name.Trimmed() : std::string();
        const std::size_t ratings = kept[i].Ratings ? person.RatingCount : 0;
        Append(bytes, PersonRecord{.Slot = person.Who.Slot,
                                   .Identity = static_cast<std::int32_t>(person.Identity),
                                   .Team = person.Team,
                                   .Age = person.Age,
                                   .Contract = person.Contract,
                                   .Condition = person.Condition,
                                   .Suspension = person.Suspension,
                                   .Status = person.Status,
                                   .Overall = person.Overall,
                                   .NameLength = static_cast<long long>(name.size()),
                                   .RatingCount = static_cast<long long>(ratings)});
        bytes += name;
        bytes.append(reinterpret_cast<const char*>(person.Ratings.data()), ratings);
    }
    return bytes + WriteSeal(SealOver(0, bytes));
}

std::optional<LeagueDigest> ReadDigest(std::string_view bytes)
{
    HeadRecord head;
    if (bytes.size() > MostDigestBytes || bytes.size() < sizeof head + SealSize)
        return std::nullopt;
    const std::string_view sealed = bytes.substr(0, bytes.size() - SealSize);
    if (ReadSeal(bytes.substr(sealed.size())) != SealOver(0, sealed))
        return std::nullopt;
    Taking from(sealed);
    if (!from.Take(head) || head.MagicLength != static_cast<long long>(DigestMagic.size()) ||
        head.Magic.Raw() != DigestMagic || head.Flags > AllFlags)
        return std::nullopt;
    const auto flags = static_cast<unsigned>(static_cast<long long>(head.Flags));
    LeagueDigest digest{.LeagueCode = head.LeagueCode,
                        .FileDate = head.FileDate,
                        .ShowsAllRatings = (flags & FlagAllRatings) != 0,
                        .ShowsOverall = (flags & FlagOverall) != 0,
                        .IsDeadlineOver = (flags & FlagDeadline) != 0,
                        .SalaryCapMode = static_cast<int>(head.SalaryCapMode),
                        .SalaryCap = head.SalaryCap,
                        .Teams = {},
                        .People = {}};
    for (long long team = 0; team < head.Teams; ++team)
        if (!TakeTeam(from, digest))
            return std::nullopt;
    for (const bool isGoalie : {false, true})
        for (long long person = 0; person < (isGoalie ? head.Goalies : head.Skaters); ++person)
            if (!TakePerson(from, digest, isGoalie))
                return std::nullopt;
    if (!from.IsDone())
        return std::nullopt;
    return digest;
}

} // namespace dravik
