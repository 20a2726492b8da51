#include "terminal/Foot.h"

#include "terminal/Console.h"

#include <iostream>
#include <mutex>

namespace dravik::terminal {

namespace {

std::mutex WhoHasIt;
std::size_t ShownWidth = 0;

void TakeAway()
{
    if (ShownWidth > 0)
        std::cerr << ClearedLine(ShownWidth) << std::flush;
    ShownWidth = 0;
}

} // namespace

void ShowAtFoot(const std::string& words)
{
    const std::unique_lock had(WhoHasIt, std::try_to_lock);
    if (!had || !IsConsole(Stream::Error))
        return;
    std::cerr << '\r' + words << std::flush;
    ShownWidth = words.size();
}

void ClearFoot()
{
    // A question has taken away what was shown before it.
    if (const std::unique_lock had(WhoHasIt, std::try_to_lock); had)
        TakeAway();
}

QuestionAtFoot::QuestionAtFoot()
{
    WhoHasIt.lock();
    TakeAway();
}

QuestionAtFoot::~QuestionAtFoot() { WhoHasIt.unlock(); }

} // namespace dravik::terminal
