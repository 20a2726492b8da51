#include "screens/squad/SquadColumns.h"

#include "desk/FreeAgents.h"
#include "league/RatingNames.h"
#include "league/RatingWords.h"
#include "rules/Overall.h"
#include "rules/PersonSigns.h"
#include "rules/SlotPositions.h"
#include "rules/StatRows.h"

#include <utility>

namespace dravik {

const Team* TeamOf(const SquadSight& sight, SquadPerson who)
{
    const long long number =
        OnPerson(*sight.League, who.Id(), [](const auto& person) -> long long { return person.Team; });
    if (!TeamTable::Has(number) || !sight.League->Teams[number].InUse)
        return nullptr;
    return &sight.League->Teams[number];
}

namespace {

constexpr int Today = 1; // the first of the ten days

// What `visit(person)` makes of a skater's or goalie's record.
template <class Visit>
auto Of(const SquadSight& sight, SquadPerson who, Visit&& visit)
{
    return OnPerson(*sight.League, who.Id(), std::forward<Visit>(visit));
}

using Found = std::optional<long long>;

std::string NameText(const SquadSight& sight, SquadPerson who, int /*rating*/) { return NameOf(*sight.League, who); }

std::string TeamText(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    const Team* team = TeamOf(sight, who);
    return team == nullptr ? std::string() : team->Abbre.Trimmed();
}

std::string TeamInWords(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    const Team* team = TeamOf(sight, who);
    return team == nullptr ? std::string() : team->Name.Trimmed();
}

Found PositionNumber(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    const int position = Of(sight, who, [](const auto& person) { return PositionOf(person); });
    return decltype(PositionName)::Has(position) ? Found(position) : std::nullopt;
}

std::string PositionText(const SquadSight& sight, SquadPerson who, int rating)
{
    const Found position = PositionNumber(sight, who, rating);
    return position ? std::string(PositionName[*position]) : std::string();
}

// Where somebody stands is his team's decision.
Found StatusNumber(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    if (!IsOwn(sight, who))
        return std::nullopt;
    const long long standing = Of(sight, who, [](const auto& person) -> long long { return person.Status; });
    return standing <= status::Pro ? Found(standing) : std::nullopt;
}

std::string StatusText(const SquadSight& sight, SquadPerson who, int rating)
{
    constexpr std::string_view words[] = {"Farm", "Scratch", "Pro"};
    const Found standing = StatusNumber(sight, who, rating);
    return standing ? std::string(words[*standing]) : std::string();
}

template <auto Field>
Found FieldNumber(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    return Of(sight, who, [](const auto& person) -> Found { return Field(person); });
}

constexpr auto Age = [](const auto& person) -> long long { return person.Age; };
constexpr auto Height = [](const auto& person) -> long long { return person.Height; };
constexpr auto Weight = [](const auto& person) -> long long { return person.Weight; };
constexpr auto Salary = [](const auto& person) -> long long { return person.Salary; };
constexpr auto Contract = [](const auto& person) -> long long { return person.Contract; };
constexpr auto Condition = [](const auto& person) -> long long { return person.Condition; };

std::string SalaryText(const SquadSight& sight, SquadPerson who, int rating)
{
    return sight.Shown->CurrencyNoDecimals(static_cast<double>(*FieldNumber<Salary>(sight, who, rating)));
}

std::string ConditionInWords(const SquadSight& sight, SquadPerson who, int rating)
{
    const bool isInjured = SignsOf(*sight.League, who.Id(), 0).Has(Sign::Injured);
    return std::to_string(*FieldNumber<Condition>(sight, who, rating)) + (isInjured ? ", injured" : "");
}

std::string CountryText(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    return Of(sight, who, [](const auto& person) { return person.Country.Trimmed(); });
}

std::string InjuryText(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    return Of(sight, who, [](const auto& person) { return person.Injury.Trimmed(); });
}

// Games that are left of a suspension; whoever is on waivers has none.
Found SuspensionNumber(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    const long long games = Of(sight, who, [](const auto& person) -> long long { return person.Suspension; });
    return games == 0 ? std::nullopt : Found(games);
}

std::string SuspensionText(const SquadSight& sight, SquadPerson who, int rating)
{
    const Found games = SuspensionNumber(sight, who, rating);
    if (!games)
        return {};
    return SignsOf(*sight.League, who.Id(), 0).Has(Sign::OnWaivers) ? "waivers" : std::to_string(*games);
}

// The flags, in short and in words: a rookie is a fact, all others are his team's decisions.
template <class Tell>
void EachFlag(const SquadSight& sight, SquadPerson who, const Tell& tell)
{
    constexpr std::pair<Sign, std::string_view> shorts[] = {{Sign::Captain, "C"},
                                                            {Sign::Assistant, "A"},
                                                            {Sign::NeedsWaivers, "W"},
                                                            {Sign::NoTrade, "NT"},
                                                            {Sign::Rookie, "R"}};
    const PersonSigns signs = SignsOf(*sight.League, who.Id(), sight.Proved);
    for (const auto& [sign, flag] : shorts)
        if (signs.Has(sign))
            tell(flag, WordsOf(PersonSign{sign}));
    if (IsOwn(sight, who))
        Of(sight, who, [&tell](const auto& person) {
            if (person.TradeAvailable)
                tell(std::string_view("T"), std::string("Available for trade"));
            if (person.Protected)
                tell(std::string_view("P"), std::string("Protected"));
        });
}

std::string FlagsText(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    std::string flags;
    EachFlag(sight, who, [&flags](std::string_view flag, const std::string& /*words*/) {
        flags += flags.empty() ? "" : " ";
        flags += flag;
    });
    return flags;
}

std::string FlagsInWords(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    std::string flags;
    EachFlag(sight, who, [&flags](std::string_view /*flag*/, const std::string& words) {
        flags += (flags.empty() ? "" : ", ") + words;
    });
    return flags;
}

std::string RestrictionText(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    return IsRestricted(*sight.League, who.Id()) ? "RFA" : "UFA";
}

std::string RestrictionInWords(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    return IsRestricted(*sight.League, who.Id()) ? "restricted" : "unrestricted";
}

// How many slots he holds today on the side on which he stands.
Found SlotsNumber(const SquadSight& sight, SquadPerson who, int rating)
{
    const Found standing = StatusNumber(sight, who, rating);
    if (!standing)
        return std::nullopt;
    const Team& team = sight.League->Teams[sight.Proved];
    return SlotsHeld(*standing == status::Farm ? team.Farm.FarmLines[Today] : team.ProLines[Today], who.Id());
}

Found RatingNumber(const SquadSight& sight, SquadPerson who, int rating)
{
    struct Wanted {
        int Row;
        Found Value;
    } wanted{rating, std::nullopt};
    const auto take = [&wanted](int row, const StatRow& shown) {
        if (row == wanted.Row)
            wanted.Value = shown.Value;
    };
    try {
        if (who.Kind == SquadKind::Goalies)
            TellGoalieRatings(*sight.League, who.Slot, rating, take);
        else
            TellSkaterRatings(*sight.League, who.Slot, rating, take);
    } catch (const Failure&) {
        return std::nullopt; // ratings that no row can hold
    }
    return wanted.Value;
}

Found OverallNumber(const SquadSight& sight, SquadPerson who, int /*rating*/)
{
    const int position = Of(sight, who, [](const auto& person) { return PositionOf(person); });
    const std::optional<int> overall = OverallAt(*sight.League, position, who.Slot);
    return overall ? Found(*overall) : std::nullopt;
}

constexpr unsigned OnSkaters = 1U << static_cast<unsigned>(SquadKind::Skaters);
constexpr unsigned OnGoalies = 1U << static_cast<unsigned>(SquadKind::Goalies);
constexpr unsigned OnPeople = OnSkaters | OnGoalies;
constexpr unsigned OnAll = OnPeople | 1U << static_cast<unsigned>(SquadKind::Prospects);

struct ColumnRow {
    unsigned Kinds;
    SquadColumn Column;
};

constexpr auto Words = SquadOrder::Words;
constexpr auto Least = SquadOrder::LeastFirst;
constexpr auto Most = SquadOrder::MostFirst;

ColumnRow Row(unsigned kinds, const SquadColumn& column) { return {kinds, column}; }

// Those in front of the ratings, and those behind them.
std::vector<ColumnRow> FrontColumns()
{
    return {
        Row(OnAll, {.Key = "Name",
                    .Caption = "Name",
                    .Meaning = "Name",
                    .Order = Words,
                    .Cells = SquadCells::Name,
                    .WordsOf = NameText}),
        Row(OnPeople, {.Key = TeamKey,
                       .Caption = "Team",
                       .Meaning = "Team",
                       .Order = Words,
                       .WordsOf = TeamText,
                       .SpokenOf = TeamInWords}),
        Row(OnSkaters, {.Key = "Position",
                        .Caption = "Pos",
                        .Meaning = "Position",
                        .Order = Least,
                        .NumberOf = PositionNumber,
                        .WordsOf = PositionText}),
        Row(OnPeople, {.Key = "Stands",
                       .Caption = "Stands",
                       .Meaning = "Where he stands, of the own team",
                       .Order = Most,
                       .IsDecision = true,
                       .NumberOf = StatusNumber,
                       .WordsOf = StatusText}),
        Row(OnPeople, {.Key = "Slots",
                       .Caption = "Slots",
                       .Meaning = "Slots held today, of the own team",
                       .Order = Most,
                       .Cells = SquadCells::Number,
                       .IsDecision = true,
                       .NumberOf = SlotsNumber}),
        Row(OnPeople, {.Key = "Age",
                       .Caption = "Age",
                       .Meaning = "Age",
                       .Order = Least,
                       .Cells = SquadCells::Number,
                       .NumberOf = FieldNumber<Age>}),
        Row(OnPeople, {.Key = "Country",
                       .Caption = "Country",
                       .Meaning = "Country",
                       .Order = Words,
                       .IsHiddenAtFirst = true,
                       .WordsOf = CountryText}),
        Row(OnPeople, {.Key = "Height",
                       .Caption = "Height",
                       .Meaning = "Height",
                       .Order = Most,
                       .Cells = SquadCells::Number,
                       .IsHiddenAtFirst = true,
                       .NumberOf = FieldNumber<Height>}),
        Row(OnPeople, {.Key = "Weight",
                       .Caption = "Weight",
                       .Meaning = "Weight",
                       .Order = Most,
                       .Cells = SquadCells::Number,
                       .IsHiddenAtFirst = true,
                       .NumberOf = FieldNumber<Weight>}),
    };
}

std::vector<ColumnRow> BackColumns()
{
    return {
        Row(OnPeople, {.Key = "Salary",
                       .Caption = "Salary",
                       .Meaning = "Salary",
                       .Order = Most,
                       .Cells = SquadCells::Money,
                       .NumberOf = FieldNumber<Salary>,
                       .WordsOf = SalaryText}),
        Row(OnPeople, {.Key = "Contract",
                       .Caption = "Years",
                       .Meaning = "Years left on his contract",
                       .Order = Most,
                       .Cells = SquadCells::Number,
                       .NumberOf = FieldNumber<Contract>}),
        Row(OnPeople, {.Key = "Condition",
                       .Caption = "Cond",
                       .Meaning = "Condition",
                       .Order = Most,
                       .Cells = SquadCells::Condition,
                       .NumberOf = FieldNumber<Condition>,
                       .SpokenOf = ConditionInWords}),
        Row(OnPeople,
            {.Key = "Flags",
             .Caption = "Flags",
             .Meaning =
                 "Flags: R rookie; of the own team C captain, A assistant, W needs waivers to go down, NT no trade, T "
                 "available for trade, P protected",
             .Order = Words,
             .WordsOf = FlagsText,
             .SpokenOf = FlagsInWords}),
        Row(OnPeople, {.Key = "Restricted",
                       .Caption = "Free",
                       .Meaning = "Restricted or unrestricted as a free agent",
                       .Order = Words,
                       .WordsOf = RestrictionText,
                       .SpokenOf = RestrictionInWords}),
        Row(OnPeople,
            {.Key = "Injury", .Caption = "Injury", .Meaning = "Injury", .Order = Words, .WordsOf = InjuryText}),
        Row(OnPeople, {.Key = "Suspension",
                       .Caption = "Susp",
                       .Meaning = "Games left of a suspension, or on waivers",
                       .Order = Most,
                       .Cells = SquadCells::Number,
                       .NumberOf = SuspensionNumber,
                       .WordsOf = SuspensionText}),
    };
}

SquadColumn RatingColumn(std::string_view key, std::string_view caption, std::string_view meaning, int row)
{
    return {.Key = key,
            .Caption = caption,
            .Meaning = meaning,
            .Cells = SquadCells::Rating,
            .NumberOf = RatingNumber,
            .Rating = row};
}

SquadColumn OverallColumn()
{
    return {.Key = "Overall",
            .Caption = SkaterStatName[SkaterStatName.last],
            .Meaning = SkaterStatWords[SkaterStatWords.last],
            .Cells = SquadCells::Rating,
            .NumberOf = OverallNumber};
}

// The ratings from 1 to `count`. A group has its meaning for a key: its caption may be a single rating's as well.
template <class Captions, class Meanings>
void AddRatings(std::vector<SquadColumn>& columns, const Captions& captions, const Meanings& meanings, int count,
                bool single)
{
    for (int row = 1; row <= count; ++row)
        columns.push_back(RatingColumn(single ? captions[row] : meanings[row], captions[row], meanings[row], row));
}

void AddRatingsOf(std::vector<SquadColumn>& columns, SquadKind kind, const League& rules)
{
    const ShownRatings counts = RatingsShownBy(rules);
    const bool single = static_cast<bool>(rules.ShowAllRatings);
    if (kind == SquadKind::Skaters && single)
        AddRatings(columns, SkaterStatName, SkaterStatWords, counts.Skater, single);
    else if (kind == SquadKind::Skaters)
        AddRatings(columns, SkaterGroupName, SkaterGroupWords, counts.Skater, single);
    else if (single)
        AddRatings(columns, GoalieStatName, GoalieStatWords, counts.Goalie, single);
    else
        AddRatings(columns, GoalieGroupName, GoalieGroupWords, counts.Goalie, single);
}

} // namespace

int CommonIdOf(SquadPerson who)
{
    return who.Kind == SquadKind::Prospects ? who.Slot + ProspectOffset : who.Id().CommonId();
}

bool IsSomebody(const Tables& league, SquadPerson who)
{
    if (who.Kind == SquadKind::Prospects)
        return !NameOf(league, who).empty();
    return OnPerson(league, who.Id(), [](const auto& person) { return static_cast<bool>(person.InUse); });
}

int CountOf(const Tables& league, SquadKind kind)
{
    int count = 0;
    for (int slot = 1; slot <= LastSlotOf(kind); ++slot)
        count += IsSomebody(league, {kind, slot}) ? 1 : 0;
    return count;
}

int LastSlotOf(SquadKind kind)
{
    constexpr long long last[] = {PlayerTable::last, GoalieTable::last, ProspectTable::last};
    return static_cast<int>(last[static_cast<std::size_t>(kind)]);
}

std::string NameOf(const Tables& league, SquadPerson who)
{
    if (who.Kind == SquadKind::Prospects)
        return league.Prospects[who.Slot].Name.Trimmed();
    return OnPerson(league, who.Id(), [](const auto& person) { return person.Name.Trimmed(); });
}

bool IsOwn(const SquadSight& sight, SquadPerson who)
{
    return TeamTable::Has(sight.Proved) && who.Kind != SquadKind::Prospects &&
           Of(sight, who, [&sight](const auto& person) { return person.Team == sight.Proved; });
}

std::vector<SquadColumn> SquadColumnsOf(SquadKind kind, const SquadSight& sight)
{
    const League& rules = sight.League->LeagueData;
    std::vector<SquadColumn> columns;
    const auto add = [&columns, &sight, kind](const std::vector<ColumnRow>& rows) {
        for (const ColumnRow& row : rows)
            if ((row.Kinds & 1U << static_cast<unsigned>(kind)) != 0 && (!row.Column.IsDecision || sight.Proved != 0))
                columns.push_back(row.Column);
    };
    add(FrontColumns());
    if (kind != SquadKind::Prospects) {
        if (rules.ShowOverall)
            columns.push_back(OverallColumn());
        AddRatingsOf(columns, kind, rules);
    }
    add(BackColumns());
    return columns;
}

std::string SquadText(const SquadColumn& column, const SquadSight& sight, SquadPerson who)
{
    if (column.WordsOf != nullptr)
        return column.WordsOf(sight, who, column.Rating);
    const auto number = column.NumberOf(sight, who, column.Rating);
    return number ? std::to_string(*number) : std::string();
}

std::string SquadPlainText(const SquadColumn& column, const SquadSight& sight, SquadPerson who)
{
    if (column.Cells == SquadCells::Money)
        return std::to_string(*column.NumberOf(sight, who, column.Rating));
    return SquadText(column, sight, who);
}

std::string SquadSpokenText(const SquadColumn& column, const SquadSight& sight, SquadPerson who)
{
    std::string words =
        column.SpokenOf != nullptr ? column.SpokenOf(sight, who, column.Rating) : SquadText(column, sight, who);
    if (column.Cells == SquadCells::Name)
        return words;
    if (words.empty())
        words = "none";
    const std::string_view of = column.Meaning.substr(0, column.Meaning.find(':'));
    return std::string(of) + ": " + words;
}

} // namespace dravik
