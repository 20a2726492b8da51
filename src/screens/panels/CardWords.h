#pragma once

#include "league/PersonId.h"
#include "rules/PersonSigns.h"
#include "rules/StatRows.h"

#include <QString>
#include <QStringList>

namespace dravik {

// What a card tells of a person.
struct CardWords {
    PersonId Who;
    QString Name;
    QString Aside;       // beside the name: position and overall
    QStringList Facts;   // a line each
    PersonSigns Signs;   // drawn, with their words
    QStringList Remarks; // what is wrong with where he stands, a line each
    StatRows Ratings;    // as the league shows them; none where there are none
};

} // namespace dravik
