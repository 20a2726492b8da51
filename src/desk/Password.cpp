#include "desk/Password.h"

#include "league/Trimming.h"
#include "machine/Digest.h"
#include "machine/Reporting.h"

#include <string>

namespace dravik {

bool CheckPassword(const Tables& league, Platform& machine, int team)
{
    constexpr std::size_t digestLength = 32;
    bool mayGoOn = false;
    Reporting(machine, " in CheckPassword!", [&] {
        if (!TeamTable::Has(team)) {
            machine.ShowIntegrityFailure();
            return;
        }
        // A blank field, and a damaged one just as well, means that there is no password.
        const std::string password = RemoveSpaces(league.Teams[team].Password.Raw());
        if (password.size() != digestLength) {
            mayGoOn = true;
            return;
        }
        mayGoOn = DigestStrToHexStr(machine, machine.AskText("Password Required!")) == password;
        if (!mayGoOn)
            machine.ShowBox("Password is incorrect!", box::Warning);
    });
    return mayGoOn;
}

void ChangePassword(const Work& work, Platform& machine, int number)
{
    Team& team = work.League.Teams[number];
    Voice& says = work.Says;
    if (says.ShowBox("Do you want to change the password for " + team.Name.Trimmed(), box::YesNo) != button::Yes)
        return;
    const std::string first = says.AskText("Enter New Password");
    const std::string second = says.AskText("Enter New Password Again to Verify");
    if (first.empty() && second.empty()) {
        team.Password = "";
        says.ShowBox("Password was erased!", box::Information);
    } else if (first == second) {
        team.Password = DigestStrToHexStr(machine, first);
        says.ShowBox("New Password was successfully set!", box::Information);
    } else
        says.ShowBox("Password does not match!", box::Warning);
    work.Modified = true;
}

} // namespace dravik
