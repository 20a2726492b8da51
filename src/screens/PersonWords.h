#pragma once

#include "league/PersonId.h"
#include "rules/PersonSigns.h"
#include "rules/StatRows.h"
#include "screens/panels/CardWords.h"

#include <optional>
#include <QString>
#include <QStringList>

// What the lists and slots say about people beside their names.
namespace dravik {

// What is drawn muted beside the name of somebody with a position: that, and the overall where the league shows it.
QStringList AsideOf(PersonId who);

// The overall of a skater or goalie in a league that shows it; nothing for a skater without a position or somebody outside
// the tables. No box is shown.
QString OverallOf(PersonId who);

// The name of a skater or goalie; nothing for somebody outside the tables.
QString NameOf(PersonId who);

// The rows of his ratings, as many as the windows show. Somebody outside the tables fails with 9.
StatRows StatRowsOf(PersonId who);

// The same without a box; none of somebody outside the tables, or whose ratings no row can hold.
StatRows QuietStatRowsOf(PersonId who);

// The tooltip of a person: name, position, overall where the league shows it, condition, and behind those the slots that
// he `standsIn`, if any, and what the judge said. Somebody without a position, or outside the tables, has the judge's words
// alone. Shown as written, whatever characters a name holds.
QString DescriptionOf(PersonId who, const QString& standsIn, const QStringList& findings = {});

// The card of a person: name, position and overall, age, salary and contract, condition and injury, his `signs`, where he
// `standsIn` today, if told, his ratings as the league shows them, and `remarks` on where he stands. None of a placeholder, of
// somebody outside the tables or of a slot that is not in use. No box is shown.
std::optional<CardWords> CardOf(PersonId who, const PersonSigns& signs, const QString& standsIn = {},
                                const QStringList& remarks = {});

} // namespace dravik
