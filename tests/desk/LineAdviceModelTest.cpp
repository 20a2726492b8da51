#include "desk/LineAdvice.h"
#include "rules/LineJudge.h"
#include "rules/Overall.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

// Advice on random leagues, as messy as they come and with lines that are legal for the most part, beside a naive reading of what
// it promises: nothing is touched, nothing proposed gives the judge more to find, and what it gains is gained.
namespace dravik {
namespace {

constexpr int Own = 1;
constexpr int Leagues = 20;

class LineAdviceModel : public SmallLeague {
protected:
    struct Place {
        Side On;
        int Day;
    };

    // A league whose first days hold anybody, and whose other days hold whom the judge lets stand there, mostly in position.
    static void Roll(Dice& dice)
    {
        ResetClientVariables();
        SetOrdinaryRules();
        RandomSize size;
        size.Teams = 1;
        RollLeague(dice, size);
        LeagueData.ShowOverall = true;
        LeagueData.LinesOneTwoExclusive = dice.Chance(50);
        LeagueData.ProDressedSkaters = dice.Roll(17, 25);
        for (int index = 1; index <= size.Goalies; ++index)
            Goalies[index].Condition = dice.Roll(93, 100);
        for (const Side side : {Side::Pro, Side::Farm})
            for (int day = 3; day <= 10; ++day)
                FillLegally(dice, side, day);
        const std::vector<int> dressed = MayPlay(Side::Pro);
        if (!dressed.empty())
            Teams[Own].Captain = dressed[static_cast<std::size_t>(dice.Roll(0, std::ssize(dressed) - 1))];
    }

    static bool IsFine(const auto& person, Side side)
    {
        return person.InUse && person.Team == Own && person.Condition >= 95 && person.Suspension == 0 &&
               person.Status == (side == Side::Pro ? 2 : 0);
    }
    static std::vector<int> MayPlay(Side side)
    {
        std::vector<int> all;
        for (int id = 1; id <= 150; ++id)
            if (IsFine(Players[id], side) && Players[id].Position >= 1 && Players[id].Position <= 4)
                all.push_back(id);
        return all;
    }

    static void FillLegally(Dice& dice, Side side, int day)
    {
        Lines& lines = LinesOf(OpenLeague, Own, day, side);
        const std::vector<int> people = MayPlay(side);
        // Some are left out of the day, so that somebody is free.
        std::vector<int> used;
        for (const int id : people)
            if (dice.Chance(85))
                used.push_back(id);
        for (std::size_t i = 0; i < SkaterSlots.size() && !used.empty(); ++i) {
            At(lines, SkaterSlots[i]) = 0;
            for (int tries = 0; tries < 40 && At(lines, SkaterSlots[i]) == 0; ++tries) {
                const int id = used[static_cast<std::size_t>(dice.Roll(0, std::ssize(used) - 1))];
                const bool isOut = (Players[id].Position == 4) != WantsDefense(SkaterSlots[i].Field);
                if (isOut && tries < 38)
                    continue;
                const bool isTwice = std::any_of(SkaterSlots.begin(), SkaterSlots.end(), [&](const LineSlot& other) {
                    return At(lines, other) == id && BarsTwice(SkaterSlots[i], other);
                });
                if (!isTwice || dice.Chance(1))
                    At(lines, SkaterSlots[i]) = id;
            }
        }
        std::vector<int> keepers;
        for (int id = 1; id <= 18; ++id)
            if (IsFine(Goalies[id], side))
                keepers.push_back(id);
        if (keepers.size() < 2)
            return;
        const auto first = static_cast<std::size_t>(dice.Roll(0, std::ssize(keepers) - 1));
        lines.StartGoalie = keepers[first];
        lines.BackupGoalie = keepers[(first + 1) % keepers.size()];
    }

    // The kinds of slots by their tags.
    static std::string Kind(const LineSlot& slot)
    {
        static const char* const kinds[] = {"L",  "L",   "PP",  "PP", "PK", "PK", "44",
                                            "44", "PK3", "PK3", "EF", "ED", "PS"};
        return kinds[static_cast<int>(slot.Field)];
    }
    // Whether the judge lets nobody stand in both slots.
    static bool BarsTwice(const LineSlot& one, const LineSlot& other)
    {
        const std::string kind = Kind(one);
        if (kind != Kind(other))
            return false;
        const bool isList = kind == "EF" || kind == "ED" || kind == "PS";
        const bool areTop = kind == "L" && one.Number + other.Number == 3 && LeagueData.LinesOneTwoExclusive;
        return isList || areTop || one.Number == other.Number;
    }
    // The positions at home in a slot, in letters of the numbers.
    static std::string Home(const LineSlot& slot)
    {
        switch (slot.Field) {
        case LineField::NormalForward:
        case LineField::PPForward:
            return std::to_string(slot.Place);
        case LineField::PKForward:
        case LineField::FourVsFourForward:
            return slot.Place == 1 ? "1" : "23";
        case LineField::PK3Forward:
        case LineField::ExtraForward:
            return "123";
        case LineField::PenaltyShot:
            return "1234";
        default:
            return "4";
        }
    }
    static bool IsHome(const LineSlot& slot, long long position)
    {
        return Home(slot).find(std::to_string(position)) != std::string::npos;
    }
    static int Worth(const Tables& league, const LineSlot& slot, int id)
    {
        return OverallAt(league, Home(slot) == "4" ? 4 : 2, id).value_or(-1);
    }

