#pragma once

#include "screens/squad/SquadModel.h"

#include <functional>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTableView>

namespace dravik {

// Draws a cell: of a name the part that was typed underlined and a pin behind who is pinned, a rating over a thin bar from 0 to 99, a low condition behind its
// sign, and a dash where there is nothing to show.
class SquadDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

// One table of the squad window with its columns. A press on a heading sorts, with Shift as the second key; a drag moves the
// column. Enter and a double press choose whoever is in that row.
class SquadTable : public QTableView {
    Q_OBJECT
public:
    // `name` is the object's, `words` tell a screen reader what the table is of.
    SquadTable(SquadKind kind, const QString& name, const QString& words, QWidget* parent);

    [[nodiscard]] SquadModel& People() const { return *model; }

    // The model does these to its rows; whoever was current stays so as long as he is shown, and else the first one is.
    void Look(const SquadSight& sight, const SquadFilter& filter, const std::string& typed);
    void SetFilter(const SquadFilter& filter);
    void SetTyped(const std::string& typed);
    // Sorts by the column of the current cell.
    void SortAtHand(bool downwards, bool asSecond);
    // Moves that column by so many shown ones, as far as there are any.
    void MoveColumnAtHand(int by);

    // Who is current; nobody in an empty table.
    [[nodiscard]] std::optional<SquadPerson> Current() const;
    // The chosen rows as they are shown, or all of them where none is.
    [[nodiscard]] std::vector<int> RowsToCopy() const;
    // The columns that are shown, in the order in which they are.
    [[nodiscard]] std::vector<int> ShownColumns() const;
    void SetShown(int column, bool shown);
    // All columns as they were at first.
    void ShowFirstColumns();

    // The columns in one text, in the order in which they are shown: "Name=170 Team=60 -Country=50", a hidden one behind "-".
    [[nodiscard]] std::string Arrangement() const;
    // Puts the columns as such a text says. Whatever in it is no column that the league shows is kept, so that it is not
    // forgotten for a league that does; a column that is not in it
    // stands behind the one that it follows at first.
    void Arrange(const std::string& arrangement);

signals:
    void Chosen();
    // Another one is current, or nobody.
    void CurrentChanged();
    // Letters were typed that no table understands.
    void Typed(const QString& letters);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    // Runs `change`, which may replace all rows.
    void KeepCurrent(const std::function<void()>& change);
    void PutColumns();
    // Has room for the signs of what the table is sorted by, and the current row in sight.
    void ShowKeys();
    [[nodiscard]] int FirstWidthOf(const SquadColumn& column) const;

    SquadModel* model;
    std::string arrangement;             // of all columns that were ever seen
    std::vector<std::string> columnKeys; // as they were put last
    int wantedColumn = 0;                // of the current cell
};

} // namespace dravik
