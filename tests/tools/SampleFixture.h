#pragma once

#include "sample-league/SampleLeague.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <vector>

namespace dravik {

// The default sample league, fresh in the tables.
class SampleTables : public SmallLeague {
protected:
    SampleTables() { MakeSampleLeague({}); }

    static std::vector<int> TeamNumbers()
    {
        std::vector<int> numbers;
        for (int number = 1; number <= TeamTable::last; ++number)
            if (Teams[number].InUse)
                numbers.push_back(number);
        return numbers;
    }

    static bool HasHole(int team)
    {
        return std::ranges::any_of(SampleHoles, [team](const TeamHole& hole) { return hole.Team == team; });
    }

    static std::vector<int> WholeTeams()
    {
        std::vector<int> teams = TeamNumbers();
        std::erase_if(teams, HasHole);
        return teams;
    }

    static int TeamWith(Hole kind)
    {
        return std::ranges::find_if(SampleHoles, [kind](const TeamHole& hole) { return hole.Kind == kind; })->Team;
    }

    // How many of a table fulfil `test`, slot 0 left out.
    template <class Table, class Test>
    static int Count(const Table& table, Test test)
    {
        int count = 0;
        for (long long index = 1; index <= Table::last; ++index)
            count += test(table[index]) ? 1 : 0;
        return count;
    }
};

} // namespace dravik
