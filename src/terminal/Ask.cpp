#include "terminal/Ask.h"

#include "terminal/Console.h"
#include "terminal/Utf8.h"

#include <mutex>

namespace dravik::terminal {

bool IsAtTerminal() { return IsConsole(Stream::Input); }

std::optional<std::string> AskHidden(const std::string& prompt)
{
    static std::mutex one;
    const std::lock_guard guard(one);
    return ReadHidden(WithoutControls(prompt));
}

} // namespace dravik::terminal
