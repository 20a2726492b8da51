#pragma once

#include <algorithm>
#include <optional>
#include <QListWidget>
#include <QStyledItemDelegate>

namespace dravik {

class TypeAhead;

// Where the entries of a list keep what the list counts on: the entry's number, and the secondary words that are drawn
// muted at its right edge (a QStringList, one column each). The entry's text stays the text alone.
namespace entry {
inline constexpr int NumberRole = Qt::UserRole;
inline constexpr int AsideRole = Qt::UserRole + 1;
} // namespace entry

// The number of an entry; none of no entry.
std::optional<int> NumberOf(const QListWidgetItem* item);

// An entry, which says its secondary words to a screen reader as well.
class EntryItem : public QListWidgetItem {
public:
    using QListWidgetItem::QListWidgetItem;

    [[nodiscard]] QVariant data(int role) const override;
};

// Draws an entry with its secondary words at its right edge, each in a column of its own. Where both do not fit, the list
// decides: either the secondary words are left out, or they stay and the name is cut, as long as half of the entry is left
// for it. The marks behind a name (" (C) *", " (LW)-RFA") stay; a text that is cut is told whole by a tooltip.
class EntryDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

// A list of entries with numbers. The left mouse button alone acts on entries, and an entry becomes current only by what
// chooses it. Arrows, Home and End choose from the first key on, letters jump to an entry (TypeAhead), and Enter acts on the
// current one if it is chosen, as a double click does.
class EntryList : public QListWidget {
    Q_OBJECT
public:
    explicit EntryList(QWidget* parent = nullptr);

    // Adds an entry behind the others.
    void Add(const QString& text, int number, const QStringList& aside = {});
    // Has names cut where they and the secondary words do not fit. Without this call the secondary words are left out.
    void CutNamesFirst() { cutsNamesFirst = true; }
    [[nodiscard]] bool CutsNamesFirst() const { return cutsNamesFirst; }
    // Has the secondary words left out of all entries where those of one do not fit. For lists of few entries.
    void KeepAsidesTogether() { keepsAsidesTogether = true; }
    // Whether they were left out when the list was painted last.
    [[nodiscard]] bool LeavesAsidesOut() const { return leavesAsidesOut; }
    // Takes the choice away, so that the next click or key on any entry is a new one.
    void Unchoose();
    void SetCurrentToNone();
    // The width at which the list shows its widest entry whole, in pixels, frame and scroll bar included.
    [[nodiscard]] int WidthOfWidestEntry() const;
    // Has the list count as one without entries there: they are sentences, which are cut where they have no room.
    void GiveWay() { givesWay = true; }
    // Asks the layout for that width from now on.
    void AskForWidth(int width);
    [[nodiscard]] QSize sizeHint() const override;

    // The chosen entry, or none.
    [[nodiscard]] QListWidgetItem* Chosen() const;

    // Letters that lead to an entry whose name has them; nothing ends the search.
    void keyboardSearch(const QString& letters) override;

signals:
    // Enter was pressed on the current entry, which is chosen.
    void EnterPressed();

protected:
    // The row that the first arrow chooses when nothing is chosen.
    [[nodiscard]] virtual int FirstChoice() const { return std::max(0, currentRow()); }
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    // Where one entry is chosen at a time, the chosen one is never toggled off by the control key.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    [[nodiscard]] bool AnAsideHasNoRoom() const;

    bool cutsNamesFirst = false;
    bool keepsAsidesTogether = false;
    bool leavesAsidesOut = false;
    bool givesWay = false;
    int askedWidth = 0;
    TypeAhead* typeAhead;
};

} // namespace dravik
