#include "sample-league/ToolMachine.h"

#include "league/Failure.h"
#include "machine/Md5.h"

namespace dravik::sample {

int ToolMachine::MessageBox(const std::string& text, int kind, const std::string& /*title*/)
{
    if (kind == box::Critical)
        critical = text;
    return kind == box::YesNo || kind == box::YesNoCancel ? button::No : button::Ok;
}

std::string ToolMachine::InputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                                  const std::string& /*text*/)
{
    return {};
}

std::string ToolMachine::OpenFileDialog(const std::string& /*folder*/, const std::string& /*filter*/)
{
    Fail(failure::Cancelled);
}

std::string ToolMachine::GetSetting(const std::string& /*section*/, const std::string& key,
                                    const std::string& otherwise)
{
    return plain && key == "SkipZIPClient" ? "Yes" : otherwise;
}

void ToolMachine::SaveSetting(const std::string& /*section*/, const std::string& /*key*/, const std::string& /*value*/)
{
}

std::string ToolMachine::ProgramFolder() { return "."; }

std::string ToolMachine::Version() { return {}; }

int ToolMachine::OpenLocation(const std::string& /*location*/, int /*showMode*/) { return 0; }

// Amounts and dates stand in boxes only.
std::string ToolMachine::Currency(double /*amount*/) const { return {}; }
std::string ToolMachine::CurrencyNoDecimals(double /*amount*/) const { return {}; }
std::string ToolMachine::Fixed(double /*value*/, int /*decimals*/) const { return {}; }
std::string ToolMachine::LongDate(double /*days*/) const { return {}; }
std::string ToolMachine::ShortTime(double /*days*/) const { return {}; }

std::array<std::uint8_t, 16> ToolMachine::Md5(std::string_view bytes) { return Md5Of(bytes); }

} // namespace dravik::sample
