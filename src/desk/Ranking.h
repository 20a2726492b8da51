#pragma once

#include "desk/TakenIn.h"
#include "files/DraftFile.h"
#include "files/FileAccess.h"
#include "machine/Work.h"

#include <functional>
#include <optional>
#include <string>

// The ranking for a draft. A rank is counted from 0; who or which rank is meant comes as none where nothing is chosen.
namespace dravik {

// Tells whoever is ranked, best first: his id, and how he is named. An id that nobody has fails with 9; those before him have
// been told by then.
void EachRanked(const Tables& league, const DraftRanking& ranking,
                const std::function<void(int id, const std::string& name)>& tell);

// Ranks the person `id` behind the others. Who is ranked already, and who finds the ranking full, changes nothing without a
// word; an id that fits no rank fails with 6. False for an id below 1, and where nobody is chosen, which is told in a
// warning box.
bool RankLast(const Work& work, DraftRanking& ranking, std::optional<int> id);

// Takes a rank off, and everybody behind it moves up; the last rank of a full ranking has nobody behind it to take over, and
// stays. False where none is chosen, which is told in a warning box.
bool Unrank(const Work& work, DraftRanking& ranking, std::optional<int> rank);

enum class RankStep { Up = -1, Down = 1 };

// Exchanges a rank of `count` with its neighbour. That none is chosen, and that he is the first or last already, is told in a
// warning box; with nobody beside him nothing happens. The rank that he has now, if he moved. A rank outside the table fails
// with 9.
std::optional<int> MoveRank(const Work& work, DraftRanking& ranking, std::optional<int> rank, RankStep step, int count);

// Moves a rank to another one, past one neighbour after the other. He stays in front of a place where nobody is. The rank that
// he has now.
int MoveRankTo(DraftRanking& ranking, int from, int to);

// Whether a ranking of `count` people can be saved. An empty one is told of in a warning box.
bool MaySaveRanking(const Work& work, int count);

// Saves the ranking of `team` (1..100) for a draft of `type` to its draft file, whose older one is gone in any case. The words
// of an information box that tells it; none when the file could not be compressed, which is told. Fails as the disk does.
std::optional<std::string> SaveRanking(const Tables& league, const FileAccess& files, int team,
                                       const DraftRanking& ranking, const std::string& type);

// The same, to `target` in the place of that path.
std::optional<std::string> SaveRankingAs(const Tables& league, const FileAccess& files, int team,
                                         const std::string& target, const DraftRanking& ranking,
                                         const std::string& type);

// Puts the people of `from`, best first, in the place of all who are ranked. Whoever can no longer be drafted, and whoever stands
// there a second time, is left out; the first are told.
TakenIn TakeInRanking(const Tables& league, DraftRanking& ranking, const DraftRanking& from);

// Takes in the draft file `path` of `team` (1..100). A file that is none of this league and this team changes nothing. Fails as
// the disk does.
LoadedFile LoadRanking(const Tables& league, const FileAccess& files, int team, const std::string& path,
                       DraftRanking& ranking);

} // namespace dravik
