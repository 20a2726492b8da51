#include "screens/platform/Formats.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/QtPlatform.h"

#include <gmock/gmock.h>
#include <QDate>

#include <cmath>
#include <limits>
#include <string>

namespace dravik {
namespace {

using ::testing::AnyOf; // the form of what is owed differs between releases of the locale data

const QLocale American(QLocale::English, QLocale::UnitedStates);
const QLocale French(QLocale::French, QLocale::France);
const QLocale German(QLocale::German, QLocale::Germany);
const QLocale British(QLocale::English, QLocale::UnitedKingdom);
const QLocale Japanese(QLocale::Japanese, QLocale::Japan);
const QLocale Indian(QLocale::English, QLocale::India);
const QLocale Russian(QLocale::Russian, QLocale::Russia);

TEST(Formats, CurrencyHasTheLocalesUsualDecimals)
{
    EXPECT_EQ(CurrencyText(American, 1234.5), "$1,234.50");
    EXPECT_EQ(CurrencyText(American, 0), "$0.00");
    EXPECT_THAT(CurrencyText(American, -5), AnyOf("-$5.00", "($5.00)"));
    EXPECT_EQ(CurrencyText(British, 1234.5), "\xA3"
                                             "1,234.50");
    EXPECT_EQ(CurrencyText(American, 2147483647), "$2,147,483,647.00");
}

TEST(Formats, CurrencyWithoutDecimalsRoundsTiesToEven)
{
    EXPECT_EQ(CurrencyTextNoDecimals(American, 1234.4), "$1,234");
    EXPECT_EQ(CurrencyTextNoDecimals(American, 1234.5), "$1,234");
    EXPECT_EQ(CurrencyTextNoDecimals(American, 1235.5), "$1,236");
    EXPECT_EQ(CurrencyTextNoDecimals(American, 1234.6), "$1,235");
    EXPECT_THAT(CurrencyTextNoDecimals(American, -1500000), AnyOf("-$1,500,000", "($1,500,000)"));
}

TEST(Formats, AnAmountThatRoundsToNothingHasNoSign) { EXPECT_EQ(CurrencyTextNoDecimals(American, -0.4), "$0"); }

TEST(Formats, FixedFormHasTheLocalesDecimalSignAndNoGrouping)
{
    EXPECT_EQ(FixedText(American, 17222.2222, 2), "17222.22");
    EXPECT_EQ(FixedText(German, 1234567.5, 2), "1234567,50");
    EXPECT_EQ(FixedText(French, 0.5, 2), "0,50");
    EXPECT_EQ(FixedText(German, 0, 2), "0,00");
    EXPECT_EQ(FixedText(American, -0.25, 2), "-0.25");
}

TEST(Formats, NoBreakSpacesAndTheEuroSignAreInTheCodePage)
{
    EXPECT_EQ(CurrencyText(French, 1234567.5), "1\xA0"
                                               "234\xA0"
                                               "567,50\xA0\x80");
    EXPECT_EQ(CurrencyTextNoDecimals(French, 1234567), "1\xA0"
                                                       "234\xA0"
                                                       "567\xA0\x80");
    EXPECT_EQ(CurrencyText(German, 1234.5), "1.234,50\xA0\x80");
}

TEST(Formats, ASymbolOutsideTheCodePageBecomesTheCodeOfTheCurrency)
{
    EXPECT_EQ(CurrencyText(Indian, 1234.5), "INR\xA0"
                                            "1,234.50");
    EXPECT_EQ(CurrencyText(Russian, 1234.5), "1\xA0"
                                             "234,50\xA0RUB");
    EXPECT_EQ(CurrencyTextNoDecimals(Indian, 99), "INR\xA0"
                                                  "99");
}

TEST(Formats, TheYenHasNoDecimals)
{
    // Its full-width sign stands outside the code page.
    EXPECT_EQ(CurrencyText(Japanese, 1234), "JPY\xA0"
                                            "1,234");
}

TEST(Formats, NoLocaleMakesAQuestionMarkOrFails)
{
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        for (const double amount : {0.0, 1234567.89, -42.0}) {
            EXPECT_EQ(CurrencyText(locale, amount).find('?'), std::string::npos) << qPrintable(locale.name());
            EXPECT_FALSE(CurrencyTextNoDecimals(locale, amount).empty()) << qPrintable(locale.name());
        }
        EXPECT_EQ(ToQString(LongDateText(locale, 45000)), locale.toString(QDate(2023, 3, 15), "MMMM d yyyy"))
            << qPrintable(locale.name());
    }
}

TEST(Formats, AmountsThatAreNoNumbersDoNotCrash)
{
    for (const double amount : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::max()}) {
        EXPECT_FALSE(CurrencyText(American, amount).empty());
        EXPECT_FALSE(CurrencyTextNoDecimals(American, amount).empty());
    }
}

