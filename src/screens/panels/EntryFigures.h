#pragma once

#include <functional>
#include <QObject>
#include <QPainter>
#include <QRect>
#include <QStringList>
#include <QWidget>
#include <vector>

namespace dravik {

class EntryList;

// One figure that a list with room to spare tells of each entry.
struct FigureColumn {
    QString Heading;                           // over the column
    QString Meaning;                           // the same in words
    std::function<QString(int number)> Figure; // of the entry with a number, as it is painted
    std::function<QString(int number)> Words;  // the same for a screen reader
};

// Gives the entries of a list figures in columns at their right edge, behind the secondary words and muted like them. They are
// no part of an entry's text, of its secondary words or of its accessible name: a screen reader has them behind the signs in
// its description, whether they have room or not. All entries show the same columns: as many, from the first one on, as leave
// every name, its signs and its secondary words whole. They are asked for when they are drawn and widen no list.
class EntryFigures : public QObject {
    Q_OBJECT
public:
    // `columns` are in order of importance, from left to right. Belongs to the list.
    EntryFigures(EntryList* list, std::vector<FigureColumn> columns);

    // Those of a list, or none.
    static EntryFigures* On(const QObject* list);

    // Finds out which columns have room beside entries of which the widest takes `whole` pixels; to be called before the list is
    // painted.
    void Fit(int whole);
    // What they take from the right end of every entry, in pixels.
    [[nodiscard]] int Room() const;
    // What a screen reader is told of the entry with a number.
    [[nodiscard]] QStringList WordsOf(int number) const;
    // Draws the figures of an entry at the right end of `area`, with the pen and font at hand.
    void Paint(QPainter& painter, const QRect& area, int number) const;

    // A column that has room, and where it ends: pixels from the right end of an entry.
    struct Place {
        const FigureColumn* Column;
        int Width;
        int FromRight;
    };
    [[nodiscard]] std::vector<Place> Places() const;
    [[nodiscard]] const std::vector<FigureColumn>& Columns() const { return columns; }
    [[nodiscard]] EntryList* List() const { return list; }

signals:
    // Other columns have room than before, or they stand elsewhere.
    void Fitted();

private:
    EntryList* list;
    std::vector<FigureColumn> columns;
    std::vector<int> widths; // of those that have room
};

// The quiet line of headings over the columns of a list. It takes no height of its own in a row with a heading, and has nothing to
// show while no column has room.
class FigureHeadings : public QWidget {
public:
    explicit FigureHeadings(EntryFigures* figures, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    EntryFigures* const figures;
};

} // namespace dravik
