#include "screens/panels/PersonDrag.h"

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

PersonDrag::PersonDrag(Source from, MayDrop allows, Drop drops) :
    QObject(from.Keys), source(std::move(from)), surface(source.Pressed), mayDrop(std::move(allows)),
    drop(std::move(drops))
{
    surface->installEventFilter(this);
    if (source.Keys != source.Pressed)
        source.Keys->installEventFilter(this);
}

void PersonDrag::FromList(EntryList& list, MayDrop mayDrop)
{
    new PersonDrag({.Pressed = list.viewport(),
                    .Keys = &list,
                    .Holds = [&list](const QPoint& point) { return list.itemAt(point) != nullptr; },
                    .Name =
                        [&list] {
                            const QListWidgetItem* entry = list.Chosen();
                            return entry == nullptr ? QString() : entry->text();
                        },
                    .IsOnAPage = false},
                   std::move(mayDrop), [](SlotLabel& slot) { emit slot.Pressed(); });
}

void PersonDrag::FromSlot(SlotLabel& slot, MayDrop mayDrop, Drop drop)
{
    new PersonDrag({.Pressed = &slot,
                    .Keys = &slot,
                    .Holds = [&slot](const QPoint& /*point*/) { return slot.Shown() != SlotLabel::Mark::Empty; },
                    .Name = [&slot] { return slot.text(); },
                    .IsOnAPage = true},
                   std::move(mayDrop), std::move(drop));
}

bool PersonDrag::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == surface && event->type() == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        End(); // whatever was left of a drag whose end nobody saw
        pressed = mouse->position().toPoint();
        isArmed = mouse->button() == Qt::LeftButton && source.Holds(pressed);
    } else if (watched == surface && event->type() == QEvent::MouseMove && isArmed) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint way = mouse->position().toPoint() - pressed;
        if ((mouse->buttons() & Qt::LeftButton) == 0)
            End();
        else if (!isDragging && way.manhattanLength() >= QApplication::startDragDistance())
            Begin();
        if (isDragging)
            Move(mouse->globalPosition().toPoint());
        return isArmed; // a list does not go along with the pointer
    } else if (watched == surface && event->type() == QEvent::MouseButtonRelease && isArmed) {
        const bool wasDragging = isDragging;
        if (isDragging)
            LetGo();
        End();
        return wasDragging && source.IsOnAPage;
    } else if (isDragging && event->type() == QEvent::KeyPress &&
               static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        End();
        return true;
    } else if (isDragging && (event->type() == QEvent::Hide || event->type() == QEvent::FocusOut)) {
        End();
    }
    return QObject::eventFilter(watched, event);
}

void PersonDrag::Begin()
{
    isDragging = true;
    surface->setMouseTracking(true); // a move without a button shows that the release went elsewhere
    ghost = new QLabel(source.Name(), source.Keys->window());
    ghost->setTextFormat(Qt::PlainText);
    ghost->setMargin(GhostMargin);
    ghost->setFrameShape(QFrame::StyledPanel);
    ghost->setAutoFillBackground(true);
    ghost->setAttribute(Qt::WA_TransparentForMouseEvents);
    ghost->adjustSize();
    ghost->show();
    ghost->raise();
}

void PersonDrag::Move(const QPoint& globalPoint)
{
    QWidget* window = source.Keys->window();
    const QPoint point = window->mapFromGlobal(globalPoint);
    ghost->move(point + GhostOffset);
    QWidget* under = window->childAt(point);
    if (auto* tabs = qobject_cast<QTabBar*>(under); tabs != nullptr && !source.IsOnAPage) {
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
    surface->setCursor(target != nullptr ? Qt::DragCopyCursor : Qt::ForbiddenCursor);
}

void PersonDrag::LetGo()
{
    SlotLabel* taking = target;
    End();
    if (taking != nullptr)
        drop(*taking);
}

void PersonDrag::End()
{
    isArmed = false;
    if (!std::exchange(isDragging, false))
        return;
    if (target != nullptr)
        target->SetDropTarget(false);
    target = nullptr;
    if (surface != nullptr) {
        surface->unsetCursor();
        surface->setMouseTracking(false);
    }
    delete ghost;
}

} // namespace dravik
