#include "screens/lines/LineSheet.h"

#include "screens/panels/KeptPlace.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"

#include <QKeyEvent>
#include <QScreen>
#include <QStyle>

namespace dravik {

namespace {

constexpr auto NamePrefix = "Sheet.";
constexpr QSize UsualSize(1264, 740);
constexpr QSize WideSize(1780, 900);
constexpr int ListFrom = 1560; // the width from which the list of people stands beside the slots
constexpr int ListWidth = 300;
constexpr int Trio = 3;
constexpr int Duo = 2;

// Below the groups, one list a row.
struct SheetList {
    const char* Caption;
    LineField Field;
};
constexpr SheetList Lists[] = {{"Extra Forwards", LineField::ExtraForward},
                               {"Extra Defensemen", LineField::ExtraDefense},
                               {"Penalty Shots", LineField::PenaltyShot}};

} // namespace

// A tool window stays in front of its screen, and leaves the screen's keys alone.
LineSheet::LineSheet(QWidget* screen) : QWidget(screen, Qt::Tool), Parts(this, NamePrefix)
{
    setObjectName("LineSheet");
    setWindowTitle("Whole Line-Up");
    new KeptPlace(*this);
    lstPeople = new PickList(this);
    lstPeople->setObjectName(QString(NamePrefix) + "lstPeople");
    lstPeople->setAccessibleName("Players");
    lstPeople->setSelectionMode(QAbstractItemView::SingleSelection);
    lstPeople->setFixedWidth(ListWidth);
    lstPeople->hide();

    auto* groups = new QHBoxLayout;
    groups->setSpacing(2 * Margin);
    QVBoxLayout* lines = MakeGroups(0, 1, Trio);
    lines->addSpacing(Gap);
    lines->addLayout(MakeGoalies());
    groups->addLayout(lines, Trio);
    groups->addLayout(MakeGroups(1, 3, Trio), Trio);
    groups->addLayout(MakeGroups(3, BoardGroups().size(), Duo), Duo);
    auto* board = new QVBoxLayout;
    board->setSpacing(Gap);
    board->addLayout(groups, 1);
    board->addLayout(MakeLists());

    QVBoxLayout* column = MakeColumn(this);
    column->setContentsMargins(Margin, Gap, Margin, Gap);
    column->addLayout(MakeHeader());
    auto* body = new QHBoxLayout;
    body->setSpacing(Margin);
    body->addWidget(lstPeople);
    body->addLayout(board, 1);
    column->addLayout(body, 1);

    for (SlotLabel* label : Parts.Labels)
        label->installEventFilter(this);
    for (const BoardHeading& heading : Parts.Headings)
        for (const GroupMember& member : heading.Group->Group.Members)
            Parts.LabelOf(member.Field, heading.Number, member.Place)->Stack();
    ChainTabs(QList<QWidget*>{lstPeople} << Parts.Walk);
}

QLayout* LineSheet::MakeHeader()
{
    lblDay = MakeHeading({}, this);
    lblDay->setObjectName(QString(NamePrefix) + "lblDay");
    lblVerdict = new VerdictLabel(this);
    lblVerdict->setObjectName(QString(NamePrefix) + "lblVerdict");
    lblReasons = new ElidedLabel(this, ElidedLabel::Words::Muted);
    lblReasons->setObjectName(QString(NamePrefix) + "lblReasons");
    QHBoxLayout* header = MakeRow({lblDay, lblVerdict}, Margin);
    header->addWidget(lblReasons, 1);
    return header;
}

QVBoxLayout* LineSheet::MakeGroups(std::size_t first, std::size_t last, int across)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(Gap / 2);
    for (const BoardGroup& group : BoardGroups().subspan(first, last - first)) {
        if (column->count() > 0)
            column->addSpacing(Gap);
        column->addWidget(MakeHeading(QString(group.Page).remove('&'), this));
        for (int number = 1; number <= group.Group.Count; ++number)
            column->addWidget(Parts.MakeUnit(group, number, across), 1);
    }
    return column;
}

