#pragma once

#include "desk/Paper.h"

#include <functional>
#include <QPushButton>

namespace dravik {

// A command with a menu that shares a paper: it copies the paper as text in columns, for a forum, or as Markdown; prints it, shows
// before how that comes out, and saves it as PDF or HTML. The menu has a part for each paper that is offered, and the size of the
// sheets below them. A failure of the making is reported with the command's name, and nothing is shared then. A file appears under
// its name only when it is whole, which is said for some seconds above the command; where it cannot be saved, the box says so and what stood there still does.
class ShareCommand : public QPushButton {
    Q_OBJECT

public:
    explicit ShareCommand(QWidget* parent = nullptr);

    // Offers a paper under a heading of the menu, "This Day", or without one; `make` runs whenever it is shared. `name` stands in
    // the names of its items, "mnuShareDayText".
    void Offer(const QString& name, const QString& heading, std::function<Paper()> make);

private:
    void OfferSizes();
    // Asks where to, beginning with the paper's title and `ending` ("pdf"), and saves `bytesOf(paper)` there.
    void Save(const Paper& paper, const QString& kind, const QString& ending,
              const std::function<std::string(const Paper&)>& bytesOf);

    QAction* sizes = nullptr; // the line above the sizes
};

// The date of the open client file in words, as papers carry it.
std::string DateOfFile();

} // namespace dravik
