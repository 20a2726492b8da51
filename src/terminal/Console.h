#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The terminal that a program runs in, or the console of Windows: what the systems do differently there.
namespace dravik::terminal {

enum class Stream { Input, Output, Error };

// Whether a standard stream is the terminal itself, and no file and no pipe.
bool IsConsole(Stream stream);

// The arguments of `main` in UTF-8, the program's name first, whatever the code page is. Where no shell does it, an argument with "*"
// or "?" that is no option stands for the files that fit it, in the order of their names; one that no file fits stays as it is.
std::vector<std::string> Utf8Arguments(int argc, char** argv);

// While one lives, UTF-8 written to `std::cout` and `std::cerr` shows as it is meant on a console, whatever its code page, and comes
// into a file or a pipe byte for byte. One at a time, made before anything is written.
class ConsoleOutput {
public:
    ConsoleOutput();
    ConsoleOutput(const ConsoleOutput&) = delete;
    ConsoleOutput& operator=(const ConsoleOutput&) = delete;
    ~ConsoleOutput();
};

// What takes away a line of `width` characters (no more than a console is wide) in which the cursor stands, when it is printed.
std::string ClearedLine(std::size_t width);

// Shows `prompt` on the standard error and takes a line from the console in UTF-8, without its end, which is not shown as it is typed.
// None where standard input is no console, or at its end. An interruption puts the console in order again. Not for two threads at once.
std::optional<std::string> ReadHidden(const std::string& prompt);

// From here on an interruption (Ctrl+C, the end that another process asks for) calls `putInOrder` first and then ends the program as it
// always does. It may come at any moment, so that what is called may take no lock and no room. One that whoever started the
// program has closed to it (nohup) stays closed. A file that grows above a limit fails as on a full disk.
void CallAtInterrupt(void (*putInOrder)());

// While this lives, an interruption does not stop this thread but another one. Who waits for a thread that writes has one: whoever
// writes is stopped himself then, and makes no file behind what puts things in order.
class InterruptsElsewhere {
public:
    InterruptsElsewhere();
    InterruptsElsewhere(const InterruptsElsewhere&) = delete;
    InterruptsElsewhere& operator=(const InterruptsElsewhere&) = delete;
    ~InterruptsElsewhere();

private:
    struct Before;
    std::unique_ptr<Before> before;
};

// Removes a file or an empty folder at such a moment; a file that is being written goes with the end of the program.
// Takes a path as other paths of the program are.
void RemoveAtInterrupt(const char* path);

// The number of this process.
int ProcessNumber();

} // namespace dravik::terminal
