#pragma once

#include "files/FileAccess.h"
#include "machine/DiskFiles.h"
#include "machine/WithoutDesktop.h"

#include <string>
#include <utility>
#include <vector>

namespace dravik::terminal {

// The machine of one league at the terminal. There is nobody to press a button: what a box would show is kept as `Told`, a
// question fails with 5, and a password is asked for by who knows it. Whether files
// are plain, a league says by how its own came. A path means the file of exactly this name. Each thread has one of its own.
class Machine final : public WithoutDesktop<DiskFiles> {
public:
    Machine() { MessagesAllowed = true; }

    // The answer to the next box that asks for a line of text; without one that answer is empty.
    void Answer(std::string text) { answer = std::move(text); }

    // What was told so far, in the code page, each text on one line; and to be told anew.
    [[nodiscard]] std::vector<std::string> TakeTold() { return std::exchange(told, {}); }

    // What files are read and written with; a new file is called `work` until it is whole.
    FileAccess Files(std::string work = {})
    {
        return {.Disk = *this, .Says = *this, .Settings = *this, .WorkFile = std::move(work)};
    }

    int MessageBox(const std::string& text, int kind, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override;
    std::optional<std::string> FindEntry(const std::string& path) override;
    std::string Version() override;
    std::string Currency(double amount) const override;
    std::string CurrencyNoDecimals(double amount) const override;
    std::string Fixed(double value, int decimals) const override;
    std::string LongDate(double days) const override;
    std::string ShortTime(double days) const override;

protected:
    [[nodiscard]] std::filesystem::path NativePath(const std::string& path) const override;
    [[nodiscard]] std::string ProgramPath(const std::filesystem::path& path) const override;

private:
    std::string answer;
    std::vector<std::string> told;
};

// `text` without its line breaks, each a blank.
std::string OnOneLine(std::string text);

} // namespace dravik::terminal
