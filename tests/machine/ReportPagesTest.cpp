#include "machine/ReportPages.h"

#include "league/Failure.h"

#include <gmock/gmock.h>
#include <numeric>
#include <random>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A line of `length` characters, its line break among them.
std::string Line(std::size_t length) { return std::string(length - 2, 'x') + "\r\n"; }

// Lines of these lengths, one behind the other.
std::string Lines(std::initializer_list<std::size_t> lengths)
{
    std::string all;
    for (const std::size_t length : lengths)
        all += Line(length);
    return all;
}

std::vector<std::size_t> Lengths(const std::string& report)
{
    std::vector<std::size_t> lengths;
    for (const std::string& page : ReportPages(report))
        lengths.push_back(page.size());
    return lengths;
}

// The rule once more, character by character.
std::vector<std::string> SecondReading(const std::string& report)
{
    const auto at = [&report](std::size_t position) { return report.at(position - 1); };
    const auto isBreak = [&](std::size_t position) {
        return position < report.size() && at(position) == '\r' && at(position + 1) == '\n';
    };
    std::vector<std::string> pages;
    const auto show = [&](std::size_t from, long long count) {
        std::string page;
        for (long long i = 0; i < count; ++i)
            page += at(from + static_cast<std::size_t>(i));
        if (!page.empty())
            pages.push_back(page);
    };
    std::size_t s = 1;
    while (s + 867 < report.size()) {
        std::size_t n = s + 867;
        while (!isBreak(n))
            ++n;
        if (s != 1)
            n -= s;
        show(s, static_cast<long long>(n));
        s += isBreak(n) ? n + 1 : n + 2;
    }
    show(s, static_cast<long long>(report.size()) - static_cast<long long>(s));
    return pages;
}

TEST(ReportPagesTest, AnEmptyReportHasNoPage) { EXPECT_THAT(ReportPages(""), IsEmpty()); }

TEST(ReportPagesTest, AShortReportIsOnePageWithoutItsLastCharacter)
{
    EXPECT_THAT(ReportPages("Somebody was offered something.\r\n"), ElementsAre("Somebody was offered something.\r"));
}

TEST(ReportPagesTest, AReportOf868CharactersIsTheLastPageAtOnce)
{
    EXPECT_THAT(Lengths(Lines({400, 468})), ElementsAre(867U));
}

TEST(ReportPagesTest, AReportOf869CharactersEndsWithItsFirstPageAndNoEmptyOneFollows)
{
    EXPECT_THAT(Lengths(Lines({400, 469})), ElementsAre(868U));
}

TEST(ReportPagesTest, TheFirstPageEndsWithTheFirstHalfOfItsBreak)
{
    const std::string report = Lines({500, 400, 300});
    EXPECT_THAT(ReportPages(report), ElementsAre(report.substr(0, 899), report.substr(900, 299)));
}

TEST(ReportPagesTest, ABreakAtCharacter868EndsTheFirstPage)
{
    EXPECT_THAT(Lengths(Lines({869, 100})), ElementsAre(868U, 99U));
}

TEST(ReportPagesTest, ABreakAtCharacter867IsPassedOver)
{
    EXPECT_THAT(Lengths(Lines({868, 100, 100})), ElementsAre(967U, 99U));
}

TEST(ReportPagesTest, AMiddlePageEndsBeforeItsBreak)
{
    const std::string report = Lines({900, 900, 900});
    EXPECT_THAT(ReportPages(report),
                ElementsAre(report.substr(0, 899), report.substr(900, 898), report.substr(1800, 898)));
}

TEST(ReportPagesTest, AMiddlePageReachesTo868CharactersBehindItsStart)
{
    EXPECT_THAT(Lengths(Lines({900, 868, 900})), ElementsAre(899U, 1766U))
        << "the break before character 868 is passed";
    EXPECT_THAT(Lengths(Lines({900, 869, 900})), ElementsAre(899U, 867U, 898U));
}

TEST(ReportPagesTest, ASecondPageThatReachesTheEndIsTheLast)
{
    EXPECT_THAT(Lengths(Lines({900, 867})), ElementsAre(899U, 866U));
    EXPECT_THAT(Lengths(Lines({900, 868})), ElementsAre(899U, 867U));
    EXPECT_THAT(Lengths(Lines({900, 869})), ElementsAre(899U, 867U)) << "a middle page, and nothing behind it";
    EXPECT_THAT(Lengths(Lines({900, 2000})), ElementsAre(899U, 1998U));
}

TEST(ReportPagesTest, ABreakAtTheLengthOfAPageWithinTheReportLetsTheNextBeginWithHalfABreak)
{
    // The second page is 898 characters long, and characters 898 and 899 of the report are a break.
    const std::string report = Lines({899, 900, 100});
    EXPECT_THAT(ReportPages(report),
                ElementsAre(report.substr(0, 898), report.substr(899, 898), "\n" + Line(100).substr(0, 99)));
}

TEST(ReportPagesTest, AReportWhoseLastLineIsOpenFails)
{
    EXPECT_THROW((void)ReportPages(std::string(869, 'x')), Failure);
}

TEST(ReportPagesTest, ReportsOfManyLinesReadTheSameASecondTime)
{
    std::mt19937 random(867);
    for (int round = 0; round < 400; ++round) {
        std::string report;
        const unsigned longest = round % 2 == 0 ? 70 : 1000;
        for (unsigned lines = random() % 90; lines > 0; --lines)
            report += Line(2 + random() % longest);
        ASSERT_EQ(ReportPages(report), SecondReading(report)) << "round " << round;
    }
}

TEST(ReportPagesTest, EveryLengthAroundAPageReadsTheSameASecondTime)
{
    for (std::size_t first = 860; first <= 875; ++first)
        for (std::size_t second = 860; second <= 875; ++second) {
            const std::string report = Lines({first, second, 3});
            ASSERT_EQ(ReportPages(report), SecondReading(report)) << first << " and " << second;
        }
}

} // namespace
} // namespace dravik
