#include "machine/Reporting.h"

#include <string>

namespace dravik {

void ReportFailure(Voice& says, int number, std::string_view ending)
{
    says.ShowBox(std::to_string(number) + " - " + Failure(number).what() + std::string(ending), box::Critical);
}

} // namespace dravik
