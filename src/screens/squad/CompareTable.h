#pragma once

#include "screens/panels/CompareCells.h"
#include "screens/squad/SquadColumns.h"

#include <QAbstractTableModel>
#include <QTableView>
#include <vector>

namespace dravik {

// Two to four people of one kind over each other: a row each, a column for each rating that the league shows, and in each cell his
// number with how much it is above or below that of the first one. It holds who they are and nothing else.
class CompareModel : public QAbstractTableModel {
    Q_OBJECT
public:
    static constexpr int NumberRole = compare::NumberRole; // of the cell, if it has one
    static constexpr int DifferenceRole =
        compare::DifferenceRole; // to the first one's, in words: "+12"; nothing in his own row

    using QAbstractTableModel::QAbstractTableModel;

    // Compares these, all of one kind, through those eyes.
    void Compare(const SquadSight& sight, const std::vector<SquadPerson>& people);
    // Has each tell his team's crest in the column of names, or none of them.
    void ShowCrests(bool shown);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] std::optional<long long> NumberIn(int row, int column) const;
    [[nodiscard]] std::optional<long long> Difference(int row, int column) const;
    [[nodiscard]] QString SpokenCell(int row, int column) const;

    SquadSight sight;
    std::vector<SquadPerson> people;
    std::vector<SquadColumn> columns; // the name and the figures
    bool showsCrests = false;
};

// That comparison as a table as high as its people need. Beside the names stand the crests of their teams, where all figures keep their
// room.
class CompareTable : public QTableView {
public:
    explicit CompareTable(QWidget* parent);

    void Compare(const SquadSight& sight, const std::vector<SquadPerson>& people);

    CompareModel* Figures;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitNames();
};

} // namespace dravik
