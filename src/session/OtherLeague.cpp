#include "session/OtherLeague.h"

#include "desk/PrepareLeague.h"
#include "files/ClientFile.h"
#include "machine/Message.h"
#include "machine/Paths.h"
#include "session/Session.h"

#include <utility>

namespace dravik {

namespace {

OtherLeague TheOther;

bool Refuse(std::string_view text)
{
    Machine().CloseWait();
    Machine().ShowBox(text, box::Critical);
    return false;
}

} // namespace

const OtherLeague& TheOtherLeague() { return TheOther; }

void CloseOtherLeague() noexcept { TheOther = {}; }

bool OpenOtherLeague(const std::string& path)
{
    CloseOtherLeague();
    if (!FileExist(Machine(), path))
        return Refuse("Cannot find the client league file!");
    auto league = MakeTables();
    ClientFileRead outcome;
    Machine().ShowWaitOver(
        [&] { outcome = ReadClientFile(*league, SlotFilesOf(OpenFiles()), ExistingPath(Machine(), path)); });
    if (outcome.File == SlotFileRead::NotDecompressed) {
        Machine().CloseWait(); // told
        return false;
    }
    if (!outcome.Whole)
        return Refuse("File Integrity is incorrect!");
    PrepareLeague(*league);
    Machine().CloseWait();
    TheOther = {
        .League = std::move(league), .FileName = GetFileName(path), .IsDamaged = outcome.File == SlotFileRead::Damaged};
    return true;
}

} // namespace dravik
