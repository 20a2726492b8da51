#pragma once

#include "desk/Password.h"
#include "files/DraftFile.h"
#include "files/LinesFile.h"
#include "files/OffersFile.h"
#include "files/RatingsExport.h"
#include "machine/Digest.h"
#include "machine/InputCheck.h"
#include "machine/Location.h"
#include "machine/Paths.h"
#include "machine/Reporting.h"
#include "makers/Makers.h"
#include "rules/Finance.h"
#include "rules/LineJudge.h"
#include "rules/LineLookups.h"
#include "rules/LineSlots.h"
#include "rules/Overall.h"
#include "rules/RosterJudge.h"
#include "rules/SalaryCap.h"
#include "rules/SeasonProjection.h"
#include "rules/StatRows.h"
#include "rules/Waivers.h"
#include "rules/WipeLines.h"
#include "session/Session.h"

#include <string>
#include <string_view>

// The routines of the league by the names and arguments under which everybody knows them, on the league that is open and on the
// machine that runs the program. What each does stands with the routine of the same name that takes both as arguments.
namespace dravik {

// Boxes and news.
inline int ShowBox(std::string_view text, int kind) { return Machine().ShowBox(text, kind); }
inline void ShowIntegrityFailure() { Machine().ShowIntegrityFailure(); }
inline std::string AskText(std::string_view prompt) { return Machine().AskText(prompt); }
inline void LeagueNews(std::string_view text) { Machine().LeagueNews(text); }
inline void TeamNews(int team, std::string_view text) { Machine().TeamNews(team, text); }
inline void PlayerErased(int id, int team) { Machine().PlayerErased(id, team); }

inline void ReportFailure(int number, std::string_view ending) { ReportFailure(Machine(), number, ending); }

// Runs `body` and reports what it throws with `ending`; a machine is asked for only then. True when `body` came to its end.
template <class Body>
bool Reporting(std::string_view ending, Body&& body)
{
    const auto failed = FailureIn(body);
    if (failed)
        ReportFailure(*failed, ending);
    return !failed;
}
// The same, but a cancelled dialog ends `body` without a word.
template <class Body>
bool ReportingUnlessCancelled(std::string_view ending, Body&& body)
{
    const auto failed = FailureIn(body);
    if (failed && *failed != failure::Cancelled)
        ReportFailure(*failed, ending);
    return !failed;
}

// The machine.
inline bool FileExist(const std::string& path) { return FileExist(Machine(), path); }
inline std::string DigestStrToHexStr(std::string_view text) { return DigestStrToHexStr(Machine(), text); }
inline int OpenLocation(const std::string& location, int showMode)
{
    return OpenLocation(Machine(), location, showMode);
}
inline void ShowWait() { Machine().ShowWait(); }
inline void CloseWait() { Machine().CloseWait(); }
inline bool CheckInput(std::string_view text, InputMode mode, bool required, bool silent = false)
{
    return CheckInput(Machine(), text, mode, required, silent);
}
inline bool CheckPassword(int team) { return CheckPassword(OpenLeague, Machine(), team); }

// The files.
inline std::string LinesFilePath(int team) { return LinesFilePath(OpenLeague, Machine(), team); }
inline bool WriteLinesFile(int team, const std::string& target)
{
    return WriteLinesFile(OpenLeague, OpenFiles(), team, target);
}
inline LinesFileRead ReadLinesFile(const std::string& path)
{
    return ReadLinesFile(OpenLeague, OpenFiles(), static_cast<int>(CurrentTeam), path);
}
inline std::string DraftFilePath(int team) { return DraftFilePath(OpenLeague, Machine(), team); }
inline bool WriteDraftFile(int team, const DraftRanking& ranking, const std::string& target)
{
    return WriteDraftFile(OpenLeague, OpenFiles(), team, ranking, target);
}
inline std::string OffersFilePath(int team) { return OffersFilePath(OpenLeague, Machine(), team); }
inline bool IsOffer(const FreeAgentOffer& offer) { return IsOffer(LeagueData, offer); }
inline OffersTally TallyOffers(int team, const OfferTable& offers) { return TallyOffers(OpenLeague, team, offers); }
inline SavedOffers WriteOffersFile(int team, const std::string& target, OfferTable& offers)
{
    return WriteOffersFile(OpenLeague, OpenFiles(), Machine(), team, target, offers);
}
inline void ExportRatings(const std::string& folder) { ExportRatings(OpenLeague, Machine(), folder); }

// The tables.
inline void MarkRosterChangesUntouched() { MarkRosterChangesUntouched(OpenLeague); }

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
inline void TellSkaterRatings(int index, const TellStatRow& tell)
{
    TellSkaterRatings(OpenLeague, index, static_cast<int>(PlayerStatCount), tell);
}
inline void TellGoalieRatings(int index, const TellStatRow& tell)
{
    TellGoalieRatings(OpenLeague, index, static_cast<int>(GoalieStatCount), tell);
}
inline StatRow SkaterOverallRow(int overall) { return SkaterOverallRow(LeagueData, overall); }
inline StatRow GoalieOverallRow(int overall) { return GoalieOverallRow(LeagueData, overall); }

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

} // namespace dravik
