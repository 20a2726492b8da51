#include "screens/panels/PinParts.h"

#include "screens/panels/Accessible.h"
#include "screens/panels/RatingBar.h"
#include "screens/panels/Shades.h"
#include "screens/Pins.h"

#include <QPainter>

namespace dravik {

namespace {

constexpr int BarInLetters = 2; // how long the piece of a bar is, in heights of a letter

} // namespace

PinCommand::PinCommand(QWidget* parent) : QToolButton(parent)
{
    setObjectName("cmdPin");
    setFocusPolicy(Qt::NoFocus);
    setAutoRaise(true);
    QFont linked = font(); // so that one sees that it can be pressed
    linked.setUnderline(true);
    setFont(linked);
    QSizePolicy keepingPlace(QSizePolicy::Fixed, QSizePolicy::Fixed);
    keepingPlace.setRetainSizeWhenHidden(true);
    setSizePolicy(keepingPlace);
    ShowState();
    connect(this, &QToolButton::clicked, this, [this] {
        if (person)
            Announce(*this, TogglePin(*person));
    });
    connect(&NewsOfPins(), &PinNews::Changed, this, [this] { ShowState(); });
}

// No higher than the line of words in which it stands.
QSize PinCommand::sizeHint() const
{
    return {fontMetrics().horizontalAdvance("Unpin") + 2 * Gap, fontMetrics().height()};
}

void PinCommand::SetPerson(std::optional<PersonId> who)
{
    person = who;
    ShowState();
}

void PinCommand::ShowState()
{
    setVisible(person.has_value());
    const bool isPinned = person && IsPinned(*person);
    setText(isPinned ? "Unpin" : "Pin");
    setAccessibleName(isPinned ? "Let the pinned man go" : "Pin him to hold others against him");
    setToolTip(accessibleName() + " (Ctrl+M)");
}

PinLine::PinLine(QWidget* parent) : ElidedLabel(parent, Words::Muted)
{
    setObjectName("lblPinned");
    setTextFormat(Qt::PlainText);
    setContentsMargins(BarInLetters * fontMetrics().height() + Gap, 0, 0, 0);
    hide();
}

void PinLine::Tell(const QString& name)
{
    setVisible(!name.isEmpty());
    setText(name.isEmpty() ? QString() : "Pinned: " + name);
}

void PinLine::paintEvent(QPaintEvent* event)
{
    ElidedLabel::paintEvent(event);
    QPainter painter(this);
    const int letter = fontMetrics().height();
    const int high = HeightOfRatingBar(fontMetrics());
    PaintGhost(painter, QRect(0, (height() - high) / 2, BarInLetters * letter, high), palette());
}

} // namespace dravik
