#include "desk/DraftCandidates.h"

#include "league/PersonId.h"
#include "league/Trimming.h"
#include "rules/Overall.h"

namespace dravik {

namespace {

std::string NameAndPosition(const std::string& name, long long position)
{
    return name + " (" + std::string(PositionName[position]) + ")";
}

template <class Person>
bool IsFree(const Person& person)
{
    return person.InUse && person.Team == 0;
}

} // namespace

bool IsEntryDraftAhead(const League& rules) { return rules.EntryDraft && rules.EntryDraftDone == 0; }

std::string DraftTypeOf(const League& rules)
{
    if (IsEntryDraftAhead(rules))
        return "Entry Draft";
    return rules.FantasyDraft ? "Fantasy Draft" : "";
}

void EachDraftCandidate(const Tables& league, const PositionFilter& shown,
                        const std::function<void(const DraftCandidate&)>& tell)
{
    const League& rules = league.LeagueData;
    const auto tellAgent = [&](const auto& person, int slot) {
        const int position = PositionOf(person);
        if (shown[position])
            tell({.Id = CommonNumberOf(person),
                  .Text = NameAndPosition(person.Name.Trimmed(), position),
                  .Overall = rules.ShowOverall ? OverallAt(league, position, slot) : std::nullopt});
    };
    if (rules.FantasyDraft) {
        for (int slot = 1; slot <= PlayerTable::last; ++slot) {
            const Player& player = league.Players[slot];
            if (IsFree(player) && player.Position >= position::Center && player.Position <= position::Defense)
                tellAgent(player, slot);
        }
        for (int slot = 1; slot <= GoalieTable::last; ++slot)
            if (IsFree(league.Goalies[slot]))
                tellAgent(league.Goalies[slot], slot);
    }
    if (IsEntryDraftAhead(rules))
        for (int slot = 1; slot <= ProspectTable::last; ++slot) {
            const Prospect& prospect = league.Prospects[slot];
            if (!RemoveSpaces(prospect.Name.Raw()).empty())
                tell({.Id = ProspectOffset + slot, .Text = prospect.Name.Trimmed(), .Overall = std::nullopt});
        }
}

std::string RankedName(const Tables& league, int id)
{
    if (id > ProspectOffset)
        return league.Prospects[id - ProspectOffset].Name.Trimmed();
    return OnPerson(league, PersonOf(id),
                    [](const auto& person) { return NameAndPosition(person.Name.Trimmed(), PositionOf(person)); });
}

} // namespace dravik
