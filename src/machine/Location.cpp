#include "machine/Location.h"

#include "machine/Reporting.h"

namespace dravik {

int OpenLocation(Platform& machine, const std::string& location, int showMode)
{
    int answer = 0;
    Reporting(machine, " in OpenLocation Function!", [&] { answer = machine.OpenLocation(location, showMode); });
    return answer;
}

} // namespace dravik
