#include "screens/panels/PersonMenu.h"

#include "screens/panels/EntryList.h"
#include "screens/panels/PinParts.h"
#include "screens/panels/WhyClosed.h"
#include "screens/PersonWords.h"
#include "screens/Pins.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <utility>

namespace dravik {

PersonMenu::PersonMenu(EntryList* shown, WhoIs who) : QObject(shown), list(shown), whoIs(std::move(who))
{
    list->installEventFilter(this); // which has the key
    list->viewport()->installEventFilter(this);
}

bool PersonMenu::Show(const QContextMenuEvent& asked)
{
    const bool isByKey = asked.reason() == QContextMenuEvent::Keyboard;
    const QListWidgetItem* entry = isByKey ? list->currentItem() : list->itemAt(asked.pos());
    const auto number = NumberOf(entry);
    const auto who = number ? whoIs(*number) : std::nullopt;
    if (!who)
        return false;
    const QRect place = list->visualItemRect(entry);
    const auto offer = [](QMenu& menu, const char* name, const QString& words, const char* key) {
        QAction* item = menu.addAction(words + '\t' + key);
        item->setObjectName(name);
        return item;
    };
    auto* menu = new QMenu(list);
    menu->setObjectName("mnuPerson");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString name = NameOf(*who).replace('&', "&&");
    QAction* pin = offer(*menu, "mnuPin", (IsPinned(*who) ? "Unpin " : "Pin ") + name, PinKey);
    connect(pin, &QAction::triggered, list,
            [this, who, place] { TellOfPin(*list->viewport(), place, TogglePin(*who)); });
    QAction* letGo = offer(*menu, "mnuLetGo", "Let All Go", LetGoKey);
    letGo->setEnabled(IsAnybodyPinned());
    TellWhyClosed(letGo, [] { return QString("Nobody is pinned."); });
    connect(letGo, &QAction::triggered, list, [this, place] { TellOfPin(*list->viewport(), place, LetGoOfPinned()); });
    menu->popup(isByKey ? list->viewport()->mapToGlobal(place.bottomLeft()) : asked.globalPos());
    return true;
}

bool PersonMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu) {
        const auto& asked = *static_cast<QContextMenuEvent*>(event);
        const bool isByKey = asked.reason() == QContextMenuEvent::Keyboard;
        if (isByKey == (watched == list) && Show(asked))
            return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace dravik
