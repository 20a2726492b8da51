#include "Evening.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

#include <QApplication>
#include <QKeyEvent>

// The looks into the squad table.
namespace dravik::tour {

namespace {

void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(&widget, &event);
    }
    QApplication::processEvents();
}

} // namespace

frmSquad& Evening::SquadBeside(Window window)
{
    stage.ShowSquad(*stage.Find(window));
    QApplication::processEvents();
    Require(stage.Squad() != nullptr && stage.Squad()->isVisible(), "the squad table opens");
    return *stage.Squad();
}

void Evening::LookAtEmptySquad()
{
    frmSquad& squad = SquadBeside(Window::Main);
    Require(squad.Table().People().rowCount() == 0 && squad.lblEmpty->isVisible(), "nobody is there without a league");
    Require(camera.Photograph(squad, "squad-empty"), "pictures of the empty squad table are written");
    squad.close();
}

void Evening::LookAtSquad()
{
    frmSquad& squad = SquadBeside(Window::Main);
    Require(squad.Table().People().rowCount() > 0, "the league's skaters are listed");
    Require(camera.Photograph(squad, "squad"), "pictures of the squad table are written");
    squad.txtName->setFocus();
    for (const QChar letter : QString("aub"))
        PressKey(*squad.txtName, static_cast<Qt::Key>(letter.toUpper().unicode()), {}, letter);
    Require(squad.Table().People().rowCount() < squad.Table().People().People(), "letters find a few");
    PressKey(*squad.txtName, Qt::Key_Down);
    Require(camera.Photograph(squad, "squad-typed"), "pictures of what was typed are written");
    for (int row = 0; row < 3; ++row) {
        squad.Table().setCurrentIndex(squad.Table().People().index(row, 0));
        squad.cmdPin->click();
    }
    Require(squad.tblCompare->Figures->rowCount() == 3, "three people are compared");
    squad.txtName->clear();
    Require(camera.Photograph(squad, "squad-compared"), "pictures of a comparison are written");
    squad.cmdLetGo->click();
    squad.tabKind->setCurrentIndex(1);
    Require(camera.Photograph(squad, "squad-goalies"), "pictures of the goalies are written");
    squad.tabKind->setCurrentIndex(2);
    Require(camera.Photograph(squad, "squad-prospects"), "pictures of the prospects are written");
    squad.tabKind->setCurrentIndex(0);
    squad.close();
    NoComplaints("the squad table is looked at");
}

void Evening::LookAtOwnSquad()
{
    frmSquad& squad = SquadBeside(Window::Team);
    squad.cboTeam->setCurrentIndex(squad.cboTeam->findData(plan.Team));
    SquadTable& table = squad.Table();
    Require(table.People().rowCount() > 0, "the team's skaters are listed");
    table.People().SortBy(table.People().ColumnOf("Stands"), true, false);
    table.People().SortBy(table.People().ColumnOf("Overall"), true, true);
    table.setCurrentIndex(table.People().index(1, 0));
    Require(camera.Photograph(squad, "squad-own"), "pictures of the own squad are written");
    squad.cboTeam->setCurrentIndex(squad.cboTeam->findData(SquadFilter::WithoutTeam));
    squad.spnOverall->setValue(99);
    Require(table.People().rowCount() == 0 && squad.lblEmpty->isVisible(), "nobody passes all filters");
    Require(camera.Photograph(squad, "squad-nobody"), "pictures of a table without anybody are written");
    squad.cmdShowAll->click();
    constexpr QSize besideAScreen(860, 780);
    squad.chkDock->setChecked(true);
    Require(camera.Photograph(squad, "squad-docked", besideAScreen), "pictures of the docked table are written");
    squad.chkDock->setChecked(false);
    squad.close();
    NoComplaints("the own squad is looked at");
}

} // namespace dravik::tour
