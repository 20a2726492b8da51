#pragma once

#include <string>
#include <string_view>

namespace dravik {

// The program's title: of every box and caption, and of the settings store.
inline constexpr std::string_view ProgramTitle = "Dravik Hockey Simulator Client";

// A line break within a box's text.
inline constexpr std::string_view LineBreak = "\r\n";

// Shows `text` in a box of `kind` (namespace box) under the program's title. The button pressed is returned and stays in
// `MsgResult`.
int ShowBox(std::string_view text, int kind);

// Whether a report that its caller asked for is shown: not before the program allows messages. A box that nobody has to
// ask for is shown without this question.
bool MayReport(bool requested);

// The critical box of a number out of range.
void ShowIntegrityFailure();

// Asks for a line of text under the program's title, with nothing in it. Cancel gives the empty text.
std::string AskText(std::string_view prompt);

} // namespace dravik
