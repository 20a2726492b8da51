#include "screens/panels/EntryDrag.h"

#include "screens/panels/EntryList.h"
#include "screens/panels/SlotLabel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTabBar>
#include <utility>

namespace dravik {

namespace {

constexpr QPoint GhostOffset(12, 8);
constexpr int GhostMargin = 4;

} // namespace

EntryDrag::EntryDrag(EntryList* entries, std::function<bool(const SlotLabel&)> allows) :
    QObject(entries), list(entries), viewport(entries->viewport()), mayDrop(std::move(allows))
{
    viewport->installEventFilter(this);
    list->installEventFilter(this);
}

bool EntryDrag::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == viewport && event->type() == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        End(); // whatever was left of a drag whose end nobody saw
        pressed = mouse->position().toPoint();
        isArmed = mouse->button() == Qt::LeftButton && list->itemAt(pressed) != nullptr;
    } else if (watched == viewport && event->type() == QEvent::MouseMove && isArmed) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint way = mouse->position().toPoint() - pressed;
        if ((mouse->buttons() & Qt::LeftButton) == 0)
            End();
        else if (!isDragging && way.manhattanLength() >= QApplication::startDragDistance())
            Begin();
        if (isDragging)
            Move(mouse->globalPosition().toPoint());
        return isArmed; // the list does not go along with the pointer
    } else if (watched == viewport && event->type() == QEvent::MouseButtonRelease && isArmed) {
        if (isDragging)
            Drop();
        End();
    } else if (isDragging && event->type() == QEvent::KeyPress &&
               static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        End();
        return true;
    } else if (isDragging && (event->type() == QEvent::Hide || event->type() == QEvent::FocusOut)) {
        End();
    }
    return QObject::eventFilter(watched, event);
}

void EntryDrag::Begin()
{
    isDragging = true;
    viewport->setMouseTracking(true); // a move without a button shows that the release went elsewhere
    const QListWidgetItem* entry = list->Chosen();
    ghost = new QLabel(entry == nullptr ? QString() : entry->text(), list->window());
    ghost->setTextFormat(Qt::PlainText);
    ghost->setMargin(GhostMargin);
    ghost->setFrameShape(QFrame::StyledPanel);
    ghost->setAutoFillBackground(true);
    ghost->setAttribute(Qt::WA_TransparentForMouseEvents);
    ghost->adjustSize();
    ghost->show();
    ghost->raise();
}

void EntryDrag::Move(const QPoint& globalPoint)
{
    QWidget* window = list->window();
    const QPoint point = window->mapFromGlobal(globalPoint);
    ghost->move(point + GhostOffset);
    QWidget* under = window->childAt(point);
    if (auto* tabs = qobject_cast<QTabBar*>(under)) {
        const int tab = tabs->tabAt(tabs->mapFrom(window, point));
        if (tab >= 0)
            tabs->setCurrentIndex(tab);
    }
    auto* slot = qobject_cast<SlotLabel*>(under);
    SlotLabel* taking = slot != nullptr && mayDrop(*slot) ? slot : nullptr;
    if (target != nullptr)
        target->SetDropTarget(target == taking);
    target = taking;
    if (target != nullptr)
        target->SetDropTarget(true);
    viewport->setCursor(target != nullptr ? Qt::DragCopyCursor : Qt::ForbiddenCursor);
}

void EntryDrag::Drop()
{
    SlotLabel* taking = target;
    End();
    if (taking != nullptr)
        emit taking->Pressed();
}

void EntryDrag::End()
{
    isArmed = false;
    if (!std::exchange(isDragging, false))
        return;
    if (target != nullptr)
        target->SetDropTarget(false);
    target = nullptr;
    if (viewport != nullptr) {
        viewport->unsetCursor();
        viewport->setMouseTracking(false);
    }
    delete ghost;
}

} // namespace dravik
