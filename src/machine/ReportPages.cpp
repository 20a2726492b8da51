#include "machine/ReportPages.h"

#include "league/Failure.h"
#include "machine/Message.h"

namespace dravik {

// Positions are counted from 1.
std::vector<std::string> ReportPages(std::string_view report)
{
    constexpr std::size_t reach = 867;
    const std::size_t length = report.size();
    const auto breaksAt = [report](std::size_t position) { return report.substr(position - 1).starts_with(LineBreak); };
    std::vector<std::string> pages;
    std::size_t start = 1;
    for (;;) {
        const std::size_t end = start + reach;
        if (end >= length) {
            if (length > start)
                pages.emplace_back(report.substr(start - 1, length - start));
            return pages;
        }
        const std::size_t found = report.find(LineBreak, end - 1);
        if (found == std::string_view::npos)
            Fail(failure::InvalidCall);
        const std::size_t position = found + 1;
        const std::size_t count = start == 1 ? position : position - start;
        pages.emplace_back(report.substr(start - 1, count));
        start += breaksAt(count) ? count + 1 : count + 2;
    }
}

} // namespace dravik
