#include "screens/panels/TypeAhead.h"

#include "screens/panels/EntryName.h"
#include "screens/panels/TypedName.h"
#include "screens/panels/TypedTag.h"
#include "screens/platform/CodePage.h"

#include <algorithm>
#include <QApplication>
#include <QScrollBar>
#include <string>
#include <utility>

namespace dravik {

namespace {

NameMatch MatchOf(const QString& typed) { return NameMatch(TypedName(typed)); }

std::optional<NamePart> PartOf(const QString& text, const NameMatch& match)
{
    return match.In(FromQString(text.first(NameLength(text))));
}

std::optional<NamePart> PartOf(const QListWidget& list, int row, const NameMatch& match)
{
    return PartOf(list.item(row)->text(), match);
}

// The place of a row in the order of a search that began at `from`: names of which a word begins with what was typed, from
// that row on and round to it, and behind them the others in the same way.
int PlaceOf(int row, const NamePart& part, int from, int count)
{
    return (part.BeginsWord ? 0 : count) + (row - from % count + count) % count;
}

// The row with the first place behind `place`, which is none for all of them.
std::optional<int> FirstBehind(const QListWidget& list, const NameMatch& match, int from, std::optional<int> place)
{
    std::optional<int> first;
    std::optional<int> found;
    for (int row = 0; row < list.count(); ++row)
        if (const auto part = PartOf(list, row, match)) {
            const int own = PlaceOf(row, *part, from, list.count());
            if ((!place || own > *place) && (!first || own < *first)) {
                first = own;
                found = row;
            }
        }
    return found;
}

bool IsPlain(const QKeyEvent& key)
{
    return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
}

// The keys that a search under way takes from the list, and from the commands of its window.
bool BelongsToSearch(const QKeyEvent& key)
{
    return IsPlain(key) &&
           (key.key() == Qt::Key_Space || key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Escape);
}

// Those that choose by themselves, or act on what is chosen.
bool EndsSearch(const QKeyEvent& key)
{
    constexpr int ending[] = {Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,  Qt::Key_Home,
                              Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Enter};
    return std::find(std::begin(ending), std::end(ending), key.key()) != std::end(ending);
}

} // namespace

TypeAhead::TypeAhead(QListWidget& searched) : QObject(&searched), list(searched), surface(searched.viewport())
{
    interval.setSingleShot(true);
    connect(&interval, &QTimer::timeout, this, [this] { End(); });
    const auto onChoice = [this] {
        if (!choosing)
            End();
    };
    connect(list.selectionModel(), &QItemSelectionModel::currentChanged, this, onChoice);
    connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, this, onChoice);
    connect(list.model(), &QAbstractItemModel::modelReset, this, onChoice);
    connect(list.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { PlaceTag(); });
    list.installEventFilter(this);
    list.viewport()->installEventFilter(this);
}

const TypeAhead* TypeAhead::On(const QObject* list)
{
    if (list != nullptr)
        for (const QObject* child : list->children())
            if (const auto* search = dynamic_cast<const TypeAhead*>(child))
                return search;
    return nullptr;
}

std::optional<NamePart> TypeAhead::PartIn(const QString& text) const
{
    if (!IsUnderWay())
        return std::nullopt;
    return PartOf(text, MatchOf(typed));
}

bool TypeAhead::eventFilter(QObject* watched, QEvent* event)
{
    if (!IsUnderWay())
        return false;
    if (event->type() == QEvent::ShortcutOverride && BelongsToSearch(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    const bool isPress = event->type() == QEvent::MouseButtonPress && watched == list.viewport();
    if (isPress || (event->type() == QEvent::FocusOut && watched == &list))
        End();
    else if (event->type() == QEvent::Resize)
        PlaceTag();
    return false;
}

bool TypeAhead::Takes(const QKeyEvent& key)
{
    if (!IsUnderWay())
        return false;
    if (!BelongsToSearch(key)) {
        if (EndsSearch(key))
            End();
        return false;
    }
    if (key.key() == Qt::Key_Space)
        Type(" ");
    else if (key.key() == Qt::Key_Backspace)
        TakeBack();
    else
        End();
    return true;
}

void TypeAhead::Type(const QString& letters)
{
    if (letters.isEmpty()) {
        End();
        return;
    }
    const bool isFirst = typed.isEmpty();
    if (!letters.front().isPrint() || (isFirst && !letters.front().isLetterOrNumber()))
        return;
    if (list.count() == 0 || list.selectionMode() == QAbstractItemView::NoSelection)
        return;
    const bool isAgain = found && typed.endsWith(letters, Qt::CaseInsensitive);
    if (isAgain && typed.size() == letters.size()) {
        ++repeats;
        GoOn();
        return;
    }
    // The first letters may have been presses for the next name, or a beginning like "Aa".
    QStringList texts{typed + letters};
    if (repeats > 0)
        texts.prepend(typed.repeated(repeats) + texts.front());
    repeats = 0;
    // The letter that begins a search goes on to another one, the letters behind it leave whoever has them.
    const int begin = std::max(0, isFirst ? list.currentRow() + 1 : list.currentRow());
    for (const QString& text : texts)
        if (Find(text, begin))
            return;
    if (isAgain) {
        GoOn();
        return;
    }
    typed += letters;
    Show(false);
}

void TypeAhead::GoOn()
{
    Show(true);
    if (const auto row = RowBehind())
        Choose(*row);
}

// The choice stays as long as the entry has what is left.
void TypeAhead::TakeBack()
{
    typed.chop(1);
    repeats = 0;
    if (typed.isEmpty()) {
        End();
        return;
    }
    if (list.currentRow() >= 0 && PartOf(list, list.currentRow(), MatchOf(typed)))
        Show(true);
    else if (!Find(typed, std::max(0, list.currentRow())))
        Show(false);
}

std::optional<int> TypeAhead::RowBehind() const
{
    const NameMatch match = MatchOf(typed);
    const int current = list.currentRow();
    std::optional<int> place;
    if (current >= 0)
        if (const auto part = PartOf(list, current, match))
            place = PlaceOf(current, *part, from, list.count());
    const auto row = FirstBehind(list, match, from, place);
    return row ? row : FirstBehind(list, match, from, std::nullopt);
}

bool TypeAhead::Find(const QString& text, int row)
{
    const auto first = FirstBehind(list, MatchOf(text), row, std::nullopt);
    if (!first)
        return false;
    typed = text;
    from = row;
    Show(true);
    Choose(*first);
    return true;
}

void TypeAhead::Show(bool isFound)
{
    found = isFound;
    if (tag == nullptr)
        tag = new TypedTag(&list);
    tag->Tell(typed, found);
    PlaceTag();
    list.viewport()->update();
    interval.start(QApplication::keyboardInputInterval());
}

// As the toolkit chooses by letters.
void TypeAhead::Choose(int row)
{
    const bool outer = std::exchange(choosing, true);
    list.setCurrentIndex(list.model()->index(row, 0));
    choosing = outer;
    PlaceTag();
}

void TypeAhead::PlaceTag()
{
    if (!IsUnderWay() || tag == nullptr)
        return;
    const QRect area = list.viewport()->geometry();
    const QListWidgetItem* current = list.currentItem();
    const QRect chosen = current == nullptr ? QRect() : list.visualItemRect(current).translated(area.topLeft());
    tag->PlaceIn(area, chosen);
}

void TypeAhead::End()
{
    interval.stop();
    if (IsUnderWay() && surface != nullptr)
        surface->update();
    typed.clear();
    repeats = 0;
    found = false;
    if (tag != nullptr)
        tag->hide();
}

} // namespace dravik
