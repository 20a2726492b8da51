#pragma once

#include "rules/PersonSigns.h"

#include <QLabel>

namespace dravik {

// A label that is pressed like a button: with the left mouse button, or with Enter or the space bar while it has the
// focus.
class PressLabel : public QLabel {
    Q_OBJECT
public:
    explicit PressLabel(QWidget* parent = nullptr);

signals:
    void Pressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isDown = false;
};

// One slot of a line-up: a frame with the position at its left, the name, and the person's overall muted at its right edge,
// behind the signs of who stands there. The text is the name alone; a screen reader is told everything.
class SlotLabel : public PressLabel {
    Q_OBJECT
public:
    enum class Mark {
        Filled,
        Empty,  // dashed
        Twice,  // framed in red, with the sign of two: he may play, but stands where he may not stand again
        Refused // red, with the warning sign
    };

    // `where` says to a screen reader which slot this is; `tag` is the position that is painted.
    SlotLabel(const QString& where, const QString& tag, QWidget* parent = nullptr);

    // Which slot this is, as a screen reader says it.
    [[nodiscard]] const QString& Where() const { return slot; }
    void SetName(const QString& name);
    void SetMark(Mark shown);
    [[nodiscard]] Mark Shown() const { return mark; }
    void SetAside(const QString& words);
    [[nodiscard]] const QString& Aside() const { return aside; }
    // What else is told of who stands there: one who is out of his position is framed in amber, and `ownPosition`, where there is
    // room, says which is his. Offices are drawn where there is room, the other signs only told.
    void SetSigns(const PersonSigns& shown, const QString& ownPosition = {});
    [[nodiscard]] const PersonSigns& Signs() const { return signs; }
    // A slot that holds the person at hand stands out.
    void SetPicked(bool picked);
    [[nodiscard]] bool IsPicked() const { return isPicked; }

    // The name stands below the rest, on a line of its own, where a slot is narrow.
    void Stack();
    [[nodiscard]] bool IsStacked() const { return isStacked; }

    // Somebody is being dragged over the slot and may be let go there.
    void SetDropTarget(bool target);
    [[nodiscard]] bool IsDropTarget() const { return isDropTarget; }

    // Whoever stands in it was taken up to change places with another one.
    void SetTaken(bool taken);
    [[nodiscard]] bool IsTaken() const { return isTaken; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    // It was pressed to look at its person: with the middle button, or with Shift.
    void Looked();
    // Somebody is to be picked for it: the right button, the menu key, F2, or a letter, which is the beginning of a name.
    void PickAsked(const QString& typed);
    // Ctrl+Space: whoever stands there is taken up, or changes places with whom was.
    void TakeAsked();
    // An arrow key was pressed (Qt::Key).
    void Arrow(int key);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Describe();
    [[nodiscard]] int LinesHeight() const;

    QString slot;
    QString position;
    QString aside;
    PersonSigns signs;
    QString homePosition;
    Mark mark = Mark::Empty;
    bool isPicked = false;
    bool isDropTarget = false;
    bool isTaken = false;
    bool isStacked = false;
};

} // namespace dravik
