// Opens a client file of any bytes: it ends in a whole league or in no league, and leaves nothing behind on the disk.

#include "fuzz/MemoryPlatform.h"
#include "fuzz/ReadFileTarget.h"
#include "session/OpenLeagueClient.h"
#include "session/Session.h"

#include <cstring>

namespace dravik::fuzz {

namespace {

class Window final : public MainWindow {
public:
    bool ShowsLeague = false;

    void SetWindowCaption(const std::string& /*caption*/) override {}
    void PlaceTeam() override { ShowsLeague = true; }
    void CentreOnScreen() override {}
    void ShowLeagueMenus() override {}
    void SetDraftMenu(bool /*enabled*/, std::string_view /*caption*/) override {}
    void SetFreeAgentsMenu(bool /*enabled*/) override {}
    void SetDateLabel(const std::string& /*text*/) override {}
    void Tell(QuietLine /*line*/, const std::string& /*text*/) override {}
};

template <class Table>
bool IsEmpty(const Table& table)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&table);
    return bytes[0] == 0 && std::memcmp(bytes, bytes + 1, sizeof table - 1) == 0;
}

bool NoLeague()
{
    return IsEmpty(Prospects) && IsEmpty(Players) && IsEmpty(Goalies) && IsEmpty(Teams) && IsEmpty(GameSchedule);
}

template <class Changes, class People>
bool HoldsTheWordsOf(const Changes& changes, const People& people)
{
    for (long long i = 1; i <= Changes::last; ++i)
        if (changes[i].Protected.Word() != people[i].Protected.Word() ||
            changes[i].TradeAvailable.Word() != people[i].TradeAvailable.Word())
            return false;
    return true;
}

bool WholeLeague()
{
    return Players[0].Name.Trimmed() == "Unknown Player" && Goalies[0].Name.Trimmed() == "Unknown Goalie" &&
           HoldsTheWordsOf(RosterChanges, Players) && HoldsTheWordsOf(RosterChangesGoalie, Goalies) &&
           LeagueData.ProDressedSkaters != 0 && LeagueData.OverallWeightCK != 0;
}

} // namespace

void RunTarget(Input input)
{
    MemoryPlatform machine;
    UseMachine(machine);
    // The five tables are emptied by the opening itself.
    LeagueData = {};
    Coaches = {};
    TempFile = InFolder("ClientTemp.dvt");
    machine.UsePlainFiles(FilesArePlain());
    machine.Files[InFolder("League.dvs")] = FileOf(input);
    Window window;
    OpenLeagueClient(InFolder("League.dvs"), window);
    Require(machine.Files.size() == 1 && machine.Files.count(InFolder("League.dvs")) == 1);
    Require(window.ShowsLeague ? WholeLeague() : machine.BoxCount == 1 && NoLeague());
}

} // namespace dravik::fuzz
