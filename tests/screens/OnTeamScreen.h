#pragma once

#include "OnStage.h"

namespace dravik {

// The digest text of "a".
inline constexpr const char* DigestOfA = "0Cc175b9c0f1b6a831c399e269772661";

// The team screen of team 5, the Harbour City Gulls. Coaches 7 and 8 belong to it without an office.
class OnTeamScreen : public OnStage {
protected:
    OnTeamScreen()
    {
        TeamMaker made(5);
        Own().Name = "Harbour City Gulls";
        Own().Abbre = "HCG";
        Own().City = "Harbour City";
        Own().Gm = "Ward Tilton";
        Own().Messenger = "wtilton";
        Own().Email = "ward@example.org";
        Own().ProMorale = 51;
        Own().Farm.Name = "Pebble Creek Ducks";
        Own().Farm.Abbre = "PCD";
        Own().Farm.FarmMorale = 47;
        Own().LinesLoadCount = 3;
        Own().Division = 5;
        Own().Cash = 1000;
        Coaches[7].InUse = true;
        Coaches[7].Name = "Tor Lindqvist";
        Coaches[7].Team = 5;
        Coaches[8].InUse = true;
        Coaches[8].Name = "Marek Zelinka";
        Coaches[8].Team = 5;
    }

    static Team& Own() { return Teams[5]; }
    frmTeam& Office() { return TeamScreen() != nullptr ? *TeamScreen() : OpenTeam(5); }

    // Types a text into a box and leaves it with the tab key.
    void Enter(EditBox* box, const QString& text)
    {
        TypeInto(box, text);
        Modified = false;
        Press(box, Qt::Key_Tab);
    }

    static std::string Of(const QLineEdit* box) { return box->text().toStdString(); }
    static std::string Of(const QLabel* label) { return label->text().toStdString(); }
};

} // namespace dravik