    // What the judge finds, on a copy, in words.
    std::multiset<std::string> Found(const Tables& league, Place place)
    {
        const auto copy = Copy(league);
        MuteVoice mute;
        bool modified = false;
        const Work work{*copy, mute, Machine, modified};
        const LineVerdict verdict = JudgeDay(work, Own, place.On, place.Day, false);
        std::multiset<std::string> words;
        for (const LineFinding& finding : verdict.Findings)
            words.insert(WordsOf(*copy, verdict, finding));
        if (verdict.Failed)
            words.insert("failed");
        return words;
    }

    // What all slots of a day are worth, each holder at its position; and how many stand out of theirs.
    static std::pair<long long, int> Sum(const Tables& league, Place place)
    {
        const Lines& lines = LinesOf(league, Own, place.Day, place.On);
        std::pair<long long, int> sum{0, 0};
        for (const LineSlot& slot : SkaterSlots) {
            const auto id = static_cast<int>(At(lines, slot));
            if (id <= 0 || !PlayerTable::Has(id))
                continue;
            sum.first += Kind(slot) == "PS" ? 0 : Worth(league, slot, id);
            const auto position = static_cast<long long>(league.Players[id].Position);
            sum.second += position >= 1 && position <= 4 && !IsHome(slot, position) ? 1 : 0;
        }
        for (const auto id : {static_cast<int>(lines.StartGoalie), static_cast<int>(lines.BackupGoalie)})
            sum.first += OverallAt(league, position::Goalie, id).value_or(0);
        return sum;
    }

