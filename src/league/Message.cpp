#include "league/Message.h"

#include "league/ClientVariable.h"
#include "league/Platform.h"

namespace dravik {

int ShowBox(std::string_view text, int kind)
{
    const int pressed = Machine().MessageBox(std::string(text), kind, std::string(ProgramTitle));
    MsgResult = pressed;
    return pressed;
}

bool MayReport(bool requested) { return requested && MessagesAllowed; }

void ShowIntegrityFailure() { ShowBox("Integrity Check Failed!", box::Critical); }

std::string AskText(std::string_view prompt)
{
    return Machine().InputBox(std::string(prompt), std::string(ProgramTitle), {});
}

} // namespace dravik
