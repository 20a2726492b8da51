#pragma once

#include "rules/LineSlots.h"
#include "screens/lines/BoardParts.h"
#include "screens/panels/FigureTable.h"
#include "screens/panels/LookWindow.h"

#include <functional>
#include <optional>
#include <QComboBox>
#include <QLabel>

namespace dravik {

// Two lines or units of the chosen team side by side, of one day or of two: their averages over bars, with how much each of the
// second is above or below that of the first, and their people slot by slot. The figures are those of the board; overalls and single
// ratings stand there only where the league shows them.
class UnitWindow : public LookWindow {
    Q_OBJECT
public:
    static constexpr auto Name = "UnitWindow";

    // `shownDay` tells the day (1..10) of the lines screen that it belongs to.
    UnitWindow(QWidget* screen, Side side, std::function<int()> shownDay);

    // Comes up with the line or unit of a heading first, both of the shown day; the second stays where it is another one, else
    // the next one of the same sort is taken.
    void Compare(const BoardHeading& heading);
    void ShowAnew() override;

    // The one that belongs to a screen, made if there is none yet; and the one that is up there, or none.
    static UnitWindow& Of(QWidget* screen, Side side, const std::function<int()>& shownDay);
    static UnitWindow* On(const QWidget& screen);
    // Gives a heading a menu with the command that compares its line or unit.
    static void Offer(const BoardHeading& heading, const std::function<void()>& compare);

    // Of the first and of the second.
    std::array<QComboBox*, 2> cboUnit{}, cboDay{};
    QTableWidget* tblAverages = nullptr;
    FigureTable* tblPeople = nullptr;
    QLabel* lblNote = nullptr; // what counts for nothing

private:
    struct Unit {
        const BoardGroup* Group = nullptr;
        int Number = 0;
        int Day = 0;
    };
    [[nodiscard]] Unit UnitAt(std::size_t which) const;
    [[nodiscard]] const Lines& LinesOn(int day) const;
    [[nodiscard]] QString NameOf(const Unit& unit) const;
    void ShowAverages(const Unit& first, const Unit& second);
    void ShowPeople(const Unit& first, const Unit& second);

    Side side;
    std::function<int()> dayAtHand;
};

} // namespace dravik
