#pragma once

#include "files/FileAccess.h"
#include "machine/DiskFiles.h"

#include <string>
#include <utility>
#include <vector>

namespace dravik::terminal {

// The machine of one league at the terminal. There is nobody to press a button: what a box would show is kept as `Told`, a
// question fails with 5, and a password is asked for by who knows it. A path means the file of exactly this name. Each thread
// has one of its own.
class Machine final : public DiskFiles {
public:
    Machine() { MessagesAllowed = true; }

    // The answer to the next box that asks for a line of text; without one that answer is empty.
    void Answer(std::string text) { answer = std::move(text); }

    // What was told so far, in the code page, each text on one line; and to be told anew.
    [[nodiscard]] std::vector<std::string> TakeTold() { return std::exchange(told, {}); }

    // Whether files are plain slot files. Nobody has settings here: a league says it by how its own file came.
    void UsePlainFiles(bool yes) { plain = yes; }

    // What files are read and written with; a new file is called `work` until it is whole.
    FileAccess Files(std::string work = {})
    {
        return {.Disk = *this, .Says = *this, .Settings = *this, .WorkFile = std::move(work)};
    }

    int MessageBox(const std::string& text, int kind, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override;
    std::string OpenFileDialog(const std::string& folder, const std::string& filter) override;
    std::string GetSetting(const std::string& section, const std::string& key, const std::string& otherwise) override;
    void SaveSetting(const std::string& section, const std::string& key, const std::string& value) override;
    std::string ProgramFolder() override { return "."; }
    std::optional<std::string> FindEntry(const std::string& path) override;
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
    std::string answer;
    std::vector<std::string> told;
    bool plain = false;
};

// `text` without its line breaks, each a blank.
std::string OnOneLine(std::string text);

} // namespace dravik::terminal
