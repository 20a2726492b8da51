#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dravik {

// The pages in which a report is shown, each ending with the first line that reaches its 868th character. Every line of
// `report` ends with a line break; fails with 5 when the last one has none. The breaks between the pages are kept as the
// simulator's users know them: the first page ends with the first half of its break, so does the last, and now and then a
// page begins with the second half of the break before it. A page with nothing on it is left out.
std::vector<std::string> ReportPages(std::string_view report);

} // namespace dravik
