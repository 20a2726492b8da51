#pragma once

#include "screens/panels/CardWords.h"

#include <QFrame>
#include <QLabel>

namespace dravik {

class PinLine;
class RatingRows;

// The card of a person: a panel over a window, beside the entry or slot that it tells of. It takes no focus and no press. A
// screen reader is told all of it at once when it comes up.
class PersonCard : public QFrame {
public:
    explicit PersonCard(QWidget* window);

    // Shows `words` beside `anchor`, without covering that or `taken`, as far as the window has room. All in coordinates of the
    // window.
    void ShowBeside(const QRect& anchor, const QRect& taken, const CardWords& words);
    // All that it says, for a screen reader.
    [[nodiscard]] QString InWords() const { return accessibleName(); }

    // Where a card of `size` stands in `window`: the first of right of the anchor, left of it, below and above it that is in the
    // window and covers neither `anchor` nor `taken`; right of it, pushed into the window, where none is.
    static QRect PlaceFor(const QSize& size, const QRect& anchor, const QRect& taken, const QRect& window);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class SignLines;

    void Fill(const CardWords& words);
    [[nodiscard]] int WidthOfLines(const QStringList& lines) const;

    QLabel *lblName, *lblAside, *lblFacts, *lblRemarks;
    SignLines* signLines;
    RatingRows* ratings;
    PinLine* lblPinned;
    QList<QLabel*> numbers; // of the ratings, from row 1 on
};

} // namespace dravik
