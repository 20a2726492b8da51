#pragma once

#include "screens/Looks.h"
#include "screens/panels/FigureTable.h"
#include "screens/panels/LookWindow.h"

#include <QComboBox>
#include <QLabel>

namespace dravik {

struct CalendarDay;
struct SlotPick;

// The season that is left to the chosen team: day, home or away, whom it plays and how strong he is, days in a row, and who
// starts in goal on the ten days that have lines, to be chosen there. Nothing of a calendar that the league hides.
class CalendarWindow : public LookWindow {
    Q_OBJECT
public:
    static constexpr auto Name = "CalendarWindow";

    CalendarWindow(QWidget* screen, RunsStep asStep);

    void ShowAnew() override;

    QLabel* lblSeason = nullptr;
    QLabel* lblHint = nullptr; // what the strength is, or why there is no game
    FigureTable* tblSeason = nullptr;

    // Who starts on a day (1..10); none where that day has no game.
    [[nodiscard]] QComboBox* StarterOf(int day) const;

signals:
    // Another goalie starts.
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowStarter(int row, const CalendarDay& day, const std::vector<SlotPick>& goalies, bool mayChoose);
    void Choose(int day, const QComboBox& starter);

    RunsStep runStep;
};

} // namespace dravik
