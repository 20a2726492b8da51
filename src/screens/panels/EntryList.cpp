#include "screens/panels/EntryList.h"

#include "screens/panels/Crest.h"
#include "screens/panels/EntryFigures.h"
#include "screens/panels/EntryName.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/LetterWidths.h"
#include "screens/panels/Shades.h"
#include "screens/panels/TypeAhead.h"

#include <algorithm>
#include <QApplication>
#include <QHash>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>

namespace dravik {

namespace {

constexpr int RowPadding = 8; // above and below the text together
constexpr int SideMargin = 4;
constexpr int AsideGap = 8;
constexpr int LineShare = 8; // of a row of letters: how thick the line under what was found is

int AsideWidth(const QFontMetrics& metrics, const QString& word)
{
    return std::max(metrics.horizontalAdvance(word), metrics.horizontalAdvance("WW"));
}

// Where text and secondary words of an entry stand.
QRect ContentArea(const QRect& entry) { return entry.adjusted(SideMargin, 0, -SideMargin, 0); }

// What an entry leaves to all else behind the figures of its list.
QRect BeforeFigures(const QRect& entry, const QObject* list)
{
    const EntryFigures* figures = EntryFigures::On(list);
    return figures == nullptr ? entry : entry.adjusted(0, 0, -figures->Room(), 0);
}

// What an entry leaves to all else beside the figures and the crests of its list.
QRect BehindCrest(const QRect& entry, const QObject* list)
{
    const EntryCrests* crests = EntryCrests::On(list);
    return BeforeFigures(crests == nullptr ? entry : entry.adjusted(crests->Room(), 0, 0, 0), list);
}

// Of an entry, as the list or its model gives it.
template <class Entry>
QStringList AsideOf(const Entry& shown)
{
    return shown.data(entry::AsideRole).toStringList();
}

// What secondary words take from the right end of an entry, when `width` gives that of a word.
template <class Width>
int RoomFor(const QStringList& aside, Width&& width)
{
    int room = aside.isEmpty() ? 0 : SideMargin;
    for (const QString& word : aside)
        room += width(word) + AsideGap;
    return room;
}

// The widths of secondary words, which are few different ones: each is laid out once.
class AsideWidths {
public:
    explicit AsideWidths(const QFontMetrics& font) : metrics(font) {}

