#include "screens/panels/SlotLabel.h"

#include "screens/panels/EntrySigns.h"
#include "screens/panels/Shades.h"
#include "screens/panels/SignShapes.h"
#include "screens/platform/Palettes.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace dravik {

namespace {

constexpr QSize UsualSize(170, 44);
constexpr QSize LeastSize(110, 26);
constexpr double Roundness = 4;
constexpr double FramePart = 0.28;  // how much of the text is in the frame
constexpr double PickedPart = 0.16; // how much of the highlight is in the ground of a slot that stands out
constexpr int LeastNamePart = 2;    // an office has no sign where less of the slot is left to the name

// What is drawn of the signs of who stands there, from right to left; the mark tells what is wrong.
constexpr Sign SignsOfSlots[] = {Sign::Captain, Sign::Assistant, Sign::OutOfPosition, Sign::Pinned};

} // namespace

PressLabel::PressLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void PressLabel::mousePressEvent(QMouseEvent* event)
{
    isDown = event->button() == Qt::LeftButton;
    event->setAccepted(isDown);
}

// A release without a press of its own is no click: the press may have been held back.
void PressLabel::mouseReleaseEvent(QMouseEvent* event)
{
    const bool isClick = isDown && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    isDown = false;
    if (isClick)
        emit Pressed();
}

void PressLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit Pressed();
    else
        QLabel::keyPressEvent(event);
}

void PressLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

SlotLabel::SlotLabel(const QString& where, const QString& tag, QWidget* parent) :
    PressLabel(parent), slot(where), position(tag)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setContextMenuPolicy(Qt::PreventContextMenu); // its press and its key are those of the picker
    Describe();
}

QSize SlotLabel::sizeHint() const { return UsualSize.expandedTo({0, LinesHeight() + 2 * Margin}); }

QSize SlotLabel::minimumSizeHint() const { return LeastSize.expandedTo({0, LinesHeight() + (isStacked ? 0 : Gap)}); }

int SlotLabel::LinesHeight() const { return (isStacked ? 2 : 1) * fontMetrics().height(); }

void SlotLabel::Stack()
{
    isStacked = true;
    updateGeometry();
    update();
}

void SlotLabel::SetName(const QString& name)
{
    setText(name);
    Describe();
}

void SlotLabel::SetMark(Mark shown)
{
    if (mark == shown)
        return;
    mark = shown;
    Describe();
    update();
}

void SlotLabel::SetAside(const QString& words)
{
    if (aside == words)
        return;
    aside = words;
    Describe();
    update();
}

void SlotLabel::SetSigns(const PersonSigns& shown, const QString& ownPosition)
{
    if (signs == shown && homePosition == ownPosition)
        return;
    signs = shown;
    homePosition = ownPosition;
    QStringList said = WordsOf(signs);
    if (!homePosition.isEmpty())
        said << "plays " + homePosition;
    setAccessibleDescription(said.join(", "));
    update();
}

void SlotLabel::SetPicked(bool picked)
{
    if (isPicked == picked)
        return;
    isPicked = picked;
    update();
}

void SlotLabel::Describe()
{
    const char* state = mark == Mark::Refused ? " (may not play)"
                        : mark == Mark::Twice ? " (used twice)"
                        : mark == Mark::Empty ? " (empty)"
                                              : "";
    const QString overall = aside.isEmpty() ? QString() : ", overall " + aside;
    const QString name = slot + ": " + text() + overall + state + (isTaken ? " (taken up)" : "");
    if (accessibleName() != name)
        setAccessibleName(name);
}

void SlotLabel::mousePressEvent(QMouseEvent* event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    if (event->button() == Qt::MiddleButton || (isLeft && event->modifiers() == Qt::ShiftModifier)) {
        emit Looked();
    } else if (event->button() == Qt::RightButton) {
        setFocus(Qt::MouseFocusReason);
        emit PickAsked({});
    } else {
        PressLabel::mousePressEvent(event);
    }
}

void SlotLabel::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool isTyped = (modifiers & ~Qt::ShiftModifier) == Qt::NoModifier;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        emit Arrow(event->key());
        return;
    case Qt::Key_F2:
    case Qt::Key_Menu:
        emit PickAsked({});
        return;
    case Qt::Key_F10:
        if (modifiers != Qt::ShiftModifier)
            break;
        emit PickAsked({});
        return;
    case Qt::Key_Space:
        if (modifiers != Qt::ControlModifier)
            break;
        emit TakeAsked();
        return;
    default:
        if (isTyped && !event->text().isEmpty() && event->text().front().isLetter()) {
            emit PickAsked(event->text());
            return;
        }
        break;
    }
    PressLabel::keyPressEvent(event);
}

