#include "screens/panels/StatPanel.h"

#include "screens/ElementName.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"

namespace dravik {

StatPanel::StatPanel(QWidget* parent, const char* numberName) : QGroupBox("Stats", parent)
{
    for (int row = Labels::first; row <= Labels::last; ++row) {
        lblStat[row] = new QLabel(this);
        lblStat[row]->setObjectName(ElementName(numberName, row));
        lblStat[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        lblStat[row]->setTextFormat(Qt::PlainText);
    }
    lblStatLabel[0] = new MutedLabel("PO", this);
    lblStatLabel[0]->setObjectName(ElementName("lblStatLabel", 0));
    QSizePolicy keepingPlace = lblStat[0]->sizePolicy();
    keepingPlace.setRetainSizeWhenHidden(true);
    lblStat[0]->setSizePolicy(keepingPlace);
    lblName = MakeHeading({}, this);
    lblName->setObjectName("lblStatName");
    lblName->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // no name makes the panel wider

    lblHint = new MutedLabel(this);
    lblHint->setObjectName("lblStatHint");
    lblHint->setTextFormat(Qt::PlainText);

    auto* page = new QGridLayout(this);
    SetGroupMargins(page);
    QVBoxLayout* column = MakeColumn({});
    page->addLayout(column, 0, 0);
    page->addWidget(lblHint, 0, 0, Qt::AlignCenter);
    auto* heading = new QHBoxLayout;
    heading->setSpacing(Gap);
    heading->addWidget(lblName, 1);
    pin = new PinCommand(this);
    heading->addWidget(pin);
    heading->addWidget(lblStatLabel[0]);
    heading->addWidget(lblStat[0]);
    column->addLayout(heading);

    RatingRows::Numbers numbers;
    for (int row = RatingRows::Numbers::first; row <= RatingRows::Numbers::last; ++row) {
        lblStat[row]->setMinimumWidth(fontMetrics().horizontalAdvance("000"));
        numbers[row] = lblStat[row];
    }
    ratings = new RatingRows(this, numbers);
    for (int row = RatingRows::Numbers::first; row <= RatingRows::Numbers::last; ++row)
        lblStatLabel[row] = ratings->Captions[row];
    column->addLayout(ratings);
    lblPinned = new PinLine(this);
    column->addLayout(lblPinned->WithLetGo());
    connect(&NewsOfPins(), &PinNews::Changed, this, [this] { ShowGhosts(); });
    HideRows();
}

void StatPanel::SetHint(const QString& words) { lblHint->setText(words); }

void StatPanel::HideRows()
{
    lblHint->show();
    lblName->clear();
    lblStat[0]->hide();
    lblStatLabel[0]->hide();
    HideRatings();
}

void StatPanel::HideRatings()
{
    ratings->Hide();
    LetGo();
}

void StatPanel::LetGo()
{
    held.reset();
    pin->SetPerson(std::nullopt);
    ShowGhosts();
}

void StatPanel::HoldAgainstPinned(PersonId whose)
{
    held = whose;
    pin->SetPerson(whose.Slot == 0 ? std::nullopt : std::optional(whose));
    ShowGhosts();
}

void StatPanel::ShowGhosts()
{
    const auto pinned = held ? PinnedAgainst(*held) : std::nullopt;
    lblPinned->Tell(pinned ? pinned->Name : QString());
    ratings->ShowGhosts(pinned ? NumbersOf(pinned->Rows) : std::vector<int>());
    for (int row = RatingRows::Numbers::first; row <= RatingRows::Numbers::last; ++row)
        if (held && !lblStat[row]->isHidden())
            lblStat[row]->setAccessibleName(lblStatLabel[row]->text() + ' ' + ratings->InWords(row));
}

void StatPanel::ClearNumbers()
{
    LetGo();
    lblName->clear();
    for (int row = RatingRows::Numbers::first; row <= RatingRows::Numbers::last; ++row) {
        lblStat[row]->clear();
        lblStat[row]->setAccessibleName({});
        ratings->SetRating(row, 0);
    }
}

void StatPanel::ShowPosition(const QString& position)
{
    lblHint->hide();
    lblStatLabel[0]->show();
    lblStat[0]->setText(position);
    lblStat[0]->setAccessibleName("Position " + position);
    lblStat[0]->show();
}

void StatPanel::SetName(const QString& name) { lblName->setText(name); }

void StatPanel::ShowRows(const StatRows& rows)
{
    int row = 1;
    for (const StatRow& shown : rows.Ratings)
        ShowRow(row++, shown);
    if (rows.OverallRow)
        ShowRow(row, *rows.OverallRow);
}

void StatPanel::ShowRow(int row, const StatRow& shown)
{
    lblHint->hide();
    const QString caption = ToQString(shown.Label);
    lblStat[row]->setText(QString::number(shown.Value));
    lblStat[row]->setAccessibleName(QString("%1 %2").arg(caption).arg(shown.Value));
    ratings->Show(row, caption, shown.Value);
}

} // namespace dravik
