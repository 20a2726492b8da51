#include "screens/panels/RatingRows.h"

#include "screens/ElementName.h"
#include "screens/panels/GhostWords.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"

namespace dravik {

namespace {

constexpr int RowsOfColumn = 8;
constexpr int CellsOfColumn = 5; // caption, bar, number, that of a pinned one, space to the next column

// The number of a pinned one and the difference to it. Where both have no room the difference stays.
class GhostLabel : public MutedLabel {
public:
    using MutedLabel::MutedLabel;

    [[nodiscard]] QSize sizeHint() const override
    {
        return {fontMetrics().horizontalAdvance(QString("00 ") + QChar(0x2212) + "00"),
                MutedLabel::sizeHint().height()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return {fontMetrics().horizontalAdvance(QChar(0x2212) + QString("00")) + 1,
                MutedLabel::minimumSizeHint().height()};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setPen(MutedText(palette()));
        const bool isWhole = sizeHint().width() <= width(); // of all rows alike
        painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                         isWhole ? text() : Difference());
    }

private:
    [[nodiscard]] QString Difference() const { return text().section(' ', 1); }
};

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
        ghosts[row] = new GhostLabel(panel);
        ghosts[row]->setObjectName(ElementName("lblGhost", row));
        ghosts[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        ghosts[row]->hide();
        addWidget(ghosts[row], line, cell + 3);
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

void RatingRows::SetRating(int row, int rating)
{
    bars[row]->SetValue(rating);
    ShowGhost(row);
}

void RatingRows::ShowGhosts(const std::vector<int>& pinned)
{
    for (int row = Numbers::first; row <= Numbers::last; ++row) {
        const auto at = static_cast<std::size_t>(row - 1);
        const bool isHeld = at < pinned.size() && !bars[row]->isHidden();
        bars[row]->SetGhost(isHeld ? std::optional(pinned[at]) : std::nullopt);
        ShowGhost(row);
    }
    setHorizontalSpacing(pinned.empty() ? Gap : Gap / 2); // more stands in a row then
}

void RatingRows::ShowGhost(int row)
{
    const std::optional<int> pinned = bars[row]->Ghost();
    ghosts[row]->setVisible(pinned.has_value());
    ghosts[row]->setText(pinned ? GhostFigure(bars[row]->Value(), *pinned) : QString());
    ghosts[row]->setToolTip(bars[row]->toolTip());
    bars[row]->setMinimumWidth(pinned ? 3 * bars[row]->fontMetrics().height() / 2 : 0);
}

void RatingRows::SetVisible(int row, bool isVisible)
{
    Captions[row]->setVisible(isVisible);
    bars[row]->setVisible(isVisible);
    if (!isVisible)
        bars[row]->SetGhost(std::nullopt);
    ShowGhost(row);
    numbers[row]->setVisible(isVisible);
}

} // namespace dravik
