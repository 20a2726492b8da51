#include "screens/squad/SquadTable.h"

#include "screens/panels/CompareCells.h"
#include "screens/panels/Crest.h"
#include "screens/panels/Headings.h"
#include "screens/panels/Shades.h"
#include "screens/panels/SignShapes.h"
#include "screens/platform/CodePage.h"

#include <algorithm>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScopeGuard>
#include <QStringList>
#include <utility>

namespace dravik {

namespace {

constexpr int SideMargin = 4;
constexpr int WordsMargin = 10; // left of words, so that they stand off the numbers of the column before
constexpr int RowPadding = 8;   // above and below the text together
constexpr int LeastWidth = 24;
constexpr int MostWidth = 2000;
constexpr QChar Nothing(u'\u2013');

SquadCells CellsOf(const QModelIndex& index)
{
    return static_cast<SquadCells>(index.data(SquadModel::CellsRole).toInt());
}

// The key of a column in one part of an arrangement.
QString KeyOf(const QString& part)
{
    return part.section('=', 0, 0).mid(part.startsWith('-') ? 1 : 0).replace('_', ' ');
}

// Where the words of a cell stand.
QRect WordsIn(const QRect& cell, bool isAtRight)
{
    return cell.adjusted(isAtRight ? SideMargin : WordsMargin, 0, -SideMargin, 0);
}

// A line under the part of a name that was typed, as far as it is in sight.
void Underline(QPainter& painter, const QFontMetrics& metrics, const QRect& words, const QString& name,
               const NamePart& part)
{
    const int first = metrics.horizontalAdvance(name.left(static_cast<int>(part.First)));
    const int last = metrics.horizontalAdvance(name.left(static_cast<int>(part.First + part.Length)));
    const int y = words.center().y() + metrics.ascent() / 2 + 2;
    painter.drawLine(words.left() + first, y, std::min(words.left() + last, words.right()), y);
}

} // namespace

void SquadDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString text = std::exchange(item.text, QString());
    const bool isChosen = (item.state & QStyle::State_Selected) != 0;
    const auto group = (item.state & QStyle::State_Active) == 0 ? QPalette::Inactive : QPalette::Active;
    if (isChosen)
        item.palette.setColor(group, QPalette::Highlight,
                              ChosenGround(item.palette.color(group, QPalette::Highlight),
                                           item.palette.color(group, QPalette::HighlightedText)));
    item.widget->style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const QColor front = item.palette.color(group, isChosen ? QPalette::HighlightedText : QPalette::Text);
    const bool isAlternate = (item.features & QStyleOptionViewItem::Alternate) != 0;
    const QColor back = item.palette.color(group, isChosen      ? QPalette::Highlight
                                                  : isAlternate ? QPalette::AlternateBase
                                                                : QPalette::Base);
    QRect words = WordsIn(item.rect, item.displayAlignment.testFlag(Qt::AlignRight));
    const SquadCells cells = CellsOf(index);

    painter->save();
    painter->setFont(item.font);
    QColor ink = text.isEmpty() ? Muted(front, back) : front;
    if (const QVariant sign = index.data(SquadModel::SignRole); sign.isValid()) {
        const auto kind = static_cast<Sign>(sign.toInt());
        ink = isChosen ? front : InkOf(kind, front, back);
        const int side = item.fontMetrics.height() - 2;
        const int right = words.right() - item.fontMetrics.horizontalAdvance(text) - Gap / 2;
        PaintShape(*painter, kind, QRectF(right - side, words.center().y() - side / 2.0, side, side), ink, back);
    }
    if (index.data(SquadModel::PinnedRole).toBool()) {
        const int side = item.fontMetrics.height() - 2;
        PaintShape(*painter, Sign::Pinned, QRectF(words.right() - side, words.center().y() - side / 2.0, side, side),
                   front, back);
        words.setRight(words.right() - side - Gap / 2);
    }
    // A column that the user made narrow keeps its words.
    if (const auto crest = index.data(entry::CrestRole).value<Crest>();
        !crest.IsNone() && item.fontMetrics.horizontalAdvance(text) + CrestRoom(item.fontMetrics) <= words.width()) {
        const int side = CrestSide(item.fontMetrics);
        PaintCrest(*painter, QRect(words.left(), words.top() + (words.height() - side) / 2, side, side), crest);
        words.setLeft(words.left() + CrestRoom(item.fontMetrics));
    }
    painter->setPen(ink);
    const auto alignment = static_cast<int>(item.displayAlignment) | Qt::TextSingleLine;
    painter->drawText(words, alignment,
                      text.isEmpty() ? QString(Nothing)
                                     : item.fontMetrics.elidedText(text, Qt::ElideRight, words.width()));
    if (cells == SquadCells::Rating && !text.isEmpty())
        DrawRatingBar(*painter, item.rect, index.data(SquadModel::NumberRole).toInt(), front, back,
                      isChosen ? front : item.palette.color(group, QPalette::Highlight));
    if (cells == SquadCells::Name)
        if (const auto part = static_cast<const SquadModel*>(index.model())->TypedPart(index.row()))
            Underline(*painter, item.fontMetrics, words, text, *part);
    painter->restore();
}