QLayout* LineSheet::MakeGoalies()
{
    auto* column = new QVBoxLayout;
    column->setSpacing(Gap / 2);
    column->addWidget(MakeHeading("Goalies", this));
    QHBoxLayout* row = MakeRow({});
    for (std::size_t index = 0; index < DaySlots.size(); ++index)
        if (DaySlots[index].IsGoalies())
            row->addWidget(Parts.Place(index), 1);
    column->addLayout(row);
    return column;
}

QLayout* LineSheet::MakeLists()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap);
    grid->setVerticalSpacing(Gap / 2);
    int row = 0;
    for (const SheetList& list : Lists) {
        grid->addWidget(MakeHeading(list.Caption, this), row, 0);
        for (int number = 1; number <= ListLength; ++number) {
            grid->addWidget(Parts.Place(list.Field, number), row, number);
            grid->setColumnStretch(number, 1);
        }
        ++row;
    }
    return grid;
}

void LineSheet::Open()
{
    if (!hasStood && !PutKept(*this))
        PlaceByProgram(*this, [this] { Stand(); });
    hasStood = true;
    show();
    raise();
    activateWindow();
    if (focusWidget() == nullptr)
        Parts.Labels.front()->setFocus(Qt::OtherFocusReason);
}

void LineSheet::Stand()
{
    const QRect area = parentWidget()->screen()->availableGeometry();
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    const QSize most = area.size() - QSize(0, title);
    resize((area.width() >= WideSize.width() ? WideSize : UsualSize).boundedTo(most));
    const QRect screen = parentWidget()->frameGeometry();
    if (screen.width() + UsualSize.width() <= area.width()) {
        // Beside the screen, which makes room where it stands in the middle.
        const int left = std::min(screen.left(), area.right() + 1 - UsualSize.width() - screen.width());
        PlaceByProgram(*parentWidget(), [&] { parentWidget()->move(left, screen.top()); });
        resize(std::min(width(), area.right() + 1 - left - screen.width()), height());
        move(left + screen.width(), screen.top());
        return;
    }
    move(area.topLeft() + QPoint((area.width() - width()) / 2, (area.height() - height() - title) / 2));
}

void LineSheet::Tell(const QString& game, const QString& verdict, bool isGood, const QString& reasons)
{
    lblDay->setText(game);
    lblVerdict->Tell(verdict, isGood);
    lblReasons->setText(QString(reasons).replace('\n', "  "));
    lblReasons->setToolTip(reasons);
}

void LineSheet::List(const PickList& people)
{
    const QSignalBlocker quiet(lstPeople);
    lstPeople->Empty();
    for (int row = 0; row < people.count(); ++row) {
        const QListWidgetItem* entry = people.item(row);
        lstPeople->Add(entry->text(), *NumberOf(entry), entry->data(entry::AsideRole).toStringList());
    }
    FollowChoice(people);
}

void LineSheet::FollowChoice(const PickList& people)
{
    const std::optional<int> chosen = NumberOf(people.Chosen());
    if (chosen == NumberOf(lstPeople->Chosen()))
        return;
    const QSignalBlocker quiet(lstPeople);
    lstPeople->Unchoose();
    lstPeople->Choose(chosen);
    lstPeople->viewport()->update();
}

void LineSheet::ChangeSides()
{
    if (!lstPeople->hasFocus() && lstPeople->isVisible())
        lstPeople->setFocus(Qt::ShortcutFocusReason);
    else
        (lastSlot != nullptr ? lastSlot.data() : Parts.Labels.front())->setFocus(Qt::ShortcutFocusReason);
}

bool LineSheet::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        lastSlot = qobject_cast<SlotLabel*>(watched);
    return QWidget::eventFilter(watched, event);
}

void LineSheet::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        emit LeaveAsked();
    else
        QWidget::keyPressEvent(event);
}

void LineSheet::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    lstPeople->setVisible(width() >= ListFrom);
}

} // namespace dravik
