#include "screens/panels/PinParts.h"

#include "screens/panels/Accessible.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/RatingBar.h"
#include "screens/panels/Shades.h"
#include "screens/Pins.h"

#include <QPainter>
#include <QShortcut>
#include <QTextDocument>
#include <QToolTip>

namespace dravik {

namespace {

constexpr int BarInLetters = 2; // how long the piece of a bar is, in heights of a letter

// No higher than the line of words in which a command stands.
QSize SizeInLine(const QToolButton& command, const QString& words)
{
    return {command.fontMetrics().horizontalAdvance(words) + 2 * Gap, command.fontMetrics().height()};
}

// A cross, so that the name beside it keeps its room.
class LetGoCommand : public QToolButton {
public:
    explicit LetGoCommand(QWidget* parent) : QToolButton(parent)
    {
        setObjectName("cmdLetGo");
        setFocusPolicy(Qt::NoFocus);
        setAutoRaise(true);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        setText(QChar(u'\u00D7'));
        setAccessibleName("Let all go who are pinned");
        setToolTip(accessibleName() + QString(" (%1)").arg(LetGoKey));
        connect(this, &QToolButton::clicked, this, [this] { Announce(*window(), LetGoOfPinned()); });
    }

    [[nodiscard]] QSize sizeHint() const override { return SizeInLine(*this, text()); }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

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

QSize PinCommand::sizeHint() const { return SizeInLine(*this, "Unpin"); }

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
    setToolTip(accessibleName() + QString(" (%1)").arg(PinKey));
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
    if (letGo != nullptr)
        letGo->setVisible(!name.isEmpty());
}

QHBoxLayout* PinLine::WithLetGo()
{
    letGo = new LetGoCommand(parentWidget());
    letGo->setVisible(!isHidden());
    QHBoxLayout* row = MakeRow({this, letGo.data()});
    row->setStretch(0, 1);
    return row;
}

void PinLine::paintEvent(QPaintEvent* event)
{
    ElidedLabel::paintEvent(event);
    QPainter painter(this);
    const int letter = fontMetrics().height();
    const int high = HeightOfRatingBar(fontMetrics());
    PaintGhost(painter, QRect(0, (height() - high) / 2, BarInLetters * letter, high), palette());
}

void LetGoByKey(QWidget& window)
{
    QObject::connect(new QShortcut(QKeySequence(LetGoKey), &window), &QShortcut::activated, &window,
                     [&window] { Announce(window, LetGoOfPinned()); });
}

void TellOfPin(QWidget& place, const QRect& anchor, const QString& outcome)
{
    QToolTip::showText(place.mapToGlobal(anchor.bottomLeft()), Qt::convertFromPlainText(outcome), &place);
    Announce(place, outcome);
}

} // namespace dravik
