#include "league/Reporting.h"

#include "league/Message.h"
#include "league/Platform.h"

#include <string>

namespace dravik {

void ReportFailure(int number, std::string_view ending)
{
    ShowBox(std::to_string(number) + " - " + Failure(number).what() + std::string(ending), box::Critical);
}

} // namespace dravik
