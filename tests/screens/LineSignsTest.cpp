#include "OnLineScreen.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/Shades.h"

#include <QAccessible>

// The signs on the lines screens: beside the entries of the list, and in the slots of the board.
namespace dravik {
namespace {

class LineSigns : public OnLineScreen {
protected:
    static std::string Said(QObject* object, int child = -1)
    {
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(object);
        if (child >= 0)
            reader = reader->child(child);
        return reader->text(QAccessible::Description).toStdString();
    }
    static int RowOf(const LinesScreen& screen, int id)
    {
        return screen.lstPlayer->RowOf(EntryNumber(id, static_cast<int>(Players[id].Position)));
    }
    static std::string SaidOf(const LinesScreen& screen, int id) { return Said(screen.lstPlayer, RowOf(screen, id)); }
    static QImage PaintedEntry(const LinesScreen& screen, int row)
    {
        return screen.lstPlayer->viewport()
            ->grab(screen.lstPlayer->visualItemRect(screen.lstPlayer->item(row)))
            .toImage();
    }
    // How often a skater stands in a day, counted word by word over the published fields.
    static int Count(const Lines& day, int id)
    {
        int count = 0;
        for (const LineSlot& slot : SkaterSlots)
            count += At(day, slot) == id ? 1 : 0;
        return count;
    }
    static std::string Slots(int count)
    {
        return count == 0 ? "Not used" : count == 1 ? "In 1 slot" : "In " + std::to_string(count) + " slots";
    }
    // Puts a skater into a slot by hand: picks him in the list and presses the slot.
    void Place(LinesScreen& screen, int id, LineField field, int number, int place)
    {
        Pick(screen, id, static_cast<int>(Players[id].Position));
        ClickOn(screen, SlotOn(screen, field, number, place));
    }
    [[nodiscard]] int Center() const { return Pro.Skaters[0]; }
};

TEST_F(LineSigns, EveryEntrySaysHowManySlotsOfTheDayItsPersonHolds)
{
    frmLine& line = Line();
    for (const int id : Pro.Skaters)
        EXPECT_EQ(SaidOf(line, id), Slots(Count(ProDay(), id))) << id;
    for (const int id : Pro.GoalieIds)
        EXPECT_EQ(Said(line.lstPlayer, line.lstPlayer->RowOf(EntryNumber(id, position::Goalie))), "In 1 slot");
}

TEST_F(LineSigns, APressThatPlacesSomebodyCountsForHimAndForWhoStoodThere)
{
    frmLine& line = Line();
    const auto before = static_cast<int>(ProDay().PenaltyShot[1]);
    const int count = Count(ProDay(), before);
    int other = Pro.Skaters[0];
    for (const int id : Pro.Skaters)
        if (id != before)
            other = id;
    const int others = Count(ProDay(), other);
    const QImage painted = PaintedEntry(line, RowOf(line, before));
    Place(line, other, LineField::PenaltyShot, 1, 1);
    EXPECT_EQ(SaidOf(line, before), Slots(count - 1));
    EXPECT_EQ(SaidOf(line, other), Slots(others + 1));
    EXPECT_NE(PaintedEntry(line, RowOf(line, before)), painted);
}

TEST_F(LineSigns, ADayWithoutAnybodyLeavesEverybodyUnused)
{
    PutGames(2);
    frmLine& line = Line();
    QTest::mouseClick(line.vscDay, Qt::LeftButton, {}, line.vscDay->CellOf(2).center());
    Settle();
    for (int row = 0; row < line.lstPlayer->count(); ++row)
        EXPECT_EQ(Said(line.lstPlayer, row), "Not used");
}

TEST_F(LineSigns, TheFarmHasThemTooAndItsPlaceholdersHaveNone)
{
    LeagueData.FarmRosterRequired = false;
    frmFarmLine& farm = FarmLine();
    const int last = farm.lstPlayer->count() - 1;
    const int id = EntryId(farm.lstPlayer->item(0)->data(entry::NumberRole).toInt());
    EXPECT_EQ(Said(farm.lstPlayer, 0), Slots(Count(FarmDay(), id)));
    ASSERT_EQ(farm.lstPlayer->item(last)->text(), "Unknown Goalie");
    EXPECT_EQ(Said(farm.lstPlayer, last), "");
    EXPECT_EQ(Said(farm.lstPlayer, last - 1), "");
}

TEST_F(LineSigns, WhatARecordTellsIsSaidBesideTheSlots)
{
    Player& player = Players[Center()];
    player.Contract = 0;
    player.NoTrade = true;
    player.Rookie = true;
    Own().Captain = Center();
    EXPECT_EQ(SaidOf(Line(), Center()),
              "No contract, " + Slots(Count(ProDay(), Center())) + ", Captain, No trade, Rookie");
}

TEST_F(LineSigns, TextsNumbersAndSecondaryWordsOfTheListStay)
{
    const Entries before = Listed(Line());
    Click(Line().cmdExit);
    for (const int id : Pro.Skaters)
        Players[id].Rookie = true;
    EXPECT_EQ(Listed(Line()), before);
    const QListWidgetItem* entry = Line().lstPlayer->item(0);
    EXPECT_EQ(entry->data(entry::AsideRole).toStringList().front(), "C");
    EXPECT_EQ(entry->data(Qt::AccessibleTextRole).toString().toStdString(),
              (entry->text() + ", " + entry->data(entry::AsideRole).toStringList().join(", ")).toStdString());
}

TEST_F(LineSigns, ASkaterOutOfHisPositionIsMarkedInAmberWithHisOwn)
{
    frmLine& line = Line();
    SlotLabel* wing = SlotOn(line, LineField::NormalForward, 4, 2);
    const auto amber = [wing] {
        const QColor ink = Cautioning(wing->palette().color(QPalette::Base));
        const QImage image = wing->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == ink.rgb() ? 1 : 0;
        return count;
    };
    EXPECT_FALSE(wing->Signs().Has(Sign::OutOfPosition));
    EXPECT_EQ(amber(), 0);
    const int unused = Pro.Skaters[3]; // the fourth center
    Place(line, unused, LineField::NormalForward, 4, 2);
    Pick(line, Pro.Skaters[0], position::Center); // focus and highlight leave the slot
    EXPECT_TRUE(wing->Signs().Has(Sign::OutOfPosition));
    EXPECT_EQ(Said(wing), "Out of position, plays C");
    EXPECT_GT(amber(), 25); // the inside of the sign
    EXPECT_EQ(wing->text().toStdString(), Players[unused].Name.Trimmed());
}

TEST_F(LineSigns, WhoIsAtHomeHasNoSuchSign)
{
    for (const BoardSlot& slot : Line().TabLine->Slots)
        if (!slot.IsGoalies() && slot.Slot.Word < 12) { // the forwards of the normal lines, filled from all forwards
            const auto id = static_cast<int>(slot.In(ProDay()));
            const int place = slot.Slot.Word / 4 + 1;
            EXPECT_EQ(slot.Label->Signs().Has(Sign::OutOfPosition), Players[id].Position != place) << id;
        }
    for (const BoardSlot* slot : {&StartSlot(Line()), &BackupSlot(Line())})
        EXPECT_TRUE(slot->Label->Signs().IsEmpty());
}

TEST_F(LineSigns, TheCaptainIsMarkedWhereverHeStands)
{
    frmLine& line = Line();
    SlotLabel* center = SlotOn(line, LineField::NormalForward, 1, 1);
    const QImage before = center->grab().toImage();
    Click(line.cmdExit);
    Own().Captain = static_cast<int>(ProDay().NormalForward(1, 1));
    frmLine& again = Line();
    SlotLabel* marked = SlotOn(again, LineField::NormalForward, 1, 1);
    EXPECT_EQ(Said(marked), "Captain");
    EXPECT_NE(marked->grab().toImage(), before);
    int labels = 0;
    for (const BoardSlot& slot : again.TabLine->Slots)
        labels += slot.Label->Signs().Has(Sign::Captain) ? 1 : 0;
    EXPECT_EQ(labels, Count(ProDay(), static_cast<int>(Own().Captain)));
}

TEST_F(LineSigns, DoubledAndRefusedHaveSignsThatDiffer)
{
    SlotLabel slot("Line 1, C", "C");
    slot.resize(200, 44);
    slot.SetName("Ward Tilton");
    const auto black = [&slot](SlotLabel::Mark mark) { // without colours, and without the name, which turns red
        slot.SetMark(mark);
        return slot.grab(QRect(150, 8, 44, 28)).toImage().convertToFormat(QImage::Format_Mono);
    };
    EXPECT_NE(black(SlotLabel::Mark::Twice), black(SlotLabel::Mark::Refused));
    EXPECT_NE(black(SlotLabel::Mark::Twice), black(SlotLabel::Mark::Filled));
}

TEST_F(LineSigns, WipedLinesTellOfNobody)
{
    Own().Captain = static_cast<int>(ProDay().NormalForward(1, 1));
    frmLine& line = Line();
    ASSERT_EQ(Said(SlotOn(line, LineField::NormalForward, 1, 1)), "Captain");
    Machine.Answer(button::Yes);
    Click(line.cmdWipeLines);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    for (const BoardSlot& slot : line.TabLine->Slots) {
        EXPECT_TRUE(slot.Label->Signs().IsEmpty());
        EXPECT_EQ(Said(slot.Label), "");
    }
    EXPECT_EQ(SaidOf(line, static_cast<int>(Own().Captain)), "Not used, Captain");
}

} // namespace
} // namespace dravik
