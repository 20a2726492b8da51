#include "screens/panels/NameSearch.h"

#include "machine/Platform.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

#include <QShortcut>

namespace dravik {

namespace {

// The first row with `part` behind the row `after`, round to that.
int RowWith(const EntryList& list, const QString& part, int after)
{
    for (int step = 1; step <= list.count(); ++step) {
        const int row = (after + step) % list.count();
        if (list.item(row)->text().contains(part, Qt::CaseInsensitive))
            return row;
    }
    Machine().ShowBox("Player not found!", box::Information);
    return -1;
}

} // namespace

int PlayerSearch::Ask(const EntryList& list, const std::string& prompt)
{
    const QString answer = ToQString(Machine().InputBox(prompt, "Player Search", {}));
    if (!answer.isEmpty())
        part = answer;
    return RowWith(list, answer, -1);
}

void SetUpFindNext(QPushButton& command)
{
    const QKeySequence key("F3");
    command.setToolTip("The next player with what was searched for (" + key.toString(QKeySequence::NativeText) + ")");
    QObject::connect(new QShortcut(key, command.window()), &QShortcut::activated, &command, &QPushButton::click);
}

int SearchPlayer(const EntryList& list, const std::string& prompt) { return PlayerSearch().Ask(list, prompt); }

int PlayerSearch::Next(const EntryList& list) const { return RowWith(list, part, list.currentRow()); }

} // namespace dravik
