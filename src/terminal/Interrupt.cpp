#include "terminal/Interrupt.h"

#include "league/Failure.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstring>
#ifdef _WIN32
#include <process.h>
#else
#include <unistd.h>
#endif

namespace dravik::terminal {

namespace {

// A signal may come at any moment, and what answers it may take no lock and no room: the names stand in places of a fixed length.
struct Place {
    std::atomic<bool> IsTaken = false;
    std::atomic<bool> IsNamed = false;
    std::array<char, 4096> Path{};
};
std::array<Place, 64> Places;

#ifndef _WIN32
constexpr std::array Interruptions{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

termios TerminalBefore;
std::atomic<bool> IsTerminalChanged = false;

extern "C" void PutInOrder(int signal)
{
    // The last named first: a folder is empty when its files are gone.
    for (std::size_t at = Places.size(); at-- > 0;)
        if (Places[at].IsNamed) {
            (void)unlink(Places[at].Path.data());
            (void)rmdir(Places[at].Path.data());
        }
    if (IsTerminalChanged)
        (void)tcsetattr(STDIN_FILENO, TCSANOW, &TerminalBefore);
    (void)std::signal(signal, SIG_DFL);
    (void)raise(signal);
}
#endif

std::string Number()
{
    static std::atomic<unsigned> count = 0;
#ifdef _WIN32
    const int process = _getpid();
#else
    const int process = getpid();
#endif
    return std::to_string(process) + "-" + std::to_string(++count);
}

} // namespace

void PutInOrderAtInterrupt()
{
#ifndef _WIN32
    for (const int signal : Interruptions)
        if (std::signal(signal, PutInOrder) == SIG_IGN)
            (void)std::signal(signal, SIG_IGN);
    (void)std::signal(SIGXFSZ, SIG_IGN);
#endif
}

#ifdef _WIN32
InterruptsElsewhere::InterruptsElsewhere() = default;
InterruptsElsewhere::~InterruptsElsewhere() = default;
#else
InterruptsElsewhere::InterruptsElsewhere()
{
    sigset_t interruptions;
    sigemptyset(&interruptions);
    for (const int signal : Interruptions)
        sigaddset(&interruptions, signal);
    pthread_sigmask(SIG_BLOCK, &interruptions, &before);
}

InterruptsElsewhere::~InterruptsElsewhere() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }
#endif

WorkName::WorkName(const std::string& target) : WorkName(target + "." + Number() + ".part", AsItIs) {}

WorkName::WorkName(const std::string& name, Unchanged /*asItIs*/) : path(name), place(0)
{
    while (place < Places.size() && Places[place].IsTaken.exchange(true))
        ++place;
    if (place == Places.size())
        Fail(failure::OutOfMemory);
    if (path.size() >= Places[place].Path.size()) {
        Places[place].IsTaken = false;
        Fail(failure::PathAccess);
    }
    std::memcpy(Places[place].Path.data(), path.c_str(), path.size() + 1);
    Places[place].IsNamed = true;
}

WorkName::~WorkName()
{
    Places[place].IsNamed = false;
    Places[place].IsTaken = false;
}

#ifndef _WIN32
void RestoreTerminalAtInterrupt(const termios& state)
{
    TerminalBefore = state;
    IsTerminalChanged = true;
}
#endif

} // namespace dravik::terminal
