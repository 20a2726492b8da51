#include "screens/panels/RatingRows.h"

#include "screens/ElementName.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"

namespace dravik {

namespace {

constexpr int RowsOfColumn = 8;
constexpr int CellsOfColumn = 4; // caption, bar, number, space to the next column

void KeepPlaceWhenHidden(QWidget* widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

} // namespace

RatingRows::RatingRows(QWidget* panel, const Numbers& shownBy) : numbers(shownBy)
{
    setHorizontalSpacing(Gap);
    setVerticalSpacing(Gap / 2);
    setColumnMinimumWidth(CellsOfColumn - 1, Gap); // a number stands closer to its bar than to the next caption
    const int captionWidth = panel->fontMetrics().horizontalAdvance("000");
    for (int row = Numbers::first; row <= Numbers::last; ++row) {
        Captions[row] = new MutedLabel(panel);
        Captions[row]->setObjectName(ElementName("lblStatLabel", row));
        Captions[row]->setTextFormat(Qt::PlainText);
        Captions[row]->setMinimumWidth(captionWidth);
        bars[row] = new RatingBar(panel);
        const int line = (row - 1) % RowsOfColumn;
        const int cell = (row - 1) / RowsOfColumn * CellsOfColumn;
        addWidget(Captions[row], line, cell);
        addWidget(bars[row], line, cell + 1);
        addWidget(numbers[row], line, cell + 2);
        if (row <= RowsOfColumn) {
            KeepPlaceWhenHidden(numbers[row]);
            KeepPlaceWhenHidden(bars[row]);
        }
    }
    Hide();
}

void RatingRows::Hide()
{
    for (int row = Numbers::first; row <= Numbers::last; ++row)
        SetVisible(row, false);
}

void RatingRows::Show(int row, const QString& caption, int rating)
{
    Captions[row]->setText(caption);
    bars[row]->setAccessibleName(caption);
    bars[row]->SetValue(rating);
    SetVisible(row, true);
}

void RatingRows::SetRating(int row, int rating) { bars[row]->SetValue(rating); }

void RatingRows::SetVisible(int row, bool isVisible)
{
    Captions[row]->setVisible(isVisible);
    bars[row]->setVisible(isVisible);
    numbers[row]->setVisible(isVisible);
}

} // namespace dravik
