#pragma once

#include "files/FileAccess.h"
#include "machine/Platform.h"
#include "machine/Work.h"

#include <functional>
#include <string>

// Saving the lines file of a team and loading it again, as a general manager asks for it.
namespace dravik {

// Saves the lines file of `team` (1..100) where LinesFilePath says, and tells so. Lines of day 1 that are not complete are told
// in a warning box and end it; so does a password that is not proven. The wait screen is up while the file is written, and
// `endWait` takes it away; behind a compression that failed, which is told, it stays. `saved` is called once the file stands at the path.
// Whatever else fails is thrown, with the wait screen taken away.
void SaveLines(
    const Work& work, const FileAccess& files, Platform& machine, int team, const std::function<void()>& endWait,
    const std::function<void(const std::string& path)>& saved = [](const std::string& /*path*/) {});

// The same, to `target` in the place of that path.
void SaveLinesAs(
    const Work& work, const FileAccess& files, Platform& machine, int team, const std::string& target,
    const std::function<void()>& endWait,
    const std::function<void(const std::string& path)>& saved = [](const std::string& /*path*/) {});

// Loads the lines file `path` over `team` (1..100), as ReadLinesFile does, shows the team anew by `showAnew` where it was taken
// over, and tells what became of it. The wait screen goes as above.
void LoadLines(const Work& work, const FileAccess& files, Platform& machine, int team, const std::string& path,
               const std::function<void()>& endWait, const std::function<void()>& showAnew);

} // namespace dravik
