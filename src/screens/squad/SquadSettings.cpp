#include "screens/squad/SquadSettings.h"

#include "machine/SettingsFailure.h"
#include "session/Session.h"

namespace dravik {

namespace {

constexpr const char* Section = "Screens";

const char* KeyOf(SquadKind kind)
{
    constexpr const char* keys[] = {"SquadSkaters", "SquadGoalies", "SquadProspects"};
    return keys[static_cast<std::size_t>(kind)];
}

} // namespace

std::string ColumnsKept(SquadKind kind)
{
    try {
        return Machine().GetSetting(Section, KeyOf(kind), {});
    } catch (const SettingsFailure&) {
        return {}; // the main screen has read them before, and told
    }
}

void KeepColumns(SquadKind kind, const std::string& arrangement)
{
    Machine().SaveSetting(Section, KeyOf(kind), arrangement);
}

} // namespace dravik
