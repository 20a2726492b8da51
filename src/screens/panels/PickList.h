#pragma once

#include "screens/panels/EntryList.h"

#include <functional>
#include <optional>

namespace dravik {

// A list of entries of which several can be chosen: by click, Ctrl-click, Shift-click, arrows and Ctrl+A. It tells once of
// each thing that the user did, when current entry and selection both stand.
class PickList : public EntryList {
    Q_OBJECT
public:
    explicit PickList(QWidget* parent = nullptr);

    // What follows tells nobody.
    void Empty();
    // Takes the entry `row` out of `other` and puts it at the end here. If it was the current one, none is current there
    // afterwards; the next arrow goes on where it stood.
    void TakeFrom(PickList& other, int row);

    // The row of the entry with that number, or -1.
    [[nodiscard]] int RowOf(int number) const;
    // Chooses the entry with that number, if there is one and the list has it.
    void Choose(std::optional<int> number);
    [[nodiscard]] bool IsChosen(int row) const { return item(row)->isSelected(); }
    [[nodiscard]] int ChosenCount() const { return static_cast<int>(selectedItems().size()); }

signals:
    // The user, or code in his place, chose or let go an entry, or clicked on one.
    void Picked();

protected:
    [[nodiscard]] int FirstChoice() const override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Runs what handles one thing the user did, and tells of it if it chose something.
    void Handle(const std::function<void()>& action);

    bool holdsBack = false;
    bool hasNews = false;
    int gapRow = 0; // where the current entry was taken away
};

} // namespace dravik
