#pragma once

#include "screens/panels/SlotLabel.h"

#include <functional>
#include <QLabel>
#include <QObject>
#include <QPoint>
#include <QPointer>

namespace dravik {

class EntryList;

// Lets people be dragged with the mouse onto the slots of the same window, from a list or from another slot. A slot on which
// somebody may be let go shows it; anywhere else nothing happens. Over a tab, its page comes up. Escape ends the drag. The
// desktop's own drag and drop is not needed, since nothing leaves the window.
class PersonDrag : public QObject {
public:
    using MayDrop = std::function<bool(const SlotLabel&)>; // asked of each slot that the pointer enters
    using Drop = std::function<void(SlotLabel&)>;

    // The entries of a list. Being let go on a slot is a press on it. Belongs to the list.
    static void FromList(EntryList& list, MayDrop mayDrop);
    // Whoever stands in a slot: `drop` is told where he was let go. Belongs to the slot.
    static void FromSlot(SlotLabel& slot, MayDrop mayDrop, Drop drop);

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

    PersonDrag(Source from, MayDrop allows, Drop drops);

    void Begin();
    void Move(const QPoint& globalPoint);
    void LetGo();
    void End();

    // What is pressed may be on its way out when an event comes.
    Source source;
    QPointer<QWidget> surface;
    MayDrop mayDrop;
    Drop drop;
    QPoint pressed;       // where the button went down, on what is pressed
    bool isArmed = false; // the button is down on somebody
    bool isDragging = false;
    QPointer<SlotLabel> target; // takes him if he is let go now
    QPointer<QLabel> ghost;     // follows the pointer
};

} // namespace dravik
