#include "terminal/Ask.h"

#include "terminal/Interrupt.h"
#include "terminal/Utf8.h"

#include <iostream>
#include <mutex>
#ifndef _WIN32
#include <termios.h>
#include <unistd.h>
#endif

namespace dravik::terminal {

#ifdef _WIN32
bool IsAtTerminal() { return false; }
std::optional<std::string> AskHidden(const std::string& /*prompt*/) { return std::nullopt; }
#else
bool IsAtTerminal() { return isatty(STDIN_FILENO) != 0; }

std::optional<std::string> AskHidden(const std::string& prompt)
{
    static std::mutex one;
    const std::lock_guard guard(one);
    if (!IsAtTerminal())
        return std::nullopt;
    termios before{};
    if (tcgetattr(STDIN_FILENO, &before) != 0)
        return std::nullopt;
    termios hidden = before;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    RestoreTerminalAtInterrupt(before);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    std::cerr << WithoutControls(prompt) << std::flush;
    std::string line;
    const bool typed = static_cast<bool>(std::getline(std::cin, line));
    tcsetattr(STDIN_FILENO, TCSANOW, &before);
    std::cerr << '\n';
    return typed ? std::optional(line) : std::nullopt;
}
#endif

} // namespace dravik::terminal
