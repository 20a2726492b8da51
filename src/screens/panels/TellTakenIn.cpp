#include "screens/panels/TellTakenIn.h"

#include "machine/Message.h"
#include "screens/BehindWait.h"
#include "session/Session.h"

#include <utility>

namespace dravik {

LoadedFile LoadBehindWait(const std::function<LoadedFile()>& load)
{
    LoadedFile loaded;
    BehindWait([&] {
        loaded = load();
        return loaded.Outcome != TeamFileRead::NotDecompressed;
    });
    return loaded;
}

void TellLeftOut(const TakenIn& taken)
{
    constexpr std::size_t linesOfBox = 20;
    std::string page;
    for (std::size_t i = 0; i < taken.Told.size(); ++i) {
        const bool endsPage = (i + 1) % linesOfBox == 0 || i + 1 == taken.Told.size();
        page.append(taken.Told[i]);
        if (endsPage)
            Machine().ShowBox(std::exchange(page, {}), box::Information);
        else
            page.append(LineBreak);
    }
}

void TellLoaded(const LoadedFile& loaded)
{
    if (loaded.Outcome == TeamFileRead::NotDecompressed)
        return;
    Machine().ShowBox(loaded.Words, loaded.Outcome == TeamFileRead::Loaded ? box::Information : box::Critical);
    TellLeftOut(loaded.TakenIn);
}

} // namespace dravik
