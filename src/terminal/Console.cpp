#ifndef _WIN32

#include "terminal/Console.h"

#include <array>
#include <atomic>
#include <csignal>
#include <iostream>
#include <termios.h>
#include <unistd.h>

namespace dravik::terminal {

namespace {

constexpr std::array Interruptions{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

termios TerminalBefore;
std::atomic<bool> IsTerminalChanged = false;
void (*PutInOrder)() = nullptr;

extern "C" void EndAtSignal(int signal)
{
    PutInOrder();
    if (IsTerminalChanged)
        (void)tcsetattr(STDIN_FILENO, TCSANOW, &TerminalBefore);
    (void)std::signal(signal, SIG_DFL);
    (void)raise(signal);
}

} // namespace

bool IsConsole(Stream stream)
{
    static constexpr int numbers[] = {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
    return isatty(numbers[static_cast<std::size_t>(stream)]) != 0;
}

std::vector<std::string> Utf8Arguments(int argc, char** argv) { return {argv, argv + argc}; }

ConsoleOutput::ConsoleOutput() = default;
ConsoleOutput::~ConsoleOutput() = default;

std::string ClearedLine(std::size_t /*width*/) { return "\r\x1B[K"; }

std::optional<std::string> ReadHidden(const std::string& prompt)
{
    termios before{};
    if (!IsConsole(Stream::Input) || tcgetattr(STDIN_FILENO, &before) != 0)
        return std::nullopt;
    termios hidden = before;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    TerminalBefore = before;
    IsTerminalChanged = true;
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    std::cerr << prompt << std::flush;
    std::string line;
    const bool typed = static_cast<bool>(std::getline(std::cin, line));
    tcsetattr(STDIN_FILENO, TCSANOW, &before);
    std::cerr << '\n';
    return typed ? std::optional(line) : std::nullopt;
}

void CallAtInterrupt(void (*putInOrder)())
{
    PutInOrder = putInOrder;
    for (const int signal : Interruptions)
        if (std::signal(signal, EndAtSignal) == SIG_IGN)
            (void)std::signal(signal, SIG_IGN);
    (void)std::signal(SIGXFSZ, SIG_IGN);
}

struct InterruptsElsewhere::Before {
    sigset_t Mask{};
};

InterruptsElsewhere::InterruptsElsewhere() : before(std::make_unique<Before>())
{
    sigset_t interruptions;
    sigemptyset(&interruptions);
    for (const int signal : Interruptions)
        sigaddset(&interruptions, signal);
    pthread_sigmask(SIG_BLOCK, &interruptions, &before->Mask);
}

InterruptsElsewhere::~InterruptsElsewhere() { pthread_sigmask(SIG_SETMASK, &before->Mask, nullptr); }

void RemoveAtInterrupt(const char* path)
{
    (void)unlink(path);
    (void)rmdir(path);
}

int ProcessNumber() { return getpid(); }

} // namespace dravik::terminal

#endif