    int operator()(const QString& word)
    {
        auto known = words.constFind(word);
        if (known == words.constEnd())
            known = words.insert(word, AsideWidth(metrics, word));
        return *known;
    }

private:
    QFontMetrics metrics;
    QHash<QString, int> words;
};

// What the widest entry of a list takes of it whole, with all of its signs.
int WidthOfWholeEntry(const EntryList& list)
{
    constexpr int anyRoom = 1000000;
    const QFontMetrics metrics = list.fontMetrics();
    LetterWidths letters(metrics);
    AsideWidths words(metrics);
    const EntrySigns* signs = EntrySigns::On(&list);
    int widest = 0;
    for (int row = 0; row < list.count(); ++row) {
        const QListWidgetItem& item = *list.item(row);
        int width = letters.Of(item.text()) + LetterWidths::Kerning + RoomFor(AsideOf(item), words);
        if (signs != nullptr)
            width += FitSigns(signs->Of(*NumberOf(&item)), metrics, anyRoom, 0, 0).Room;
        widest = std::max(widest, width);
    }
    return widest + 2 * SideMargin;
}

// What the widest name of a list takes.
int WidthOfWidestName(const EntryList& list)
{
    LetterWidths letters(list.fontMetrics());
    int widest = 0;
    for (int row = 0; row < list.count(); ++row)
        widest = std::max(widest, letters.Of(list.item(row)->text()) + LetterWidths::Kerning);
    return widest + 2 * SideMargin;
}

// What the secondary words of an entry take, and nothing where they have no room.
int OwnAsideRoom(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto wordWidth = [&](const QString& word) { return AsideWidth(option.fontMetrics, word); };
    const int room = RoomFor(AsideOf(index), wordWidth);
    if (room == 0)
        return 0;
    const int width = ContentArea(option.rect).width();
    int least = option.fontMetrics.horizontalAdvance(index.data().toString());
    const auto* list = qobject_cast<const EntryList*>(option.widget);
    if (list != nullptr && list->CutsNamesFirst())
        least = std::min(least, width / 2);
    return least <= width - room ? room : 0;
}

// The same, and nothing where they are left out for the sake of another entry.
int AsideRoom(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto* list = qobject_cast<const EntryList*>(option.widget);
    return list != nullptr && list->LeavesAsidesOut() ? 0 : OwnAsideRoom(option, index);
}

// The signs of an entry that are drawn left of its secondary words, which take `asideRoom`.
SignStrip SignsOf(const QStyleOptionViewItem& option, const QModelIndex& index, int asideRoom)
{
    const auto signs = index.data(entry::SignsRole).value<PersonSigns>();
    if (signs.IsEmpty())
        return {};
    const int width = ContentArea(option.rect).width();
    const int name = option.fontMetrics.horizontalAdvance(index.data().toString());
    const auto* list = qobject_cast<const EntryList*>(option.widget);
    const bool givesWay = list != nullptr && list->CutsNamesFirst();
    return FitSigns(signs, option.fontMetrics, width - asideRoom, name, givesWay ? std::min(name, width / 2) : name);
}

// The text cut to `width` in its name; the marks behind the name stay.
QString Cut(const QString& text, const QFontMetrics& metrics, int width)
{
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    const QString name = text.first(NameLength(text));
    const QString behind = text.sliced(name.size());
    return metrics.elidedText(name, Qt::ElideRight, width - metrics.horizontalAdvance(behind)) + behind;
}

// Draws a line under those letters of an entry's text that somebody is looking for. Of a text that was cut, `shown` is what is
// left of it, and `keptName` how many letters of its name.
void Underline(QPainter& painter, const QRect& area, const QString& shown, qsizetype keptName, const NamePart& found)
{
    const auto first = static_cast<qsizetype>(found.First);
    const qsizetype end = std::min(first + static_cast<qsizetype>(found.Length), keptName);
    if (first >= end)
        return;
    const QFontMetrics metrics = painter.fontMetrics();
    const int left = metrics.horizontalAdvance(shown, static_cast<int>(first));
    const int right = metrics.horizontalAdvance(shown, static_cast<int>(end));
    const int thickness = std::max(1, metrics.height() / LineShare);
    const int baseline = area.top() + (area.height() - metrics.height()) / 2 + metrics.ascent();
    painter.fillRect(QRect(area.left() + left, baseline + 2, right - left, thickness), painter.pen().color());
}

// How many letters of `text` still begin `shown`, the same with its name cut.
qsizetype KeptOf(const QString& text, const QString& shown)
{
    const auto [own, cut] = std::mismatch(text.begin(), text.end(), shown.begin(), shown.end());
    return std::distance(text.begin(), own);
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
    const bool isSelected = (item.state & QStyle::State_Selected) != 0;
    const auto group = (item.state & QStyle::State_Enabled) == 0  ? QPalette::Disabled
                       : (item.state & QStyle::State_Active) == 0 ? QPalette::Inactive
                                                                  : QPalette::Active;
    if (isSelected && group != QPalette::Disabled)
        item.palette.setColor(group, QPalette::Highlight,
                              ChosenGround(item.palette.color(group, QPalette::Highlight),
                                           item.palette.color(group, QPalette::HighlightedText)));
    const QStyle* style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const QColor front = item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const bool isAlternate = (item.features & QStyleOptionViewItem::Alternate) != 0;
    const QColor back = item.palette.color(group, isSelected    ? QPalette::Highlight
                                                  : isAlternate ? QPalette::AlternateBase
                                                                : QPalette::Base);
    if (const EntryFigures* figures = EntryFigures::On(item.widget)) {
        painter->save();
        painter->setFont(item.font);
        painter->setPen(Muted(front, back));
        figures->Paint(*painter, item.rect, index.data(entry::NumberRole).toInt());
        painter->restore();
    }
    item.rect = BehindCrest(item.rect, item.widget);
    const QRect area = ContentArea(item.rect);
    const int room = AsideRoom(item, index);
    const SignStrip signs = SignsOf(item, index, room);

    painter->save();
    painter->setFont(item.font);
    if (const EntryCrests* crests = EntryCrests::On(item.widget))
        crests->Paint(*painter, area, index.data(entry::NumberRole).toInt());
    painter->setPen(front);
    const QString shown = Cut(text, item.fontMetrics, area.width() - room - signs.Room);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    if (const TypeAhead* search = TypeAhead::On(item.widget))
        if (const auto found = search->PartIn(text))
            Underline(*painter, area, shown, KeptOf(text, shown), *found);
    PaintSigns(*painter, signs, area.adjusted(0, 0, -room, 0), front, back);
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
    QStyleOptionViewItem before = option;
    before.rect = BehindCrest(option.rect, option.widget);
    const int room = AsideRoom(before, index);
    const int width = ContentArea(before.rect).width() - room - SignsOf(before, index, room).Room;
    const bool isCut = option.fontMetrics.horizontalAdvance(text) > width;
    if (event->type() == QEvent::ToolTip && isCut && !index.data(Qt::ToolTipRole).isValid()) {
        QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(text), view, option.rect);
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

QVariant EntryItem::data(int role) const
{
    switch (role) {
    case entry::SignsRole:
        if (const EntrySigns* signs = EntrySigns::On(listWidget()))
            return QVariant::fromValue(signs->Of(data(entry::NumberRole).toInt()));
        return {};
    case Qt::AccessibleTextRole:
        return QString((QStringList(text()) + data(entry::AsideRole).toStringList()).join(", "));
    case Qt::AccessibleDescriptionRole: {
        QStringList words = WordsOf(data(entry::SignsRole).value<PersonSigns>());
        if (const EntryFigures* figures = EntryFigures::On(listWidget()))
            words += figures->WordsOf(data(entry::NumberRole).toInt());
        return words.join(", ");
    }
    default:
        return QListWidgetItem::data(role);
    }
}

std::optional<int> NumberOf(const QListWidgetItem* item)
{
    if (item == nullptr)
        return std::nullopt;
    return item->data(entry::NumberRole).toInt();
}

EntryList::EntryList(QWidget* parent) : QListWidget(parent), typeAhead(new TypeAhead(*this))
{
    setItemDelegate(new EntryDelegate(this));
    setAlternatingRowColors(true);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

// An entry that is in the list already tells everybody of each word that it is given.
void EntryList::Add(const QString& text, int number, const QStringList& aside)
{
    auto* item = new EntryItem(text);
    item->setData(entry::NumberRole, number);
    item->setData(entry::AsideRole, aside);
    addItem(item);
}

void EntryList::SetCurrentToNone() { setCurrentRow(-1, QItemSelectionModel::NoUpdate); }

void EntryList::Unchoose()
{
    clearSelection();
    setCurrentRow(-1);
}

// Thousands of entries are compared by the widths of their letters alone; only the widest is laid out. Of their secondary
// words, each is laid out once.
int EntryList::WidthOfWidestEntry() const
{
    const QFontMetrics metrics = fontMetrics();
    LetterWidths letters(metrics);
    AsideWidths words(metrics);
    const EntrySigns* signs = EntrySigns::On(this);
    QString widest;
    int most = 0;
    int room = 0;
    for (int row = 0; row < (givesWay ? 0 : count()); ++row) {
        const QString text = item(row)->text();
        if (const int width = letters.Of(text); width > most) {
            most = width;
            widest = text;
        }
        const int trouble =
            signs == nullptr ? 0 : RoomForTrouble(signs->Of(item(row)->data(entry::NumberRole).toInt()), metrics);
        room = std::max(room, RoomFor(AsideOf(*item(row)), words) + trouble);
    }
    return metrics.horizontalAdvance(widest) + LetterWidths::Kerning + room + 2 * SideMargin + 2 * frameWidth() +
           verticalScrollBar()->sizeHint().width();
}

void EntryList::AskForWidth(int width)
{
    askedWidth = width;
    updateGeometry();
}

QSize EntryList::sizeHint() const
{
    const QSize usual = QListWidget::sizeHint();
    return {askedWidth > 0 ? askedWidth : usual.width(), usual.height()};
}

bool EntryList::AnAsideHasNoRoom() const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    for (int row = 0; row < count(); ++row) {
        const QModelIndex entry = model()->index(row, 0);
        option.rect = BehindCrest(visualRect(entry), this);
        if (!AsideOf(entry).join(QString()).isEmpty() && OwnAsideRoom(option, entry) == 0)
            return true;
    }
    return false;
}

QListWidgetItem* EntryList::Chosen() const
{
    const QList<QListWidgetItem*> chosen = selectedItems();
    return chosen.isEmpty() ? nullptr : chosen.front();
}

void EntryList::paintEvent(QPaintEvent* event)
{
    if (EntryFigures* figures = EntryFigures::On(this))
        figures->Fit(WidthOfWholeEntry(*this));
    if (EntryCrests* crests = EntryCrests::On(this)) {
        const int whole = WidthOfWholeEntry(*this);
        // Secondary words that have no room anyway ask for none beside a crest.
        const bool areAsidesOut = keepsAsidesTogether && whole - LetterWidths::Kerning > viewport()->width();
        crests->Fit(areAsidesOut ? WidthOfWidestName(*this) : whole);
    }
    leavesAsidesOut = keepsAsidesTogether && AnAsideHasNoRoom();
    QListWidget::paintEvent(event);
}

void EntryList::keyboardSearch(const QString& letters) { typeAhead->Type(letters); }

void EntryList::keyPressEvent(QKeyEvent* event)
{
    if (typeAhead->Takes(*event))
        return;
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
