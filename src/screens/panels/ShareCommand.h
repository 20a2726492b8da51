#pragma once

#include "desk/Paper.h"

#include <functional>
#include <QPushButton>

namespace dravik {

// A command with a menu that shares a paper: it copies the paper as text in columns, for a forum, or as Markdown. The menu has a part
// for each paper that is offered. A failure of the making is reported with the command's name, and nothing is copied then.
class ShareCommand : public QPushButton {
    Q_OBJECT

public:
    explicit ShareCommand(QWidget* parent = nullptr);

    // Offers a paper under a heading of the menu, "This Day"; `make` runs whenever a copy is asked for. `name` stands in the names of
    // its items, "mnuShareDayText".
    void Offer(const QString& name, const QString& heading, std::function<Paper()> make);
};

} // namespace dravik
