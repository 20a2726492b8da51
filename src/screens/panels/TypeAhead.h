#pragma once

#include "league/NameMatch.h"

#include <optional>
#include <QKeyEvent>
#include <QListWidget>
#include <QPointer>
#include <QTimer>

namespace dravik {

class TypedTag;

// Leads a list's choice to the entry whose name has what is typed there, in any of its words (NameMatch), and shows what was
// typed. Names of which a word begins with it come first, in the order of the list from the current entry on and round to it;
// behind them come those that have it within a word. A letter behind another makes the text longer; the same letter once
// more goes on to the next name, unless a longer text has it twice in some name. What nobody has is told, and the choice
// stays. The search is over when nothing was typed for the toolkit's interval of input, at Escape, and when something else
// chooses. Until then the entries are drawn anew with the letters that were found.
class TypeAhead : public QObject {
public:
    explicit TypeAhead(QListWidget& list);

    // That of a list, or none.
    static const TypeAhead* On(const QObject* list);

    // Handles the keys that belong to a search under way and would do something else without it: Space is a letter then,
    // Backspace takes one back, Escape ends it. False leaves the key to the list.
    bool Takes(const QKeyEvent& key);
    // Goes on with what was typed, or begins where somebody can be chosen. A blank or another
    // sign begins no search; nothing ends one.
    void Type(const QString& letters);
    [[nodiscard]] bool IsUnderWay() const { return !typed.isEmpty(); }
    // The letters of an entry's text that are what was typed; none where it has none, or no search is under way.
    [[nodiscard]] std::optional<NamePart> PartIn(const QString& text) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Begins the order of the search at `row` and chooses the first that has `text`. False, and nothing done, where none has.
    bool Find(const QString& text, int row);
    // The row behind the current one in the order of the search, round to it.
    [[nodiscard]] std::optional<int> RowBehind() const;
    // Goes on to the next name that has it.
    void GoOn();
    void TakeBack();
    // Shows what was typed, and waits for more.
    void Show(bool isFound);
    void Choose(int row);
    void PlaceTag();
    void End();

    QListWidget& list;
    QPointer<QWidget>
        surface; // on which the entries are painted; the list itself may be on its way out when a search ends
    TypedTag* tag = nullptr; // there is none before something is typed
    QTimer interval;
    QString typed;
    int from = 0;    // the row at which the order of the search begins
    int repeats = 0; // of the one letter typed
    bool found = false;
    bool choosing = false;
};

} // namespace dravik
