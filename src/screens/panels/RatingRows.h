#pragma once

#include "league/Field.h"
#include "screens/panels/RatingBar.h"

#include <QGridLayout>
#include <QLabel>
#include <vector>

namespace dravik {

// Ratings on a grid, in two columns of eight rows: a caption, a bar from 0 to 99 and the number at its right. What shows
// the numbers is the caller's: labels where they are read, boxes where they can be edited. The first column keeps its
// place while its rows are hidden.
class RatingRows : public QGridLayout {
public:
    using Numbers = Row<QWidget*, 1, 16>;

    // All rows, hidden. The captions are named lblStatLabel(1) to lblStatLabel(16) and belong to `panel`, as the bars do.
    RatingRows(QWidget* panel, const Numbers& shownBy);

    void Hide();
    // Shows a row with its caption and, in the bar, its rating. The number has its text from the caller.
    void Show(int row, const QString& caption, int rating);
    void SetRating(int row, int rating);
    // Holds the ratings that are shown against `pinned`, row by row; none ends that. Beside each number stands the pinned one's,
    // with how much it is above or below that.
    void ShowGhosts(const std::vector<int>& pinned);
    // What a row says where it is held against another: "75, pinned man 71, plus 4"; its number where it is not.
    [[nodiscard]] QString InWords(int row) const { return bars[row]->InWords(); }

    Row<QLabel*, 1, 16> Captions;

private:
    void SetVisible(int row, bool isVisible);

    Numbers numbers;
    void ShowGhost(int row);

    Row<RatingBar*, 1, 16> bars;
    Row<QLabel*, 1, 16> ghosts;
};

} // namespace dravik
