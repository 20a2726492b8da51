#include "screens/squad/frmSquad.h"

#include "files/CsvFile.h"
#include "machine/Paths.h"
#include "machine/Reporting.h"
#include "screens/panels/Accessible.h"
#include "screens/panels/KeptPlace.h"
#include "screens/panels/TypedName.h"
#include "screens/panels/WhyClosed.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Dialogs.h"
#include "screens/Screen.h"
#include "screens/squad/SquadDock.h"
#include "screens/Stage.h"
#include "session/PinnedPeople.h"
#include "session/Session.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyle>
#include <QTextDocument>
#include <utility>

// What the squad table does: whom it shows, and what can be done with them.
namespace dravik {

namespace {

constexpr QSize UsualSize(1240, 720);
constexpr int LeastRoomBeside = 760; // a window narrower than that shows too little to stand beside another

constexpr int LeagueRole = Qt::UserRole + 1; // of the first entry of the teams: the code of their league

constexpr const char* Captions[] = {"Skaters", "Goalies", "Prospects"};

constexpr const char* Hint =
    "Ratings as the league shows them. Where somebody stands, his slots and flags are shown for your own "
    "team, while its screens are open.";

std::optional<int> ValueOf(const QSpinBox* box)
{
    return box->value() == box->minimum() ? std::nullopt : std::optional(box->value());
}

// One cell of a copied table.
QString Cell(const std::string& words)
{
    QString cell = ToQString(words);
    for (QChar& letter : cell)
        if (letter == '\t' || letter == '\n' || letter == '\r')
            letter = ' ';
    return cell;
}

} // namespace

SquadTable& frmSquad::Table() const { return *tables.at(static_cast<std::size_t>(tabKind->currentIndex())); }

SquadSight frmSquad::Sight() const
{
    return {.League = &OpenLeague,
            .Shown = &Machine(),
            .Proved = owner.ProvedTeam(),
            .Asking = static_cast<int>(CurrentTeam)};
}

void frmSquad::StandBeside(const QRect& front)
{
    const QRect area = screen()->availableGeometry();
    const int frame = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    const QRect right(front.right() + 1, area.top() + frame, area.right() - front.right(), area.height() - frame);
    if (right.width() >= LeastRoomBeside) {
        const QSize size = UsualSize.boundedTo(right.size());
        setGeometry(
            QRect(QPoint(right.left(), std::clamp(front.top(), right.top(), right.bottom() - size.height())), size));
    } else {
        resize(UsualSize.boundedTo(area.size() - QSize(0, frame)));
        move(area.center() - rect().center());
    }
}

void frmSquad::Open(const QRect& front)
{
    if (!isVisible()) {
        Restore();
        if (!PutKept(*this))
            PlaceByProgram(*this, [&] { StandBeside(front); });
    }
    isStale.fill(true);
    lblTold->setText(Hint);
    show();
    raise();
    activateWindow();
    ShowAnew();
    dock->Arrange();
    txtName->setFocus(Qt::OtherFocusReason);
    txtName->selectAll();
}

void frmSquad::ShowAnew()
{
    isStale.fill(true);
    if (!isVisible())
        return;
    RunEvent("frmSquad", [this] {
        ListTeams();
        ShowFilters();
        filter = TypedFilter();
        LookAtTable();
    });
}

void frmSquad::LookAtTable()
{
    const auto at = static_cast<std::size_t>(tabKind->currentIndex());
    if (std::exchange(isStale[at], false))
        Table().Look(Sight(), filter, TypedName(txtName->text()));
    stack->setCurrentWidget(&Table());
    ShowComparison();
    ShowCounts();
    ShowCommands();
}

void frmSquad::ListTeams()
{
    QList<std::pair<QString, int>> teams;
    for (int number = TeamTable::first; number <= TeamTable::last; ++number)
        if (Teams[number].InUse)
            teams.emplaceBack(ToQString(Teams[number].Name.Trimmed()), number);
    std::sort(teams.begin(), teams.end(), [](const auto& left, const auto& right) {
        const int order = QString::localeAwareCompare(left.first, right.first);
        return order != 0 ? order < 0 : left.second < right.second;
    });
    const QVariant chosen = cboTeam->currentData();
    const QString chosenName = cboTeam->currentText();
    const QString league = ToQString(LeagueData.LeagueCode.Raw());
    const bool isSameLeague = cboTeam->count() > 0 && cboTeam->itemData(0, LeagueRole).toString() == league;
    const QSignalBlocker quiet(cboTeam);
    cboTeam->clear();
    cboTeam->addItem("Whole league");
    cboTeam->setItemData(0, league, LeagueRole);
    cboTeam->addItem("Without a team", SquadFilter::WithoutTeam);
    for (const auto& [name, number] : teams)
        cboTeam->addItem(name, number);
    // A team may have got another name meanwhile, and in another league its number is another team's.
    const bool isByNumber = isSameLeague || chosen.toInt() == SquadFilter::WithoutTeam;
    const int row = !chosen.isValid() ? 0
                    : isByNumber      ? cboTeam->findData(chosen)
                                      : cboTeam->findText(chosenName, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    cboTeam->setCurrentIndex(std::max(0, row));
}

// What does not apply to the table in front is closed, and says why.
void frmSquad::ShowFilters()
{
    const SquadKind kind = Table().People().Kind();
    const bool isPeople = kind != SquadKind::Prospects;
    const bool isProved = owner.ProvedTeam() != 0;
    for (QWidget* part : std::initializer_list<QWidget*>{cboTeam, spnAgeFrom, spnAgeTo, spnOverall, spnContract,
                                                         chkMayBeAsked, cmdShowAll})
        part->setEnabled(isPeople);
    for (QCheckBox* box : chkPosition)
        box->setEnabled(kind == SquadKind::Skaters);
    for (QObject* part : {spnOverall->property("caption").value<QObject*>(), static_cast<QObject*>(spnOverall)})
        static_cast<QWidget*>(part)->setVisible(static_cast<bool>(LeagueData.ShowOverall));
    if (!isProved) {
        const QSignalBlocker quiet(cboStands);
        cboStands->setCurrentIndex(0);
    }
    cboStands->setEnabled(isPeople && isProved);
}

SquadFilter frmSquad::TypedFilter() const
{
    SquadFilter typed;
    if (const QVariant team = cboTeam->currentData(); team.isValid())
        typed.Team = team.toInt();
    for (std::size_t at = 0; at < chkPosition.size(); ++at)
        typed.Positions[at] = chkPosition[at]->isChecked();
    if (const QVariant standing = cboStands->currentData(); standing.isValid())
        typed.Status = standing.toInt();
    typed.AgeFrom = ValueOf(spnAgeFrom);
    typed.AgeTo = ValueOf(spnAgeTo);
    typed.OverallFrom = ValueOf(spnOverall);
    typed.ContractTo = ValueOf(spnContract);
    typed.MayBeAsked = chkMayBeAsked->isChecked();
    return typed;
}

void frmSquad::tabKind_Changed(int /*index*/)
{
    lblTold->setText(Hint);
    ShowFilters();
    LookAtTable();
}

void frmSquad::txtName_Changed()
{
    const std::string typed = TypedName(txtName->text());
    for (std::size_t at = 0; at < tables.size(); ++at)
        isStale[at] = isStale[at] || tables[at] != &Table();
    Table().SetTyped(typed);
    ShowCounts();
    ShowCommands();
    Announce(*txtName, lblFound->text());
}

void frmSquad::Filter_Changed()
{
    filter = TypedFilter();
    for (std::size_t at = 0; at < tables.size(); ++at)
        isStale[at] = isStale[at] || tables[at] != &Table();
    Table().SetFilter(filter);
    ShowCounts();
    ShowCommands();
}

void frmSquad::cmdShowAll_Click()
{
    {
        const QSignalBlocker team(cboTeam), stands(cboStands), asked(chkMayBeAsked);
        cboTeam->setCurrentIndex(0);
        cboStands->setCurrentIndex(0);
        chkMayBeAsked->setChecked(false);
        for (QCheckBox* box : chkPosition) {
            const QSignalBlocker quiet(box);
            box->setChecked(true);
        }
        for (QSpinBox* box : {spnAgeFrom, spnAgeTo, spnOverall, spnContract}) {
            const QSignalBlocker quiet(box);
            box->setValue(box->minimum());
        }
    }
    Filter_Changed();
}

void frmSquad::ShowCounts()
{
    const QLocale locale;
    for (int at = 0; at < tabKind->count(); ++at)
        tabKind->setTabText(at,
                            QString("%1 %2").arg(Captions[at], locale.toString(CountOf(OpenLeague, SquadKinds[at]))));
    const int shown = Table().People().rowCount();
    lblFound->setText(QString("%1 of %2").arg(locale.toString(shown), locale.toString(Table().People().People())));
    lblEmpty->setText(Table().People().People() == 0 ? "There is nobody here."
                      : shown == 0                   ? "Nobody has that name and passes the filters."
                                                     : QString());
    lblEmpty->setVisible(shown == 0);
}

void frmSquad::ShowCommands()
{
    const std::optional<SquadPerson> current = Table().Current();
    const bool isPerson = current && current->Kind != SquadKind::Prospects;
    cmdShowPlayer->setEnabled(isPerson);
    cmdPin->setEnabled(isPerson);
    cmdPin->setText(current && Table().People().IsPinned(*current) ? "Unpi&n" : "Pi&n");
    cmdPick->setText(ToQString(owner.PickCaption()));
    cmdPick->setVisible(!cmdPick->text().isEmpty());
    cmdPick->setEnabled(current && owner.Lists(CommonIdOf(*current)));
    for (QPushButton* command : {cmdCopy, cmdSaveCsv})
        command->setEnabled(Table().People().rowCount() > 0);
}

void frmSquad::Choose()
{
    if (cmdPick->isEnabled() && !cmdPick->isHidden())
        cmdPick_Click();
    else if (cmdShowPlayer->isEnabled())
        cmdShowPlayer_Click();
}

void frmSquad::cmdShowPlayer_Click()
{
    if (const auto current = Table().Current(); current && current->Kind != SquadKind::Prospects)
        owner.ShowRecord(current->Id());
}

void frmSquad::cmdPick_Click()
{
    if (const auto current = Table().Current())
        owner.Pick(CommonIdOf(*current));
}

void frmSquad::cmdPin_Click()
{
    if (const auto current = Table().Current(); current && current->Kind != SquadKind::Prospects)
        Tell(TogglePin(current->Id()));
}

void frmSquad::cmdLetGo_Click()
{
    Tell(LetGoOfPinned());
    Table().setFocus(Qt::OtherFocusReason);
}

void frmSquad::ShowPins()
{
    for (SquadTable* table : tables)
        table->People().TellOfPins();
    ShowComparison();
    ShowCommands();
}

void frmSquad::ShowComparison()
{
    const SquadKind kind = Table().People().Kind();
    std::vector<SquadPerson> pinned;
    if (kind != SquadKind::Prospects)
        for (const PersonId who : OpenPins().Of(OpenLeague, kind == SquadKind::Goalies))
            pinned.push_back({.Kind = kind, .Slot = who.Slot});
    Comparison->setVisible(!pinned.empty());
    lblCompare->setText(pinned.size() < 2 ? "Pin another one to compare them."
                                          : "Differences are to the one pinned first.");
    tblCompare->Compare(Sight(), pinned);
}

QString frmSquad::InText() const
{
    const SquadTable& table = Table();
    const SquadModel& people = table.People();
    const std::vector<int> columns = table.ShownColumns();
    QStringList lines;
    QStringList cells;
    for (const int column : columns)
        cells << ToQString(people.Columns()[static_cast<std::size_t>(column)].Caption);
    lines << cells.join('\t');
    for (const int row : table.RowsToCopy()) {
        cells.clear();
        for (const int column : columns)
            cells << Cell(FromQStringLossless(people.index(row, column).data().toString()));
        lines << cells.join('\t');
    }
    return lines.join('\n') + '\n';
}

void frmSquad::cmdCopy_Click()
{
    QApplication::clipboard()->setText(InText());
    Tell(QString("%1 rows copied.").arg(QLocale().toString(static_cast<int>(Table().RowsToCopy().size()))));
}

void frmSquad::cmdSaveCsv_Click()
{
    const SquadTable& table = Table();
    const SquadModel& people = table.People();
    const auto file =
        AskForFileToSave(PathToDesktop(Machine().ProgramFolder()), QString(Captions[tabKind->currentIndex()]) + ".csv",
                         "Comma-separated file (*.csv)|*.csv|All Files (*.*)|*.*", "csv");
    if (!file)
        return;
    Reporting(Machine(), " in cmdSaveCsv!", [&] {
        const std::string path = PathToProgram(*file);
        CsvFile written(Machine(), path);
        CsvRow heading;
        for (const int column : table.ShownColumns())
            heading << people.Columns()[static_cast<std::size_t>(column)].Caption;
        written.Add(heading);
        for (int row = 0; row < people.rowCount(); ++row) {
            CsvRow cells;
            for (const int column : table.ShownColumns())
                cells << people.PlainText(row, column);
            written.Add(cells);
        }
        written.Close();
        Tell(QString("%1 rows saved to %2.").arg(QLocale().toString(people.rowCount()), *file));
    });
}

void frmSquad::Tell(const QString& words)
{
    lblTold->setText(words);
    Announce(*lblTold, words);
}

void frmSquad::FillColumnMenu()
{
    mnuColumns->clear();
    SquadTable& table = Table();
    const std::vector<SquadColumn>& columns = table.People().Columns();
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        const SquadColumn& shown = columns[static_cast<std::size_t>(column)];
        const std::string_view meaning = shown.Meaning.substr(0, shown.Meaning.find(':'));
        QString words = ToQString(shown.Caption);
        if (meaning != shown.Caption)
            words += " - " + ToQString(meaning);
        QAction* item = mnuColumns->addAction(words.replace('&', "&&"));
        item->setObjectName("mnuColumn(" + ToQString(shown.Key) + ")");
        item->setCheckable(true);
        item->setChecked(!table.isColumnHidden(column));
        // The last one stays, or there would be no table.
        item->setEnabled(!item->isChecked() || table.ShownColumns().size() > 1);
        TellWhyClosed(item, [] { return QString("The last column stays."); });
        connect(item, &QAction::toggled, this, [&table, column](bool shows) { table.SetShown(column, shows); });
    }
    mnuColumns->addSeparator();
    QAction* item = mnuColumns->addAction("As at First");
    item->setObjectName("mnuColumnsAtFirst");
    connect(item, &QAction::triggered, this, [&table] { table.ShowFirstColumns(); });
}

void frmSquad::TurnTab(int by)
{
    tabKind->setCurrentIndex((tabKind->currentIndex() + by + tabKind->count()) % tabKind->count());
}

// Esc takes back what was typed, and without that the window.
void frmSquad::Leave()
{
    if (txtName->text().isEmpty())
        close();
    else
        txtName->clear();
}

void frmSquad::hideEvent(QHideEvent* event)
{
    QMainWindow::hideEvent(event);
    if (!event->spontaneous())
        RunEvent("frmSquad", [this] { Keep(); });
}

// From the box of names the arrows go on into the table.
bool frmSquad::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == txtName && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Down:
        case Qt::Key_Up:
        case Qt::Key_PageDown:
        case Qt::Key_PageUp:
            Table().setFocus(Qt::OtherFocusReason);
            QApplication::sendEvent(&Table(), event);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            RunEvent("frmSquad", [this] { Choose(); });
            return true;
        default:
            break;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace dravik
