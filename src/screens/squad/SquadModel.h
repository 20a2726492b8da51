#pragma once

#include "league/NameMatch.h"
#include "screens/squad/SquadColumns.h"
#include "screens/squad/SquadFilter.h"

#include <cstdint>
#include <optional>
#include <QAbstractTableModel>
#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace dravik {

// By which column the table is sorted.
struct SquadKey {
    std::string Column; // its key
    bool IsDownwards = false;

    bool operator==(const SquadKey&) const = default;
};

// One table of the squad window: its people as rows, sorted and let through by filters. It holds the numbers of their slots and
// nothing else; what a cell shows is read in the tables when it is asked for.
class SquadModel : public QAbstractTableModel {
    Q_OBJECT
public:
    // What kind of cell it is (SquadCells), the sign that it has (a Sign, or nothing), and its number, if it has one.
    static constexpr int CellsRole = Qt::UserRole;
    static constexpr int SignRole = Qt::UserRole + 1;
    static constexpr int NumberRole = Qt::UserRole + 2;
    static constexpr int PinnedRole = Qt::UserRole + 3; // whether it is the name of somebody pinned

    explicit SquadModel(SquadKind kind, QObject* parent = nullptr);

    // Shows the tables as they stand, through those eyes: who is in use and is let through, and the columns that the league shows.
    void Look(const SquadSight& sight, const SquadFilter& filter, const std::string& typed);
    void SetFilter(const SquadFilter& filter);
    // The part of a name that is looked for, as NameMatch reads it; nothing shows everybody.
    void SetTyped(const std::string& typed);
    // Sorts by a column. Asked for the first key once more, it turns it round. As the second key, the first one stays. Where
    // nothing stands in a cell it is last either way; who is alike stands in order of the slots.
    void SortBy(int column, bool asSecond);
    // The same in a direction.
    void SortBy(int column, bool downwards, bool asSecond);
    [[nodiscard]] const std::vector<SquadKey>& Keys() const { return keys; }
    // By what it is sorted in one text, "Age Overall-", a column downwards with "-" behind it; nothing as long as nobody has sorted
    // it by hand. And to be sorted so from the next look on; whatever of it is no column is left out then.
    [[nodiscard]] std::string SortedAs() const;
    void SortAs(const std::string& words);

    // Whether somebody is pinned, which no prospect is.
    [[nodiscard]] bool IsPinned(SquadPerson who) const;
    // Says that others are pinned now.
    void TellOfPins();

    [[nodiscard]] SquadKind Kind() const { return kind; }
    [[nodiscard]] const std::vector<SquadColumn>& Columns() const { return columns; }
    [[nodiscard]] int ColumnOf(std::string_view key) const; // -1 where the league does not show it
    [[nodiscard]] SquadPerson PersonAt(int row) const;
    [[nodiscard]] int RowOf(SquadPerson who) const; // -1 where he is not shown
    // How many there are, whatever is let through.
    [[nodiscard]] int People() const { return people; }
    // Which part of the name in a row is what was typed, without its outer blanks; none where nothing was.
    [[nodiscard]] std::optional<NamePart> TypedPart(int row) const;
    // What a cell holds for a file.
    [[nodiscard]] std::string PlainText(int row, int column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    using Slots = std::vector<std::uint16_t>;

    [[nodiscard]] SquadPerson PersonIn(std::uint16_t slot) const { return {kind, slot}; }
    // Takes in whom the filter lets through, sorts them, and shows those who have what was typed.
    void Gather();
    void Sort();
    void ShowTyped();

    SquadKind kind;
    SquadSight sight;
    SquadFilter filter;
    std::string typedText;
    NameMatch typed{{}};
    std::vector<SquadColumn> columns;
    std::vector<SquadKey> keys;
    Slots sorted; // whom the filter lets through,
    Slots shown;  // and of them those who have what was typed
    int people = 0;
    bool isSortedByHand = false; // until then the best stand first, where overalls are shown
};

} // namespace dravik
