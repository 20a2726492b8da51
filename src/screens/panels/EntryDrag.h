#pragma once

#include "screens/panels/SlotLabel.h"

#include <functional>
#include <QLabel>
#include <QObject>
#include <QPoint>
#include <QPointer>

namespace dravik {

class EntryList;

// Lets the entries of a list be dragged with the mouse onto the slots of the same window. A slot on which the entry may be
// let go shows it, and being let go there is a press on it; anywhere else nothing happens. Over a tab, its page comes up.
// Escape ends the drag. The desktop's own drag and drop is not needed, since nothing leaves the window.
class EntryDrag : public QObject {
public:
    // `mayDrop` is asked of each slot that the pointer enters. Belongs to the list.
    EntryDrag(EntryList* list, std::function<bool(const SlotLabel&)> mayDrop);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Begin();
    void Move(const QPoint& globalPoint);
    void Drop();
    void End();

    // The list may be on its way out when an event comes, and is no list any more then.
    EntryList* list;
    QPointer<QWidget> viewport;
    std::function<bool(const SlotLabel&)> mayDrop;
    QPoint pressed;       // where the button went down, in the list's viewport
    bool isArmed = false; // the button is down on an entry
    bool isDragging = false;
    QPointer<SlotLabel> target; // takes the entry if it is let go now
    QPointer<QLabel> ghost;     // follows the pointer
};

} // namespace dravik
