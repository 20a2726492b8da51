#ifdef _WIN32

#include "terminal/Console.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <iostream>
#include <memory>
#include <streambuf>
#include <string_view>
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shellapi.h> // behind the header that it takes its types from

namespace dravik::terminal {

namespace {

HANDLE HandleOf(Stream stream)
{
    static constexpr DWORD numbers[] = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
    return GetStdHandle(numbers[static_cast<std::size_t>(stream)]);
}

std::wstring Utf16(std::string_view text)
{
    const auto length = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)), L' ');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Utf8(std::wstring_view wide)
{
    const auto length = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), ' ');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, text.data(), size, nullptr, nullptr);
    return text;
}

// The arguments that one with "*" or "?" stands for.
std::vector<std::string> Expanded(const std::wstring& argument)
{
    WIN32_FIND_DATAW found{};
    HANDLE search = INVALID_HANDLE_VALUE;
    if (argument.find_first_of(L"*?") != std::wstring::npos && argument.front() != L'-')
        search = FindFirstFileW(argument.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return {Utf8(argument)};
    const std::wstring folder = argument.substr(0, argument.find_last_of(L"\\/:") + 1);
    std::vector<std::string> names;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            names.push_back(Utf8(folder + found.cFileName));
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
    if (names.empty())
        return {Utf8(argument)};
    std::sort(names.begin(), names.end());
    return names;
}

// Shows characters on a console as such, so that no code page has a say. A character whose bytes have not all come waits.
class ConsoleBuffer final : public std::streambuf {
public:
    explicit ConsoleBuffer(HANDLE handle) : console(handle) {}

protected:
    int_type overflow(int_type c) override
    {
        if (!traits_type::eq_int_type(c, traits_type::eof()))
            waiting += traits_type::to_char_type(c);
        return waiting.size() < most || Show(Whole()) ? traits_type::not_eof(c) : traits_type::eof();
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override
    {
        waiting.append(text, static_cast<std::size_t>(count));
        return waiting.size() < most || Show(Whole()) ? count : 0;
    }
    int sync() override { return Show(Whole()) ? 0 : -1; }

private:
    static constexpr std::size_t most = 8192; // a console takes no more than some ten thousand at once

    // How many of the bytes that wait are whole characters.
    [[nodiscard]] std::size_t Whole() const
    {
        const auto isLead = [](unsigned char byte) { return (byte & 0xC0U) != 0x80U; };
        for (std::size_t back = 1; back <= 4 && back <= waiting.size(); ++back) {
            const auto byte = static_cast<unsigned char>(waiting[waiting.size() - back]);
            if (!isLead(byte))
                continue;
            const std::size_t length = byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
            return back < length ? waiting.size() - back : waiting.size();
        }
        return waiting.size();
    }
    bool Show(std::size_t size)
    {
        const std::wstring wide = Utf16(std::string_view(waiting).substr(0, size));
        waiting.erase(0, size);
        for (std::size_t at = 0; at < wide.size();) {
            DWORD written = 0;
            if (WriteConsoleW(console, wide.data() + at, static_cast<DWORD>((std::min)(wide.size() - at, most)),
                              &written, nullptr) == 0 ||
                written == 0)
                return false;
            at += written;
        }
        return true;
    }

    HANDLE console;
    std::string waiting;
};

// A standard stream of the library, on the console or byte for byte.
class Redirected {
public:
    Redirected(std::ostream& stream, Stream name, std::FILE* file) : library(stream)
    {
        if (IsConsole(name)) {
            shown = std::make_unique<ConsoleBuffer>(HandleOf(name));
            before = library.rdbuf(shown.get());
        } else if (_fileno(file) >= 0) {
            _setmode(_fileno(file), _O_BINARY);
        }
    }
    Redirected(const Redirected&) = delete;
    Redirected& operator=(const Redirected&) = delete;
    ~Redirected()
    {
        library.flush();
        if (shown)
            library.rdbuf(before);
    }

private:
    std::ostream& library;
    std::unique_ptr<ConsoleBuffer> shown;
    std::streambuf* before = nullptr;
};

struct BothStreams {
    Redirected Output{std::cout, Stream::Output, stdout};
    Redirected Error{std::cerr, Stream::Error, stderr};
};
std::unique_ptr<BothStreams> Shown;

std::atomic<DWORD> ModeBefore = 0;
std::atomic<bool> IsModeChanged = false;
void (*PutInOrder)() = nullptr;

// Comes on a thread of its own, for every way in which a console ends a program.
BOOL WINAPI EndAtInterrupt(DWORD /*kind*/)
{
    PutInOrder();
    if (IsModeChanged)
        SetConsoleMode(HandleOf(Stream::Input), ModeBefore);
    return FALSE; // the system's own answer follows: the end
}

// A line as it is typed, without its end; none at the end of input.
std::optional<std::string> ReadLine(HANDLE console)
{
    constexpr wchar_t endOfInput = 0x1A; // Ctrl+Z
    std::wstring line;
    while (line.empty() || line.back() != L'\n') {
        std::array<wchar_t, 256> part{};
        DWORD count = 0;
        if (ReadConsoleW(console, part.data(), static_cast<DWORD>(part.size()), &count, nullptr) == 0 || count == 0)
            return std::nullopt;
        line.append(part.data(), count);
        if (line.front() == endOfInput)
            return std::nullopt;
    }
    while (!line.empty() && (line.back() == L'\n' || line.back() == L'\r'))
        line.pop_back();
    return Utf8(line);
}

} // namespace

bool IsConsole(Stream stream)
{
    DWORD mode = 0;
    return GetConsoleMode(HandleOf(stream), &mode) != 0;
}

std::vector<std::string> Utf8Arguments(int argc, char** argv)
{
    int count = 0;
    LPWSTR* wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (wide == nullptr)
        return {argv, argv + argc};
    std::vector<std::string> arguments;
    for (int at = 0; at < count; ++at)
        for (std::string& argument : at == 0 ? std::vector{Utf8(wide[at])} : Expanded(wide[at]))
            arguments.push_back(std::move(argument));
    LocalFree(wide);
    return arguments;
}

ConsoleOutput::ConsoleOutput() { Shown = std::make_unique<BothStreams>(); }
ConsoleOutput::~ConsoleOutput() { Shown.reset(); }

std::string ClearedLine(std::size_t width) { return "\r" + std::string(width, ' ') + "\r"; }

std::optional<std::string> ReadHidden(const std::string& prompt)
{
    const HANDLE console = HandleOf(Stream::Input);
    DWORD before = 0;
    if (GetConsoleMode(console, &before) == 0)
        return std::nullopt;
    ModeBefore = before;
    IsModeChanged = true;
    constexpr DWORD lines = ENABLE_LINE_INPUT | ENABLE_PROCESSED_INPUT;
    if (SetConsoleMode(console, (before | lines) & ~static_cast<DWORD>(ENABLE_ECHO_INPUT)) == 0)
        return std::nullopt;
    FlushConsoleInputBuffer(console);
    std::cerr << prompt << std::flush;
    const std::optional<std::string> line = ReadLine(console);
    SetConsoleMode(console, before);
    std::cerr << '\n' << std::flush;
    return line;
}

void CallAtInterrupt(void (*putInOrder)())
{
    PutInOrder = putInOrder;
    SetConsoleCtrlHandler(EndAtInterrupt, TRUE);
}

// An interruption comes on a thread of its own there, whatever others do.
struct InterruptsElsewhere::Before {};
InterruptsElsewhere::InterruptsElsewhere() = default;
InterruptsElsewhere::~InterruptsElsewhere() = default;

void RemoveAtInterrupt(const char* path)
{
    const std::wstring wide = Utf16(path); // takes room, which a thread of its own may
    DeleteFileW(wide.c_str());
    RemoveDirectoryW(wide.c_str());
}

int ProcessNumber() { return static_cast<int>(GetCurrentProcessId()); }

} // namespace dravik::terminal

#endif
