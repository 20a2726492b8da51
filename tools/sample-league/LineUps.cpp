#include "makers/Makers.h"
#include "Random.h"
#include "rules/LineSlots.h"
#include "session/Session.h"
#include "Subjects.h"

#include <utility>

namespace dravik::sample {

namespace {

using Days = Row<Lines, 1, 10>;

struct Style {
    int Physical;
    int Defense;
    int Offense;
};

constexpr std::array Styles{Style{1, 2, 2}, Style{0, 2, 3}, Style{2, 2, 1},
                            Style{1, 3, 1}, Style{1, 1, 1}, Style{0, 0, 5}};

void SetBench(Random& random, Lines& lines)
{
    const Style& style = random.Pick(Styles);
    lines.Strategy[0] = style.Physical;
    lines.Strategy[1] = style.Defense;
    lines.Strategy[2] = style.Offense;
    // Most teams leave the league's defaults.
    if (random.Chance(35)) {
        lines.PullGoalerMinGoal = random.Between(2, 6);
        lines.PullGoalerMinPct = random.Between(70, 88);
    }
}

void SwapLines(Lines& lines, int one, int other)
{
    for (const LineField field : {LineField::NormalForward, LineField::NormalDefense})
        for (int place = 1; place <= (field == LineField::NormalForward ? 3 : 2); ++place)
            std::swap(At(lines, SlotOf(field, one, place)), At(lines, SlotOf(field, other, place)));
}

// The nine days behind the first: the same line-up, in which the backup starts now and then, and which shuffles its two
// lower lines.
void FillLaterDays(Random& random, Days& days)
{
    for (int day = 2; day <= Days::last; ++day) {
        days[day] = days[1];
        if (random.Chance(20))
            std::swap(days[day].StartGoalie, days[day].BackupGoalie);
        if (random.Chance(15))
            SwapLines(days[day], 3, 4);
    }
}

} // namespace

void MakeLineUps(const SampleOptions& options)
{
    Random random(options.Seed, "line-ups");
    for (const int team : TeamsInUse()) {
        AutoLines(OpenWork(), team, false, 1);
        SetBench(random, Teams[team].ProLines[1]);
        FillLaterDays(random, Teams[team].ProLines);
        AutoLinesFarm(OpenWork(), team, false, 1);
        FillLaterDays(random, Teams[team].Farm.FarmLines);
    }
}

} // namespace dravik::sample
