#include "screens/panels/PersonCards.h"

#include "screens/panels/Accessible.h"
#include "screens/panels/EntryList.h"
#include "screens/panels/PersonMenu.h"
#include "screens/panels/PinParts.h"
#include "screens/panels/SlotLabel.h"
#include "screens/panels/StatPanel.h"
#include "screens/Pins.h"

#include <QApplication>
#include <QGroupBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcut>

namespace dravik {

namespace {

const QKeyCombination CardKey = Qt::CTRL | Qt::Key_I;

bool IsModifier(int key)
{
    return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
           key == Qt::Key_Meta;
}

// Where the toolkit's own tooltip stands on the desktop, if one is up.
QRect PlaceOfTooltip()
{
    for (const QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && top->inherits("QTipLabel"))
            return top->geometry();
    return {};
}

// Whose ratings the panel of a window shows.
std::optional<PersonId> WhoseRatingsAreShown(const QWidget& window)
{
    const QList<QGroupBox*> groups = window.findChildren<QGroupBox*>();
    for (const QGroupBox* group : groups)
        if (const auto* panel = dynamic_cast<const StatPanel*>(group))
            return panel->Person();
    return std::nullopt;
}

} // namespace

PersonCards::PersonCards(QWidget* shownOver) : QObject(shownOver), window(shownOver)
{
    connect(new QShortcut(QKeySequence(CardKey), window), &QShortcut::activated, this, &PersonCards::ShowAtFocus);
    connect(new QShortcut(QKeySequence(PinKey), window), &QShortcut::activated, this, &PersonCards::PinAtFocus);
    LetGoByKey(*window);
}

void PersonCards::Serve(EntryList* list, EntryWords words)
{
    new PersonMenu(list, [words](int number) {
        const auto card = words(number);
        return card ? std::optional(card->Who) : std::nullopt;
    });
    lists.insert(list->viewport(), std::move(words));
    list->viewport()->installEventFilter(this);
}

void PersonCards::Serve(SlotLabel* slot, SlotWords words)
{
    slotLabels.insert(slot, std::move(words));
    slot->installEventFilter(this);
}

PersonCard* PersonCards::Shown() const { return card != nullptr && card->isVisible() ? card.data() : nullptr; }

PersonCards::AtFocus PersonCards::Focused() const
{
    // The focus is in the window, or in one that belongs to it.
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr || focus->window()->parentWidget() != window)
        focus = window->focusWidget();
    if (const auto found = slotLabels.constFind(focus); found != slotLabels.constEnd())
        return {focus, focus->rect(), (*found)()};
    const auto* list = qobject_cast<const EntryList*>(focus);
    const QListWidgetItem* current = list == nullptr ? nullptr : list->currentItem();
    const auto found = list == nullptr ? lists.constEnd() : lists.constFind(list->viewport());
    if (current == nullptr || found == lists.constEnd())
        return {};
    return {list->viewport(), list->visualItemRect(current), (*found)(*NumberOf(current))};
}

void PersonCards::ShowAtFocus()
{
    if (Shown() != nullptr) {
        Close();
        return;
    }
    if (const AtFocus at = Focused(); at.Place != nullptr)
        ShowCard(*at.Place, at.Anchor, at.Words, false);
}

void PersonCards::PinAtFocus()
{
    const AtFocus at = Focused();
    const auto who = at.Words ? std::optional(at.Words->Who) : WhoseRatingsAreShown(*window);
    const QString outcome = who ? TogglePin(*who) : QString();
    if (outcome.isEmpty())
        return;
    if (at.Words)
        TellOfPin(*at.Place, at.Anchor, outcome);
    else
        Announce(*window, outcome);
}

void PersonCards::ShowUnderMouse(QWidget* place, const QPoint& point)
{
    if (const auto found = slotLabels.constFind(place); found != slotLabels.constEnd()) {
        ShowCard(*place, place->rect(), (*found)(), true);
        return;
    }
    const auto found = lists.constFind(place);
    const auto* list = qobject_cast<const EntryList*>(place->parentWidget());
    const QListWidgetItem* pointed = found == lists.constEnd() || list == nullptr ? nullptr : list->itemAt(point);
    if (pointed != nullptr)
        ShowCard(*place, list->visualItemRect(pointed), (*found)(*NumberOf(pointed)), true);
}

void PersonCards::ShowCard(const QWidget& place, const QRect& anchor, const std::optional<CardWords>& words,
                           bool isPointedAt)
{
    Close();
    if (!words || !place.isVisible())
        return;
    QWidget* over = place.window();
    if (card == nullptr || card->parentWidget() != over) {
        delete card;
        card = new PersonCard(over);
    }
    const QRect onDesktop(place.mapToGlobal(anchor.topLeft()), anchor.size());
    const QPoint origin = over->mapToGlobal(QPoint());
    const QRect tooltip = isPointedAt ? PlaceOfTooltip() : QRect();
    card->ShowBeside(onDesktop.translated(-origin), tooltip.isValid() ? tooltip.translated(-origin) : QRect(), *words);
    pointedAt = isPointedAt ? onDesktop : QRect();
    qApp->installEventFilter(this);
}

void PersonCards::Close()
{
    qApp->removeEventFilter(this);
    if (card != nullptr)
        card->hide();
}

bool PersonCards::TakesAway(QObject* watched, QEvent* event) const
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: {
        const auto* key = static_cast<QKeyEvent*>(event);
        return !IsModifier(key->key()) && key->keyCombination() != CardKey;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
        return true;
    case QEvent::MouseMove:
        return pointedAt.isValid() && qobject_cast<QWidget*>(watched) != nullptr &&
               !pointedAt.contains(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
    case QEvent::Leave: // of the window itself
        return pointedAt.isValid() && watched == card->parentWidget();
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
    case QEvent::Resize:
        return watched == card->parentWidget();
    default:
        return false;
    }
}

bool PersonCards::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        // The words of the tooltip come up first, and the card beside them.
        auto* place = qobject_cast<QWidget*>(watched);
        if (!isComing && (lists.contains(place) || slotLabels.contains(place))) {
            isComing = true;
            QMetaObject::invokeMethod(
                this,
                [this, place = QPointer<QWidget>(place), point = static_cast<QHelpEvent*>(event)->pos()] {
                    isComing = false;
                    if (place != nullptr)
                        ShowUnderMouse(place, point);
                },
                Qt::QueuedConnection);
        }
    }
    if (Shown() == nullptr || !TakesAway(watched, event))
        return QObject::eventFilter(watched, event);
    // Escape does nothing else: it is taken from whatever it would be a shortcut of, and from the widget at hand.
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        if (event->type() == QEvent::KeyPress)
            Close();
        return true;
    }
    Close();
    return QObject::eventFilter(watched, event);
}

} // namespace dravik
