#include "league/Tables.h"
#include "makers/Makers.h"
#include "rules/Finance.h"
#include "rules/LineJudge.h"
#include "rules/LineLookups.h"
#include "rules/RosterJudge.h"
#include "support/NotingVoice.h"
#include "support/PlainFormats.h"
#include "support/RandomLeague.h"

#include <cstring>
#include <functional>
#include <thread>

// A league is a value: two of them stand beside each other in one process, and what is done to one is not seen in the
// other, not even by two threads.
namespace dravik {
namespace {

std::unique_ptr<Tables> RolledLeague(unsigned seed)
{
    ResetClientVariables();
    Dice dice(seed);
    RollLeague(dice);
    return Copy(OpenLeague);
}

bool AreAlike(const Tables& one, const Tables& other) { return std::memcmp(&one, &other, sizeof one) == 0; }

// One evening on one league: everything that judges or makes, a step at a time. What it says and finds comes into one text.
class Evening {
public:
    explicit Evening(const Tables& from) : league(Copy(from)) {}

    // Does the next step; false when there is none left.
    bool Step()
    {
        const auto steps = Steps();
        if (done == steps.size() * Teams)
            return false;
        steps[done % steps.size()](static_cast<int>(done / steps.size()) + 1);
        ++done;
        return true;
    }
    void ToItsEnd()
    {
        while (Step()) {
        }
    }

    [[nodiscard]] const Tables& League() const { return *league; }
    [[nodiscard]] std::string Told() const { return says.Heard + found + (modified ? " modified" : ""); }

private:
    static constexpr std::size_t Teams = 3;

    std::vector<std::function<void(int)>> Steps()
    {
        const Work work{*league, says, shown, modified};
        const auto note = [this](const std::string& text) { found += text + '\n'; };
        const auto noteLines = [note, work](const LineVerdict& verdict) {
            note(TextOf(work.League, verdict) + std::to_string(verdict.Findings.size()) + (verdict ? " complete" : ""));
        };
        return {[=](int team) { note(TextOf(work.League, team, CheckRoster(work, team, true, true, true))); },
                [=](int team) { AutoRoster(work, team, true, team == 2); },
                [=](int team) { noteLines(CheckLine(work, team, true, 1, true)); },
                [=](int team) { AutoLines(work, team, true, 1); },
                [=](int team) { AutoLinesPartial(work, team, true, 2); },
                [=](int team) { AutoLinesFarm(work, team, true, 1); },
                [=](int team) { noteLines(CheckLine(work, team, true, 2, true)); },
                [=](int team) { noteLines(CheckLineFarm(work, team, true, 1, true)); },
                [=](int team) { note(PlayOnLineString(work.League, team, 1, 1)); },
                [=](int team) { note(std::to_string(ProPayroll(work.League, work.Says, team))); }};
    }

    std::unique_ptr<Tables> league;
    NotingVoice says;
    PlainFormats shown;
    bool modified = false;
    std::string found;
    std::size_t done = 0;
};

constexpr unsigned Seeds = 20;

void ExpectAsAlone(const Evening& evening, const Evening& alone, unsigned seed)
{
    EXPECT_TRUE(AreAlike(evening.League(), alone.League())) << seed;
    EXPECT_EQ(evening.Told(), alone.Told()) << seed;
}

// Has `together` bring the evenings of two leagues to their ends, and expects of each what it comes to alone.
void ExpectBothAsAlone(const std::function<void(Evening& one, Evening& other)>& together)
{
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        const auto one = RolledLeague(seed);
        const auto other = RolledLeague(seed + 1000);
        Evening oneAlone(*one);
        Evening otherAlone(*other);
        oneAlone.ToItsEnd();
        otherAlone.ToItsEnd();
        EXPECT_FALSE(AreAlike(oneAlone.League(), *one)) << "the evening did nothing with " << seed;

        Evening oneBeside(*one);
        Evening otherBeside(*other);
        together(oneBeside, otherBeside);
        ExpectAsAlone(oneBeside, oneAlone, seed);
        ExpectAsAlone(otherBeside, otherAlone, seed);
    }
}

TEST(TwoLeaguesTest, InTurnEachIsJudgedAndMadeAsAlone)
{
    ExpectBothAsAlone([](Evening& one, Evening& other) {
        for (bool left = true; left;) {
            left = one.Step();
            left = other.Step() || left;
        }
    });
}

TEST(TwoLeaguesTest, TwoThreadsJudgeAndMakeEachAsAlone)
{
    ExpectBothAsAlone([](Evening& one, Evening& other) {
        std::thread beside([&] { other.ToItsEnd(); });
        one.ToItsEnd();
        beside.join();
    });
}

TEST(TwoLeaguesTest, JudgingACopyLeavesTheOriginalAlone)
{
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        const auto original = RolledLeague(seed);
        const auto before = Copy(*original);
        Evening evening(*original);
        evening.ToItsEnd();
        EXPECT_TRUE(AreAlike(*original, *before)) << seed;
    }
}

TEST(TwoLeaguesTest, LookingWithAMuteVoiceFindsWhatTellingFinds)
{
    const PlainFormats shown;
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        const auto league = RolledLeague(seed);
        for (int team = 1; team <= 3; ++team) {
            const auto told = Copy(*league);
            const auto looked = Copy(*league);
            bool modified = false;
            NotingVoice says;
            MuteVoice mute;
            const RosterVerdict tells = CheckRoster({*told, says, shown, modified}, team, true, true, true);
            const RosterVerdict looks = CheckRoster({*looked, mute, shown, modified}, team, false, true, false);
            EXPECT_EQ(TextOf(*looked, team, looks), TextOf(*told, team, tells));
            EXPECT_EQ(looks.Complete, tells.Complete);
            EXPECT_EQ(looks.Repaired, tells.Repaired);
            EXPECT_EQ(looks.Failed, tells.Failed);
            const LineVerdict tellsLines = CheckLine({*told, says, shown, modified}, team, true, 1, true);
            const LineVerdict looksLines = CheckLine({*looked, mute, shown, modified}, team, false, 1, false);
            EXPECT_EQ(TextOf(*looked, looksLines), TextOf(*told, tellsLines));
            EXPECT_EQ(looksLines.Findings.size(), tellsLines.Findings.size());
            EXPECT_EQ(looksLines.Failed, tellsLines.Failed);
            EXPECT_TRUE(AreAlike(*looked, *told));
        }
    }
}

} // namespace
} // namespace dravik
