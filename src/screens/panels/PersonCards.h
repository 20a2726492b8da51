#pragma once

#include "screens/panels/PersonCard.h"

#include <functional>
#include <optional>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QRect>

namespace dravik {

class EntryList;
class SlotLabel;

// Shows the card of a person in a window, or in one that belongs to it: while the mouse rests on his entry or slot, and with Ctrl+I on the entry or slot that
// has the focus; Ctrl+M pins him there. Any key, press or turn of the wheel takes it away, and so does the mouse that leaves; Escape does nothing else.
class PersonCards : public QObject {
    Q_OBJECT
public:
    // What the card of an entry with a number says, and that of a slot; none where nobody stands.
    using EntryWords = std::function<std::optional<CardWords>(int number)>;
    using SlotWords = std::function<std::optional<CardWords>()>;

    explicit PersonCards(QWidget* window);

    void Serve(EntryList* list, EntryWords words);
    void Serve(SlotLabel* slot, SlotWords words);

    // Pins whoever is at the focus, or else whose ratings the window's panel shows, or lets him go, as Ctrl+M does. What became of it
    // is told beside him.
    void PinAtFocus();
    // Shows the card at the focus, as Ctrl+I does, or takes away the one that is up.
    void ShowAtFocus();
    // The card that is up, or none.
    [[nodiscard]] PersonCard* Shown() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Whoever is at the focus, and where.
    struct AtFocus {
        QWidget* Place = nullptr;
        QRect Anchor;
        std::optional<CardWords> Words;
    };
    [[nodiscard]] AtFocus Focused() const;
    void ShowUnderMouse(QWidget* place, const QPoint& point);
    void ShowCard(const QWidget& place, const QRect& anchor, const std::optional<CardWords>& words, bool isPointedAt);
    void Close();
    // Whether an event, wherever it goes, takes the card away.
    bool TakesAway(QObject* watched, QEvent* event) const;

    QWidget* window;
    QHash<QWidget*, EntryWords> lists; // by the viewport
    QHash<QWidget*, SlotWords> slotLabels;
    QPointer<PersonCard> card;
    bool isComing = false; // a card for the mouse
    QRect pointedAt;       // on the desktop; of a card that the mouse brought up
};

} // namespace dravik