    void EachDay(const std::function<void(Dice&, Place)>& visit)
    {
        for (unsigned seed = 1; seed <= Leagues; ++seed) {
            Dice dice(seed);
            Roll(dice);
            for (const Side side : {Side::Pro, Side::Farm})
                for (int day = 1; day <= 10; ++day) {
                    SCOPED_TRACE("league " + std::to_string(seed) + ", day " + std::to_string(day) +
                                 (side == Side::Pro ? ", pro" : ", farm"));
                    visit(dice, {side, day});
                    if (HasFatalFailure() || HasNonfatalFailure())
                        return;
                }
        }
    }
};

TEST_F(LineAdviceModel, LookingTouchesNothingAndIsTheSameEachTime)
{
    EachDay([](Dice& /*dice*/, Place place) {
        const auto before = Copy(OpenLeague);
        const auto given = AdviceOn(OpenLeague, Own, place.On, place.Day);
        for (const LineAdvice& piece : given) {
            EXPECT_NE(WordsOf(OpenLeague, piece), "");
            EXPECT_NE(DeedOf(OpenLeague, piece), "");
        }
        EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0);
        const auto again = AdviceOn(*before, Own, place.On, place.Day);
        ASSERT_EQ(again.size(), given.size());
        for (std::size_t i = 0; i < given.size(); ++i)
            EXPECT_EQ(WordsOf(OpenLeague, given[i]), WordsOf(*before, again[i]));
    });
}

TEST_F(LineAdviceModel, EachPieceGainsWhatItSaysAndGivesTheJudgeNothingToFind)
{
    std::map<AdviceKind, int> followed;
    EachDay([&](Dice& /*dice*/, Place place) {
        const auto league = Copy(OpenLeague);
        const auto before = Found(OpenLeague, place);
        const auto worthBefore = Sum(OpenLeague, place);
        for (const LineAdvice& piece : AdviceOn(OpenLeague, Own, place.On, place.Day)) {
            SCOPED_TRACE(WordsOf(OpenLeague, piece));
            ASSERT_TRUE(FollowAdvice(OpenWork(), Own, place.On, place.Day, piece));
            const auto after = Found(OpenLeague, place);
            EXPECT_TRUE(std::includes(before.begin(), before.end(), after.begin(), after.end()))
                << ::testing::PrintToString(after);
            const auto worth = Sum(OpenLeague, place);
            switch (piece.Kind) {
            case AdviceKind::Better:
                EXPECT_GT(piece.Gain(), 0);
                EXPECT_EQ(worth, std::pair(worthBefore.first + piece.Gain(), worthBefore.second));
                break;
            case AdviceKind::OutOfPosition:
                EXPECT_GE(piece.Gain(), 0);
                EXPECT_EQ(worth, std::pair(worthBefore.first + piece.Gain(), worthBefore.second - 1));
                break;
            case AdviceKind::CaptainOffLines:
                EXPECT_EQ(worth.first, worthBefore.first + piece.Gain());
                EXPECT_LE(worth.second, worthBefore.second);
                break;
            case AdviceKind::TiredStarter:
                EXPECT_GT(piece.Gain(), 0);
                EXPECT_EQ(worth, worthBefore);
                break;
            }
            // Nothing else of the league is others by then.
            Lines& lines = LinesOf(OpenLeague, Own, place.Day, place.On);
            const Lines& old = LinesOf(*league, Own, place.Day, place.On);
            EXPECT_EQ(At(lines, piece.Slot), piece.Who.Slot);
            EXPECT_EQ(At(old, piece.Slot), piece.Instead.Slot);
            At(lines, piece.Slot) = At(old, piece.Slot);
            if (piece.Kind == AdviceKind::TiredStarter)
                lines.BackupGoalie = old.BackupGoalie;
            EXPECT_EQ(std::memcmp(league.get(), &OpenLeague, sizeof OpenLeague), 0);
            OpenLeague = *league;
            ++followed[piece.Kind];
        }
    });
    for (const AdviceKind kind :
         {AdviceKind::CaptainOffLines, AdviceKind::TiredStarter, AdviceKind::OutOfPosition, AdviceKind::Better})
        EXPECT_GE(followed[kind], 20) << static_cast<int>(kind);
}

TEST_F(LineAdviceModel, APersonIsNamedOnceAKindASlotOnceAndTheGreatestGainFirst)
{
    EachDay([](Dice& /*dice*/, Place place) {
        std::set<std::pair<int, std::string>> people;
        std::set<int> slots;
        std::vector<int> gains;
        const auto given = AdviceOn(OpenLeague, Own, place.On, place.Day);
        for (const LineAdvice& piece : given) {
            const std::string kind = piece.Kind == AdviceKind::TiredStarter ? "tired"
                                     : piece.Slot.IsGoalies()               ? "G"
                                                                            : Kind(piece.At);
            EXPECT_TRUE(people.insert({piece.Who.CommonId(), kind}).second) << WordsOf(OpenLeague, piece);
            EXPECT_TRUE(kind == "tired" || slots.insert(piece.Slot.Word).second) << WordsOf(OpenLeague, piece);
            if (piece.Kind == AdviceKind::Better || piece.Kind == AdviceKind::OutOfPosition)
                gains.push_back(piece.Gain());
            else
                EXPECT_TRUE(gains.empty()) << "the captain and the starter come first";
        }
        EXPECT_TRUE(std::is_sorted(gains.rbegin(), gains.rend()));
    });
}

// On a pro day that the judge lets pass, somebody is named for a kind when, and only when, he stands nowhere in it and is
// better than somebody in his own position there; the first such piece gains as much as any could.
TEST_F(LineAdviceModel, TheGreatestGainOfALegalDayIsFound)
{
    int compared = 0;
    EachDay([&](Dice& /*dice*/, Place place) {
        if (place.On != Side::Pro || !Found(OpenLeague, place).empty())
            return;
        Teams[Own].Captain = 0;
        const Lines& lines = LinesOf(OpenLeague, Own, place.Day, place.On);
        int greatest = 0;
        for (const int id : MayPlay(place.On)) {
            std::set<std::string> kinds;
            for (const LineSlot& slot : SkaterSlots)
                if (At(lines, slot) == id)
                    kinds.insert(Kind(slot));
            for (const LineSlot& slot : SkaterSlots)
                if (Kind(slot) != "PS" && !kinds.contains(Kind(slot)) && IsHome(slot, Players[id].Position))
                    greatest = std::max(greatest, Worth(OpenLeague, slot, id) -
                                                      Worth(OpenLeague, slot, static_cast<int>(At(lines, slot))));
        }
        int told = 0;
        for (const LineAdvice& piece : AdviceOn(OpenLeague, Own, place.On, place.Day))
            if (piece.Kind != AdviceKind::TiredStarter && !piece.Slot.IsGoalies())
                told = std::max(told, piece.Gain());
        EXPECT_EQ(told, greatest);
        ++compared;
    });
    EXPECT_GE(compared, 50);
}

TEST_F(LineAdviceModel, WhoeverFollowsAllAdviceComesToAnEnd)
{
    EachDay([](Dice& /*dice*/, Place place) {
        int steps = 0;
        for (auto given = AdviceOn(OpenLeague, Own, place.On, place.Day); !given.empty();
             given = AdviceOn(OpenLeague, Own, place.On, place.Day)) {
            ASSERT_TRUE(FollowAdvice(OpenWork(), Own, place.On, place.Day, given.back()));
            ASSERT_LE(++steps, 400);
        }
    });
}

} // namespace
} // namespace dravik
