#include "desk/NewPlayer.h"

#include "league/Arithmetic.h"
#include "machine/Message.h"

#include <algorithm>
#include <iterator>

namespace dravik {

namespace {

template <class Table>
int FirstFree(const Table& people)
{
    for (int slot = 1; slot < Table::last; ++slot)
        if (!people[slot].InUse)
            return slot;
    return 0;
}

// What a new record must hold, beside its ratings.
constexpr std::string NewRecord::*Required[] = {
    &NewRecord::Name,   &NewRecord::Country,  &NewRecord::Age,    &NewRecord::Weight,
    &NewRecord::Height, &NewRecord::Contract, &NewRecord::Salary, &NewRecord::Condition,
};

bool IsFilled(const NewRecord& record, long long ratings)
{
    const auto isFilled = [](const std::string& text) { return !text.empty(); };
    return std::all_of(std::begin(Required), std::end(Required), [&](auto text) { return isFilled(record.*text); }) &&
           std::ssize(record.Ratings) >= ratings &&
           std::all_of(record.Ratings.begin(), std::next(record.Ratings.begin(), ratings), isFilled);
}

int Whole(const std::string& text) { return RoundToInt32(LeadingNumber(text)); }

// Fails with 6 at a number that does not fit.
template <class Person>
void Fill(Person& person, const NewRecord& record)
{
    person.Name = record.Name;
    person.Country = record.Country;
    person.Age = Whole(record.Age);
    person.Weight = Whole(record.Weight);
    person.Height = Whole(record.Height);
    person.Contract = Whole(record.Contract);
    person.Salary = Whole(record.Salary);
    person.Condition = Whole(record.Condition);
    person.Team = 0;
    for (long long rating = person.Stats.first; rating <= person.Stats.last; ++rating)
        person.Stats[rating] = RoundToInt16(LeadingNumber(record.Ratings[static_cast<std::size_t>(rating - 1)]));
}

} // namespace

int FreeSlotFor(const Work& work, bool isGoalie)
{
    const int slot = isGoalie ? FirstFree(work.League.Goalies) : FirstFree(work.League.Players);
    if (slot == 0)
        work.Says.ShowBox(std::string("You have reach the maximum number of available ") +
                              (isGoalie ? "goalies" : "players") + "!" + std::string(LineBreak) +
                              "Please erase some before creating new ones.",
                          box::Warning);
    return slot;
}

bool CreatePlayer(const Work& work, PersonId who, const NewRecord& record, const std::function<void()>& list)
{
    Tables& league = work.League;
    if (!OnPerson(league, who, [&](const auto& person) { return IsFilled(record, person.Stats.last); })) {
        work.Says.ShowBox("Missing Field!", box::Warning);
        return false;
    }
    OnPerson(league, who, [&](auto& person) {
        person.InUse = true;
        person.Number = who.Slot;
        Fill(person, record);
        if constexpr (requires { person.Position; })
            person.Position = record.Position;
        person.NoApplyRerate = record.NoApplyRerate;
        person.Rookie = record.Rookie;
        person.NoTrade = record.NoTrade;
    });
    const std::string name = OnPerson(league, who, [](const auto& person) { return person.Name.Trimmed(); });
    work.Says.LeagueNews(name + " was created.");
    list();
    work.Says.ShowBox(name + " was successfully created!", box::Information);
    work.Modified = true;
    return true;
}

} // namespace dravik
