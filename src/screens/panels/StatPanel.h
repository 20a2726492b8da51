#pragma once

#include "league/Field.h"
#include "league/PersonId.h"
#include "rules/StatRows.h"
#include "screens/panels/PinParts.h"
#include "screens/panels/RatingRows.h"

#include <QGroupBox>
#include <QLabel>

namespace dravik {

// A person's ratings: captions, bars from 0 to 99 and numbers, in two columns. Row 0 is his position, beside his name.
class StatPanel : public QGroupBox {
public:
    // The numbers go by `numberName` and their row.
    explicit StatPanel(QWidget* parent = nullptr, const char* numberName = "lblStat");

    // What to do, told in the middle of the panel as long as it shows nobody.
    void SetHint(const QString& words);
    // Shows nobody. The panel keeps its place.
    void HideRows();
    // Hides the ratings alone; the position line stays as it is.
    void HideRatings();
    // Empties the name and all numbers; the captions stay.
    void ClearNumbers();
    // Shows the position line. A name is there for the eye only.
    void ShowPosition(const QString& position);
    void SetName(const QString& name);
    // Shows the ratings, and the overall behind them where the league shows it.
    void ShowRows(const StatRows& rows);
    // Shows one of the rows 1 to 16.
    void ShowRow(int row, const StatRow& shown);

    // Holds the ratings that stand there against those of whoever is pinned: they are a person's, whom the panel's command pins, or
    // of slot 0 those of a line. Whoever shows others calls it behind them.
    void HoldAgainstPinned(PersonId whose);
    // Whose ratings stand there; nobody where they are a line's.
    [[nodiscard]] std::optional<PersonId> Person() const { return pin->Person(); }

    using Labels = Row<QLabel*, 0, 16>;
    Labels lblStat;
    Labels lblStatLabel;

private:
    void ShowGhosts();
    void LetGo();

    std::optional<PersonId> held;
    QLabel* lblName;
    QLabel* lblHint;
    PinCommand* pin;
    PinLine* lblPinned;
    RatingRows* ratings;
};

} // namespace dravik
