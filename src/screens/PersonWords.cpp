#include "screens/PersonWords.h"

#include "rules/Overall.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <QTextDocument>

namespace dravik {

namespace {

// The digit of a person's position; 0 without one, or outside the tables.
int ShownPosition(PersonId who)
{
    if (!who.HasSlot())
        return 0;
    if (who.IsGoalie)
        return position::Goalie;
    const int digit = PositionOf(Players[who.Slot]);
    return digit <= position::Defense ? digit : 0;
}

} // namespace

QStringList AsideOf(PersonId who)
{
    QStringList aside{ToQString(PositionName[ShownPosition(who)])};
    if (LeagueData.ShowOverall)
        aside << OverallOf(who);
    return aside;
}

QString OverallOf(PersonId who)
{
    if (ShownPosition(who) == 0 || !LeagueData.ShowOverall)
        return {};
    return QString::number(CalculateOverall(OpenLeague, Machine(), who));
}

QString NameOf(PersonId who)
{
    QString name;
    if (who.HasSlot())
        OnPerson(OpenLeague, who, [&name](const auto& person) { name = ToQString(person.Name.Trimmed()); });
    return name;
}

StatRows StatRowsOf(PersonId who)
{
    return who.IsGoalie ? GoalieStatRows(OpenLeague, Machine(), who.Slot, static_cast<int>(GoalieStatCount))
                        : SkaterStatRows(OpenLeague, Machine(), who.Slot, static_cast<int>(PlayerStatCount));
}

StatRows QuietStatRowsOf(PersonId who)
{
    try {
        MuteVoice mute; // who only looks is told of nothing else
        return who.IsGoalie ? GoalieStatRows(OpenLeague, mute, who.Slot, static_cast<int>(GoalieStatCount))
                            : SkaterStatRows(OpenLeague, mute, who.Slot, static_cast<int>(PlayerStatCount));
    } catch (const Failure&) {
        return {};
    }
}

std::optional<CardWords> CardOf(PersonId who, const PersonSigns& signs, const QString& standsIn,
                                const QStringList& remarks)
{
    const auto isSomebody = [](const auto& person) { return static_cast<bool>(person.InUse); };
    if (!who.HasSlot() || who.Slot == 0 || !OnPerson(OpenLeague, who, isSomebody))
        return std::nullopt;
    CardWords words{.Who = who,
                    .Name = NameOf(who),
                    .Aside = {},
                    .Facts = {},
                    .Signs = WithPin(signs, who),
                    .Remarks = remarks,
                    .Ratings = QuietStatRowsOf(who)};
    if (ShownPosition(who) != 0)
        words.Aside = AsideOf(who).join(' ');
    OnPerson(OpenLeague, who, [&](const auto& person) {
        const QString salary = ToQString(Machine().CurrencyNoDecimals(static_cast<double>(person.Salary)));
        const QString contract = person.Contract == 0 ? QString(", no contract") : " x " + Shown(person.Contract);
        words.Facts << Shown(person.Age) + " years old, " + salary + contract
                    << "Condition: " + Shown(person.Condition);
        if (const QString injury = Shown(person.Injury); !injury.isEmpty())
            words.Facts << "Injury: " + injury;
    });
    if (!standsIn.isEmpty())
        words.Facts << "Today: " + standsIn;
    return words;
}

QString DescriptionOf(PersonId who, const QString& standsIn, const QStringList& findings)
{
    QStringList lines;
    const int digit = ShownPosition(who);
    if (digit != 0) {
        OnPerson(OpenLeague, who, [&](const auto& person) {
            lines << ToQString(person.Name.Trimmed()) << "Position: " + ToQString(PositionName[digit]);
            if (LeagueData.ShowOverall)
                lines << "Overall: " + OverallOf(who);
            lines << "Condition: " + QString::number(person.Condition);
        });
        if (!standsIn.isEmpty())
            lines << "Lines: " + standsIn;
    }
    lines << findings;
    return lines.isEmpty() ? QString() : Qt::convertFromPlainText(lines.join('\n'));
}

} // namespace dravik
