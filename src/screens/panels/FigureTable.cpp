#include "screens/panels/FigureTable.h"

#include "screens/panels/Crest.h"
#include "screens/panels/Headings.h"
#include "screens/panels/Shades.h"

#include <algorithm>
#include <QPainter>
#include <QStyledItemDelegate>

namespace dravik {

namespace {

constexpr int MostRowsAsked = 16;
constexpr int RowRoom = 8;  // above and below the words of a row
constexpr int SideRoom = 6; // at either side of a cell's words

// Cells with air at their sides; a chosen row has the ground of a chosen entry.
class Cells : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool hasCrest = !index.data(entry::CrestRole).value<Crest>().IsNone();
        return QStyledItemDelegate::sizeHint(option, index) +
               QSize(2 * SideRoom + (hasCrest ? CrestRoom(option.fontMetrics) : 0), 0);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const bool isChosen = cell.state.testFlag(QStyle::State_Selected);
        const QColor words = cell.palette.color(QPalette::Active, QPalette::HighlightedText);
        if (isChosen)
            painter->fillRect(cell.rect,
                              ChosenGround(cell.palette.color(QPalette::Active, QPalette::Highlight), words));
        painter->setPen(isChosen ? words : cell.palette.color(QPalette::Text));
        QRect room = cell.rect.adjusted(SideRoom, 0, -SideRoom, 0);
        if (const auto crest = index.data(entry::CrestRole).value<Crest>(); !crest.IsNone()) {
            const int side = CrestSide(cell.fontMetrics);
            PaintCrest(*painter, QRect(room.left(), room.top() + (room.height() - side) / 2, side, side), crest);
            room.setLeft(room.left() + CrestRoom(cell.fontMetrics));
        }
        painter->drawText(room, static_cast<int>(cell.displayAlignment),
                          cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, room.width()));
    }
};

} // namespace

FigureTable::FigureTable(const QList<TableColumn>& all, QWidget* parent) :
    QTableWidget(0, static_cast<int>(all.size()), parent), columns(all)
{
    setHorizontalHeader(new Headings(SideRoom, SideRoom, this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setShowGrid(false);
    setItemDelegate(new Cells(this));
    setWordWrap(false);
    setTabKeyNavigation(false); // the tab key leads on
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowRoom);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    for (int column = 0; column < columnCount(); ++column) {
        auto* head = new QTableWidgetItem(columns[column].Caption);
        head->setTextAlignment(Qt::AlignVCenter | (columns[column].IsNumber ? Qt::AlignRight : Qt::AlignLeft));
        setHorizontalHeaderItem(column, head);
        horizontalHeader()->setSectionResizeMode(column, columns[column].GivesWay ? QHeaderView::Stretch
                                                                                  : QHeaderView::ResizeToContents);
    }
}

void FigureTable::Show(const QList<QStringList>& rows)
{
    setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < rowCount(); ++row)
        for (int column = 0; column < columnCount(); ++column) {
            QTableWidgetItem* cell = item(row, column);
            if (cell == nullptr) {
                cell = new QTableWidgetItem;
                cell->setTextAlignment(Qt::AlignVCenter | (columns[column].IsNumber ? Qt::AlignRight : Qt::AlignLeft));
                setItem(row, column, cell);
            }
            cell->setText(rows[row].value(column));
        }
    updateGeometry();
}

QString FigureTable::TextAt(int row, int column) const
{
    const QTableWidgetItem* cell = item(row, column);
    return cell == nullptr ? QString() : cell->text();
}

QSize FigureTable::sizeHint() const
{
    int width = 2 * frameWidth();
    for (int column = 0; column < columnCount(); ++column)
        width += std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
    const int rows = std::clamp(rowCount(), 1, MostRowsAsked);
    return {width + verticalScrollBar()->sizeHint().width(),
            2 * frameWidth() + horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize()};
}

} // namespace dravik
