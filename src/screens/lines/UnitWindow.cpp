#include "screens/lines/UnitWindow.h"

#include "machine/Voice.h"
#include "rules/LineStrength.h"
#include "rules/Overall.h"
#include "screens/ElementName.h"
#include "screens/panels/CompareCells.h"
#include "screens/panels/DayStrip.h"
#include "screens/panels/GhostWords.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/Screen.h"
#include "session/Session.h"

#include <algorithm>
#include <cstdlib>
#include <QAction>
#include <QHeaderView>
#include <QSignalBlocker>
#include <utility>

namespace dravik {

namespace {

constexpr QSize UsualSize(1220, 330);
constexpr int RowPadding = 10; // above and below the text of a row together
constexpr int SideMargin = 4;
constexpr QChar Nothing(u'\u2013');

// A figure of a unit, with what it is of.
struct Figure {
    QString Caption;
    QString Meaning;
    std::optional<int> Value;
};

// The mean overalls of a normal line's forwards and of its pair, as the strength of the days counts them.
void AddStrengths(QList<Figure>& figures, const Lines& lines, int number)
{
    const LineStrength strength = StrengthOfLines(OpenLeague, lines);
    for (std::size_t place = 0; place < StrengthPlaces.size(); ++place)
        if (StrengthPlaces[place].Number == number && StrengthPlaces[place].Kind != StrengthOf::Goalie) {
            const bool isPair = StrengthPlaces[place].Kind == StrengthOf::Pair;
            figures << Figure{isPair ? "Pair" : "Fwd",
                              isPair ? "Mean overall of the pair" : "Mean overall of the forwards", strength[place]};
        }
}

bool HasEmptySlot(const Lines& lines, const LineGroup& group, int number)
{
    return std::any_of(group.Members.begin(), group.Members.end(), [&](const GroupMember& member) {
        return At(lines, SlotOf(member.Field, number, member.Place)) == 0;
    });
}

// Whether everybody in it has an overall; of others the board tells no average either.
bool HasOverall(const Lines& lines, const LineGroup& group, int number)
{
    return std::all_of(group.Members.begin(), group.Members.end(), [&](const GroupMember& member) {
        const long long id = At(lines, SlotOf(member.Field, number, member.Place));
        return PlayerTable::Has(id) && !OverallOf(PersonIn<Player>(static_cast<int>(id))).isEmpty();
    });
}

// All figures of a unit; none where a slot holds a number outside the table.
QList<Figure> FiguresOf(const Lines& lines, const BoardGroup& group, int number)
{
    QList<Figure> figures;
    try {
        MuteVoice mute;
        const GroupAverages averages = AveragesOf(OpenLeague, mute, lines, group.Group, number);
        const StatRows rows =
            SkaterStatRows(LeagueData, averages.Ratings, static_cast<int>(PlayerStatCount), averages.Overall);
        const bool isWhole = HasOverall(lines, group.Group, number);
        if (rows.OverallRow)
            figures << Figure{ToQString(rows.OverallRow->Label), "Average overall",
                              isWhole ? std::optional(rows.OverallRow->Value) : std::nullopt};
        if (rows.OverallRow && &group.Group == &NormalLines)
            AddStrengths(figures, lines, number);
        for (const StatRow& row : rows.Ratings)
            figures << Figure{ToQString(row.Label), "Average " + ToQString(row.Label), row.Value};
    } catch (const Failure&) {
        figures.clear();
    }
    return figures;
}

} // namespace

UnitWindow::UnitWindow(QWidget* screen, Side ofSide, std::function<int()> shownDay) :
    LookWindow(screen, Name, UsualSize), side(ofSide), dayAtHand(std::move(shownDay))
{
    setWindowTitle("Compare Lines");
    const auto changed = [this] { RunEvent("CompareLines", [this] { ShowAnew(); }); };
    QHBoxLayout* choice = MakeRow({});
    constexpr const char* captions[] = {"Compare", "with"};
    for (std::size_t which = 0; which < cboUnit.size(); ++which) {
        const QString ordinal = which == 0 ? "First" : "Second";
        cboUnit[which] = new QComboBox(this);
        cboUnit[which]->setObjectName(ElementName("cboUnit", static_cast<int>(which)));
        cboUnit[which]->setAccessibleName(ordinal + " line or unit");
        for (std::size_t group = 0; group < BoardGroups().size(); ++group)
            for (int number = 1; number <= BoardGroups()[group].Group.Count; ++number) {
                const BoardGroup& shown = BoardGroups()[group];
                cboUnit[which]->addItem(ToQString(shown.Prefix) + QString("%1 %2").arg(shown.Caption).arg(number),
                                        QPoint(static_cast<int>(group), number));
            }
        cboDay[which] = new QComboBox(this);
        cboDay[which]->setObjectName(ElementName("cboDay", static_cast<int>(which)));
        cboDay[which]->setAccessibleName(ordinal + " day");
        for (int day = 1; day <= DayStrip::Days; ++day)
            cboDay[which]->addItem(QString("Day %1").arg(day), day);
        for (QComboBox* box : {cboUnit[which], cboDay[which]})
            connect(box, &QComboBox::currentIndexChanged, this, changed);
        auto* words = new MutedLabel(captions[which], this);
        words->setBuddy(cboUnit[which]);
        for (QWidget* part : std::initializer_list<QWidget*>{words, cboUnit[which], cboDay[which]})
            choice->addWidget(part);
        choice->addSpacing(Gap);
    }
    choice->addStretch(1);

    tblAverages = new QTableWidget(this);
    tblAverages->setObjectName("tblAverages");
    tblAverages->setAccessibleName("Averages");
    tblAverages->setItemDelegate(new CompareDelegate(tblAverages));
    tblAverages->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tblAverages->setSelectionMode(QAbstractItemView::NoSelection);
    tblAverages->setShowGrid(false);
    tblAverages->setWordWrap(false);
    tblAverages->setTabKeyNavigation(false);
    tblAverages->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    tblAverages->verticalHeader()->hide();
    tblAverages->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    tblAverages->horizontalHeader()->setHighlightSections(false);
    tblAverages->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    tblAverages->horizontalHeader()->setMinimumSectionSize(fontMetrics().horizontalAdvance("00 +00") + 2 * SideMargin +
                                                           2);
    lblNote = new MutedLabel(this);
    lblNote->setObjectName("lblNote");
    QList<TableColumn> columns{{.Caption = "First", .IsNumber = false, .GivesWay = true}};
    if (LeagueData.ShowOverall)
        columns << TableColumn{.Caption = "OV"};
    columns << TableColumn{.Caption = "Second", .IsNumber = false, .GivesWay = true};
    if (LeagueData.ShowOverall)
        columns << TableColumn{.Caption = "OV"} << TableColumn{.Caption = "+/" + QString(QChar(0x2212))};
    tblPeople = new FigureTable(columns, this);
    tblPeople->setObjectName("tblPeople");
    tblPeople->setAccessibleName("People");

    QVBoxLayout* column = MakeColumn(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->addLayout(choice);
    column->addWidget(tblAverages);
    column->addWidget(lblNote);
    column->addWidget(tblPeople, 1);
    ChainTabs({cboUnit[0], cboDay[0], cboUnit[1], cboDay[1], tblAverages, tblPeople});
}

UnitWindow& UnitWindow::Of(QWidget* screen, Side side, const std::function<int()>& shownDay)
{
    auto* window = screen->findChild<UnitWindow*>(Name, Qt::FindDirectChildrenOnly);
    return window != nullptr ? *window : *new UnitWindow(screen, side, shownDay);
}

void UnitWindow::Offer(const BoardHeading& heading, const std::function<void()>& compare)
{
    auto* item = new QAction("Compare With ...", heading.Label);
    item->setObjectName("mnuCompareUnits");
    heading.Label->addAction(item);
    heading.Label->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(item, &QAction::triggered, heading.Label, compare);
}

UnitWindow* UnitWindow::On(const QWidget& screen)
{
    auto* window = screen.findChild<UnitWindow*>(Name, Qt::FindDirectChildrenOnly);
    return window != nullptr && window->isVisible() ? window : nullptr;
}

void UnitWindow::Compare(const BoardHeading& heading)
{
    const auto group = static_cast<int>(heading.Group - BoardGroups().data());
    {
        const QSignalBlocker unit0(cboUnit[0]), unit1(cboUnit[1]), day0(cboDay[0]), day1(cboDay[1]);
        const int first = cboUnit[0]->findData(QPoint(group, heading.Number));
        cboUnit[0]->setCurrentIndex(first);
        const bool stays = isVisible() && cboUnit[1]->currentIndex() != first;
        if (!stays) {
            cboUnit[1]->setCurrentIndex(
                cboUnit[1]->findData(QPoint(group, heading.Number % heading.Group->Group.Count + 1)));
            cboDay[1]->setCurrentIndex(dayAtHand() - 1);
        }
        cboDay[0]->setCurrentIndex(dayAtHand() - 1);
    }
    Open();
    cboUnit[1]->setFocus(Qt::OtherFocusReason);
}

UnitWindow::Unit UnitWindow::UnitAt(std::size_t which) const
{
    const QPoint chosen = cboUnit[which]->currentData().toPoint();
    return {&BoardGroups()[static_cast<std::size_t>(chosen.x())], chosen.y(), cboDay[which]->currentIndex() + 1};
}

const Lines& UnitWindow::LinesOn(int day) const { return LinesOf(OpenLeague, OwnNumber(), day, side); }

QString UnitWindow::NameOf(const Unit& unit) const
{
    return ToQString(unit.Group->Prefix) +
           QString("%1 %2, day %3").arg(unit.Group->Caption).arg(unit.Number).arg(unit.Day);
}

void UnitWindow::ShowAnew()
{
    if (!HasLineDay(OwnNumber(), 1))
        return;
    const Unit first = UnitAt(0);
    const Unit second = UnitAt(1);
    ShowAverages(first, second);
    ShowPeople(first, second);
    QStringList empty;
    for (const Unit& unit : {first, second})
        if (HasEmptySlot(LinesOn(unit.Day), unit.Group->Group, unit.Number))
            empty << NameOf(unit);
    empty.removeDuplicates();
    lblNote->setText(empty.isEmpty()
                         ? "Differences are to the first."
                         : "Differences are to the first. Not full, an empty slot counts 0: " + empty.join("; "));
}

// The first column names the two; the figures are those of the sort that has more of them, and of both where they have them.
void UnitWindow::ShowAverages(const Unit& first, const Unit& second)
{
    const Unit units[] = {first, second};
    QList<Figure> figures[] = {FiguresOf(LinesOn(first.Day), *first.Group, first.Number),
                               FiguresOf(LinesOn(second.Day), *second.Group, second.Number)};
    const QList<Figure>& all = figures[0].size() >= figures[1].size() ? figures[0] : figures[1];
    tblAverages->clear();
    tblAverages->setRowCount(2);
    tblAverages->setColumnCount(static_cast<int>(all.size()) + 1);
    QStringList captions{"Line or unit"};
    for (const Figure& figure : all)
        captions << figure.Caption;
    tblAverages->setHorizontalHeaderLabels(captions);
    for (int row = 0; row < 2; ++row) {
        auto* name = new QTableWidgetItem(NameOf(units[row]));
        name->setToolTip(NameOf(units[row]).toHtmlEscaped());
        tblAverages->setItem(row, 0, name);
        for (int column = 1; column <= all.size(); ++column) {
            const QString& caption = all[column - 1].Caption;
            const auto of = [&caption](const QList<Figure>& those) -> std::optional<int> {
                for (const Figure& figure : those)
                    if (figure.Caption == caption)
                        return figure.Value;
                return std::nullopt;
            };
            const std::optional<int> own = of(figures[row]);
            const std::optional<int> other = of(figures[0]);
            auto* cell = new QTableWidgetItem(own ? QString::number(*own) : QString(Nothing));
            QString spoken = all[column - 1].Meaning + ": " + (own ? QString::number(*own) : QString("none"));
            if (own)
                cell->setData(compare::NumberRole, *own);
            if (row == 1 && own && other) {
                const int difference = *own - *other;
                cell->setData(compare::DifferenceRole, SignedText(difference));
                spoken += difference == 0 ? QString(", the same as the first")
                                          : QString(", %1 %2 than the first")
                                                .arg(std::abs(difference))
                                                .arg(difference > 0 ? "more" : "less");
            }
            cell->setData(Qt::AccessibleTextRole, spoken);
            cell->setToolTip(spoken);
            tblAverages->setItem(row, column, cell);
        }
    }
    for (int column = 0; column < tblAverages->columnCount(); ++column)
        if (auto* head = tblAverages->horizontalHeaderItem(column); head != nullptr && column > 0)
            head->setToolTip(all[column - 1].Meaning);
    QHeaderView* heading = tblAverages->horizontalHeader();
    heading->setSectionResizeMode(QHeaderView::Stretch);
    int widest = 0;
    for (const Unit& unit : units)
        widest = std::max(widest, fontMetrics().horizontalAdvance(NameOf(unit)));
    heading->setSectionResizeMode(0, QHeaderView::Fixed);
    heading->resizeSection(0, widest + 2 * SideMargin + Gap);
    tblAverages->setFixedHeight(heading->sizeHint().height() + 2 * tblAverages->verticalHeader()->defaultSectionSize() +
                                2 * tblAverages->frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

void UnitWindow::ShowPeople(const Unit& first, const Unit& second)
{
    const auto cellsOf = [this](const Unit& unit, std::size_t place) -> std::pair<QString, QString> {
        const auto members = unit.Group->Group.Members;
        if (place >= members.size())
            return {};
        const DaySlot slot{.Rule = Takes::Skater,
                           .Word = SlotOf(members[place].Field, unit.Number, members[place].Place).Word};
        const long long id = At(LinesOn(unit.Day), slot);
        if (id == 0 || !PlayerTable::Has(id))
            return {"empty", {}};
        const PersonId who = PersonIn<Player>(static_cast<int>(id));
        return {AsideOf(who).front() + "  " + dravik::NameOf(who), OverallOf(who)};
    };
    QList<QStringList> rows;
    const std::size_t places = std::max(first.Group->Group.Members.size(), second.Group->Group.Members.size());
    for (std::size_t place = 0; place < places; ++place) {
        const auto [left, leftOverall] = cellsOf(first, place);
        const auto [right, rightOverall] = cellsOf(second, place);
        if (!LeagueData.ShowOverall) {
            rows << QStringList{left, right};
            continue;
        }
        const bool areBoth = !leftOverall.isEmpty() && !rightOverall.isEmpty();
        rows << QStringList{left, leftOverall, right, rightOverall,
                            areBoth ? SignedText(rightOverall.toInt() - leftOverall.toInt()) : QString()};
    }
    tblPeople->Show(rows);
}

} // namespace dravik
