#pragma once

#include "session/Session.h"

#include <cstddef>
#include <cstring>
#include <memory>

namespace dravik {

// The open league as it was. Behind a command it tells whether anything differs but what is named: records or fields of the
// open league.
class LeagueBefore {
public:
    LeagueBefore() : before(Copy(OpenLeague)) {}

    template <class... Changed>
    [[nodiscard]] bool DiffersOnlyIn(const Changed&... changed) const
    {
        const std::unique_ptr<Tables> after = Copy(OpenLeague);
        (TakeBack(*after, changed), ...);
        return std::memcmp(before.get(), after.get(), sizeof(Tables)) == 0;
    }
    [[nodiscard]] bool IsUntouched() const { return DiffersOnlyIn(); }

private:
    template <class Part>
    void TakeBack(Tables& after, const Part& part) const
    {
        const std::ptrdiff_t at = Bytes(part) - Bytes(OpenLeague);
        std::memcpy(reinterpret_cast<char*>(&after) + at, Bytes(*before) + at, sizeof part); // NOLINT: tables are bytes
    }
    template <class Part>
    static const char* Bytes(const Part& part)
    {
        return reinterpret_cast<const char*>(&part); // NOLINT: tables are bytes
    }

    std::unique_ptr<Tables> before;
};

// The number that `command` fails with; 0 when it comes to its end.
template <class Command>
int NumberOfFailure(Command&& command)
{
    try {
        command();
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

} // namespace dravik
