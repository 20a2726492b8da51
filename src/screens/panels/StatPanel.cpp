#include "screens/panels/StatPanel.h"

#include "screens/ElementName.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"
#include "screens/platform/CodePage.h"

#include <QGridLayout>

namespace dravik {

namespace {

constexpr int RowCount = 16;
constexpr int RowsOfColumn = 8;
constexpr int CellsOfColumn = 4; // caption, bar, number, space to the next column

void KeepPlaceWhenHidden(QWidget* widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

} // namespace

StatPanel::StatPanel(QWidget* parent, const char* numberName) : QGroupBox("Stats", parent)
{
    for (int row = 0; row <= RowCount; ++row) {
        lblStatLabel[row] = new MutedLabel(this);
        lblStatLabel[row]->setObjectName(ElementName("lblStatLabel", row));
        lblStat[row] = new QLabel(this);
        lblStat[row]->setObjectName(ElementName(numberName, row));
        lblStat[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        for (QLabel* label : {lblStat[row], lblStatLabel[row]})
            label->setTextFormat(Qt::PlainText);
    }
    lblStatLabel[0]->setText("PO");
    lblName = MakeHeading({}, this);
    lblName->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Gap, Margin, Margin);
    column->setSpacing(Gap);
    auto* heading = new QHBoxLayout;
    heading->setSpacing(Gap);
    heading->addWidget(lblName, 1);
    heading->addWidget(lblStatLabel[0]);
    heading->addWidget(lblStat[0]);
    column->addLayout(heading);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap);
    grid->setVerticalSpacing(Gap / 2);
    grid->setColumnMinimumWidth(CellsOfColumn - 1, Gap / 2);
    const int numberWidth = fontMetrics().horizontalAdvance("000");
    for (int row = 1; row <= RowCount; ++row) {
        const int line = (row - 1) % RowsOfColumn;
        const int cell = (row - 1) / RowsOfColumn * CellsOfColumn;
        bars[row] = new RatingBar(this);
        lblStat[row]->setMinimumWidth(numberWidth);
        lblStatLabel[row]->setMinimumWidth(numberWidth);
        grid->addWidget(lblStatLabel[row], line, cell);
        grid->addWidget(bars[row], line, cell + 1);
        grid->addWidget(lblStat[row], line, cell + 2);
        if (row <= RowsOfColumn) {
            KeepPlaceWhenHidden(lblStat[row]);
            KeepPlaceWhenHidden(bars[row]);
        }
    }
    KeepPlaceWhenHidden(lblStat[0]);
    column->addLayout(grid);
    HideRows();
}

void StatPanel::HideRows()
{
    lblName->clear();
    lblStat[0]->hide();
    lblStatLabel[0]->hide();
    HideRatings();
}

void StatPanel::HideRatings()
{
    for (int row = 1; row <= RowCount; ++row) {
        lblStat[row]->hide();
        lblStatLabel[row]->hide();
        bars[row]->hide();
    }
}

void StatPanel::ClearNumbers()
{
    lblName->clear();
    for (int row = 1; row <= RowCount; ++row) {
        lblStat[row]->clear();
        lblStat[row]->setAccessibleName({});
        bars[row]->SetValue(0);
    }
}

void StatPanel::ShowPosition(const QString& position)
{
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
    const QString caption = ToQString(shown.Label);
    lblStatLabel[row]->setText(caption);
    lblStatLabel[row]->show();
    lblStat[row]->setText(QString::number(shown.Value));
    lblStat[row]->setAccessibleName(QString("%1 %2").arg(caption).arg(shown.Value));
    lblStat[row]->show();
    bars[row]->SetValue(shown.Value);
    bars[row]->show();
}

} // namespace dravik
