#pragma once

#include "machine/DiskFiles.h"
#include "machine/WithoutDesktop.h"

namespace dravik::sample {

// The machine of a tool that runs from the command line: files, digests, and one setting. Nobody is there to answer, so
// boxes are taken as read; the last critical one is kept.
class ToolMachine final : public WithoutDesktop<DiskFiles> {
public:
    [[nodiscard]] const std::string& LastCritical() const { return critical; }

    int MessageBox(const std::string& text, int kind, const std::string& title) override;
    std::string Version() override;
    std::string Currency(double amount) const override;
    std::string CurrencyNoDecimals(double amount) const override;
    std::string Fixed(double value, int decimals) const override;
    std::string LongDate(double days) const override;
    std::string ShortTime(double days) const override;

private:
    std::string critical;
};

} // namespace dravik::sample
