#include "screens/panels/NameSearch.h"

#include "machine/Platform.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

namespace dravik {

int SearchPlayer(const EntryList& list, const std::string& prompt)
{
    const QString part = ToQString(Machine().InputBox(prompt, "Player Search", {}));
    for (int row = 0; row < list.count(); ++row)
        if (list.item(row)->text().contains(part, Qt::CaseInsensitive))
            return row;
    Machine().ShowBox("Player not found!", box::Information);
    return -1;
}

} // namespace dravik
