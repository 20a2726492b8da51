#pragma once

#include <functional>
#include <optional>
#include <QObject>
#include <QRect>
#include <QString>

class QScreen;
class QWidget;

namespace dravik {

// Remembers where its window stands and how large it is, once the manager has moved or sized it himself: what the program or the
// desktop chose is nobody's wish and goes unremembered. A child of its window, under whose name the place is kept among what the
// windows remember. It is written when the window goes, and a store that fails forgets it.
class KeptPlace : public QObject {
public:
    explicit KeptPlace(QWidget& itsWindow);

    // That of a window; null of one that remembers none.
    static KeptPlace* On(const QWidget& window);

    // Runs `change`, by which the program places the window: whatever the manager did before it is noticed, and what it does is not
    // taken for his.
    void ByProgram(const std::function<void()>& change);
    // Puts the window where the manager left it, fitted into today's displays. False where he never placed it.
    bool Put();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A place by its outer corner and the inner size, as a window is moved and sized.
    struct Place {
        QRect Area;
        bool IsMaximized = false;

        bool operator==(const Place&) const = default;
    };

    [[nodiscard]] Place Standing() const;
    [[nodiscard]] std::optional<Place> Kept() const;
    [[nodiscard]] std::string Key() const;
    void Notice();
    void Settle();
    void Write();
    // Puts the handles of its splitters where they were left; writes where those stand that the manager moved.
    void PutSplitters();
    void WriteSplitters();

    QWidget& window;
    std::optional<Place> placed; // by the program, or by the desktop until the window is first active
    std::optional<Place> wished; // by the manager
    QRect last;                  // while it was neither maximized nor hidden
    bool isNew = true;           // not active yet where it stands
    bool hasSplitters = false;   // looked for, at the first time that it comes up
};

// The same for a window of which nobody knows whether it remembers a place.
void PlaceByProgram(QWidget& window, const std::function<void()>& change);
bool PutKept(QWidget& window);

// What the frame of a window adds to its size, in pixels; of one that was never shown the height of the style's title bar, as nobody
// has measured more.
QSize FrameSizeOf(const QWidget& window);

// `place` (outer corner and inner size, in pixels) within the display of which it takes most, else the first one: no larger than that
// display leaves to a window with a frame of `frame` around it, and moved until all of it is seen. `displays` has one at least.
QRect FittedInto(const QRect& place, const QList<QRect>& displays, const QSize& frame);

} // namespace dravik
