#pragma once

#include "screens/panels/SlotLabel.h"

#include <functional>
#include <QLabel>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>

namespace dravik {

class EntryList;

// Lets people be dragged with the mouse within a window: onto slots, from a list or from another slot, and from list to list. A
// place where somebody may be let go shows it; anywhere else nothing happens. Over a tab, its page comes up. Escape ends the
// drag. The desktop's own drag and drop is not needed, since nothing leaves the window.
class PersonDrag : public QObject {
public:
    using MayDrop = std::function<bool(const SlotLabel&)>; // asked of each slot that the pointer enters
    using Drop = std::function<void(SlotLabel&)>;

    // The entries of a list. Being let go on a slot is a press on it. Belongs to the list.
    static void FromList(EntryList& list, MayDrop mayDrop);
    // Whoever stands in a slot: `drop` is told where he was let go. Belongs to the slot.
    static void FromSlot(SlotLabel& slot, MayDrop mayDrop, Drop drop);
    // The entries of a list, to one of `others`. Belongs to the list.
    static void ToLists(EntryList& list, const QList<EntryList*>& others, std::function<bool(EntryList&)> mayDrop,
                        std::function<void(EntryList&)> drop);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Where people are taken from.
    struct Source {
        QWidget* Pressed;                         // by the mouse
        QWidget* Keys;                            // has the focus meanwhile, and owns the drag
        std::function<bool(const QPoint&)> Holds; // somebody at a point of what is pressed
        std::function<QString()> Name;            // of who is being dragged
        bool IsOnAPage; // which goes out of sight with it, so none is turned; and a release there would be a press
    };

    // Where they are taken.
    struct Aim {
        std::function<QWidget*(QWidget* under)> At; // what takes him under the pointer, or none
        std::function<void(QWidget&, bool)> Mark;   // shows it, or no more
        std::function<void(QWidget&)> Drop;
    };

    PersonDrag(Source from, Aim to);
    static Source ListSource(EntryList& list);
    static Aim SlotAim(MayDrop mayDrop, Drop drop);

    void Begin();
    void Move(const QPoint& globalPoint);
    void LetGo();
    void End();

    // What is pressed may be on its way out when an event comes.
    Source source;
    QPointer<QWidget> surface;
    Aim aim;
    QPoint pressed;       // where the button went down, on what is pressed
    bool isArmed = false; // the button is down on somebody
    bool isDragging = false;
    QPointer<QWidget> target; // takes him if he is let go now
    QPointer<QLabel> ghost;   // follows the pointer
};

} // namespace dravik
