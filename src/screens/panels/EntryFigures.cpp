#include "screens/panels/EntryFigures.h"

#include "screens/panels/EntryList.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/LetterWidths.h"
#include "screens/panels/Shades.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr int ColumnGap = 10; // left of every column
constexpr int RightEdge = 8;

} // namespace

EntryFigures::EntryFigures(EntryList* shown, std::vector<FigureColumn> all) :
    QObject(shown), list(shown), columns(std::move(all))
{
}

EntryFigures* EntryFigures::On(const QObject* list)
{
    if (list != nullptr)
        for (QObject* child : list->children())
            if (auto* figures = dynamic_cast<EntryFigures*>(child))
                return figures;
    return nullptr;
}

// What is widest is found by the widths of letters, so that a list is measured whenever it is painted.
void EntryFigures::Fit(int whole)
{
    const QFontMetrics metrics = list->fontMetrics();
    LetterWidths letters(metrics);
    std::vector<int> wanted;
    if (list->count() > 0) {
        int free = list->viewport()->width() - whole;
        for (const FigureColumn& column : columns) {
            int width = letters.Of(column.Heading);
            for (int row = 0; row < list->count(); ++row)
                width = std::max(width, letters.Of(column.Figure(*NumberOf(list->item(row)))));
            width += LetterWidths::Kerning;
            free -= width + ColumnGap + (wanted.empty() ? RightEdge : 0);
            if (free < 0)
                break;
            wanted.push_back(width);
        }
    }
    if (wanted != widths) {
        widths = std::move(wanted);
        list->viewport()->update(); // also where only a part of it is being painted
        emit Fitted();
    }
}

int EntryFigures::Room() const
{
    int room = widths.empty() ? 0 : RightEdge;
    for (const int width : widths)
        room += width + ColumnGap;
    return room;
}

QStringList EntryFigures::WordsOf(int number) const
{
    QStringList words;
    for (const FigureColumn& column : columns)
        if (const QString told = column.Words(number); !told.isEmpty())
            words << told;
    return words;
}

std::vector<EntryFigures::Place> EntryFigures::Places() const
{
    std::vector<Place> places;
    int fromRight = RightEdge;
    for (std::size_t index = widths.size(); index-- > 0;) {
        places.push_back({&columns[index], widths[index], fromRight});
        fromRight += widths[index] + ColumnGap;
    }
    std::reverse(places.begin(), places.end());
    return places;
}

void EntryFigures::Paint(QPainter& painter, const QRect& area, int number) const
{
    for (const Place& place : Places())
        painter.drawText(
            QRect(area.right() - place.FromRight - place.Width + 1, area.top(), place.Width, area.height()),
            Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, place.Column->Figure(number));
}

FigureHeadings::FigureHeadings(EntryFigures* shown, QWidget* parent) : QWidget(parent), figures(shown)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QStringList meanings;
    for (const FigureColumn& column : figures->Columns())
        meanings << column.Meaning;
    const auto tell = [this, words = meanings] {
        setToolTip(words.first(static_cast<qsizetype>(figures->Places().size())).join(", "));
        update();
    };
    // The list is about to be painted: this is shown with it, or right behind it.
    connect(figures, &EntryFigures::Fitted, this, tell, Qt::QueuedConnection);
}

QSize FigureHeadings::sizeHint() const { return {0, fontMetrics().height()}; }

void FigureHeadings::paintEvent(QPaintEvent*)
{
    const QWidget* area = figures->List()->viewport();
    const int right = mapFromGlobal(area->mapToGlobal(QPoint(area->width() - 1, 0))).x();
    QPainter painter(this);
    painter.setPen(MutedText(palette()));
    for (const EntryFigures::Place& place : figures->Places()) {
        const QRect room(right - place.FromRight - place.Width + 1, 0, place.Width, height());
        if (room.left() >= 0) // not into the heading beside it
            painter.drawText(room, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine, place.Column->Heading);
    }
}

} // namespace dravik
