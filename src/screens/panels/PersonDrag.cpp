#include "screens/panels/PersonDrag.h"

#include "screens/panels/EntryList.h"
#include "screens/panels/SlotLabel.h"

#include <memory>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QTabBar>
#include <utility>

namespace dravik {

namespace {

constexpr QPoint GhostOffset(12, 8);
constexpr int GhostMargin = 4;

} // namespace

PersonDrag::PersonDrag(Source from, Aim to) :
    QObject(from.Keys), source(std::move(from)), surface(source.Pressed), aim(std::move(to))
{
    surface->installEventFilter(this);
    if (source.Keys != source.Pressed)
        source.Keys->installEventFilter(this);
}

PersonDrag::Source PersonDrag::ListSource(EntryList& list)
{
    return {
        .Pressed = list.viewport(),
        .Keys = &list,
        .Holds = [&list](const QPoint& point) { return list.itemAt(point) != nullptr; },
        .Name =
            [&list] {
                const qsizetype count = list.selectedItems().size();
                const QListWidgetItem* entry = list.Chosen();
                return count > 1 ? QString::number(count) + " players" : entry == nullptr ? QString() : entry->text();
            },
        .IsOnAPage = false};
}

PersonDrag::Aim PersonDrag::SlotAim(MayDrop mayDrop, Drop drop)
{
    return {.At =
                [allows = std::move(mayDrop)](QWidget* under) {
                    auto* slot = qobject_cast<SlotLabel*>(under);
                    return slot != nullptr && allows(*slot) ? slot : nullptr;
                },
            .Mark = [](QWidget& slot, bool isTarget) { static_cast<SlotLabel&>(slot).SetDropTarget(isTarget); },
            .Drop = [drops = std::move(drop)](QWidget& slot) { drops(static_cast<SlotLabel&>(slot)); }};
}

void PersonDrag::FromList(EntryList& list, MayDrop mayDrop)
{
    new PersonDrag(ListSource(list), SlotAim(std::move(mayDrop), [](SlotLabel& slot) { emit slot.Pressed(); }));
}

void PersonDrag::FromSlot(SlotLabel& slot, MayDrop mayDrop, Drop drop)
{
    new PersonDrag({.Pressed = &slot,
                    .Keys = &slot,
                    .Holds = [&slot](const QPoint& /*point*/) { return slot.Shown() != SlotLabel::Mark::Empty; },
                    .Name = [&slot] { return slot.text(); },
                    .IsOnAPage = true},
                   SlotAim(std::move(mayDrop), std::move(drop)));
}

void PersonDrag::ToLists(EntryList& list, const QList<EntryList*>& others, std::function<bool(EntryList&)> mayDrop,
                         std::function<void(EntryList&)> drop)
{
    const auto at = [others, allows = std::move(mayDrop)](QWidget* under) -> QWidget* {
        for (EntryList* other : others)
            if (under != nullptr && (under == other || other->isAncestorOf(under)) && allows(*other))
                return other;
        return nullptr;
    };
    // A frame over the list.
    const auto mark = [frame = std::make_shared<QPointer<QRubberBand>>()](QWidget& target, bool isTarget) {
        if (!isTarget) {
            delete *frame;
        } else if (*frame == nullptr) {
            *frame = new QRubberBand(QRubberBand::Rectangle, target.window());
            (*frame)->setGeometry(QRect(target.mapTo(target.window(), QPoint(0, 0)), target.size()));
            (*frame)->show();
        }
    };
    new PersonDrag(ListSource(list), {.At = at, .Mark = mark, .Drop = [drops = std::move(drop)](QWidget& target) {
                                          drops(static_cast<EntryList&>(target));
                                      }});
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
    QWidget* taking = aim.At(under);
    if (target != nullptr && target != taking)
        aim.Mark(*target, false);
    target = taking;
    if (target != nullptr)
        aim.Mark(*target, true);
    surface->setCursor(target != nullptr ? Qt::DragCopyCursor : Qt::ForbiddenCursor);
}

void PersonDrag::LetGo()
{
    QWidget* taking = target;
    End();
    if (taking != nullptr)
        aim.Drop(*taking);
}

void PersonDrag::End()
{
    isArmed = false;
    if (!std::exchange(isDragging, false))
        return;
    if (target != nullptr)
        aim.Mark(*target, false);
    target = nullptr;
    if (surface != nullptr) {
        surface->unsetCursor();
        surface->setMouseTracking(false);
    }
    delete ghost;
}

} // namespace dravik
