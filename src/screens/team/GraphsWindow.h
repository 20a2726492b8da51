#pragma once

#include "screens/panels/FigureTable.h"
#include "screens/panels/LookWindow.h"
#include "screens/panels/Plot.h"

#include <QLabel>
#include <QTabWidget>

namespace dravik {

// What the chosen team looks like in numbers, a page each: its payroll by years left on contracts, its ages by position, how
// strong its lines are on the ten days beside their opponents, and how its positions rank in the league. Each page says what it
// shows, and has its numbers as a table beside the plot. What the league hides has none.
class GraphsWindow : public LookWindow {
    Q_OBJECT
public:
    static constexpr auto Name = "GraphsWindow";

    explicit GraphsWindow(QWidget* screen);

    void ShowAnew() override;

    struct Page {
        QLabel* lblCaption = nullptr;
        Plot* Bars = nullptr;
        FigureTable* tblFigures = nullptr;
    };
    QTabWidget* tabPages = nullptr;
    Page Payroll, Ages, Days, Ranks;

private:
    Page MakePage(const QString& name, const QString& title, const QList<TableColumn>& columns);
    void ShowPayroll();
    void ShowAges();
    void ShowDays();
    void ShowRanks();
};

} // namespace dravik
