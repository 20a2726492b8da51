#include "desk/LineAdvice.h"

#include "desk/PlaceOnLine.h"
#include "makers/Dealing.h"
#include "rules/LineEligibility.h"
#include "rules/LineFamilies.h"
#include "rules/LineRules.h"
#include "rules/Overall.h"
#include "rules/SlotPositions.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>

namespace dravik {

namespace {

constexpr std::size_t SlotCount = SkaterSlots.size();

// The families of which somebody may be in no slot. Penalty shots go by no position.
constexpr Family Advised[] = {
    Family::Line,     Family::PowerPlay, Family::FourVsFour, Family::PenaltyKill, Family::PenaltyKillWithThree,
    Family::Forwards, Family::Defensemen};

// The position that a slot is reckoned at: the overall of a skater is one among forwards and another on defense.
int PositionIn(const LineSlot& slot) { return WantsDefense(slot.Field) ? position::Defense : position::Center; }

// Somebody who may stand in these lines, and his overall in his own position.
struct Candidate {
    PersonId Who;
    int Position;
    int Overall;
};

// A slot from which somebody may be advised away.
struct Seat {
    std::size_t Index; // in DaySlots
    PersonId Holder;
    int Overall; // of its holder, at its position
    bool IsOutOfPosition;
};

// Looks at one day.
class Adviser {
public:
    Adviser(const Tables& tables, int teamNumber, Side sideOf, int day) :
        league(tables), team(teamNumber), side(sideOf), lines(LinesOf(tables, teamNumber, day, sideOf)),
        rules(LineRulesOf(tables.LeagueData, sideOf)), captain(static_cast<int>(tables.Teams[teamNumber].Captain))
    {
        for (std::size_t i = 0; i < SlotCount; ++i) {
            const auto id = static_cast<int>(At(lines, SkaterSlots[i]));
            standing[i] = MayStand({.IsGoalie = false, .Slot = id}) ? id : 0;
        }
        ListPeople();
    }

    std::vector<LineAdvice> Advice()
    {
        if (side == Side::Pro)
            AdviseCaptain();
        for (const Family family : Advised)
            AdviseFamily(family);
        AdviseGoalies();
        std::stable_sort(advice.begin(), advice.end(),
                         [](const LineAdvice& one, const LineAdvice& other) { return Rank(one) < Rank(other); });
        return std::move(advice);
    }

private:
    // The captain and the starter come first, everything else by its gain.
    static std::pair<int, int> Rank(const LineAdvice& piece)
    {
        if (piece.Kind < AdviceKind::OutOfPosition)
            return {static_cast<int>(piece.Kind), 0};
        return {static_cast<int>(AdviceKind::OutOfPosition), -piece.Gain()};
    }

    [[nodiscard]] bool MayStand(PersonId who) const
    {
        return who.Slot != 0 && who.HasSlot() &&
               OnPerson(league, who, [&](const auto& person) { return !FaultInLines(person, team, side); });
    }

    // The best come first, those of the same overall in the order of their table.
    void ListPeople()
    {
        EachOfTeam(league.Players, team, [&](const Player& player, int id) {
            const int position = PositionOf(player);
            if (!FaultInLines(player, team, side) && position >= position::Center && position <= position::Defense)
                skaters.push_back({PersonIn<Player>(id), position, OverallAt(league, position, id).value_or(0)});
        });
        EachOfTeam(league.Goalies, team, [&](const Goalie& goalie, int id) {
            if (!FaultInLines(goalie, team, side))
                keepers.push_back(
                    {PersonIn<Goalie>(id), position::Goalie, OverallAt(league, position::Goalie, id).value_or(0)});
        });
        for (std::vector<Candidate>* people : {&skaters, &keepers})
            std::stable_sort(people->begin(), people->end(),
                             [](const Candidate& one, const Candidate& other) { return one.Overall > other.Overall; });
    }