SquadTable::SquadTable(SquadKind kind, const QString& name, const QString& words, QWidget* parent) :
    QTableView(parent), model(new SquadModel(kind, this))
{
    setObjectName(name);
    setAccessibleName(words);
    setHorizontalHeader(new Headings(WordsMargin, SideMargin, this));
    setItemDelegate(new SquadDelegate(this));
    setModel(model);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    QHeaderView* heading = horizontalHeader();
    heading->setStretchLastSection(kind == SquadKind::Prospects); // of whom there is a name alone
    heading->setSectionsMovable(true);
    heading->setSectionsClickable(true);
    heading->setHighlightSections(false);
    heading->setSortIndicatorShown(false);
    heading->setMinimumSectionSize(LeastWidth);
    heading->setAccessibleName("Columns of " + words.toLower());
    connect(heading, &QHeaderView::sectionClicked, this, [this](int column) {
        model->SortBy(column, QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier));
    });
    connect(model, &SquadModel::layoutChanged, this, &SquadTable::ShowKeys);
    connect(this, &QTableView::doubleClicked, this, &SquadTable::Chosen);
}

void SquadTable::KeepCurrent(const std::function<void()>& change)
{
    const std::optional<SquadPerson> before = Current();
    if (before)
        wantedColumn = currentIndex().column();
    change();
    const int row = before ? std::max(0, model->RowOf(*before)) : 0;
    const QModelIndex wanted = model->index(row, std::clamp(wantedColumn, 0, std::max(0, model->columnCount() - 1)));
    if (wanted.isValid()) {
        setCurrentIndex(wanted);
        executeDelayedItemsLayout(); // or the scroll bar would still be that of the rows before
        scrollTo(wanted);
    }
    emit CurrentChanged();
}

void SquadTable::Look(const SquadSight& sight, const SquadFilter& filter, const std::string& typed)
{
    if (!columnKeys.empty())
        arrangement = Arrangement();
    KeepCurrent([&] {
        model->Look(sight, filter, typed);
        PutColumns();
    });
}

void SquadTable::SetFilter(const SquadFilter& filter)
{
    KeepCurrent([this, &filter] { model->SetFilter(filter); });
}

void SquadTable::SetTyped(const std::string& typed)
{
    KeepCurrent([this, &typed] { model->SetTyped(typed); });
}

void SquadTable::SortAtHand(bool downwards, bool asSecond)
{
    if (!currentIndex().isValid())
        return;
    model->SortBy(currentIndex().column(), downwards, asSecond);
}

void SquadTable::MoveColumnAtHand(int by)
{
    if (!currentIndex().isValid())
        return;
    QHeaderView* heading = horizontalHeader();
    const std::vector<int> shown = ShownColumns();
    const auto at = std::find(shown.begin(), shown.end(), currentIndex().column()) - shown.begin();
    const auto to = at + by;
    if (at >= static_cast<std::ptrdiff_t>(shown.size()) || to < 0 || to >= static_cast<std::ptrdiff_t>(shown.size()))
        return;
    heading->moveSection(heading->visualIndex(shown[static_cast<std::size_t>(at)]),
                         heading->visualIndex(shown[static_cast<std::size_t>(to)]));
    scrollTo(currentIndex());
}

void SquadTable::ShowKeys()
{
    for (const SquadKey& key : model->Keys()) {
        const int column = model->ColumnOf(key.Column);
        if (column < 0 || isColumnHidden(column))
            continue;
        const int needed = horizontalHeader()->sectionSizeHint(column);
        setColumnWidth(column, std::max(columnWidth(column), needed));
    }
    scrollTo(currentIndex());
}

std::optional<SquadPerson> SquadTable::Current() const
{
    if (!currentIndex().isValid())
        return std::nullopt;
    return model->PersonAt(currentIndex().row());
}

std::vector<int> SquadTable::RowsToCopy() const
{
    std::vector<int> rows;
    const QModelIndexList chosen = selectionModel()->selectedRows();
    for (const QModelIndex& index : chosen)
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    for (int row = 0; chosen.isEmpty() && row < model->rowCount(); ++row)
        rows.push_back(row);
    return rows;
}

std::vector<int> SquadTable::ShownColumns() const
{
    std::vector<int> shown;
    for (int place = 0; place < horizontalHeader()->count(); ++place)
        if (const int column = horizontalHeader()->logicalIndex(place); !isColumnHidden(column))
            shown.push_back(column);
    return shown;
}

void SquadTable::SetShown(int column, bool shown)
{
    setColumnHidden(column, !shown);
    if (shown && columnWidth(column) < LeastWidth)
        setColumnWidth(column, FirstWidthOf(model->Columns()[static_cast<std::size_t>(column)]));
}

void SquadTable::ShowFirstColumns()
{
    arrangement.clear();
    columnKeys.clear();
    PutColumns();
}

