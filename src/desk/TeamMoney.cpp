#include "desk/TeamMoney.h"

#include "league/Arithmetic.h"
#include "machine/InputCheck.h"

#include <optional>
#include <string>

namespace dravik {

namespace {

// The amount that the general manager types. None when he types nothing, or nothing that is one. A leading minus is set aside
// for the check.
std::optional<int> AskAmount(Voice& says, const std::string& prompt)
{
    const std::string text = says.AskText(prompt);
    if (text.empty())
        return std::nullopt;
    if (!CheckInput(says, text.front() == '-' ? text.substr(1) : text, InputMode::Numbers, false))
        return std::nullopt;
    return RoundToInt32(LeadingNumber(text));
}

} // namespace

void ChangeCash(const Work& work, int team, const std::function<void()>& showFigures)
{
    const std::optional<int> amount = AskAmount(work.Says, "How much to add/remove?");
    if (!amount)
        return;
    work.League.Teams[team].Cash += *amount;
    showFigures();
    work.Modified = true;
}

void ChangePayrollBonus(const Work& work, int team, const std::function<void()>& showFigures)
{
    Int32& bonus = work.League.Teams[team].PayrollBonus;
    const std::optional<int> amount = AskAmount(work.Says, "How much to add/remove? Current Payroll Bonus is " +
                                                               work.Shown.Currency(static_cast<double>(bonus)));
    if (!amount)
        return;
    bonus += *amount;
    if (bonus < 0)
        bonus = 0;
    showFigures();
    work.Modified = true;
}

} // namespace dravik
