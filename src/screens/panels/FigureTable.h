#pragma once

#include <QTableWidget>

namespace dravik {

// A column of a table of figures: numbers stand at its right edge, words at its left, and words that `GivesWay` take the room
// that is left.
struct TableColumn {
    QString Caption;
    bool IsNumber = true;
    bool GivesWay = false;
};

// Figures in rows and columns, to be read, walked through by keys and told to a screen reader, and never changed.
class FigureTable : public QTableWidget {
public:
    FigureTable(const QList<TableColumn>& columns, QWidget* parent);

    // The cells of all rows, each row as long as there are columns; the place that is looked at stays.
    void Show(const QList<QStringList>& rows);
    [[nodiscard]] QString TextAt(int row, int column) const;

    // Wide enough for every column; as high as its rows, as far as a screen goes.
    [[nodiscard]] QSize sizeHint() const override;

private:
    QList<TableColumn> columns;
};

} // namespace dravik
