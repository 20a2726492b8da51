#pragma once

#include "machine/DiskFiles.h"

namespace dravik::sample {

// The machine of a tool that runs from the command line: files, digests, and one setting. Nobody is there to answer, so
// boxes are taken as read; the last critical one is kept.
class ToolMachine final : public DiskFiles {
public:
    // What the setting `SkipZIPClient` says.
    void UsePlainFiles(bool yes) { plain = yes; }

    [[nodiscard]] const std::string& LastCritical() const { return critical; }

    int MessageBox(const std::string& text, int kind, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override;
    std::string OpenFileDialog(const std::string& folder, const std::string& filter) override;
    std::string GetSetting(const std::string& section, const std::string& key, const std::string& otherwise) override;
    void SaveSetting(const std::string& section, const std::string& key, const std::string& value) override;
    std::string ProgramFolder() override;
    std::string Version() override;
    bool AnotherInstanceRuns() override { return false; }
    void ShowWait() override {}
    void CloseWait() override {}
    int OpenLocation(const std::string& location, int showMode) override;
    std::string Currency(double amount) const override;
    std::string CurrencyNoDecimals(double amount) const override;
    std::string Fixed(double value, int decimals) const override;
    std::string LongDate(double days) const override;
    std::string ShortTime(double days) const override;
    std::array<std::uint8_t, 16> Md5(std::string_view bytes) override;

private:
    bool plain = false;
    std::string critical;
};

} // namespace dravik::sample
