#pragma once

#include "league/Field.h"
#include "machine/Message.h"

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

// Who tells and asks the general manager, and hears the news. Texts are in the single-byte code page. What goes wrong
// comes as a Failure.
class Voice {
public:
    Voice() = default;
    Voice(const Voice&) = delete;
    Voice& operator=(const Voice&) = delete;
    virtual ~Voice() = default;

    // Shows `text` with the icon and the buttons of `kind` (namespace box); returns the button pressed.
    virtual int MessageBox(const std::string& text, int kind, const std::string& title) = 0;
    // Asks for a line of text. Cancel gives the empty text.
    virtual std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) = 0;

    // Told of every line of news and log, and of a player whom the editor erased. They are composed for the simulator's own
    // version of the routines; the client keeps and shows none of them, so a voice that does not care need not listen.
    // `team` may be any number.
    virtual void LeagueNews(std::string_view /*text*/) {}
    virtual void TeamNews(int /*team*/, std::string_view /*text*/) {}
    virtual void WriteLog(std::string_view /*text*/) {}
    virtual void PlayerErased(int /*id*/, int /*team*/) {}

    // Shows `text` in a box of `kind` under the program's title. The button pressed is returned and stays in `MsgResult`.
    int ShowBox(std::string_view text, int kind);
    // The critical box of a number out of range.
    void ShowIntegrityFailure();
    // Asks for a line of text under the program's title, with nothing in it. Cancel gives the empty text.
    std::string AskText(std::string_view prompt);
    // Whether a report that its caller asked for is shown: not before messages are allowed. A box that nobody has to ask for
    // is shown without this question.
    [[nodiscard]] bool MayReport(bool requested) const { return requested && MessagesAllowed; }

    bool MessagesAllowed = false; // set at start-up, never changed
    Int16 MsgResult{};            // button that the last message box returned
};

// Tells nothing, for whoever judges in order to look. Asked a question it fails with 5: nobody answers for the manager.
class MuteVoice final : public Voice {
public:
    int MessageBox(const std::string& text, int kind, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override;
};

} // namespace dravik