    // Whether a skater is on no line or unit, with one slot left out if it is named.
    [[nodiscard]] bool IsOnNoLine(int skater, std::size_t besides = SlotCount) const
    {
        for (std::size_t i = 0; i < SlotCount; ++i)
            if (i != besides && standing[i] == skater && !IsList(FamilyOf(SkaterSlots[i].Field)))
                return false;
        return true;
    }

    // Whether the judge holds nothing against whoever stands in a slot, or against his standing there twice.
    [[nodiscard]] bool IsLegal(std::size_t index) const
    {
        if (standing[index] == 0)
            return false;
        const bool compares =
            league.LeagueData.LinesOneTwoExclusive && (rules == nullptr || rules->ComparesLinesOneAndTwo);
        for (std::size_t i = 0; i < SlotCount; ++i)
            if (i != index && standing[i] == standing[index] &&
                (ShareGroup(SkaterSlots[index], SkaterSlots[i]) ||
                 (compares && AreOfLinesOneAndTwo(SkaterSlots[index], SkaterSlots[i]))))
                return false;
        return true;
    }

    // The slots of a family that somebody may be advised away from. The captain keeps his last line.
    [[nodiscard]] std::vector<Seat> SeatsOf(Family family) const
    {
        std::vector<Seat> seats;
        for (std::size_t i = 0; i < SlotCount; ++i) {
            const LineSlot& slot = SkaterSlots[i];
            const int holder = standing[i];
            if (FamilyOf(slot.Field) != family || !IsLegal(i))
                continue;
            if (holder == captain && !IsList(family) && IsOnNoLine(holder, i))
                continue;
            seats.push_back({.Index = i,
                             .Holder = PersonIn<Player>(holder),
                             .Overall = OverallAt(league, PositionIn(slot), holder).value_or(0),
                             .IsOutOfPosition = IsOutOfPosition(DaySlots[i], PositionOf(league.Players[holder]))});
        }
        return seats;
    }

    [[nodiscard]] bool StandsIn(Family family, PersonId who) const
    {
        return std::any_of(SkaterSlots.begin(), SkaterSlots.end(), [&](const LineSlot& slot) {
            return FamilyOf(slot.Field) == family && At(lines, slot) == who.Slot;
        });
    }

    // Whether the judge's head count finds nothing more with somebody else in a slot.
    [[nodiscard]] bool KeepsHeads(std::size_t index, PersonId who) const
    {
        if (rules == nullptr || rules->HeadCount == HeadCount::None)
            return true;
        const auto heads = [](std::array<int, SlotCount> all) {
            std::sort(all.begin(), all.end());
            return std::unique(all.begin(), all.end()) - all.begin();
        };
        std::array<int, SlotCount> changed = standing;
        changed[index] = who.Slot;
        const auto before = heads(standing);
        const auto after = heads(changed);
        return after <= std::max<long long>(before, league.LeagueData.ProDressedSkaters) &&
               (rules->HeadCount != HeadCount::AtLeastToo || after >= std::min<long long>(before, FewestHeads));
    }

    [[nodiscard]] bool Fits(const Seat& seat, const Candidate& person) const
    {
        return TakesSomebody(DaySlots[seat.Index], side, person.Who, person.Position) &&
               !IsOutOfPosition(DaySlots[seat.Index], person.Position) && KeepsHeads(seat.Index, person.Who);
    }

    // The seat in which somebody gains most, of those that `takes` lets him have: of equals one whose holder is out of position,
    // and then the last.
    template <class Takes>
    std::vector<Seat>::iterator Weakest(std::vector<Seat>& seats, const Candidate& person, const Takes& takes) const
    {
        const auto worth = [](const Seat& seat) { return std::pair(-seat.Overall, seat.IsOutOfPosition); };
        auto weakest = seats.end();
        for (auto seat = seats.begin(); seat != seats.end(); ++seat)
            if (takes(*seat) && (weakest == seats.end() || worth(*seat) >= worth(*weakest)) && Fits(*seat, person))
                weakest = seat;
        return weakest;
    }

