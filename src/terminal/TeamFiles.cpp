#include "terminal/TeamFiles.h"

#include "desk/TakenIn.h"
#include "files/LinesFile.h"
#include "files/Magics.h"
#include "files/TeamFileRead.h"
#include "files/VerifyFile.h"
#include "league/Failure.h"
#include "terminal/Ask.h"
#include "terminal/Problem.h"
#include "terminal/Utf8.h"

#include <array>
#include <string_view>

namespace dravik::terminal {

namespace {

struct KindOfFile {
    std::string_view Magic;
    std::size_t Slot;
    std::string_view Words;
};

const KindOfFile& About(TeamFileKind kind)
{
    static constexpr std::array kinds{
        KindOfFile{LinesFileStart, SlotLength, "lines file"},
        KindOfFile{OffersFileStart, OffersSlotLength, "offer file"},
        KindOfFile{DraftFileStart, DraftSlotLength, "draft file"},
    };
    return kinds[static_cast<std::size_t>(kind)];
}

} // namespace

TeamFileHead HeadOf(const std::string& path, TeamFileKind kind)
{
    const KindOfFile& about = About(kind);
    Machine machine;
    TeamFileHead head;
    bool fits = false;
    const auto read = [&](SlotReader& slots) {
        Text<5> code;
        Int16 team;
        fits = slots.ReadMagic(about.Magic) && slots.Read(code) && slots.Read(team) && TeamTable::Has(team);
        head = {.Code = code.Raw(), .Team = static_cast<int>(team)};
    };
    try {
        machine.UsePlainFiles(IsPlainFile(machine, path));
        ReadSlotFile(SlotFilesOf(machine.Files()), path, read, about.Slot);
    } catch (const Failure& failed) {
        throw Problem(path + ": " + failed.what());
    }
    if (!fits)
        throw Problem(path + ": this is no " + std::string(about.Words));
    return head;
}

void TakeInLines(LeagueAtHand& league, const std::string& path, int team)
{
    Machine& machine = *league.Machine;
    TeamFileRead read{};
    try {
        machine.UsePlainFiles(IsPlainFile(machine, path));
        read = ReadLinesFile(*league.League, machine.Files(), team, path);
    } catch (const Failure& failed) {
        throw Problem(path + ": " + failed.what());
    }
    const std::vector<std::string> told = machine.TakeTold();
    if (read == TeamFileRead::NotDecompressed)
        throw Problem(path + ": " + (told.empty() ? "" : ToUtf8(told.front())));
    if (read == TeamFileRead::Refused)
        throw Problem(
            OnOneLine(ToUtf8(LoadedWords(read, "Lines file", league.League->Teams[team].Name.Trimmed(), "")) + path));
}

bool LeftOut::MayWorkOn(const LeagueAtHand& league, int team, const Passwords& known)
{
    const Proof proof = Prove(*league.League, *league.Machine, team, known);
    if (proof != Proof::Proven)
        teams.push_back({.Number = team, .Name = league.NameOf(team), .IsWrong = proof == Proof::Wrong});
    return proof == Proof::Proven;
}

bool LeftOut::MayShow(LeagueAtHand& league, int team, bool named, const Passwords& known)
{
    if (named && IsAtTerminal()) {
        Demand(*league.League, *league.Machine, team, known);
        return true;
    }
    return MayWorkOn(league, team, known);
}

std::string LeftOut::Text(const std::string& what) const
{
    std::string text;
    for (const Team& team : teams)
        text += (text.empty() ? "" : ", ") + std::to_string(team.Number) + " " + team.Name +
                (team.IsWrong ? " (Password is incorrect!)" : "");
    return text.empty() ? text : "  " + what + ", Password Required!: " + text + "\n";
}

Json LeftOut::Data() const
{
    Json data = Json::array();
    for (const Team& team : teams)
        data.push_back({{"number", team.Number},
                        {"name", team.Name},
                        {"why", team.IsWrong ? "Password is incorrect!" : "Password Required!"}});
    return data;
}

} // namespace dravik::terminal
