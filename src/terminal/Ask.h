#pragma once

#include <optional>
#include <string>

namespace dravik::terminal {

// Whether somebody at a terminal can be asked.
bool IsAtTerminal();

// Asks for a line on the terminal, without showing what is typed. None where standard input is no terminal, or at its end.
// One question is asked at a time, whoever asks.
std::optional<std::string> AskHidden(const std::string& prompt);

} // namespace dravik::terminal
