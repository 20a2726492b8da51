#pragma once

#include "OnStage.h"
#include "screens/player/frmEditPlayer.h"
#include "session/Session.h"

namespace dravik {

// What a number box makes of what was typed.
struct Typing {
    const char* Text;
    long long Stored;
};

// The player viewer, opened from the main screen on the skaters and goalies of a small league. Skater 7 is Ward Tilton, a
// left wing of the Harbour City Gulls (team 5); goalie 7 is Piet Vos of the same team.
class OnViewer : public OnStage {
protected:
    OnViewer()
    {
        TeamMaker made(5);
        Teams[5].Name = "Harbour City Gulls";
        PutSkater(7, 5, position::LeftWing, status::Pro);
        PutGoalie(7, 5, status::Pro);
        Tilton().Name = "Ward Tilton";
        Tilton().Country = "CAN";
        Tilton().Age = 27;
        Tilton().Weight = 195;
        Tilton().Height = 73;
        Tilton().Contract = 3;
        Tilton().Salary = 1250000;
        Vos().Name = "Piet Vos";
        Vos().Country = "NED";
        Vos().Age = 31;
        Vos().Weight = 180;
        Vos().Height = 71;
        Vos().Contract = 2;
        Vos().Salary = 900000;
        LeagueData.MinSalary = 500000;
        LeagueData.MaxSalary = 8000000;
        LeagueData.ShowAllRatings = true;
        LeagueData.ShowOverall = true;
        PlayerStatCount = 15;
        GoalieStatCount = 13;
    }

    static Player& Tilton() { return Players[7]; }
    static Goalie& Vos() { return Goalies[7]; }

    // The viewer on one person; 0 lists everybody.
    frmEditPlayer& Show(int id, bool isGoalie = false)
    {
        MainWithLeague();
        SelectedPlayer = id;
        SelectedIsGoalie = isGoalie;
        TheStage.Open("EditPlayer", Main());
        Settle();
        return Viewer();
    }
    frmEditPlayer& Viewer() { return *static_cast<frmEditPlayer*>(TheStage.Find("EditPlayer")); }

    // The viewer with its closed controls opened by hand, as no path of the program does.
    frmEditPlayer& Edit(int id, bool isGoalie = false)
    {
        frmEditPlayer& viewer = Show(id, isGoalie);
        viewer.lstPlayer->setEnabled(true);
        viewer.chkEdit->setEnabled(true);
        viewer.chkEdit->setChecked(true);
        viewer.chkEdit_Click();
        Modified = false;
        return viewer;
    }

    // Types a text into a box and leaves it with the tab key.
    void Enter(EditBox* box, const QString& text)
    {
        TypeInto(box, text);
        Modified = false; // a box that lost the focus to this one has acted
        Press(box, Qt::Key_Tab);
    }

    // Puts goalie 7 and skater 107 of team 5 into a line-up.
    static void DressForLines()
    {
        PutSkater(107, 5, position::Center, status::Pro);
        Lines& day = Teams[5].ProLines[2];
        day.StartGoalie = 7;
        day.PenaltyShot[1] = 107;
        day.PenaltyShot[2] = 7;
    }

    static std::vector<QWidget*> ClosedControls(const frmEditPlayer& viewer)
    {
        std::vector<QWidget*> all{viewer.txtName,    viewer.txtCountry,    viewer.txtAge,           viewer.txtWeight,
                                  viewer.txtHeight,  viewer.txtCondition,  viewer.txtInjury,        viewer.txtContract,
                                  viewer.txtSalary,  viewer.txtSuspension, viewer.txtTeam,          viewer.chkRookie,
                                  viewer.chkNoTrade, viewer.optGoaler,     viewer.chkNoApplyRerate, viewer.lstPlayer,
                                  viewer.chkEdit,    viewer.cmdSearch,     viewer.cmdNewPlayer,     viewer.cmdNewGoaler,
                                  viewer.cmdErase};
        all.insert(all.end(), viewer.optPosition.begin(), viewer.optPosition.end());
        all.insert(all.end(), viewer.txtStats.begin(), viewer.txtStats.end());
        return all;
    }
    static void ExpectClosed(const frmEditPlayer& viewer)
    {
        for (const QWidget* control : ClosedControls(viewer))
            EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
        for (const QWidget* hidden : std::initializer_list<QWidget*>{
                 viewer.chkEdit, viewer.cmdSearch, viewer.cmdNewPlayer, viewer.cmdNewGoaler, viewer.cmdErase})
            EXPECT_TRUE(hidden->isHidden()) << hidden->objectName().toStdString();
        EXPECT_TRUE(viewer.cmdExit->isEnabled());
    }

    // Runs `look` while the next box is up.
    void AtNextBox(std::function<void()> look)
    {
        Machine.OnEvent = [this, run = std::move(look)](const std::string& event) {
            if (event != "box")
                return;
            const auto once = run;
            Machine.OnEvent = {};
            once();
        };
    }

    static std::string Of(const QLineEdit* box) { return box->text().toStdString(); }
    static std::string Entry(const frmEditPlayer& viewer, int row)
    {
        return viewer.lstPlayer->item(row)->text().toStdString();
    }
    static int NumberAt(const frmEditPlayer& viewer, int row)
    {
        return viewer.lstPlayer->item(row)->data(entry::NumberRole).toInt();
    }
    // The rows on show: "CK 60".
    static std::vector<std::string> Rows(const frmEditPlayer& viewer)
    {
        std::vector<std::string> rows;
        for (int row = 1; row <= 16; ++row)
            if (!viewer.txtStats[row]->isHidden())
                rows.push_back(viewer.lblStatLabel[row]->text().toStdString() + " " + Of(viewer.txtStats[row]));
        return rows;
    }
};

} // namespace dravik
