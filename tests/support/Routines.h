#pragma once

#include "desk/Password.h"
#include "files/DraftFile.h"
#include "files/LinesFile.h"
#include "files/OffersFile.h"
#include "files/RatingsExport.h"
#include "machine/Digest.h"
#include "machine/InputCheck.h"
#include "makers/Makers.h"
#include "rules/LineJudge.h"
#include "rules/LineLookups.h"
#include "rules/LineSlots.h"
#include "rules/Overall.h"
#include "rules/RosterJudge.h"
#include "rules/SalaryCap.h"
#include "rules/SeasonProjection.h"
#include "rules/StatRows.h"
#include "rules/WipeLines.h"
#include "session/Session.h"

#include <string>
#include <string_view>

// The league's routines by the names and arguments under which everybody knows them, on the league that is open and on the
// machine of the test. What each does stands with the routine of the same name that takes both as arguments.
namespace dravik {

// The machine.
inline std::string DigestStrToHexStr(std::string_view text) { return DigestStrToHexStr(Machine(), text); }
inline bool CheckInput(std::string_view text, InputMode mode, bool required, bool silent = false)
{
    return CheckInput(Machine(), text, mode, required, silent);
}
inline bool CheckPassword(int team) { return CheckPassword(OpenLeague, Machine(), team); }

// The files.
// As the session hands them out, but that nobody keeps what is replaced.
inline FileAccess WritersFiles() { return {Machine(), Machine(), Machine(), TempFile}; }
inline std::string LinesFilePath(int team) { return LinesFilePath(OpenLeague, Machine(), team); }
inline bool WriteLinesFile(int team, const std::string& target)
{
    return WriteLinesFile(OpenLeague, WritersFiles(), team, target);
}
inline TeamFileRead ReadLinesFile(const std::string& path)
{
    return ReadLinesFile(OpenLeague, OpenFiles(), OwnNumber(), path);
}
inline std::string DraftFilePath(int team) { return DraftFilePath(OpenLeague, Machine(), team); }
inline bool WriteDraftFile(int team, const DraftRanking& ranking, const std::string& target)
{
    return WriteDraftFile(OpenLeague, WritersFiles(), team, ranking, target);
}
inline std::string OffersFilePath(int team) { return OffersFilePath(OpenLeague, Machine(), team); }
inline OffersTally TallyOffers(int team, const OfferTable& offers) { return TallyOffers(OpenLeague, team, offers); }
inline SavedOffers WriteOffersFile(int team, const std::string& target, OfferTable& offers)
{
    return WriteOffersFile(OpenLeague, WritersFiles(), Machine(), team, target, offers);
}
inline void ExportRatings(const std::string& folder) { ExportRatings(OpenLeague, Machine(), folder); }

// The rules.
inline int CalculateOverall(int position, int id) { return CalculateOverall(OpenLeague, Machine(), position, id); }
inline CapStanding StandingAgainstCap(int team) { return StandingAgainstCap(OpenLeague, team); }
inline void ProjectSeason(int team, SeasonFigures& season) { ProjectSeason(OpenLeague, Machine(), team, season); }
inline Lines& LinesOf(int team, int day, Side side) { return LinesOf(OpenLeague, team, day, side); }
inline std::string PlayOnLineString(int team, int player, int day)
{
    return PlayOnLineString(OpenLeague, team, player, day);
}
inline std::string PlayOnLineStringFarm(int team, int player, int day)
{
    return PlayOnLineStringFarm(OpenLeague, team, player, day);
}
inline int PlayOnLineInteger(int team, int player, int day) { return PlayOnLineInteger(OpenLeague, team, player, day); }
inline int PlayOnLineIntegerFarm(int team, int player, int day)
{
    return PlayOnLineIntegerFarm(OpenLeague, team, player, day);
}
inline void WipesLines(int team, int day, bool pro) { WipesLines(OpenLeague, Machine(), team, day, pro); }
inline void WipePlayerFromTeamLines(int team, int id) { WipePlayerFromTeamLines(OpenLeague, Machine(), team, id); }
inline StatRows SkaterStatRows(int index)
{
    return SkaterStatRows(OpenLeague, Machine(), index, static_cast<int>(PlayerStatCount));
}
inline StatRows GoalieStatRows(int index)
{
    return GoalieStatRows(OpenLeague, Machine(), index, static_cast<int>(GoalieStatCount));
}
inline StatRows SkaterStatRows(const SkaterRatings& ratings, int overall)
{
    return SkaterStatRows(LeagueData, ratings, static_cast<int>(PlayerStatCount), overall);
}

// The judges. What the one that ran last found is kept, and its words are made when they are asked for.
bool CheckRoster(int team, bool log, bool withSalaryCap, bool showMessage);
std::string LastRosterText();
bool CheckSalaryCap(int team, bool showMessage);
// Nothing, where the CheckRoster that was to judge the payroll too broke off before it.
std::string LastCapText();
LineVerdict VerdictOnLine(int team, bool showMessage, int day, bool log);
LineVerdict VerdictOnLineFarm(int team, bool showMessage, int day, bool log);
bool CheckLine(int team, bool showMessage, int day, bool log);
bool CheckLineFarm(int team, bool showMessage, int day, bool log);
std::string LastLinesText();

// The makers.
void AutoRoster(int team, bool verbose, bool partial);
void AutoLines(int team, bool verbose, int day);
void AutoLinesPartial(int team, bool verbose, int day);
void AutoLinesFarm(int team, bool verbose, int day);

// 1 after a roster judgement that changed a status, a maker's included, and 0 after one that did not. A team out of range
// leaves it alone.
extern Int16 RosterFixed;

} // namespace dravik
