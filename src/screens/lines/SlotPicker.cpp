#include "screens/lines/SlotPicker.h"

#include "league/NameMatch.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/WhyClosed.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Palettes.h"

#include <algorithm>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace dravik {

namespace {

constexpr int LeastWidth = 300;
constexpr int RowsShown = 9;
constexpr double FramePart = 0.5; // how much of the words is in the edge

} // namespace

SlotPicker::SlotPicker(QWidget* screen) : QFrame(screen)
{
    setObjectName("Picker");
    setAutoFillBackground(true);
    setFocusPolicy(Qt::NoFocus);
    lblSlot = MakeHeading({}, this);
    lblSlot->setObjectName("lblSlot");
    txtName = new QLineEdit(this);
    txtName->setObjectName("txtName");
    txtName->setAccessibleName("Part of a name");
    txtName->setPlaceholderText("Type a part of a name");
    lstPick = new EntryList(this);
    lstPick->setObjectName("lstPick");
    lstPick->setAccessibleName("Who may stand there");
    lstPick->setFocusPolicy(Qt::NoFocus); // what is typed goes on to be the name
    new EntrySigns(lstPick, [this](int row) { return rows.value(row).Signs; });
    lblNobody = new MutedLabel("Nobody of that name may stand there", this);
    lblNobody->setObjectName("lblNobody");
    cmdShowPlayer = new QPushButton("Show Player", this);
    cmdShowPlayer->setObjectName("cmdShowPlayer");
    cmdShowPlayer->setToolTip("Shows him without placing him (Shift+Enter)");
    TellWhyClosed({cmdShowPlayer}, "Nobody who may stand there has that name.");
    auto* hint = new MutedLabel("Enter places", this);

    QVBoxLayout* column = MakeColumn(this, Gap / 2);
    column->setContentsMargins(Gap, Gap, Gap, Gap);
    for (QWidget* part : std::initializer_list<QWidget*>{lblSlot, txtName, lstPick, lblNobody})
        column->addWidget(part);
    QHBoxLayout* foot = MakeRow({hint});
    foot->addStretch(1);
    foot->addWidget(cmdShowPlayer);
    column->addLayout(foot);

    connect(txtName, &QLineEdit::textChanged, this, &SlotPicker::Filter);
    connect(lstPick, &QListWidget::itemClicked, this, &SlotPicker::Place);
    connect(cmdShowPlayer, &QPushButton::clicked, this, &SlotPicker::Look);
    txtName->installEventFilter(this);
    cmdShowPlayer->installEventFilter(this);
    // Whoever goes on elsewhere has no use for it.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*old*/, const QWidget* now) {
        if (IsOpen() && now != nullptr && !isAncestorOf(now))
            hide();
    });
    hide();
}

void SlotPicker::OpenAt(SlotLabel& slot, const QList<PickRow>& people, int at, const QString& typed)
{
    anchor = &slot;
    rows = people;
    MutePlaceholder(*txtName);
    lblSlot->setText(slot.Where());
    {
        const QSignalBlocker quiet(txtName);
        txtName->setText(typed);
    }
    Filter();
    if (typed.isEmpty() && at >= 0)
        lstPick->setCurrentRow(at);
    Stand();
    show();
    raise();
    txtName->setFocus(Qt::PopupFocusReason);
    txtName->setCursorPosition(static_cast<int>(typed.size()));
}

// Below the slot, or above it where there is more room, and never outside the window.
void SlotPicker::Stand()
{
    const QWidget* window = parentWidget();
    const int widest = std::max({LeastWidth, lstPick->WidthOfWidestEntry() + 2 * Gap, anchor->width()});
    const int row = std::max(lstPick->sizeHintForRow(0), fontMetrics().height());
    lstPick->setFixedHeight(std::clamp(static_cast<int>(rows.size()), 1, RowsShown) * row + 2 * lstPick->frameWidth());
    resize(std::min(widest, window->width() - 2 * Gap), sizeHint().height());
    const QPoint corner = anchor->mapTo(window, QPoint(0, anchor->height()));
    const int above = anchor->mapTo(window, QPoint(0, 0)).y() - height();
    const int x = std::clamp(corner.x(), Gap, std::max(Gap, window->width() - width() - Gap));
    const int lowest = window->height() - height() - Gap;
    const int y = corner.y() <= lowest || above < Gap ? std::max(Gap, std::min(corner.y(), lowest)) : above;
    move(x, y);
}

void SlotPicker::Close()
{
    const QPointer<SlotLabel> slot = anchor;
    hide();
    if (slot != nullptr)
        slot->setFocus(Qt::PopupFocusReason);
}

void SlotPicker::Filter()
{
    const NameMatch sought(FromQString(txtName->text()));
    lstPick->clear();
    for (const bool beginsWord : {true, false})
        for (int row = 0; row < rows.size(); ++row)
            if (const auto part = sought.In(FromQString(rows[row].Name));
                part && (part->BeginsWord || txtName->text().isEmpty()) == beginsWord)
                lstPick->Add(rows[row].Name, row, rows[row].Aside);
    const bool isAnybody = lstPick->count() > 0;
    lblNobody->setVisible(!isAnybody);
    lstPick->setVisible(isAnybody);
    cmdShowPlayer->setEnabled(isAnybody);
    if (isAnybody)
        lstPick->setCurrentRow(0);
}

// It lies on what stands behind it, so its edge is seen on every ground.
void SlotPicker::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(Mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), FramePart));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

int SlotPicker::ChosenRow() const { return NumberOf(lstPick->currentItem()).value_or(-1); }

void SlotPicker::Place()
{
    const int row = ChosenRow();
    if (row < 0)
        return;
    Close();
    emit Placed(row);
}

void SlotPicker::Look()
{
    const int row = ChosenRow();
    if (row < 0)
        return;
    Close();
    emit Looked(row);
}

// The tab key stays within.
bool SlotPicker::focusNextPrevChild(bool /*next*/)
{
    (txtName->hasFocus() && cmdShowPlayer->isEnabled() ? static_cast<QWidget*>(cmdShowPlayer) : txtName)
        ->setFocus(Qt::TabFocusReason);
    return true;
}

bool SlotPicker::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Escape:
        Close();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (watched == cmdShowPlayer || key->modifiers() == Qt::ShiftModifier)
            Look();
        else
            Place();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QApplication::sendEvent(lstPick, event);
        return true;
    default:
        return QFrame::eventFilter(watched, event);
    }
}

} // namespace dravik
