#include "sample-league/ToolMachine.h"

namespace dravik::sample {

int ToolMachine::MessageBox(const std::string& text, int kind, const std::string& /*title*/)
{
    if (kind == box::Critical)
        critical = text;
    return kind == box::YesNo || kind == box::YesNoCancel ? button::No : button::Ok;
}

std::string ToolMachine::Version() { return {}; }

// Amounts and dates stand in boxes only.
std::string ToolMachine::Currency(double /*amount*/) const { return {}; }
std::string ToolMachine::CurrencyNoDecimals(double /*amount*/) const { return {}; }
std::string ToolMachine::Fixed(double /*value*/, int /*decimals*/) const { return {}; }
std::string ToolMachine::LongDate(double /*days*/) const { return {}; }
std::string ToolMachine::ShortTime(double /*days*/) const { return {}; }

} // namespace dravik::sample
