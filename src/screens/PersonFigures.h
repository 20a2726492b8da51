#pragma once

#include "league/PersonId.h"
#include "screens/panels/EntryFigures.h"

#include <functional>
#include <vector>

namespace dravik {

// What a wide list tells of people beside position and overall, in order of importance: condition in percent, age in years,
// salary as the league's formats show money, years of contract. `person` gives who stands behind the number of an entry; somebody
// outside the tables, the placeholder of slot 0 and who is not in use have nothing told.
std::vector<FigureColumn> PersonFigures(const std::function<PersonId(int number)>& person);

} // namespace dravik
