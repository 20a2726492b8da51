#include "desk/Ranking.h"

#include "desk/DraftCandidates.h"
#include "machine/Message.h"

#include <algorithm>
#include <set>
#include <utility>

namespace dravik {

namespace {

bool IsChosen(const Work& work, std::optional<int> chosen)
{
    if (!chosen)
        work.Says.ShowBox("No Player Select!", box::Warning);
    return chosen.has_value();
}

// Exchanges a rank with its neighbour, unless nobody stands there. True when it did.
bool SwapWithNeighbour(DraftRanking& ranking, int rank, int step)
{
    if (ranking[rank + step] == 0)
        return false;
    std::swap(ranking[rank], ranking[rank + step]);
    return true;
}

} // namespace

void EachRanked(const Tables& league, const DraftRanking& ranking,
                const std::function<void(int id, const std::string& name)>& tell)
{
    for (const Int16& id : ranking)
        if (id != 0)
            tell(static_cast<int>(id), RankedName(league, static_cast<int>(id)));
}

bool RankLast(const Work& work, DraftRanking& ranking, std::optional<int> id)
{
    if (!IsChosen(work, id) || *id < 1)
        return false;
    if (std::find(ranking.begin(), ranking.end(), *id) != ranking.end())
        return true;
    auto* const free = std::find(ranking.begin(), ranking.end(), 0);
    if (free != ranking.end())
        *free = *id;
    return true;
}

bool Unrank(const Work& work, DraftRanking& ranking, std::optional<int> rank)
{
    if (!IsChosen(work, rank))
        return false;
    for (long long place = *rank; place < DraftRanking::last; ++place)
        ranking[place] = ranking[place + 1];
    return true;
}

std::optional<int> MoveRank(const Work& work, DraftRanking& ranking, std::optional<int> rank, RankStep step, int count)
{
    if (!IsChosen(work, rank))
        return std::nullopt;
    const int edge = step == RankStep::Up ? 0 : count - 1;
    if (*rank == edge) {
        work.Says.ShowBox("This player can be move!", box::Warning);
        return std::nullopt;
    }
    if (!SwapWithNeighbour(ranking, *rank, static_cast<int>(step)))
        return std::nullopt;
    return *rank + static_cast<int>(step);
}

int MoveRankTo(DraftRanking& ranking, int from, int to)
{
    const int step = to < from ? -1 : 1;
    int rank = from;
    while (rank != to && SwapWithNeighbour(ranking, rank, step))
        rank += step;
    return rank;
}

bool MaySaveRanking(const Work& work, int count)
{
    if (count == 0)
        work.Says.ShowBox("Your list is empty!", box::Warning);
    return count != 0;
}

std::optional<std::string> SaveRanking(const Tables& league, const FileAccess& files, int team,
                                       const DraftRanking& ranking, const std::string& type)
{
    return SaveRankingAs(league, files, team, DraftFilePath(league, files.Disk, team), ranking, type);
}

std::optional<std::string> SaveRankingAs(const Tables& league, const FileAccess& files, int team,
                                         const std::string& target, const DraftRanking& ranking,
                                         const std::string& type)
{
    if (!WriteDraftFile(league, files, team, ranking, target))
        return std::nullopt;
    return type + " File save for " + league.Teams[team].Name.Trimmed() + " succesfully at" + std::string(LineBreak) +
           target;
}

TakenIn TakeInRanking(const Tables& league, DraftRanking& ranking, const DraftRanking& from)
{
    std::set<int> candidates;
    PositionFilter all;
    for (bool& shown : all)
        shown = true;
    EachDraftCandidate(league, all, [&](const DraftCandidate& candidate) { candidates.insert(candidate.Id); });
    std::set<int> ranked;
    DraftRanking list;
    TakenIn taken;
    for (const long long rank : from) {
        const auto id = static_cast<int>(rank);
        if (id == 0)
            continue;
        if (candidates.count(id) == 0)
            taken.Told.push_back(NameOfNumber(league, id) + " can no longer be drafted.");
        else if (ranked.insert(id).second)
            list[taken.Count++] = id;
    }
    ranking = list;
    return taken;
}

LoadedFile LoadRanking(const Tables& league, const FileAccess& files, int team, const std::string& path,
                       DraftRanking& ranking)
{
    LoadedFile loaded;
    DraftRanking read;
    loaded.Outcome = ReadDraftFile(league, files, team, path, read);
    loaded.Words = LoadedWords(loaded.Outcome, "Draft list", league.Teams[team].Name.Trimmed(), path);
    if (loaded.Outcome == TeamFileRead::Loaded)
        loaded.TakenIn = TakeInRanking(league, ranking, read);
    return loaded;
}

} // namespace dravik
