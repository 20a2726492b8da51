#include "terminal/Machine.h"

#include "league/Failure.h"
#include "terminal/Amounts.h"
#include "terminal/Utf8.h"

#include <filesystem>

namespace dravik::terminal {

std::string OnOneLine(std::string text)
{
    std::string line;
    for (const char c : text) {
        if (c != '\r' && c != '\n')
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    while (!line.empty() && line.back() == ' ')
        line.pop_back();
    return line;
}

int Machine::MessageBox(const std::string& text, int kind, const std::string& /*title*/)
{
    if (kind == box::YesNo || kind == box::YesNoCancel)
        Fail(failure::InvalidCall);
    told.push_back(OnOneLine(text));
    return button::Ok;
}

std::string Machine::InputBox(const std::string& /*prompt*/, const std::string& /*title*/, const std::string& /*text*/)
{
    return std::exchange(answer, {});
}

std::optional<std::string> Machine::FindEntry(const std::string& path)
{
    const std::filesystem::path wanted = NativePath(path);
    std::error_code error;
    if (!std::filesystem::exists(std::filesystem::symlink_status(wanted, error)))
        return std::nullopt;
    return ProgramPath(wanted.filename());
}

std::filesystem::path Machine::NativePath(const std::string& path) const { return PathOf(path); }
std::string Machine::ProgramPath(const std::filesystem::path& path) const { return TextOf(path); }

std::string Machine::Version() { return DRAVIK_VERSION; }

std::string Machine::Currency(double amount) const { return MoneyText(amount, 2); }
std::string Machine::CurrencyNoDecimals(double amount) const { return MoneyText(amount, 0); }
std::string Machine::Fixed(double value, int decimals) const { return FixedText(value, decimals); }
std::string Machine::LongDate(double days) const { return LongDateText(days); }
std::string Machine::ShortTime(double days) const { return ShortTimeText(days); }

} // namespace dravik::terminal
