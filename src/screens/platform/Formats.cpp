#include "screens/platform/Formats.h"

#include "screens/platform/CodePage.h"

#include <QDateTime>

#include <cmath>
#include <cstdint>
#include <optional>

namespace dravik {

namespace {

constexpr QChar NoBreakSpace(0x00A0);
constexpr QChar NarrowNoBreakSpace(0x202F);

bool IsInCodePage(const QString& text) { return ToQString(FromQString(text)) == text; }

std::string FormatCurrency(const QLocale& locale, double amount, int decimals)
{
    QString text;
    if (IsInCodePage(locale.currencySymbol()))
        text = locale.toCurrencyString(amount, {}, decimals);
    else {
        const QString code = locale.currencySymbol(QLocale::CurrencyIsoCode);
        text = locale.toCurrencyString(amount, code, decimals);
        // A sign may touch the figures, a word may not.
        const qsizetype begin = text.indexOf(code);
        const qsizetype end = begin + code.size();
        if (end < text.size() && text[end].isDigit())
            text.insert(end, NoBreakSpace);
        if (begin > 0 && text[begin - 1].isDigit())
            text.insert(begin, NoBreakSpace);
    }
    return FromQStringLossless(text.replace(NarrowNoBreakSpace, NoBreakSpace));
}

std::optional<QDateTime> PointOf(double days)
{
    // The first of January of the year 100 and the end of the year 9999.
    constexpr double first = -657434;
    constexpr double end = 2958466;
    constexpr std::int64_t secondsOfDay = 86400;
    // A comparison with what is no number is false.
    if (!(days >= first && days < end))
        return std::nullopt;
    const std::int64_t seconds = std::llround(days * static_cast<double>(secondsOfDay));
    const QDateTime point = QDateTime(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC).addSecs(seconds);
    // The last half second of the last day rounds out of the range.
    return point.date().year() > 9999 ? std::nullopt : std::optional(point);
}

std::string FormatPoint(const QLocale& locale, double days, const QString& format)
{
    const auto point = PointOf(days);
    return point ? FromQStringLossless(locale.toString(*point, format)) : std::string();
}

} // namespace

std::string CurrencyText(const QLocale& locale, double amount) { return FormatCurrency(locale, amount, -1); }

std::string CurrencyTextNoDecimals(const QLocale& locale, double amount)
{
    // Adding 0 turns a negative zero into zero.
    return FormatCurrency(locale, std::nearbyint(amount) + 0.0, 0);
}

std::string FixedText(const QLocale& locale, double value, int decimals)
{
    QLocale plain = locale;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    return FromQStringLossless(plain.toString(value, 'f', decimals));
}

std::string LongDateText(const QLocale& locale, double days) { return FormatPoint(locale, days, "MMMM d yyyy"); }

std::string ShortTimeText(const QLocale& locale, double days) { return FormatPoint(locale, days, "HH:mm"); }

} // namespace dravik
