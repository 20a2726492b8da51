#include "terminal/Interrupt.h"

#include "league/Failure.h"
#include "terminal/Console.h"

#include <array>
#include <atomic>
#include <cstring>

namespace dravik::terminal {

namespace {

// A signal may come at any moment, and what answers it may take no lock and no room: the names stand in places of a fixed length.
struct Place {
    std::atomic<bool> IsTaken = false;
    std::atomic<bool> IsNamed = false;
    std::array<char, 4096> Path{};
};
std::array<Place, 64> Places;

void PutInOrder()
{
    // The last named first: a folder is empty when its files are gone.
    for (std::size_t at = Places.size(); at-- > 0;)
        if (Places[at].IsNamed)
            RemoveAtInterrupt(Places[at].Path.data());
}

std::string Number()
{
    static std::atomic<unsigned> count = 0;
    return std::to_string(ProcessNumber()) + "-" + std::to_string(++count);
}

} // namespace

void PutInOrderAtInterrupt() { CallAtInterrupt(PutInOrder); }

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

} // namespace dravik::terminal
