#include "desk/LinesFiles.h"

#include "desk/Password.h"
#include "desk/TakenIn.h"
#include "files/LinesFile.h"
#include "machine/Message.h"
#include "rules/LineJudge.h"

namespace dravik {

namespace {

// Runs `body` behind the wait screen; a failure takes that away.
template <class Body>
void BehindWait(Platform& machine, const std::function<void()>& endWait, Body&& body)
{
    try {
        machine.ShowWait();
        body();
    } catch (...) {
        endWait();
        throw;
    }
}

// `where` names the target once all is well up to there.
void Save(const Work& work, const FileAccess& files, Platform& machine, int team,
          const std::function<std::string()>& where, const std::function<void()>& endWait,
          const std::function<void(const std::string& path)>& saved)
{
    if (!JudgeDay(work, team, Side::Pro, 1, false)) {
        work.Says.ShowBox("Lines #1 are incomplete!" + std::string(LineBreak) +
                              "You will not be able to save league files unless lines for the next day are complete!",
                          box::Warning);
        return;
    }
    if (!CheckPassword(work.League, machine, team))
        return;
    BehindWait(machine, endWait, [&] {
        const std::string target = where();
        if (!WriteLinesFile(work.League, files, team, target))
            return; // told, and the wait screen stays
        saved(target);
        endWait();
        work.Says.ShowBox("Lines file for " + work.League.Teams[team].Name.Trimmed() + " successfully save at" +
                              std::string(LineBreak) + target,
                          box::Information);
    });
}

} // namespace

void SaveLines(const Work& work, const FileAccess& files, Platform& machine, int team,
               const std::function<void()>& endWait, const std::function<void(const std::string& path)>& saved)
{
    Save(
        work, files, machine, team, [&] { return LinesFilePath(work.League, files.Disk, team); }, endWait, saved);
}

void SaveLinesAs(const Work& work, const FileAccess& files, Platform& machine, int team, const std::string& target,
                 const std::function<void()>& endWait, const std::function<void(const std::string& path)>& saved)
{
    Save(
        work, files, machine, team, [&] { return target; }, endWait, saved);
}

void LoadLines(const Work& work, const FileAccess& files, Platform& machine, int team, const std::string& path,
               const std::function<void()>& endWait, const std::function<void()>& showAnew)
{
    BehindWait(machine, endWait, [&] {
        const TeamFileRead outcome = ReadLinesFile(work.League, files, team, path);
        if (outcome == TeamFileRead::NotDecompressed)
            return; // told, and the wait screen stays
        endWait();
        const bool loaded = outcome == TeamFileRead::Loaded;
        if (loaded)
            showAnew();
        work.Says.ShowBox(LoadedWords(outcome, "Lines file", work.League.Teams[team].Name.Trimmed(), path),
                          loaded ? box::Information : box::Critical);
    });
}

} // namespace dravik
