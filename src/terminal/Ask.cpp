#include "terminal/Ask.h"

#include "terminal/Console.h"
#include "terminal/Foot.h"
#include "terminal/Utf8.h"

namespace dravik::terminal {

bool IsAtTerminal() { return IsConsole(Stream::Input); }

std::optional<std::string> AskHidden(const std::string& prompt)
{
    const QuestionAtFoot question;
    return ReadHidden(WithoutControls(prompt));
}

} // namespace dravik::terminal
