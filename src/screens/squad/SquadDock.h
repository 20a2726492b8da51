#pragma once

#include <optional>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QWidget>

namespace dravik {

// Where two windows stand side by side: outer rectangles on the desktop.
struct SideBySide {
    QRect Screen, Beside;

    bool operator==(const SideBySide&) const = default;
};

// Where a window of at least `least`, at best `best`, stands beside a screen on a display whose free area is `area`: right of it, or
// left where there alone is room for all it takes; else right of the screen, which makes room to the left. As high as the screen,
// as far as that is as high as it needs. None where the display is too small for both.
std::optional<SideBySide> PlaceSideBySide(const QRect& area, const QRect& screen, const QSize& least,
                                          const QSize& best);

// Keeps a window beside the screen in front: it goes where that goes, is moved or made larger, and stands beside the next one when
// that comes. Nothing is moved while it is not docked or not seen, nor while a screen fills the display.
class SquadDock : public QObject {
    Q_OBJECT
public:
    explicit SquadDock(QWidget* window);

    void SetDocked(bool docked);
    [[nodiscard]] bool IsDocked() const { return isDocked; }
    // The screen in front, or none. Whoever it was before is followed no longer.
    void Follow(QWidget* screen);
    // Stands beside it now. False where there is no room for both, or nothing to stand beside.
    bool Arrange();

signals:
    // The followed screen has gone, and another one may have come.
    void Lost();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* window;
    QPointer<QWidget> front;
    QTimer settled; // behind the last move of a screen that is being dragged
    bool isDocked = false;
    bool isMoving = false;  // by this
    bool hasWaited = false; // for the frame of the window
};

} // namespace dravik
