#include "screens/squad/SquadDock.h"

#include "screens/panels/KeptPlace.h"

#include <algorithm>
#include <QEvent>
#include <QScopedValueRollback>
#include <QScreen>

namespace dravik {

namespace {

constexpr int LeastRoomBeside = 640; // a window narrower than that shows too little to stand beside another
constexpr QSize Best(1240, 720);
constexpr int SettledBehind = 120; // milliseconds

// What the desktop's frame takes around a window that is seen.
QMargins FrameOf(const QWidget& window)
{
    const QRect outer = window.frameGeometry();
    const QRect inner = window.geometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

} // namespace

std::optional<SideBySide> PlaceSideBySide(const QRect& area, const QRect& screen, const QSize& least, const QSize& best)
{
    if (screen.width() + least.width() > area.width() || least.height() > area.height() ||
        screen.height() > area.height())
        return std::nullopt;
    QRect moved = screen;
    moved.moveLeft(std::clamp(screen.left(), area.left(), area.right() + 1 - screen.width()));
    moved.moveTop(std::clamp(screen.top(), area.top(), area.bottom() + 1 - screen.height()));
    const int rightOf = area.right() - moved.right();
    const int leftOf = moved.left() - area.left();
    const bool isLeft = rightOf < least.width() && leftOf >= least.width();
    if (!isLeft && rightOf < least.width())
        moved.moveLeft(area.right() + 1 - least.width() - moved.width());
    const int room = isLeft ? leftOf : area.right() - moved.right();
    const QSize size(std::min(best.width(), room), std::clamp(moved.height(), least.height(), area.height()));
    const int top = std::min(moved.top(), area.bottom() + 1 - size.height());
    const int left = isLeft ? moved.left() - size.width() : moved.right() + 1;
    return SideBySide{.Screen = moved, .Beside = QRect(QPoint(left, top), size)};
}

SquadDock::SquadDock(QWidget* docked) : QObject(docked), window(docked)
{
    settled.setParent(this);
    settled.setSingleShot(true);
    settled.setInterval(SettledBehind);
    connect(&settled, &QTimer::timeout, this, [this] { Arrange(); });
}

void SquadDock::SetDocked(bool docked) { isDocked = docked; }

void SquadDock::Follow(QWidget* screen)
{
    if (front == screen)
        return;
    if (front != nullptr)
        front->removeEventFilter(this);
    front = screen;
    if (front != nullptr)
        front->installEventFilter(this);
    Arrange();
}

bool SquadDock::Arrange()
{
    if (!isDocked || !window->isVisible() || front == nullptr || !front->isVisible() || front->isMinimized() ||
        front->isMaximized() || front->isFullScreen())
        return false;
    // A window that has just come up gets its frame a little later, and stands right then.
    if (const bool isFrameless = window->frameGeometry() == window->geometry(); isFrameless && !hasWaited)
        settled.start();
    hasWaited = true;
    const QMargins frame = FrameOf(*window);
    const QSize around(frame.left() + frame.right(), frame.top() + frame.bottom());
    const QSize least = window->minimumSizeHint().expandedTo({LeastRoomBeside, 0}) + around;
    const auto place = PlaceSideBySide(front->screen()->availableGeometry(), front->geometry() + FrameOf(*front), least,
                                       Best + around);
    if (!place)
        return false;
    const QScopedValueRollback moving(isMoving, true);
    if (window->isMaximized())
        window->showNormal();
    if (front->pos() != place->Screen.topLeft())
        PlaceByProgram(*front, [&] { front->move(place->Screen.topLeft()); });
    PlaceByProgram(*window, [&] { window->setGeometry(place->Beside - frame); });
    return true;
}

bool SquadDock::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == front && !isMoving)
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
        case QEvent::Show:
            settled.start();
            break;
        case QEvent::Hide:
            QMetaObject::invokeMethod(this, &SquadDock::Lost, Qt::QueuedConnection);
            break;
        default:
            break;
        }
    return QObject::eventFilter(watched, event);
}

} // namespace dravik