// As wide as its heading and as what usually stands in it. A sorted one grows with the sign of that (ShowKeys).
int SquadTable::FirstWidthOf(const SquadColumn& column) const
{
    const std::pair<std::string_view, const char*> samples[] = {{"Name", "Maximilien Saint-Aubremont"},
                                                                {"Team", "WWW"},
                                                                {"Stands", "Scratch"},
                                                                {"Salary", "$99,999,999"},
                                                                {"Suspension", "waivers"},
                                                                {"Injury", "Sprained shoulder"},
                                                                {"Flags", "A W NT T"},
                                                                {"Condition", "+  100"}};
    QString widest("000");
    for (const auto& [key, sample] : samples)
        if (column.Key == key)
            widest = sample;
    const QString heading = ToQString(column.Caption);
    const QFontMetrics metrics = fontMetrics();
    const int crest = column.Key == TeamKey ? CrestRoom(metrics) : 0;
    return std::max(metrics.horizontalAdvance(widest) + crest, metrics.horizontalAdvance(heading)) +
           (column.IsAtRight() ? SideMargin : WordsMargin) + SideMargin + 2;
}

std::string SquadTable::Arrangement() const
{
    QStringList parts;
    const QHeaderView* heading = horizontalHeader();
    for (int place = 0; place < heading->count(); ++place) {
        const int column = heading->logicalIndex(place);
        const auto key = ToQString(model->Columns()[static_cast<std::size_t>(column)].Key).replace(' ', '_');
        const bool isHidden = heading->isSectionHidden(column);
        const int width =
            isHidden ? FirstWidthOf(model->Columns()[static_cast<std::size_t>(column)]) : heading->sectionSize(column);
        parts << QString("%1%2=%3").arg(isHidden ? "-" : "", key).arg(width);
    }
    // What this league does not show stays behind what it stood behind.
    const QStringList before = ToQString(arrangement).split(' ', Qt::SkipEmptyParts);
    QString ahead;
    for (const QString& part : before) {
        const QString key = KeyOf(part);
        if (model->ColumnOf(FromQString(key)) < 0) {
            const auto found = std::find_if(parts.begin(), parts.end(),
                                            [&ahead](const QString& each) { return KeyOf(each) == ahead; });
            parts.insert(ahead.isEmpty() || found == parts.end() ? parts.begin() : found + 1, part);
        }
        ahead = key;
    }
    return FromQString(parts.join(' '));
}

void SquadTable::Arrange(const std::string& newArrangement)
{
    arrangement = newArrangement;
    columnKeys.clear();
    PutColumns();
}

void SquadTable::PutColumns()
{
    std::vector<std::string> keys;
    for (const SquadColumn& column : model->Columns())
        keys.emplace_back(column.Key);
    if (keys == columnKeys) // the user may have moved them since
        return;
    columnKeys = keys;
    QHeaderView* heading = horizontalHeader();
    for (int column = 0; column < heading->count(); ++column) {
        heading->moveSection(heading->visualIndex(column), column);
        const SquadColumn& shown = model->Columns()[static_cast<std::size_t>(column)];
        setColumnHidden(column, shown.IsHiddenAtFirst);
        heading->resizeSection(column, FirstWidthOf(shown));
    }
    std::vector<int> order;
    const QStringList parts = ToQString(arrangement).split(' ', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const bool isHidden = part.startsWith('-');
        const int column = model->ColumnOf(FromQString(KeyOf(part)));
        if (column < 0 || std::find(order.begin(), order.end(), column) != order.end())
            continue;
        order.push_back(column);
        setColumnHidden(column, isHidden);
        if (const int width = part.section('=', 1).toInt(); width >= LeastWidth)
            heading->resizeSection(column, std::min(width, MostWidth));
    }
    for (int column = 0; column < heading->count(); ++column)
        if (std::find(order.begin(), order.end(), column) == order.end())
            order.insert(column == 0 ? order.begin() : std::find(order.begin(), order.end(), column - 1) + 1, column);
    for (int place = 0; place < heading->count(); ++place)
        heading->moveSection(heading->visualIndex(order[static_cast<std::size_t>(place)]), place);
    if (ShownColumns().empty() && heading->count() > 0)
        setColumnHidden(0, false);
    ShowKeys();
}

void SquadTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (Current())
            emit Chosen();
        return;
    }
    const bool isPlain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (isPlain && !event->text().isEmpty() && event->text().front().isPrint()) {
        emit Typed(event->text());
        return;
    }
    QTableView::keyPressEvent(event);
}

// A current row that was in sight stays there.
void SquadTable::resizeEvent(QResizeEvent* event)
{
    const QRect row = visualRect(currentIndex());
    const bool wasSeen = row.isValid() && row.top() >= 0 && row.bottom() <= event->oldSize().height();
    QTableView::resizeEvent(event);
    if (wasSeen)
        scrollTo(currentIndex());
}

void SquadTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    emit CurrentChanged();
}

} // namespace dravik