    void Advise(AdviceKind kind, const Candidate& person, const Seat& seat)
    {
        advice.push_back({.Kind = kind,
                          .Who = person.Who,
                          .Instead = seat.Holder,
                          .Slot = DaySlots[seat.Index],
                          .Figure = person.Overall,
                          .Standing = seat.Overall});
        if (seat.Index < SlotCount) {
            advice.back().At = SkaterSlots[seat.Index];
            advice.back().Partner = PartnerIn(SkaterSlots[seat.Index]);
        }
    }

    // The overall of who plays beside a defenseman in a line or unit.
    [[nodiscard]] std::optional<int> PartnerIn(const LineSlot& slot) const
    {
        if (!WantsDefense(slot.Field) || IsList(FamilyOf(slot.Field)))
            return std::nullopt;
        const LineSlot beside = SlotOf(slot.Field, slot.Number, 3 - slot.Place);
        const auto holder = PersonIn<Player>(static_cast<int>(At(lines, beside)));
        return MayStand(holder) ? OverallAt(league, PositionIn(beside), holder.Slot) : std::nullopt;
    }

    void AdviseCaptain()
    {
        const auto his = std::find_if(skaters.begin(), skaters.end(),
                                      [&](const Candidate& person) { return person.Who.Slot == captain; });
        if (his == skaters.end() || !IsOnNoLine(captain))
            return;
        std::vector<Seat> seats = SeatsOf(Family::Line);
        const auto seat = Weakest(seats, *his, [](const Seat& /*any*/) { return true; });
        if (seat != seats.end())
            Advise(AdviceKind::CaptainOffLines, *his, *seat);
    }

    [[nodiscard]] bool IsNamed(Family family, PersonId who) const
    {
        return std::any_of(advice.begin(), advice.end(), [&](const LineAdvice& piece) {
            return piece.Who == who && FamilyOf(piece.At.Field) == family;
        });
    }

    void AdviseFamily(Family family)
    {
        std::vector<Seat> seats = SeatsOf(family);
        std::erase_if(seats, [&](const Seat& seat) {
            return std::any_of(advice.begin(), advice.end(),
                               [&](const LineAdvice& piece) { return piece.Slot.Word == DaySlots[seat.Index].Word; });
        });
        for (const Candidate& person : skaters) {
            if (StandsIn(family, person.Who) || IsNamed(family, person.Who))
                continue;
            const auto seat = Weakest(seats, person, [&](const Seat& one) {
                return person.Overall > one.Overall || (one.IsOutOfPosition && person.Overall == one.Overall);
            });
            if (seat == seats.end())
                continue;
            Advise(seat->IsOutOfPosition ? AdviceKind::OutOfPosition : AdviceKind::Better, person, *seat);
            seats.erase(seat);
        }
    }

    // Both goalies are left to the judge unless he has nothing against either.
    void AdviseGoalies()
    {
        const auto start = PersonIn<Goalie>(static_cast<int>(lines.StartGoalie));
        const auto backup = PersonIn<Goalie>(static_cast<int>(lines.BackupGoalie));
        if (!MayStand(start) || !MayStand(backup) || start == backup)
            return;
        const auto condition = [&](PersonId who) { return static_cast<int>(league.Goalies[who.Slot].Condition); };
        if (SecondStarts(condition(start), condition(backup)))
            advice.push_back({.Kind = AdviceKind::TiredStarter,
                              .Who = backup,
                              .Instead = start,
                              .Slot = DaySlots[SlotCount],
                              .Figure = condition(backup),
                              .Standing = condition(start)});

        const auto seatOf = [&](std::size_t index, PersonId holder) {
            return Seat{index, holder, OverallAt(league, position::Goalie, holder.Slot).value_or(0), false};
        };
        std::vector<Seat> seats{seatOf(SlotCount, start), seatOf(SlotCount + 1, backup)};
        for (const Candidate& person : keepers) {
            if (person.Who == start || person.Who == backup)
                continue;
            auto weakest = seats.end();
            for (auto seat = seats.begin(); seat != seats.end(); ++seat)
                if (seat->Overall < person.Overall && (weakest == seats.end() || seat->Overall <= weakest->Overall))
                    weakest = seat;
            if (weakest == seats.end())
                continue;
            Advise(AdviceKind::Better, person, *weakest);
            seats.erase(weakest);
        }
    }

