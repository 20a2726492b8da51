#include "machine/Voice.h"

#include "league/Failure.h"

namespace dravik {

int Voice::ShowBox(std::string_view text, int kind)
{
    const int pressed = MessageBox(std::string(text), kind, std::string(ProgramTitle));
    MsgResult = pressed;
    return pressed;
}

void Voice::ShowIntegrityFailure() { ShowBox("Integrity Check Failed!", box::Critical); }

std::string Voice::AskText(std::string_view prompt)
{
    return InputBox(std::string(prompt), std::string(ProgramTitle), {});
}

int MuteVoice::MessageBox(const std::string& /*text*/, int kind, const std::string& /*title*/)
{
    if (kind == box::YesNo || kind == box::YesNoCancel)
        Fail(failure::InvalidCall);
    return button::Ok;
}

std::string MuteVoice::InputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                                const std::string& /*text*/)
{
    Fail(failure::InvalidCall);
}

} // namespace dravik
