#include "screens/panels/PickList.h"

#include <algorithm>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

namespace dravik {

PickList::PickList(QWidget* parent) : EntryList(parent)
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    const auto note = [this] {
        if (holdsBack)
            hasNews = true;
        else
            emit Picked();
    };
    connect(this, &QListWidget::itemSelectionChanged, this, note);
}

void PickList::Empty()
{
    const bool outer = std::exchange(holdsBack, true);
    clear();
    holdsBack = outer;
    hasNews = false;
    gapRow = 0;
}

void PickList::TakeFrom(PickList& other, int row)
{
    const bool outer = std::exchange(other.holdsBack, true);
    if (other.currentRow() == row) { // the toolkit would make a neighbour current, whom nobody has chosen
        other.SetCurrentToNone();
        other.gapRow = row;
    } else if (row < other.gapRow) {
        --other.gapRow;
    }
    QListWidgetItem* moved = other.takeItem(row);
    other.holdsBack = outer;
    other.hasNews = false;
    addItem(moved);
}

int PickList::RowOf(int number) const
{
    for (int row = 0; row < count(); ++row)
        if (item(row)->data(entry::NumberRole).toInt() == number)
            return row;
    return -1;
}

void PickList::Choose(std::optional<int> number)
{
    if (const int row = number ? RowOf(*number) : -1; row >= 0)
        setCurrentRow(row);
}

int PickList::FirstChoice() const { return currentRow() >= 0 ? currentRow() : std::min(gapRow, count() - 1); }

bool PickList::viewportEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
        bool done = false;
        Handle([&] {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            // A click on an entry counts even when it changes nothing.
            if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton)
                hasNews = itemAt(mouse->position().toPoint()) != nullptr;
            done = EntryList::viewportEvent(event);
        });
        return done;
    }
    default:
        return EntryList::viewportEvent(event);
    }
}

void PickList::keyPressEvent(QKeyEvent* event)
{
    Handle([&] {
        const int before = currentRow();
        EntryList::keyPressEvent(event);
        hasNews = hasNews || currentRow() != before;
    });
}

void PickList::Handle(const std::function<void()>& action)
{
    const bool outer = std::exchange(holdsBack, true);
    action();
    holdsBack = outer;
    if (!outer && std::exchange(hasNews, false))
        emit Picked();
}

} // namespace dravik