TEST(Formats, TheDateHasTheFullMonthAndNoLeadingZero)
{
    EXPECT_EQ(LongDateText(American, 2), "January 1 1900");
    EXPECT_EQ(LongDateText(American, 45000), "March 15 2023");
    EXPECT_EQ(LongDateText(American, 45568), "October 3 2024");
    EXPECT_EQ(LongDateText(American, 0), "December 30 1899");
    EXPECT_EQ(LongDateText(American, 45351), "February 29 2024");
}

TEST(Formats, MonthsAreNamedByTheLocale)
{
    EXPECT_EQ(LongDateText(French, 45519), "ao\xFBt 15 2024");
    EXPECT_EQ(ToQString(LongDateText(Russian, 45519)), QString::fromUtf8("августа 15 2024"));
}

TEST(Formats, TheTimeCountsTwentyFourHours)
{
    EXPECT_EQ(ShortTimeText(American, 45000), "00:00");
    EXPECT_EQ(ShortTimeText(American, 45000.5), "12:00");
    EXPECT_EQ(ShortTimeText(American, 45000.75), "18:00");
    EXPECT_EQ(ShortTimeText(American, 45000 + 9.0 / 24 + 5.0 / 1440), "09:05");
}

TEST(Formats, TheTimeRoundsToTheSecondAndDropsSeconds)
{
    EXPECT_EQ(ShortTimeText(American, 45000 + 59.4 / 86400), "00:00");
    EXPECT_EQ(ShortTimeText(American, 45000 + 59.6 / 86400), "00:01");
    EXPECT_EQ(ShortTimeText(American, 45000 + (12 * 3600 + 34 * 60 + 59) / 86400.0), "12:34");
}

TEST(Formats, TheLastHalfSecondOfADayIsTheNextDay)
{
    EXPECT_EQ(LongDateText(American, 45000 + 86399.4 / 86400), "March 15 2023");
    EXPECT_EQ(LongDateText(American, 45000 + 86399.6 / 86400), "March 16 2023");
    EXPECT_EQ(ShortTimeText(American, 45000 + 86399.6 / 86400), "00:00");
}

TEST(Formats, EveryMinuteOfADayReadsAsItself)
{
    const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    for (int minute = 0; minute < 1440; ++minute)
        ASSERT_EQ(ShortTimeText(American, 45123 + minute / 1440.0), two(minute / 60) + ":" + two(minute % 60));
}

TEST(Formats, ADayOutOfTheCalendarIsEmpty)
{
    for (const double days :
         {-657435.0, 2958466.0, 2958465.999995, 2958465.999999, 1e18, -1e300, std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(LongDateText(American, days), "") << days;
        EXPECT_EQ(ShortTimeText(American, days), "") << days;
    }
    EXPECT_EQ(LongDateText(American, -657434), "January 1 0100");
    EXPECT_EQ(LongDateText(American, 2958465.5), "December 31 9999");
    EXPECT_EQ(LongDateText(American, std::numeric_limits<double>::denorm_min()), "December 30 1899");
}

TEST(Formats, TheDesktopUsesTheLocaleThatIsSet)
{
    const QLocale before;
    QtPlatform desktop;
    QLocale::setDefault(German);
    EXPECT_EQ(desktop.Currency(1234.5), "1.234,50\xA0\x80");
    EXPECT_EQ(desktop.CurrencyNoDecimals(1234.6), "1.235\xA0\x80");
    EXPECT_EQ(desktop.Fixed(17222.5, 2), "17222,50");
    EXPECT_EQ(desktop.LongDate(45000), "M\xE4rz 15 2023");
    EXPECT_EQ(desktop.ShortTime(45000.25), "06:00");
    QLocale::setDefault(before);
}

} // namespace
} // namespace dravik
