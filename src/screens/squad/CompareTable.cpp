#include "screens/squad/CompareTable.h"

#include "screens/panels/CompareCells.h"
#include "screens/panels/Crest.h"
#include "screens/panels/GhostWords.h"
#include "screens/platform/CodePage.h"

#include <QHeaderView>
#include <QTextDocument>

namespace dravik {

namespace {

constexpr int SideMargin = 4;
constexpr int RowPadding = 10; // above and below the text together
constexpr int NameInLetters = 24;

} // namespace

void CompareModel::Compare(const SquadSight& newSight, const std::vector<SquadPerson>& newPeople)
{
    beginResetModel();
    sight = newSight;
    people = newPeople;
    columns.clear();
    if (!people.empty())
        for (const SquadColumn& column : SquadColumnsOf(people.front().Kind, sight))
            if (column.Cells == SquadCells::Name || column.Cells == SquadCells::Rating || column.Key == "Age")
                columns.push_back(column);
    endResetModel();
}

void CompareModel::ShowCrests(bool shown)
{
    if (showsCrests == shown || people.empty())
        return;
    showsCrests = shown;
    emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {entry::CrestRole});
}

int CompareModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(people.size());
}

int CompareModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

std::optional<long long> CompareModel::NumberIn(int row, int column) const
{
    const SquadColumn& shown = columns[static_cast<std::size_t>(column)];
    if (shown.NumberOf == nullptr)
        return std::nullopt;
    return shown.NumberOf(sight, people[static_cast<std::size_t>(row)], shown.Rating);
}

std::optional<long long> CompareModel::Difference(int row, int column) const
{
    const auto own = NumberIn(row, column);
    const auto first = NumberIn(0, column);
    if (row == 0 || !own || !first)
        return std::nullopt;
    return *own - *first;
}

QString CompareModel::SpokenCell(int row, int column) const
{
    const SquadColumn& shown = columns[static_cast<std::size_t>(column)];
    const SquadPerson who = people[static_cast<std::size_t>(row)];
    QString words = ToQString(SquadSpokenText(shown, sight, who));
    if (const Team* team = shown.Cells == SquadCells::Name ? TeamOf(sight, who) : nullptr)
        words += ", " + ToQString(team->Name.Trimmed()); // of whom the crest tells two letters
    const auto difference = Difference(row, column);
    if (!difference)
        return words;
    const QString first = ToQString(NameOf(*sight.League, people.front()));
    if (*difference == 0)
        return words + ", the same as " + first;
    return words + QString(", %1 %2 than %3").arg(std::abs(*difference)).arg(*difference > 0 ? "more" : "less", first);
}

QVariant CompareModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SquadColumn& column = columns[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return ToQString(SquadText(column, sight, people[static_cast<std::size_t>(index.row())]));
    case Qt::AccessibleTextRole:
        return SpokenCell(index.row(), index.column());
    case Qt::ToolTipRole:
        return Qt::convertFromPlainText(SpokenCell(index.row(), index.column()));
    case NumberRole:
        if (const auto number = NumberIn(index.row(), index.column()); number && column.Cells == SquadCells::Rating)
            return static_cast<qlonglong>(*number);
        return {};
    case DifferenceRole:
        if (const auto difference = Difference(index.row(), index.column()))
            return SignedText(*difference);
        return {};
    case entry::CrestRole:
        if (showsCrests && column.Cells == SquadCells::Name)
            if (const Team* team = TeamOf(sight, people[static_cast<std::size_t>(index.row())]))
                return QVariant::fromValue(CrestOf(*team));
        return {};
    default:
        return {};
    }
}

QVariant CompareModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const SquadColumn& column = columns[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return ToQString(column.Caption);
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return ToQString(column.Meaning);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    default:
        return {};
    }
}

CompareTable::CompareTable(QWidget* parent) : QTableView(parent), Figures(new CompareModel(this))
{
    setObjectName("tblCompare");
    setAccessibleName("Comparison");
    setItemDelegate(new CompareDelegate(this));
    setModel(Figures);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
}

void CompareTable::Compare(const SquadSight& sight, const std::vector<SquadPerson>& people)
{
    Figures->Compare(sight, people);
    if (Figures->columnCount() == 0)
        return;
    QHeaderView* heading = horizontalHeader();
    heading->setSectionResizeMode(0, QHeaderView::Fixed);
    heading->setMinimumSectionSize(fontMetrics().horizontalAdvance("00 +00") + 2 * SideMargin + 2);
    FitNames();
    setFixedHeight(heading->sizeHint().height() +
                   static_cast<int>(people.size()) * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
}

void CompareTable::resizeEvent(QResizeEvent* event)
{
    FitNames();
    QTableView::resizeEvent(event);
}

// The names keep their room with crests beside them as without.
void CompareTable::FitNames()
{
    if (Figures->columnCount() == 0)
        return;
    const int names = fontMetrics().averageCharWidth() * NameInLetters;
    const int figures = (Figures->columnCount() - 1) * horizontalHeader()->minimumSectionSize();
    const bool hasRoom = names + CrestRoom(fontMetrics()) + figures <= viewport()->width();
    horizontalHeader()->resizeSection(0, hasRoom ? names + CrestRoom(fontMetrics()) : names);
    Figures->ShowCrests(hasRoom);
}

} // namespace dravik
