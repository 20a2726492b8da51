#include "desk/WorkLedger.h"

#include <algorithm>
#include <cstddef>

namespace dravik {

namespace {

// Which tables a file holds, in the order of the files' numbers.
struct Carried {
    DeskTable First;
    DeskTable Last;
};
constexpr Carried CarriedBy[] = {{DeskTable::League, DeskTable::GoalieChanges},
                                 {DeskTable::Offers, DeskTable::Offers},
                                 {DeskTable::Ranking, DeskTable::Ranking}};
constexpr std::size_t LinesFile = 0;

// Looking at a person makes the offer his, and that is no work.
constexpr RecordBytes OfferIds{.Table = DeskTable::Offers,
                               .Record = sizeof(FreeAgentOffer),
                               .First = offsetof(FreeAgentOffer, Id),
                               .Length = sizeof(FreeAgentOffer::Id)};

} // namespace

WorkLedger::OfTeam& WorkLedger::WorkOf(int team)
{
    const auto found =
        std::find_if(works.begin(), works.end(), [team](const OfTeam& work) { return work.Team == team; });
    if (found != works.end())
        return *found;
    works.push_back({.Team = team, .Time = 0, .Files = {}});
    return works.back();
}

void WorkLedger::Add(int team, const ByteDifference& change, std::optional<double> time)
{
    static_assert(std::size(CarriedBy) == FileCount);
    for (std::size_t file = 0; file < FileCount; ++file) {
        const ByteDifference part = Without(Within(change, CarriedBy[file].First, CarriedBy[file].Last), OfferIds);
        if (part.IsEmpty())
            continue;
        if (file != LinesFile)
            there.at(file).Content = joining.Then(there.at(file).Content, part);
        if (team == 0)
            continue;
        OfFile& work = WorkOf(team).Files.at(file);
        if (file == LinesFile)
            work.Own = joining.Then(work.Own, part);
        if (!time)
            continue;
        there.at(file).By = team;
        if (!work.Since)
            work.Since = time;
    }
}

void WorkLedger::Step(int team, double time, const ByteDifference& change)
{
    WorkOf(team).Time = time;
    Add(team, change, time);
}

void WorkLedger::Outside(int team, const ByteDifference& change) { Add(team, change, std::nullopt); }

void WorkLedger::Saved(SavedFile file, int team)
{
    const std::size_t index = IndexOf(file);
    for (OfTeam& work : works) {
        if (work.Team != team)
            continue;
        OfFile& saved = work.Files.at(index);
        saved.Held = index == LinesFile ? saved.Own : there.at(index).Content;
        saved.Since.reset();
    }
}

void WorkLedger::Kept(SavedFile file, int team)
{
    const std::size_t index = IndexOf(file);
    if (index != LinesFile && !there.at(index).Content.IsEmpty())
        WorkOf(team).Files.at(index).Kept = there.at(index).Content;
}

void WorkLedger::BroughtBack()
{
    for (const SavedFile file : {SavedFile::Offers, SavedFile::Ranking})
        if (const int team = MarketBy(file); team != 0)
            Kept(file, team);
}

std::vector<int> WorkLedger::Teams() const
{
    std::vector<int> teams;
    teams.reserve(works.size());
    for (const OfTeam& work : works)
        teams.push_back(work.Team);
    return teams;
}

std::vector<KeptThere> WorkLedger::AllKept() const
{
    std::vector<KeptThere> kept;
    for (const OfTeam& work : works)
        for (const SavedFile file : {SavedFile::Offers, SavedFile::Ranking})
            if (const auto& content = work.Files.at(IndexOf(file)).Kept)
                kept.push_back({.Team = work.Team, .File = file, .Content = *content});
    return kept;
}

const ByteDifference& WorkLedger::Latest(const OfTeam& team, std::size_t file) const
{
    const OfFile& work = team.Files.at(file);
    if (file == LinesFile)
        return work.Own;
    const OnMarket& market = there.at(file);
    const bool isOwn = market.By == team.Team;
    if (isOwn && !market.Content.IsEmpty())
        return market.Content;
    if (work.Kept)
        return *work.Kept;
    return isOwn ? market.Content : work.Held;
}

bool WorkLedger::IsUnsaved(const OfTeam& team, std::size_t file) const
{
    const OfFile& work = team.Files.at(file);
    return work.Since && !joining.Then(Reversed(work.Held), Latest(team, file)).IsEmpty();
}

std::optional<double> WorkLedger::UnsavedSince(SavedFile file, int team) const
{
    for (const OfTeam& work : works)
        if (work.Team == team && IsUnsaved(work, IndexOf(file)))
            return work.Files.at(IndexOf(file)).Since;
    return std::nullopt;
}

std::optional<UnsavedWork> WorkLedger::Unsaved() const
{
    std::optional<UnsavedWork> latest;
    for (const OfTeam& work : works)
        for (std::size_t file = 0; file < FileCount; ++file)
            if (IsUnsaved(work, file) && (!latest || work.Time >= latest->Time))
                latest = {.Team = work.Team, .Time = work.Time};
    return latest;
}

} // namespace dravik
