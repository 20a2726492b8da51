#include "screens/squad/SquadModel.h"

#include "rules/PersonSigns.h"
#include "screens/panels/Crest.h"
#include "screens/platform/CodePage.h"
#include "session/PinnedPeople.h"

#include <algorithm>
#include <limits>
#include <QTextDocument>

namespace dravik {

namespace {

// What somebody is sorted by in one column: his number, or his words in plain letters.
class KeyValues {
public:
    KeyValues(const SquadColumn& column, bool isDownwards) : shown(column), downwards(isDownwards) {}

    void Add(const SquadSight& sight, SquadPerson who)
    {
        if (shown.NumberOf != nullptr)
            numbers.push_back(shown.NumberOf(sight, who, shown.Rating).value_or(Nothing));
        else
            words.push_back(PlainLettersOf(SquadText(shown, sight, who)));
    }

    // Below 0 where the one of number `left` goes before that of `right`.
    [[nodiscard]] int Compare(std::size_t left, std::size_t right) const
    {
        const bool leftIsEmpty = IsEmpty(left);
        if (leftIsEmpty || IsEmpty(right))
            return static_cast<int>(leftIsEmpty) - static_cast<int>(IsEmpty(right));
        const int order = words.empty() ? (numbers[left] < numbers[right]   ? -1
                                           : numbers[left] > numbers[right] ? 1
                                                                            : 0)
                                        : words[left].compare(words[right]);
        return downwards ? -order : order;
    }

private:
    static constexpr long long Nothing = std::numeric_limits<long long>::min();

    [[nodiscard]] bool IsEmpty(std::size_t at) const
    {
        return words.empty() ? numbers[at] == Nothing : words[at].empty();
    }

