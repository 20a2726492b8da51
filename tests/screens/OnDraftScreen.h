#pragma once

#include "OnStage.h"
#include "screens/market/frmDraft.h"
#include "session/OpenMarket.h"
#include "support/FailingBoxes.h"

namespace dravik {

// The draft screen of team 5, the Harbour City Gulls. Two skaters and a goalie are without a team; skater 9 has one.
// Prospects 1 and 300 have names.
class OnDraftScreen : public OnStage {
protected:
    OnDraftScreen()
    {
        TeamMaker made(5);
        Teams[5].Name = "Harbour City Gulls";
        PutSkater(7, 0, position::LeftWing, status::Farm).Name = "Ward Tilton";
        PutSkater(8, 0, position::Defense, status::Farm).Name = "Karl Dreyer";
        PutSkater(9, 5, position::Center, status::Pro).Name = "Nils Ekdahl";
        PutGoalie(3, 0, status::Farm).Name = "Piet Vos";
        Prospects[1].Name = "Tor Lindqvist";
        Prospects[300].Name = "Marek Zelinka";
        LeagueData.FantasyDraft = true;
    }

    static void MakeEntryDraft()
    {
        LeagueData.FantasyDraft = false;
        LeagueData.EntryDraft = true;
        LeagueData.EntryDraftDone = 0;
    }

    frmDraft& Draft()
    {
        if (TheStage.Find("Draft") == nullptr) {
            MainWithLeague();
            CurrentTeam = 5;
            Main().mnuDraft->trigger();
            Settle();
            EXPECT_NE(TheStage.Find("Draft"), nullptr);
        }
        return *static_cast<frmDraft*>(TheStage.Find("Draft"));
    }

    using Entries = std::vector<std::pair<std::string, int>>;
    static Entries Of(const EntryList* list)
    {
        Entries entries;
        for (int row = 0; row < list->count(); ++row)
            entries.emplace_back(list->item(row)->text().toStdString(),
                                 list->item(row)->data(entry::NumberRole).toInt());
        return entries;
    }
    static std::string Of(const QLabel* label) { return label->text().toStdString(); }

    static QPoint Spot(EntryList* list, int row) { return list->visualItemRect(list->item(row)).center(); }
    static void ClickEntry(EntryList* list, int row)
    {
        list->scrollToItem(list->item(row));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, Spot(list, row));
        Settle();
    }
    static void DoubleClickEntry(EntryList* list, int row)
    {
        ClickEntry(list, row);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, Spot(list, row));
        Settle();
    }

    // Puts the candidates of these rows on the list, by clicks.
    void Choose(std::initializer_list<int> rows)
    {
        for (const int row : rows) {
            ClickEntry(Draft().lstPlayers, row);
            Click(Draft().cmdChoose);
        }
    }

    // The ranking up to the first free slot.
    std::vector<long long> Ranking()
    {
        std::vector<long long> ids;
        Draft(); // which begins without one
        for (const Int16& id : OpenMarket().Ranking) {
            if (id == 0)
                break;
            ids.push_back(id);
        }
        return ids;
    }

    // Fills all 1001 slots with the skaters 1 to 1001, free agents all of them.
    void FillRanking()
    {
        for (int index = 1; index <= 1010; ++index)
            PutSkater(index, 0, position::Center, status::Farm);
        frmDraft& draft = Draft();
        for (int rank = 0; rank <= 1000; ++rank)
            OpenMarket().Ranking[rank] = rank + 1;
        draft.PlaceOffer();
    }
};

} // namespace dravik
