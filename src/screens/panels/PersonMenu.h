#pragma once

#include "league/PersonId.h"

#include <functional>
#include <optional>
#include <QObject>
#include <QRect>

class QContextMenuEvent;

namespace dravik {

class EntryList;

// The menu of somebody in a list, by the right button of the mouse or the key of menus: what pins him or lets him go, and what lets
// all go who are pinned. It picks nobody and makes nobody current. An entry that is nobody's has none.
class PersonMenu : public QObject {
public:
    using WhoIs = std::function<std::optional<PersonId>(int number)>;

    // `who` says whose the entry with a number is. Belongs to the list.
    PersonMenu(EntryList* list, WhoIs who);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Show(const QContextMenuEvent& asked);

    EntryList* list;
    WhoIs whoIs;
};

} // namespace dravik