void SlotLabel::SetTaken(bool taken)
{
    if (isTaken == taken)
        return;
    isTaken = taken;
    Describe();
    update();
}

void SlotLabel::SetDropTarget(bool target)
{
    if (isDropTarget == target)
        return;
    isDropTarget = target;
    update();
}

void SlotLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor window = palette().color(QPalette::Window);
    const QColor words = palette().color(QPalette::Text);
    const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
    const bool isEmpty = mark == Mark::Empty;
    const bool isRefused = mark == Mark::Refused;
    const bool isWrong = isRefused || mark == Mark::Twice;
    const bool standsOut = hasFocus() || isDropTarget || isPicked || isTaken;
    QColor ground = isEmpty ? window : palette().color(QPalette::Base);
    if (isPicked || isDropTarget || isTaken)
        ground = Mixed(ground, accent, PickedPart);

    const QColor frame = isWrong                          ? Alarming(ground)
                         : standsOut                      ? accent
                         : signs.Has(Sign::OutOfPosition) ? Cautioning(ground)
                                                          : Mixed(window, words, FramePart);
    const double width = hasFocus() || isDropTarget || isTaken ? 2 : 1;
    painter.setPen(QPen(frame, width, isEmpty ? Qt::DashLine : isTaken ? Qt::DotLine : Qt::SolidLine));
    painter.setBrush(ground);
    const QRectF whole = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.drawRoundedRect(whole, Roundness, Roundness);
    if (isWrong && hasFocus()) { // both can be told
        painter.setPen(QPen(accent, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(whole.adjusted(3, 3, -3, -3), Roundness, Roundness);
    }

    const QColor secondary = Muted(words, ground);
    QRect area = rect().adjusted(Gap, 0, -Gap, 0);
    QRect below = area;
    if (isStacked) {
        area.setTop(rect().center().y() - fontMetrics().height());
        area.setBottom(rect().center().y());
        below.setTop(rect().center().y());
        below.setBottom(rect().center().y() + fontMetrics().height());
    }
    constexpr int flags = Qt::AlignVCenter | Qt::TextSingleLine;
    painter.setFont(HeadingFont(font()));
    painter.setPen(secondary);
    painter.drawText(area, Qt::AlignLeft | flags, position);
    area.setLeft(area.left() + painter.fontMetrics().horizontalAdvance("RW") + Gap);

    painter.setFont(font());
    if (!aside.isEmpty()) {
        painter.drawText(area, Qt::AlignRight | flags, aside);
        area.setRight(area.right() - painter.fontMetrics().horizontalAdvance(aside) - Gap);
    }
    const auto paintShape = [&](Sign kind) {
        const int side = painter.fontMetrics().height();
        PaintShape(painter, kind, QRect(area.right() - side + 1, area.center().y() - side / 2, side, side),
                   InkOf(kind, words, ground), ground);
        area.setRight(area.right() - side - Gap / 2);
    };
    if (isWrong)
        paintShape(isRefused ? Sign::MayNotPlay : Sign::UsedTwice);
    for (const Sign kind : SignsOfSlots)
        if (signs.Has(kind) &&
            (isStacked || kind == Sign::OutOfPosition || area.width() > rect().width() / LeastNamePart))
            paintShape(kind);
    const int nameWidth = isStacked ? 0 : painter.fontMetrics().horizontalAdvance(text());
    const int nameAndPosition = nameWidth + Gap + painter.fontMetrics().horizontalAdvance(homePosition);
    if (!homePosition.isEmpty() && nameAndPosition <= area.width()) {
        painter.setPen(Cautioning(ground));
        painter.drawText(area, Qt::AlignRight | flags, homePosition);
    }
    painter.setPen(isRefused ? Alarming(ground) : isEmpty ? secondary : words);
    const QString shown = isEmpty && text().isEmpty() ? QString("empty") : text();
    const QRect nameArea = isStacked ? below : area;
    painter.drawText(nameArea, Qt::AlignLeft | flags,
                     painter.fontMetrics().elidedText(shown, Qt::ElideRight, nameArea.width()));
}

} // namespace dravik
