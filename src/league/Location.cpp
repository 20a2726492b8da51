#include "league/OutsideCode.h"
#include "league/Platform.h"
#include "league/Reporting.h"

namespace dravik {

int OpenLocation(const std::string& location, int showMode)
{
    int answer = 0;
    Reporting(" in OpenLocation Function!", [&] { answer = Machine().OpenLocation(location, showMode); });
    return answer;
}

} // namespace dravik
