#pragma once

#include "OnStage.h"
#include "screens/market/frmFreeAgentClient.h"
#include "session/OpenMarket.h"
#include "support/FailingBoxes.h"
#include "support/FreeAgents.h"

namespace dravik {

// The offers of team 5, the Harbour City Gulls, in a league in which people are restricted from 22 to 30. People of team 6,
// the Pebble Creek Ducks, are others.
class OnOfferScreen : public OnStage {
protected:
    using Entries = std::vector<std::pair<std::string, int>>;

    OnOfferScreen()
    {
        TeamMaker own(5);
        TeamMaker others(6);
        Own().Name = "Harbour City Gulls";
        Teams[6].Name = "Pebble Creek Ducks";
        LeagueData.RFAAge = 22;
        LeagueData.UFAAge = 31;
        LeagueData.MaxOffers = 50;
        PlayerStatCount = 15;
        GoalieStatCount = 13;
        QApplication::setDoubleClickInterval(0); // a click is no first half of a double click unless a test says so
    }
    ~OnOfferScreen() override { QApplication::setDoubleClickInterval(usualInterval); }

    static Team& Own() { return Teams[5]; }

    // The screen, opened from the main screen for the team at hand.
    frmFreeAgentClient& Open(int team = 5)
    {
        CurrentTeam = team;
        TheStage.Open("FreeAgent", MainWithLeague());
        Settle();
        return Offers();
    }
    frmFreeAgentClient& Offers() { return *static_cast<frmFreeAgentClient*>(TheStage.Find("FreeAgent")); }
    FreeAgentOffer& OfferOf(int id) { return OpenMarket().Offers[id]; }

    // An offer that is worth saving, without the screen's help.
    void Offer(int id)
    {
        OfferOf(id).Id = id;
        OfferOf(id).Salary = 750000;
        OfferOf(id).Duration = 2;
    }

    // What the list shows: texts and ids.
    Entries Listed()
    {
        Entries entries;
        const PickList* list = Offers().lstPlayers;
        for (int row = 0; row < list->count(); ++row)
            entries.emplace_back(list->item(row)->text().toStdString(), list->item(row)->data(Qt::UserRole).toInt());
        return entries;
    }

    // Clicks on an entry with the mouse.
    void ClickEntry(int row) { Point(row, &QTest::mouseClick); }
    void DoubleClickEntry(int row)
    {
        ClickEntry(row);
        Point(row, &QTest::mouseDClick);
    }
    using MouseAction = void (*)(QWidget*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int);
    void Point(int row, MouseAction action)
    {
        PickList* list = Offers().lstPlayers;
        action(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(list->item(row)).center(), -1);
        Settle();
    }

    // Types a text into a box and leaves it with the tab key.
    void Enter(EditBox* box, const QString& text)
    {
        TypeInto(box, text);
        Press(box, Qt::Key_Tab);
    }
    void EnterComment(const QString& text)
    {
        EditArea* area = Offers().txtComment;
        area->setFocus();
        ASSERT_TRUE(area->hasFocus());
        area->selectAll();
        area->insertPlainText(text);
        Press(area, Qt::Key_Tab);
    }

    // The rows of the stat panel on show: "CK 60".
    std::vector<std::string> Rows()
    {
        std::vector<std::string> rows;
        for (int row = 1; row <= 16; ++row)
            if (!Offers().txtStats[row]->isHidden())
                rows.push_back(Of(Offers().lblStatLabel[row]) + " " + Of(Offers().txtStats[row]));
        return rows;
    }
    // The texts of the four boxes.
    std::vector<std::string> Boxes()
    {
        return {Of(Offers().txtOffer), Of(Offers().txtDuration), Of(Offers().txtBonus), Comment()};
    }
    std::string Comment() { return Offers().txtComment->toPlainText().toStdString(); }
    // Whether the four boxes are open; all are, or none.
    bool BoxesAreOpen()
    {
        const bool open = Offers().txtOffer->isEnabled();
        for (const QWidget* box :
             std::initializer_list<QWidget*>{Offers().txtDuration, Offers().txtBonus, Offers().txtComment})
            EXPECT_EQ(box->isEnabled(), open) << box->objectName().toStdString();
        return open;
    }

    static std::string Of(const QLineEdit* box) { return box->text().toStdString(); }
    static std::string Of(const QLabel* label) { return label->text().toStdString(); }

private:
    const int usualInterval = QApplication::doubleClickInterval();
};

} // namespace dravik
