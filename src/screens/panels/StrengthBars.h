#pragma once

#include "rules/LineStrength.h"
#include "screens/panels/DayStrip.h"

#include <QWidget>

namespace dravik {

// How strong the lines of each day are: under every day of a strip small bars side by side, its four lines of forwards, its
// four pairs, its goalie. All bars have one scale, from a little below the weakest of all to the strongest, so that days can
// be compared; the numbers are told by a tooltip and to a screen reader. A bar that cannot be reckoned is left out.
class StrengthBars : public QWidget {
public:
    explicit StrengthBars(const DayStrip& days, QWidget* parent = nullptr);

    // The days from 1 on.
    void SetStrengths(const QList<LineStrength>& all);
    [[nodiscard]] const QList<LineStrength>& Strengths() const { return strengths; }
    // "Day 3: lines 81, 75, 69 and 73, pairs 80, 74, 66 and 60, goalie 82"; a dash for what is left out.
    [[nodiscard]] QString WordsOfDay(int day) const;
    // Where a bar of a day stands; empty where it is left out.
    [[nodiscard]] QRect BarOf(int day, int place) const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const DayStrip& strip;
    QList<LineStrength> strengths;
    int least = 0; // where the scale begins
    int most = 0;  // and ends
};

} // namespace dravik
