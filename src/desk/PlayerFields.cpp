#include "desk/PlayerFields.h"

#include "league/Arithmetic.h"

#include <optional>

namespace dravik {

namespace {

// A limit of a number, and what a number beyond it becomes.
struct Bound {
    long long At;
    long long Becomes;
};

// The limits of a number. What is above the upper one is cut first.
struct Limits {
    std::optional<Bound> Above = {};
    std::optional<Bound> Below = {};

    [[nodiscard]] double Applied(double value) const
    {
        if (Above && value > static_cast<double>(Above->At))
            value = static_cast<double>(Above->Becomes);
        if (Below && value < static_cast<double>(Below->At))
            value = static_cast<double>(Below->Becomes);
        return value;
    }
};

Limits AtLeastOne(const League& /*rules*/) { return {.Below = Bound{1, 1}}; }
Limits BelowOneIsZero(const League& /*rules*/) { return {.Below = Bound{1, 0}}; }
Limits ContractYears(const League& /*rules*/) { return {.Above = Bound{9, 9}, .Below = Bound{1, 0}}; }
Limits UpTo99(const League& /*rules*/) { return {.Above = Bound{99, 99}, .Below = Bound{0, 0}}; }
Limits UpTo100(const League& /*rules*/) { return {.Above = Bound{100, 100}, .Below = Bound{0, 0}}; }

Limits SalariesOfLeague(const League& rules)
{
    const long long most = rules.MaxSalary;
    const long long least = rules.MinSalary;
    return {.Above = Bound{most, most}, .Below = Bound{least, least}};
}

// Whether a contract of so many years may be given. Why not is told.
bool AllowsYears(const Work& work, PersonId who, long long years)
{
    const bool plays = OnPerson(work.League, who, [](const auto& person) { return person.Team != 0; });
    if (years != 0 || !plays || work.League.LeagueData.OffSeason)
        return true;
    work.Says.ShowBox("Zero year contract is not allowed for players who are playing in a team.", box::Information);
    return false;
}

// A number of the record: its limits, where it stands, what may refuse it, and what follows from it.
struct NumberRow {
    NumberField Field;
    Limits (*Range)(const League& rules);
    long long (*Read)(const Tables& league, PersonId who);
    void (*Store)(Tables& league, PersonId who, long long value);
    bool (*Allows)(const Work& work, PersonId who, long long now) = nullptr;
    void (*Follow)(const Work& work, PersonId who, long long before, long long now, const TellTurn& turns) = nullptr;
};

struct TextRow {
    TextField Field;
    InputMode Mode;
    std::size_t Width;
    std::string (*Read)(const Tables& league, PersonId who);
    void (*Store)(Tables& league, PersonId who, std::string_view text);
};

struct FlagRow {
    FlagField Field;
    Boolean Player::*OfSkater;
    Boolean Goalie::*OfGoalie;
};

template <auto OfSkater, auto OfGoalie>
long long ReadNumber(const Tables& league, PersonId who)
{
    return who.IsGoalie ? static_cast<long long>(league.Goalies[who.Slot].*OfGoalie)
                        : static_cast<long long>(league.Players[who.Slot].*OfSkater);
}

template <auto OfSkater, auto OfGoalie>
void StoreNumber(Tables& league, PersonId who, long long value)
{
    if (who.IsGoalie)
        league.Goalies[who.Slot].*OfGoalie = value;
    else
        league.Players[who.Slot].*OfSkater = value;
}

template <auto OfSkater, auto OfGoalie>
constexpr NumberRow Number(NumberField field, Limits (*range)(const League&))
{
    return {field, range, ReadNumber<OfSkater, OfGoalie>, StoreNumber<OfSkater, OfGoalie>};
}

constexpr NumberRow With(NumberRow row, decltype(NumberRow::Allows) allows, decltype(NumberRow::Follow) follow)
{
    row.Allows = allows;
    row.Follow = follow;
    return row;
}

template <std::size_t N, Text<N> Player::*OfSkater, Text<N> Goalie::*OfGoalie>
constexpr TextRow Words(TextField field, InputMode mode)
{
    return {
        field, mode, N,
        [](const Tables& league, PersonId who) {
            return (who.IsGoalie ? league.Goalies[who.Slot].*OfGoalie : league.Players[who.Slot].*OfSkater).Trimmed();
        },
        [](Tables& league, PersonId who, std::string_view text) {
            (who.IsGoalie ? league.Goalies[who.Slot].*OfGoalie : league.Players[who.Slot].*OfSkater) = text;
        }};
}

// The record. The height alone sinks to 0.
// clang-format off
constexpr NumberRow Numbers[] = {
    Number<&Player::Age, &Goalie::Age>(NumberField::Age, AtLeastOne),
    Number<&Player::Weight, &Goalie::Weight>(NumberField::Weight, AtLeastOne),
    Number<&Player::Height, &Goalie::Height>(NumberField::Height, BelowOneIsZero),
    With(Number<&Player::Contract, &Goalie::Contract>(NumberField::Contract, ContractYears), AllowsYears, nullptr),
    Number<&Player::Salary, &Goalie::Salary>(NumberField::Salary, SalariesOfLeague),
    With(Number<&Player::Condition, &Goalie::Condition>(NumberField::Condition, UpTo100), nullptr, FollowCondition),
    With(Number<&Player::Suspension, &Goalie::Suspension>(NumberField::Suspension, UpTo99), nullptr, FollowSuspension),
};
constexpr TextRow Texts[] = {
    Words<40, &Player::Name, &Goalie::Name>(TextField::Name, InputMode::NumbersAndLetters),
    Words<3, &Player::Country, &Goalie::Country>(TextField::Country, InputMode::Letters),
    Words<40, &Player::Injury, &Goalie::Injury>(TextField::Injury, InputMode::NumbersAndLetters),
};
constexpr FlagRow Flags[] = {
    {FlagField::Rookie, &Player::Rookie, &Goalie::Rookie},
    {FlagField::NoTrade, &Player::NoTrade, &Goalie::NoTrade},
    {FlagField::NoApplyRerate, &Player::NoApplyRerate, &Goalie::NoApplyRerate},
};
// clang-format on

template <class Table>
constexpr bool StandsInOrder(const Table& table)
{
    int place = 0;
    for (const auto& row : table)
        if (static_cast<int>(row.Field) != place++)
            return false;
    return true;
}
static_assert(StandsInOrder(Numbers) && StandsInOrder(Texts) && StandsInOrder(Flags));

const NumberRow& RowOf(NumberField field) { return Numbers[static_cast<int>(field)]; }
const TextRow& RowOf(TextField field) { return Texts[static_cast<int>(field)]; }

} // namespace

long long NumberOf(const Tables& league, PersonId who, NumberField field) { return RowOf(field).Read(league, who); }

long long LimitedNumber(const League& rules, NumberField field, std::string_view text)
{
    return RoundToInt32(RowOf(field).Range(rules).Applied(LeadingNumber(text)));
}

bool SetNumber(const Work& work, PersonId who, NumberField field, std::string_view text, const TellTurn& turns)
{
    const NumberRow& row = RowOf(field);
    const long long now = LimitedNumber(work.League.LeagueData, field, text);
    if (row.Allows != nullptr && !row.Allows(work, who, now))
        return false;
    const long long before = row.Read(work.League, who);
    row.Store(work.League, who, now);
    work.Modified = true;
    if (row.Follow != nullptr)
        row.Follow(work, who, before, now, turns);
    return true;
}

InputMode ModeOf(TextField field) { return RowOf(field).Mode; }

std::string TextOf(const Tables& league, PersonId who, TextField field) { return RowOf(field).Read(league, who); }

std::string CutText(TextField field, std::string_view text) { return std::string(text.substr(0, RowOf(field).Width)); }

void SetText(const Work& work, PersonId who, TextField field, std::string_view text)
{
    RowOf(field).Store(work.League, who, text);
    work.Modified = true;
}

long long RatingOf(const Tables& league, PersonId who, int rating)
{
    return OnPerson(league, who, [rating](const auto& person) -> long long { return person.Stats[rating]; });
}

long long TypedRating(std::string_view text) { return RoundToInt16(LeadingNumber(text)); }

void SetRating(const Work& work, PersonId who, int rating, std::string_view text)
{
    const long long typed = TypedRating(text);
    OnPerson(work.League, who, [&](auto& person) { person.Stats[rating] = typed; });
    work.Modified = true;
}

std::string EmployerOf(const Tables& league, PersonId who)
{
    return OnPerson(league, who, [&](const auto& person) {
        const bool isHired = person.Team != 0 && league.Teams[person.Team].InUse;
        return isHired ? league.Teams[person.Team].Name.Trimmed() : std::string();
    });
}

void SetFlag(const Work& work, PersonId who, FlagField field, bool on)
{
    const FlagRow& row = Flags[static_cast<int>(field)];
    (who.IsGoalie ? work.League.Goalies[who.Slot].*row.OfGoalie : work.League.Players[who.Slot].*row.OfSkater) = on;
}

} // namespace dravik
