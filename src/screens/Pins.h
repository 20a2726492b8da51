#pragma once

#include "league/PersonId.h"
#include "rules/PersonSigns.h"
#include "rules/StatRows.h"

#include <optional>
#include <QObject>
#include <QString>
#include <vector>

// Whom the manager has pinned, as the windows show it.
namespace dravik {

// Tells everybody who shows pins that they are others now.
class PinNews : public QObject {
    Q_OBJECT
signals:
    void Changed();
};
PinNews& NewsOfPins();

// Pins somebody, or lets him go again, and says so: "Ward Tilton is pinned". Says too that nobody more can be pinned; of nobody
// it does and says nothing.
QString TogglePin(PersonId who);
// Lets all go, skaters and goalies, and says so.
QString LetGoOfPinned();
[[nodiscard]] bool IsAnybodyPinned();
[[nodiscard]] bool IsPinned(PersonId who);

// The signs of somebody, with that of the pinned.
[[nodiscard]] PersonSigns WithPin(PersonSigns signs, PersonId who);

// Whom somebody's ratings are held against: the one of his kind who was pinned first, with his ratings as the league shows them.
// None where nobody is pinned, or he himself is the one. Slot 0 stands for all of its kind, as the averages of a line do. No box
// is shown.
struct PinnedFigures {
    PersonId Who;
    QString Name;
    StatRows Rows;
};
[[nodiscard]] std::optional<PinnedFigures> PinnedAgainst(PersonId who);

// The numbers of such rows from the first on, the overall behind them where it is shown.
[[nodiscard]] std::vector<int> NumbersOf(const StatRows& rows);

} // namespace dravik
