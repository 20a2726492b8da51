#include "SampleLeague.h"

#include "session/Session.h"
#include "Subjects.h"

namespace dravik {

void MakeSampleLeague(const SampleOptions& options)
{
    if ((options.Divisions != 4 && options.Divisions != 6) || (options.OffSeason && options.Deadline))
        Fail(failure::InvalidCall);

    EmptyLeagueTables(OpenLeague);
    LeagueData = {};
    for (Coach& coach : Coaches)
        coach = {};

    using namespace sample;
    MakeRules(options);
    MakeTeams(options);
    MakeCoaches(options);
    MakeProspects(options);
    MakePeople(options);
    PaySalaries(options);
    AwardMarks(options);
    MakeLineUps(options);
    MakeCalendar(options);
    TearHoles(options);
    MakeFinances(options);
    FillReservedFields(options);
}

} // namespace dravik