    const SquadColumn& shown;
    bool downwards;
    std::vector<long long> numbers;
    std::vector<std::string> words;
};

} // namespace

SquadModel::SquadModel(SquadKind newKind, QObject* parent) : QAbstractTableModel(parent), kind(newKind) {}

void SquadModel::Look(const SquadSight& newSight, const SquadFilter& newFilter, const std::string& newTyped)
{
    beginResetModel();
    sight = newSight;
    filter = newFilter;
    typedText = newTyped;
    typed = NameMatch(typedText);
    columns = SquadColumnsOf(kind, sight);
    if (!isSortedByHand)
        keys = {ColumnOf("Overall") >= 0 ? SquadKey{.Column = "Overall", .IsDownwards = true}
                                         : SquadKey{.Column = "Name"}};
    Gather();
    endResetModel();
}

void SquadModel::SetFilter(const SquadFilter& newFilter)
{
    beginResetModel();
    filter = newFilter;
    Gather();
    endResetModel();
}

void SquadModel::SetTyped(const std::string& newTyped)
{
    beginResetModel();
    typedText = newTyped;
    typed = NameMatch(typedText);
    ShowTyped();
    endResetModel();
}

void SquadModel::SortBy(int column, bool asSecond)
{
    const SquadColumn& wanted = columns.at(static_cast<std::size_t>(column));
    const std::size_t place = asSecond && !keys.empty() && keys.front().Column != wanted.Key ? 1 : 0;
    const bool turns = place < keys.size() && keys[place].Column == wanted.Key;
    SortBy(column, turns ? !keys[place].IsDownwards : wanted.Order == SquadOrder::MostFirst, asSecond);
}

void SquadModel::SortBy(int column, bool downwards, bool asSecond)
{
    const SquadKey key{std::string(columns.at(static_cast<std::size_t>(column)).Key), downwards};
    isSortedByHand = true;
    emit layoutAboutToBeChanged();
    if (!asSecond || keys.empty()) {
        keys = {key};
    } else if (keys.front().Column == key.Column) {
        keys.front() = key;
    } else {
        keys.resize(1);
        keys.push_back(key);
    }
    const Slots before = shown;
    Sort();
    ShowTyped();
    std::vector<int> rowOf(std::numeric_limits<std::uint16_t>::max() + std::size_t{1}, -1);
    for (std::size_t row = 0; row < shown.size(); ++row)
        rowOf[shown[row]] = static_cast<int>(row);
    const QModelIndexList persistent = persistentIndexList();
    for (const QModelIndex& old : persistent)
        changePersistentIndex(old, index(rowOf[before[static_cast<std::size_t>(old.row())]], old.column()));
    emit layoutChanged();
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

std::string SquadModel::SortedAs() const
{
    QStringList words;
    if (isSortedByHand)
        for (const SquadKey& key : keys)
            words << ToQString(key.Column).replace(' ', '_') + (key.IsDownwards ? "-" : "");
    return FromQString(words.join(' '));
}

void SquadModel::SortAs(const std::string& words)
{
    std::vector<SquadKey> wanted;
    const QStringList parts = ToQString(words).split(' ', Qt::SkipEmptyParts);
    for (const QString& part : parts.first(std::min<qsizetype>(parts.size(), 2))) {
        const bool isDownwards = part.endsWith('-');
        wanted.push_back({.Column = FromQString(QString(isDownwards ? part.chopped(1) : part).replace('_', ' ')),
                          .IsDownwards = isDownwards});
    }
    if (wanted.empty())
        return;
    isSortedByHand = true;
    keys = wanted;
}

int SquadModel::ColumnOf(std::string_view key) const
{
    const auto found =
        std::find_if(columns.begin(), columns.end(), [key](const SquadColumn& column) { return column.Key == key; });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

SquadPerson SquadModel::PersonAt(int row) const { return PersonIn(shown.at(static_cast<std::size_t>(row))); }

int SquadModel::RowOf(SquadPerson who) const
{
    if (who.Kind != kind)
        return -1;
    const auto found = std::find(shown.begin(), shown.end(), static_cast<std::uint16_t>(who.Slot));
    return found == shown.end() ? -1 : static_cast<int>(found - shown.begin());
}

bool SquadModel::IsPinned(SquadPerson who) const
{
    return who.Kind != SquadKind::Prospects && OpenPins().Has(*sight.League, who.Id());
}

void SquadModel::TellOfPins()
{
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {PinnedRole, Qt::AccessibleTextRole});
}

std::optional<NamePart> SquadModel::TypedPart(int row) const
{
    if (typedText.empty())
        return std::nullopt;
    return typed.In(NameOf(*sight.League, PersonAt(row)));
}

std::string SquadModel::PlainText(int row, int column) const
{
    return SquadPlainText(columns.at(static_cast<std::size_t>(column)), sight, PersonAt(row));
}

void SquadModel::Gather()
{
    sorted.clear();
    people = 0;
    if (sight.League == nullptr)
        return ShowTyped();
    for (int slot = 1; slot <= LastSlotOf(kind); ++slot)
        if (IsSomebody(*sight.League, {kind, slot})) {
            ++people;
            if (IsLetThrough(filter, sight, {kind, slot}))
                sorted.push_back(static_cast<std::uint16_t>(slot));
        }
    Sort();
    ShowTyped();
}

void SquadModel::Sort()
{
    std::vector<KeyValues> values;
    for (const SquadKey& key : keys)
        if (const int column = ColumnOf(key.Column); column >= 0)
            values.emplace_back(columns[static_cast<std::size_t>(column)], key.IsDownwards);
    std::sort(sorted.begin(), sorted.end());
    for (KeyValues& all : values)
        for (const std::uint16_t slot : sorted)
            all.Add(sight, PersonIn(slot));
    std::vector<std::uint16_t> order(sorted.size());
    for (std::size_t at = 0; at < order.size(); ++at)
        order[at] = static_cast<std::uint16_t>(at);
    std::sort(order.begin(), order.end(), [&values](std::uint16_t left, std::uint16_t right) {
        for (const KeyValues& all : values)
            if (const int found = all.Compare(left, right); found != 0)
                return found < 0;
        return left < right;
    });
    for (std::uint16_t& at : order)
        at = sorted[at];
    sorted.swap(order);
}

void SquadModel::ShowTyped()
{
    if (typedText.empty()) {
        shown = sorted;
        return;
    }
    shown.clear();
    for (const std::uint16_t slot : sorted)
        if (typed.In(NameOf(*sight.League, PersonIn(slot))))
            shown.push_back(slot);
}

int SquadModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(shown.size());
}

int SquadModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant SquadModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SquadColumn& column = columns[static_cast<std::size_t>(index.column())];
    const SquadPerson who = PersonAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return ToQString(SquadText(column, sight, who));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            Qt::Alignment((column.IsAtRight() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    case Qt::AccessibleTextRole: {
        const bool isTold = column.Cells == SquadCells::Name && IsPinned(who);
        return ToQString(SquadSpokenText(column, sight, who) + (isTold ? ", pinned" : ""));
    }
    case PinnedRole:
        return column.Cells == SquadCells::Name && IsPinned(who);
    case Qt::ToolTipRole: // shown as written, whatever characters a name holds
        return Qt::convertFromPlainText(ToQString(SquadSpokenText(column, sight, who)));
    case CellsRole:
        return static_cast<int>(column.Cells);
    case SignRole:
        if (column.Cells == SquadCells::Condition && SignsOf(*sight.League, who.Id(), 0).Has(Sign::Injured))
            return static_cast<int>(Sign::Injured);
        return {};
    case entry::CrestRole:
        if (const Team* team = column.Key == TeamKey ? TeamOf(sight, who) : nullptr)
            return QVariant::fromValue(CrestOf(*team));
        return {};
    case NumberRole:
        if (const auto number = column.NumberOf == nullptr ? std::nullopt : column.NumberOf(sight, who, column.Rating))
            return static_cast<qlonglong>(*number);
        return {};
    default:
        return {};
    }
}

QVariant SquadModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const SquadColumn& column = columns[static_cast<std::size_t>(section)];
    const auto key =
        std::find_if(keys.begin(), keys.end(), [&column](const SquadKey& each) { return each.Column == column.Key; });
    const bool isKey = key != keys.end();
    const bool isSecond = isKey && key != keys.begin();
    switch (role) {
    case Qt::DisplayRole: {
        QString caption = ToQString(column.Caption);
        if (isKey)
            caption += key->IsDownwards ? u" \u25BC" : u" \u25B2";
        return isSecond ? caption + '2' : caption;
    }
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            Qt::Alignment((column.IsAtRight() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole: {
        QString words = ToQString(column.Meaning);
        if (isKey)
            words +=
                QString(", sorted %1%2").arg(key->IsDownwards ? "downwards" : "upwards", isSecond ? " second" : "");
        return words;
    }
    default:
        return {};
    }
}

} // namespace dravik
