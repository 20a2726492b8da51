#include "screens/panels/EntryList.h"

#include "screens/panels/Shades.h"

#include <algorithm>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace dravik {

namespace {

constexpr int RowPadding = 8; // above and below the text together
constexpr int AsideMargin = 8;

bool MovesChoice(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End ||
           key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

void EntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStringList aside = index.data(entry::AsideRole).toStringList();
    int asideWidth = 0;
    for (const QString& word : aside)
        asideWidth +=
            std::max(item.fontMetrics.horizontalAdvance(word), item.fontMetrics.horizontalAdvance("WW")) + AsideMargin;
    const QString text = item.text;
    item.text.clear();
    const QStyle* style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = (item.state & QStyle::State_Selected) != 0;
    const auto group = (item.state & QStyle::State_Enabled) == 0  ? QPalette::Disabled
                       : (item.state & QStyle::State_Active) == 0 ? QPalette::Inactive
                                                                  : QPalette::Active;
    const QColor front = item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor back = item.palette.color(group, isSelected ? QPalette::Highlight : QPalette::Base);

    painter->save();
    painter->setFont(item.font);
    QRect area = item.rect.adjusted(AsideMargin / 2, 0, -AsideMargin, 0);
    painter->setPen(Muted(front, back));
    for (auto word = aside.rbegin(); word != aside.rend(); ++word) {
        painter->drawText(area, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, *word);
        const int width = std::max(item.fontMetrics.horizontalAdvance(*word), item.fontMetrics.horizontalAdvance("WW"));
        area.setRight(area.right() - width - AsideMargin);
    }
    area = item.rect.adjusted(AsideMargin / 2, 0, -AsideMargin / 2 - asideWidth, 0);
    painter->setPen(front);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      item.fontMetrics.elidedText(text, Qt::ElideRight, area.width()));
    painter->restore();
}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(option.fontMetrics.height() + RowPadding);
    return size;
}

EntryList::EntryList(QWidget* parent) : QListWidget(parent)
{
    setItemDelegate(new EntryDelegate(this));
    setAlternatingRowColors(true);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void EntryList::Add(const QString& text, int number, const QStringList& aside)
{
    auto* item = new QListWidgetItem(text, this);
    item->setData(entry::NumberRole, number);
    item->setData(entry::AsideRole, aside);
}

void EntryList::Unchoose()
{
    clearSelection();
    setCurrentRow(-1);
}

QListWidgetItem* EntryList::Chosen() const
{
    const QList<QListWidgetItem*> chosen = selectedItems();
    return chosen.isEmpty() ? nullptr : chosen.front();
}

void EntryList::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && Chosen() != nullptr) {
        emit EnterPressed();
        return;
    }
    // The toolkit makes the first entry current when the list gets the focus, without choosing it; the first arrow would
    // then skip it.
    if (MovesChoice(event->key()) && Chosen() == nullptr && count() > 0) {
        setCurrentRow(event->key() == Qt::Key_End ? count() - 1 : std::max(0, currentRow()),
                      QItemSelectionModel::ClearAndSelect);
        return;
    }
    QListWidget::keyPressEvent(event);
}

} // namespace dravik
