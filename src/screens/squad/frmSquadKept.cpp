#include "screens/platform/CodePage.h"
#include "screens/Remembered.h"
#include "screens/squad/frmSquad.h"
#include "screens/squad/SquadDock.h"
#include "session/Session.h"

#include <QSignalBlocker>

// What the squad table remembers from one run to the next: columns, what it is sorted by, filters, and whether it is docked.
namespace dravik {

namespace {

// The names in what is remembered.
constexpr const char* ColumnKeys[] = {"SquadSkaters", "SquadGoalies", "SquadProspects"};
constexpr const char* SortKeys[] = {"SquadSkatersSort", "SquadGoaliesSort", "SquadProspectsSort"};
constexpr const char* FilterKey = "SquadFilters";
constexpr const char* OneTeamKey = "SquadTeam"; // by its name, since numbers are others in another league
constexpr const char* DockKey = "SquadDocked";
constexpr const char* NoTeam = "-"; // no team is called so

// The boxes of numbers by the word that stands for each.
template <class Squad>
auto NumberBoxes(const Squad& squad)
{
    return std::array{std::pair("AgeFrom", squad.spnAgeFrom), std::pair("AgeTo", squad.spnAgeTo),
                      std::pair("Overall", squad.spnOverall), std::pair("Contract", squad.spnContract)};
}

} // namespace

void frmSquad::Restore()
{
    for (std::size_t at = 0; at < tables.size(); ++at)
        tables[at]->Arrange(Remembered(ColumnKeys[at]));
    // What cannot be kept stays as it is as long as the program runs.
    if (std::exchange(hasStood, true))
        return;
    for (std::size_t at = 0; at < tables.size(); ++at)
        tables[at]->People().SortAs(Remembered(SortKeys[at]));
    ListTeams();
    ShowFilters();
    RestoreFilters();
    const QSignalBlocker quiet(chkDock);
    chkDock->setChecked(Remembered(DockKey) == "1");
    ShowDocked();
}

// "Positions=CD AgeFrom=20 Overall=70 MayBeAsked=1 Stands=2"; whatever is not in it asks for nothing.
void frmSquad::RestoreFilters()
{
    const QSignalBlocker team(cboTeam), stands(cboStands), asked(chkMayBeAsked);
    const QString kept = ToQString(Remembered(OneTeamKey));
    const int row = kept == NoTeam ? cboTeam->findData(SquadFilter::WithoutTeam)
                                   : cboTeam->findText(kept, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    cboTeam->setCurrentIndex(std::max(0, row));
    const QStringList parts = ToQString(Remembered(FilterKey)).split(' ', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const QString word = part.section('=', 0, 0);
        const QString value = part.section('=', 1);
        if (word == "Positions")
            for (std::size_t at = 0; at < chkPosition.size() && at < static_cast<std::size_t>(value.size()); ++at) {
                const QSignalBlocker quiet(chkPosition[at]);
                chkPosition[at]->setChecked(value[static_cast<qsizetype>(at)] != '0');
            }
        else if (word == "MayBeAsked")
            chkMayBeAsked->setChecked(value == "1");
        else if (word == "Stands" && cboStands->isEnabled())
            cboStands->setCurrentIndex(std::max(0, cboStands->findData(value.toInt())));
        for (const auto& [name, box] : NumberBoxes(*this))
            if (bool isNumber = false; word == name) {
                const int number = value.toInt(&isNumber);
                const QSignalBlocker quiet(box);
                box->setValue(isNumber ? number : box->minimum());
            }
    }
}

QString frmSquad::FiltersInText() const
{
    QString positions;
    for (const QCheckBox* box : chkPosition)
        positions += box->isChecked() ? '1' : '0';
    QStringList parts{"Positions=" + positions};
    for (const auto& [name, box] : NumberBoxes(*this))
        if (box->value() != box->minimum())
            parts << QString("%1=%2").arg(name).arg(box->value());
    if (chkMayBeAsked->isChecked())
        parts << "MayBeAsked=1";
    if (cboStands->currentData().isValid())
        parts << QString("Stands=%1").arg(cboStands->currentData().toInt());
    return parts.join(' ');
}

void frmSquad::Keep()
{
    for (std::size_t at = 0; at < tables.size(); ++at) {
        if (tables[at]->People().columnCount() > 0)
            Remember(ColumnKeys[at], tables[at]->Arrangement());
        Remember(SortKeys[at], tables[at]->People().SortedAs());
    }
    const QVariant team = cboTeam->currentData();
    Remember(OneTeamKey, !team.isValid()                            ? std::string()
                         : team.toInt() == SquadFilter::WithoutTeam ? std::string(NoTeam)
                                                                    : FromQString(cboTeam->currentText()));
    Remember(FilterKey, FromQString(FiltersInText()));
}

void frmSquad::chkDock_Click()
{
    Remember(DockKey, chkDock->isChecked() ? "1" : "0");
    ShowDocked();
    if (chkDock->isChecked() && !dock->Arrange())
        Tell("The display has no room for it beside this screen.");
}

// Beside a screen its filters stand in two rows.
void frmSquad::ShowDocked()
{
    dock->SetDocked(chkDock->isChecked());
    filterRows->setDirection(chkDock->isChecked() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    for (QLayout* each :
         {static_cast<QLayout*>(filterRows), centralWidget()->layout(), layout()}) { // at once, from within
        each->invalidate();
        each->activate();
    }
}

void frmSquad::Follow(QWidget* front) { dock->Follow(front); }

} // namespace dravik
