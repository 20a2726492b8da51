#pragma once

#include "desk/LinesFiles.h"
#include "files/LinesFile.h"
#include "LinesEvening.h"
#include "makers/Makers.h"
#include "MarketEvening.h"
#include "OfficeEvening.h"
#include "RecordEvening.h"
#include "RosterEvening.h"
#include "support/LeagueImage.h"
#include "support/PlainFormats.h"
#include "support/SmallLeague.h"
#include "support/TroubledVoice.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// What a manager does on any random evening: the commands of all the models, on leagues of any kind.
namespace dravik {

inline constexpr int Own = 1;

// Rolls a league of a kind into the open one.
enum class Kind { Plain, Messy, Full, Noise };
inline constexpr int KindCount = 4;

inline void RollPlainLeague()
{
    SetOrdinaryRules();
    for (int number = 1; number <= 3; ++number) {
        TeamMaker team(number);
        team.DressesFullRoster().FarmsFullRoster();
        const std::vector<int> all = team.Skaters;
        const std::vector<int> forwards(all.begin(), all.begin() + 12);
        const std::vector<int> defense(all.begin() + 12, all.begin() + 18);
        for (int day = 1; day <= 10; ++day)
            FillLines(Teams[number].ProLines[day], forwards, defense, team.GoalieIds);
    }
}

inline void RollAny(Dice& dice, Kind kind)
{
    ResetClientVariables();
    switch (kind) {
    case Kind::Plain:
        return RollPlainLeague();
    case Kind::Messy:
        return market_evening::RollMarket(dice);
    case Kind::Full:
        return RollLeague(dice, {.Teams = 100, .Skaters = 10000, .Goalies = 1000, .Coaches = 500});
    case Kind::Noise:
        return ScrambleLeague(static_cast<unsigned>(dice.Roll(1, 1000000)));
    }
}

// What is typed where a command asks.
inline const std::vector<std::string> Typed = {"", "0", "1", "3", "50", "100", "33.5", "many", "-7", "40000", "Gulls"};

// Rolls commands for a league and a market. `beforeOffer` is called before the offer to a person changes.
class AnyCommand {
public:
    // A command of any kind, given what it needs.
    using Does = std::function<void(Voice& says)>;

    AnyCommand(Dice& rolled, std::unique_ptr<Tables>& of, Market& on, ScriptedPlatform& files,
               std::function<void(int)> watch) :
        dice(rolled),
        league(of), market(on), disk(files), beforeOffer(std::move(watch))
    {
    }

    // Saves the lines that some of the commands load.
    void SaveSomeLines()
    {
        SaidOver(1, 0, Typed, [&](Voice& says) { WriteLinesFile(*Copy(*league), Files(says), Own, linesFile); });
    }

    Does Roll()
    {
        switch (dice.Roll(1, 14)) {
        case 1:
        case 2:
        case 3:
            return OfEvening<roster_evening::Evening>(roster_evening::RollCommand(dice));
        case 4:
        case 5:
        case 6:
            return OfEvening<lines_evening::Evening>(lines_evening::RollCommand(dice));
        case 7:
        case 8:
            return OfEvening<office_evening::Office>(office_evening::RollCommand(dice));
        case 9:
        case 10:
            return OfEvening<record_evening::Desk>(record_evening::RollCommand(dice));
        case 11:
        case 12:
        case 13: {
            int ranked = 0;
            while (ranked <= DraftRanking::last && market.Ranking[ranked] != 0)
                ++ranked;
            return OnTheMarket(market_evening::RollCommand(dice, ranked));
        }
        default:
            return OfTheWidest();
        }
    }
    Does OfTick()
    {
        return [this](Voice& says) {
            bool modified = false;
            const PersonId first{.IsGoalie = false, .Slot = 1};
            SetNoTrade({*league, says, shown, modified}, first, league->Players[1].NoTrade.Word() == 0);
        };
    }

private:
    FileAccess Files(Voice& says) { return {disk, says, disk, disk.InFolder("work")}; }

    // The league, lent to one of the evenings that the other models play.
    template <class Evening>
    class Lent {
    public:
        explicit Lent(std::unique_ptr<Tables>& lender) : owner(lender) { At.League = std::move(owner); }
        Lent(const Lent&) = delete;
        Lent& operator=(const Lent&) = delete;
        ~Lent() { owner = std::move(At.League); }
        Evening At{};

    private:
        std::unique_ptr<Tables>& owner;
    };

    template <class Evening, class Command>
    Does OfEvening(const Command& command)
    {
        return [this, command](Voice& says) {
            Lent<Evening> lent(league);
            AtTheDesk(lent.At, says, shown, command);
        };
    }
    Does OnTheMarket(const market_evening::Command& command)
    {
        return [this, command](Voice& says) {
            if (OfferTable::Has(command.Id))
                beforeOffer(command.Id);
            Lent<market_evening::Evening> lent(league);
            market_evening::Desk{lent.At, market, disk}.Does(says, shown, command);
        };
    }
    Does OfTheWidest()
    {
        const bool partial = dice.Chance(50);
        if (dice.Chance(50))
            return [this, partial](Voice& says) {
                bool modified = false;
                AutoRoster({*league, says, shown, modified}, Own, true, partial);
            };
        const std::size_t breaksOff = dice.Chance(40) ? static_cast<std::size_t>(dice.Roll(1, 400)) : 0;
        return [this, breaksOff](Voice& says) {
            bool modified = false;
            if (breaksOff != 0)
                disk.FailFileOperation(breaksOff, failure::PathAccess);
            LoadLines(
                {*league, says, shown, modified}, Files(says), disk, Own, linesFile, [] {}, [] {});
        };
    }

    Dice& dice;
    std::unique_ptr<Tables>& league;
    Market& market;
    ScriptedPlatform& disk;
    std::function<void(int)> beforeOffer;
    PlainFormats shown;
    std::string linesFile = disk.InFolder("Some.dvl");
};

} // namespace dravik
