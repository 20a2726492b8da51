#include "screens/panels/EntryList.h"

#include "screens/panels/Shades.h"

#include <algorithm>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>
#include <QToolTip>

namespace dravik {

namespace {

constexpr int RowPadding = 8; // above and below the text together
constexpr int SideMargin = 4;
constexpr int AsideGap = 8;

int AsideWidth(const QFontMetrics& metrics, const QString& word)
{
    return std::max(metrics.horizontalAdvance(word), metrics.horizontalAdvance("WW"));
}

// Where text and secondary words of an entry stand.
QRect ContentArea(const QRect& entry) { return entry.adjusted(SideMargin, 0, -SideMargin, 0); }

QStringList AsideOf(const QModelIndex& index) { return index.data(entry::AsideRole).toStringList(); }

// What the secondary words of an entry take from its right end; nothing where they are left out.
int AsideRoom(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QStringList aside = AsideOf(index);
    if (aside.isEmpty())
        return 0;
    int room = SideMargin;
    for (const QString& word : aside)
        room += AsideWidth(option.fontMetrics, word) + AsideGap;
    const int width = ContentArea(option.rect).width();
    int least = option.fontMetrics.horizontalAdvance(index.data().toString());
    const auto* list = qobject_cast<const EntryList*>(option.widget);
    if (list != nullptr && list->CutsNamesFirst())
        least = std::min(least, width / 2);
    return least <= width - room ? room : 0;
}

// The text cut to `width` in its name; the marks behind the name stay.
QString Cut(const QString& text, const QFontMetrics& metrics, int width)
{
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    static const QRegularExpression marks(R"(( \([A-Z]\))?( ?\*)*$)");
    const QString behind = marks.match(text).captured();
    const QString name = text.chopped(behind.size());
    return metrics.elidedText(name, Qt::ElideRight, width - metrics.horizontalAdvance(behind)) + behind;
}

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
    const QRect area = ContentArea(item.rect);
    const int room = AsideRoom(item, index);

    painter->save();
    painter->setFont(item.font);
    painter->setPen(front);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      Cut(text, item.fontMetrics, area.width() - room));
    if (room > 0) {
        painter->setPen(Muted(front, back));
        const QStringList aside = AsideOf(index);
        int right = area.right() - SideMargin;
        for (auto word = aside.rbegin(); word != aside.rend(); ++word) {
            const int width = AsideWidth(item.fontMetrics, *word);
            painter->drawText(QRect(right - width + 1, area.top(), width, area.height()),
                              Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, *word);
            right -= width + AsideGap;
        }
    }
    painter->restore();
}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(option.fontMetrics.height() + RowPadding);
    return size;
}

bool EntryDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                              const QModelIndex& index)
{
    const QString text = index.data().toString();
    const int width = ContentArea(option.rect).width() - AsideRoom(option, index);
    const bool isCut = option.fontMetrics.horizontalAdvance(text) > width;
    if (event->type() == QEvent::ToolTip && isCut && !index.data(Qt::ToolTipRole).isValid()) {
        QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(text), view, option.rect);
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
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

void EntryList::SetCurrentToNone() { setCurrentRow(-1, QItemSelectionModel::NoUpdate); }

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
    if (isEnter && currentItem() != nullptr && currentItem()->isSelected()) {
        emit EnterPressed();
        return;
    }
    // From a current entry that is not chosen, or none, the toolkit's first arrow would skip one.
    if (MovesChoice(event->key()) && Chosen() == nullptr && count() > 0) {
        setCurrentRow(event->key() == Qt::Key_End ? count() - 1 : FirstChoice(), QItemSelectionModel::ClearAndSelect);
        return;
    }
    QListWidget::keyPressEvent(event);
}

// The toolkit makes whatever any button presses current, also where the press chooses nothing.
void EntryList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QListWidget::mousePressEvent(event);
}

void EntryList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QListWidget::mouseReleaseEvent(event);
}

void EntryList::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QListWidget::mouseDoubleClickEvent(event);
}

// The toolkit makes the first entry current when the list gets the focus. That is no choice of the user's, and nobody hears
// of it.
void EntryList::focusInEvent(QFocusEvent* event)
{
    const bool hadCurrent = currentRow() >= 0;
    const QSignalBlocker quiet(this);
    QListWidget::focusInEvent(event);
    if (!hadCurrent)
        SetCurrentToNone();
}

QItemSelectionModel::SelectionFlags EntryList::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    const auto command = QListWidget::selectionCommand(index, event);
    const bool choosesEntry = index.isValid() && (command & QItemSelectionModel::Select) != 0;
    return selectionMode() != SingleSelection || choosesEntry ? command : QItemSelectionModel::NoUpdate;
}

} // namespace dravik