    const Tables& league;
    int team;
    Side side;
    const Lines& lines;
    const LineRules* rules; // none where nobody judges
    int captain;
    std::array<int, SlotCount> standing{}; // who may stand where he stands, by the order of SkaterSlots
    std::vector<Candidate> skaters;
    std::vector<Candidate> keepers;
    std::vector<LineAdvice> advice;
};

// ---- Words -----------------------------------------------------------------------------------------------------

// How a field is spoken of.
struct FieldWords {
    LineField Field;
    std::string_view Unused; // behind the name of somebody who has no slot of its kind
    std::string_view Group;  // what he could play in, in front of its number
    std::string_view In;     // in front of that
    std::array<std::string_view, 3> Places;
};

constexpr FieldWords Fields[] = {
    {LineField::NormalForward, " is on no line", "line ", "on ", {"C", "LW", "RW"}},
    {LineField::NormalDefense, " is in no pair", "pair ", "in ", {"D", "D"}},
    {LineField::PPForward, " is on no power play", "power play ", "on ", {"C", "LW", "RW"}},
    {LineField::PPDefense, " is on no power play", "power play ", "on ", {"D", "D"}},
    {LineField::PKForward, " is on no penalty kill", "penalty kill ", "on ", {"C", "W"}},
    {LineField::PKDefense, " is on no penalty kill", "penalty kill ", "on ", {"D", "D"}},
    {LineField::FourVsFourForward, " is on no 4 vs 4", "4 vs 4 unit ", "on ", {"C", "W"}},
    {LineField::FourVsFourDefense, " is on no 4 vs 4", "4 vs 4 unit ", "on ", {"D", "D"}},
    {LineField::PK3Forward, " is on no penalty kill of three", "penalty kill of three ", "on ", {"F"}},
    {LineField::PK3Defense, " is on no penalty kill of three", "penalty kill of three ", "on ", {"D", "D"}},
    {LineField::ExtraForward, " is no extra forward", "extra forward ", "as ", {"F"}},
    {LineField::ExtraDefense, " is no extra defenseman", "extra defenseman ", "as ", {"D"}},
};

const FieldWords& WordsOf(const LineSlot& slot)
{
    const auto* row = std::find_if(std::begin(Fields), std::end(Fields),
                                   [&slot](const FieldWords& words) { return words.Field == slot.Field; });
    if (row == std::end(Fields))
        Fail(failure::OutOfRange);
    return *row;
}

std::string NameOf(const Tables& league, PersonId who)
{
    return OnPerson(league, who, [](const auto& person) { return person.Name.Trimmed(); });
}

int PositionOf(const Tables& league, PersonId who)
{
    return OnPerson(league, who, [](const auto& person) { return dravik::PositionOf(person); });
}

// "C", and nothing for a number that is no position.
std::string TagOf(const Tables& league, PersonId who)
{
    const int position = PositionOf(league, who);
    return position >= position::Center && position <= position::Goalie ? std::string(PositionName[position])
                                                                        : std::string();
}

// "Cyril Slobansky (64, D)".
std::string FullName(const Tables& league, PersonId who, int figure)
{
    return NameOf(league, who) + " (" + std::to_string(figure) + ", " + TagOf(league, who) + ")";
}

// What a slot belongs to: "line 4", "the starter".
std::string GroupOf(const LineAdvice& advice)
{
    if (advice.Slot.IsGoalies())
        return advice.Slot.Word == StartGoalieWord ? "the starter" : "the backup";
    return std::string(WordsOf(advice.At).Group) + std::to_string(advice.At.Number);
}

// Who plays there now: "plays 56 and 52", "plays 69 at C", "is 70".
std::string Playing(const LineAdvice& advice)
{
    const std::string standing = std::to_string(advice.Standing);
    if (advice.Slot.IsGoalies() || IsList(FamilyOf(advice.At.Field)))
        return "is " + standing;
    if (advice.Partner)
        return "plays " + std::to_string(*advice.Partner) + " and " + standing;
    const FieldWords& words = WordsOf(advice.At);
    return "plays " + standing + " at " + std::string(words.Places.at(static_cast<std::size_t>(advice.At.Place - 1)));
}

std::string TellFree(const Tables& league, const LineAdvice& advice, std::string_view unused)
{
    return FullName(league, advice.Who, advice.Figure) + std::string(unused) + "; " + GroupOf(advice) + ' ' +
           Playing(advice) + '.';
}

std::string TellOutOfPosition(const Tables& league, const LineAdvice& advice)
{
    const FieldWords& words = WordsOf(advice.At);
    const std::string tag = TagOf(league, advice.Instead);
    return NameOf(league, advice.Instead) + (tag.empty() ? tag : " (" + tag + ')') + " plays " +
           std::string(words.Places.at(static_cast<std::size_t>(advice.At.Place - 1))) + ' ' + std::string(words.In) +
           GroupOf(advice) + ", " + std::to_string(advice.Standing) + " there, though " +
           FullName(league, advice.Who, advice.Figure) + " is free.";
}

} // namespace

bool IsAdviceGiven(const League& rules) { return static_cast<bool>(rules.ShowOverall); }

std::vector<LineAdvice> AdviceOn(const Tables& league, int team, Side side, int day)
{
    if (!HasLineDay(team, day))
        Fail(failure::OutOfRange);
    if (!IsAdviceGiven(league.LeagueData))
        return {};
    return Adviser(league, team, side, day).Advice();
}

bool FollowAdvice(const Work& work, int team, Side side, int day, const LineAdvice& advice)
{
    const auto deed = [](const LineAdvice& piece) {
        return std::tuple(piece.Kind, piece.Who.CommonId(), piece.Instead.CommonId(), piece.Slot.Word);
    };
    const std::vector<LineAdvice> given = AdviceOn(work.League, team, side, day);
    const bool isGiven =
        std::any_of(given.begin(), given.end(), [&](const LineAdvice& piece) { return deed(piece) == deed(advice); });
    if (!isGiven)
        return false;
    const auto place = [&](const DaySlot& slot, PersonId who) {
        PlaceOnLine(work, team, day, side, slot, who, PositionOf(work.League, who));
    };
    place(advice.Slot, advice.Who);
    if (advice.Kind == AdviceKind::TiredStarter)
        place(DaySlots[SlotCount + 1], advice.Instead);
    return true;
}

std::string WordsOf(const Tables& league, const LineAdvice& advice)
{
    switch (advice.Kind) {
    case AdviceKind::CaptainOffLines:
        return "The captain, " + TellFree(league, advice, ", is on no line");
    case AdviceKind::TiredStarter:
        return "The starter, " + NameOf(league, advice.Instead) + ", is tired (condition " +
               std::to_string(advice.Standing) + "); the backup, " + NameOf(league, advice.Who) + ", is fresh (" +
               std::to_string(advice.Figure) + ").";
    case AdviceKind::OutOfPosition:
        return TellOutOfPosition(league, advice);
    case AdviceKind::Better:
        return TellFree(league, advice,
                        advice.Slot.IsGoalies() ? " is neither starter nor backup" : WordsOf(advice.At).Unused);
    }
    Fail(failure::OutOfRange);
}

std::string DeedOf(const Tables& league, const LineAdvice& advice)
{
    const std::string who = NameOf(league, advice.Who);
    const std::string instead = NameOf(league, advice.Instead);
    if (advice.Kind == AdviceKind::TiredStarter)
        return "Start " + who + " for " + instead;
    return "Put " + who + " in for " + instead + ", " + GroupOf(advice);
}

} // namespace dravik
