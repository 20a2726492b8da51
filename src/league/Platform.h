#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace dravik {

// Kinds of a message box.
namespace box {
inline constexpr int Critical = 16;
inline constexpr int YesNoCancel = 35;
inline constexpr int YesNo = 36;
inline constexpr int Warning = 48;
inline constexpr int Information = 64;
} // namespace box

// Numbers of the buttons that a message box returns.
namespace button {
inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
} // namespace button

#ifdef _WIN32
inline constexpr char PathSeparator = '\\';
#else
inline constexpr char PathSeparator = '/';
#endif

// A file that is open for reading or for writing. Destroying it closes it without a word; `Close` tells of failures.
class File {
public:
    File() = default;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    virtual ~File() = default;

    // Reads up to `size` bytes and returns how many came; 0 is the end of the file.
    virtual std::size_t Read(void* data, std::size_t size) = 0;
    // Writes all `size` bytes or fails.
    virtual void Write(const void* data, std::size_t size) = 0;
    // Hands everything written so far to the disk, so that a later rename never shows a half-written file.
    virtual void Flush() = 0;
    virtual void Close() = 0;
};

// Everything that the program needs from the machine it runs on, and nothing else. Texts are in the single-byte code
// page; so are paths, in which characters outside the code page stand escaped. Every operation reports what goes wrong as a
// Failure with the number that fits.
class Platform {
public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform() = default;

    // Shows `text` with the icon and the buttons of `kind` (namespace box); returns the button pressed.
    virtual int MessageBox(const std::string& text, int kind, const std::string& title) = 0;
    // Asks for a line of text. Cancel gives the empty text.
    virtual std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) = 0;
    // Asks for a file to open, beginning in `folder`. `filter` alternates captions and patterns, parted by "|". Cancel
    // fails with number 32755.
    virtual std::string OpenFileDialog(const std::string& folder, const std::string& filter) = 0;

    // The per-user settings store.
    virtual std::string GetSetting(const std::string& section, const std::string& key,
                                   const std::string& otherwise) = 0;
    virtual void SaveSetting(const std::string& section, const std::string& key, const std::string& value) = 0;

    // The folder in which the program keeps its files, without a separator at the end.
    virtual std::string ProgramFolder() = 0;
    virtual std::string Version() = 0;
    virtual bool AnotherInstanceRuns() = 0;

    // Shows the wait screen if it is not shown, then lets the screen paint for about 100 milliseconds, holding back
    // what the user types and clicks.
    virtual void ShowWait() = 0;
    virtual void CloseWait() = 0;

    // Hands `location` to the desktop with the verb "open"; returns the desktop's answer.
    virtual int OpenLocation(const std::string& location, int showMode) = 0;

    // `amount` in the locale's currency format, with the locale's usual decimals or with none.
    virtual std::string Currency(double amount) = 0;
    virtual std::string CurrencyNoDecimals(double amount) = 0;
    // `value` with the locale's decimal sign, `decimals` digits behind it and at least one before it, without grouping.
    virtual std::string Fixed(double value, int decimals) = 0;
    // "mmmm d yyyy" and "hh:mm" (24-hour, rounded to the second first) of days since 30 December 1899.
    virtual std::string LongDate(double days) = 0;
    virtual std::string ShortTime(double days) = 0;

    virtual std::array<std::uint8_t, 16> Md5(std::string_view bytes) = 0;

    // Told of every line of news and log, and of a player whom the editor erased. The client keeps and shows none of
    // it, so a machine that does not care need not listen.
    virtual void LeagueNews(std::string_view /*text*/) {}
    virtual void TeamNews(int /*team*/, std::string_view /*text*/) {}
    virtual void WriteLog(std::string_view /*text*/) {}
    virtual void PlayerErased(int /*id*/, int /*team*/) {}

    // Opens an existing file for reading.
    virtual std::unique_ptr<File> OpenFile(const std::string& path) = 0;
    // Creates a file for writing, emptying what stands there.
    virtual std::unique_ptr<File> CreateFile(const std::string& path) = 0;
    virtual std::int64_t FileLength(const std::string& path) = 0;
    // Gives `from` the name `to`, replacing what stands there in one step.
    virtual void RenameFile(const std::string& from, const std::string& to) = 0;
    virtual void DeleteFile(const std::string& path) = 0;
    // The name of the first entry that matches the path, whatever its case; an entry of exactly this name comes first.
    virtual std::optional<std::string> FindEntry(const std::string& path) = 0;
};

// The machine that the program runs on. `UseMachine` is called once at start-up, and by tests; the object must outlive
// its use.
Platform& Machine();
void UseMachine(Platform& platform);

} // namespace dravik
