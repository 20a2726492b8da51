#include "screens/PersonWords.h"

#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "session/Routines.h"

#include <QTextDocument>

namespace dravik {

namespace {

// The digit of a person's position; 0 without one, or outside the tables.
int ShownPosition(bool isGoalie, long long index)
{
    if (isGoalie)
        return GoalieTable::Has(index) ? position::Goalie : 0;
    if (!PlayerTable::Has(index))
        return 0;
    const auto digit = static_cast<int>(Players[index].Position);
    return digit <= position::Defense ? digit : 0;
}

} // namespace

QStringList AsideOf(int position, int index)
{
    QStringList aside{ToQString(PositionName[position])};
    if (LeagueData.ShowOverall)
        aside << QString::number(CalculateOverall(position, index));
    return aside;
}

QString OverallOf(bool isGoalie, long long index)
{
    const int digit = ShownPosition(isGoalie, index);
    if (digit == 0 || !LeagueData.ShowOverall)
        return {};
    return QString::number(CalculateOverall(digit, static_cast<int>(index)));
}

QString DescriptionOf(bool isGoalie, long long index, const QString& standsIn, const QStringList& findings)
{
    QStringList lines;
    const int digit = ShownPosition(isGoalie, index);
    if (digit != 0) {
        OnPerson(OpenLeague, {.IsGoalie = isGoalie, .Slot = static_cast<int>(index)}, [&](const auto& person) {
            lines << ToQString(person.Name.Trimmed()) << "Position: " + ToQString(PositionName[digit]);
            if (LeagueData.ShowOverall)
                lines << "Overall: " + OverallOf(isGoalie, index);
            lines << "Condition: " + QString::number(person.Condition);
        });
        if (!standsIn.isEmpty())
            lines << "Lines: " + standsIn;
    }
    lines << findings;
    return lines.isEmpty() ? QString() : Qt::convertFromPlainText(lines.join('\n'));
}

} // namespace dravik
