#include "desk/TakenIn.h"

#include "league/PersonId.h"
#include "league/Positions.h"
#include "machine/Message.h"

namespace dravik {

std::string NameOfNumber(const Tables& league, int number)
{
    const std::string name =
        number > ProspectOffset
            ? league.Prospects[number - ProspectOffset].Name.Trimmed()
            : OnPerson(league, PersonOf(number), [](const auto& person) { return person.Name.Trimmed(); });
    return name.empty() ? "Number " + std::to_string(number) : name;
}

std::string LoadedWords(TeamFileRead outcome, std::string_view kind, std::string_view teamName, std::string_view path)
{
    if (outcome == TeamFileRead::NotDecompressed)
        return {};
    const bool loaded = outcome == TeamFileRead::Loaded;
    std::string words(loaded ? kind : "File");
    words.append(" for ").append(teamName);
    words.append(loaded ? " successfully load from" : " unsuccessfully load from");
    return words.append(LineBreak).append(path);
}

} // namespace dravik
