#include "JournalKept.h"
#include "league/Failure.h"
#include "OnOfferScreen.h"
#include "support/ClientFileBytes.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

constexpr std::size_t Slot = 1014;

// Skater 1 to 3 and goalie 1 of another team can be made offers, and skater 4 of the own one.
class OfferSaving : public OnOfferScreen {
protected:
    OfferSaving()
    {
        for (int index = 1; index <= 3; ++index)
            FreeSkater(index);
        FreeSkater(4, 5);
        FreeGoalie(1);
        Path = Machine.InFolder("HarbourCityGulls.dvf");
    }

    std::vector<Box> Save()
    {
        Machine.ClearSeenBoxes();
        Click(Offers().cmdSaveToFile);
        WaitAtBoxes = Machine.WaitAtBoxes();
        return Machine.TakeBoxes();
    }
    [[nodiscard]] std::string SavedLine() const
    {
        return "Client league file save for Harbour City Gulls succesfully at " + Path + "\r";
    }

    std::string Path;
    std::vector<bool> WaitAtBoxes; // of the last save
};

TEST_F(OfferSaving, SavedOffersAreNoLongerUnsavedInTheJournal)
{
    const JournalKept journal(Machine.Folder());
    Open();
    EXPECT_THAT(Save(), ElementsAre(Box{48, "No Offer to Save!"}));
    Enter(Offers().txtOffer, "750000");
    EXPECT_TRUE(journal.HasUnsaved());
    EXPECT_THAT(Save(), ElementsAre(Box{48, "No Offer to Save!"}));
    EXPECT_TRUE(journal.HasUnsaved());
    Enter(Offers().txtDuration, "2");
    Enter(Offers().txtBonus, "1000");
    EXPECT_EQ(Save().size(), 1U);
    EXPECT_FALSE(journal.HasUnsaved());
    Enter(Offers().txtBonus, "1001");
    EXPECT_TRUE(journal.HasUnsaved());
}

TEST_F(OfferSaving, TellsTheOffersAndThePath)
{
    Open();
    Enter(Offers().txtOffer, "750000");
    Enter(Offers().txtDuration, "2");
    Enter(Offers().txtBonus, "1000");
    EnterComment("Come");
    WriteWhole(TempFile, {1}); // of an earlier evening
    EXPECT_THAT(Save(), ElementsAre(Box{64, "Skater 1 was offer $750,000 for 2 year(s) with $1,000 in bonus.\r\n" +
                                                SavedLine()}));
    EXPECT_THAT(WaitAtBoxes, ElementsAre(false));
    EXPECT_EQ(Machine.WaitCount, 1);
    EXPECT_FALSE(Machine.WaitShown);
    const ByteVector content = Unwrapped(ReadWhole(Path));
    ASSERT_EQ(content.size(), 4 * Slot);
    EXPECT_EQ(std::string(content.begin() + 3 * Slot, content.begin() + 3 * Slot + 18),
              std::string("\x01\0\x05\0\xB0\x71\x0B\0\x02\0\xE8\x03\0\0Come", 18));
    EXPECT_EQ(OfferOf(1).Team, 5);
    EXPECT_FALSE(fs::exists(TempFile));
    EXPECT_FALSE(Modified) << "saving does not touch it";
    Modified = true;
    Save();
    EXPECT_TRUE(Modified);
    EXPECT_TRUE(Offers().isVisible());
}

TEST_F(OfferSaving, TheOffersMadeAndTheOffersLeftStayAsTheyAre)
{
    LeagueData.MaxOffers = 4;
    Own().OffersMade = 1;
    Open();
    Offer(1);
    Offer(2);
    EXPECT_EQ(Save().size(), 1U);
    EXPECT_EQ(Own().OffersMade, 1);
    EXPECT_EQ(LeagueData.OffersLeft, 3);
    EXPECT_EQ(LeagueData.MaxOffers, 4);
}

TEST_F(OfferSaving, WithTheSettingTheFileIsPlain)
{
    Machine.Settings["SkipZIPClient"] = " yes ";
    Open();
    Offer(1);
    Save();
    const ByteVector file = ReadWhole(Path);
    EXPECT_EQ(file.size(), 4 * Slot);
    EXPECT_EQ(std::string(file.begin() + 2, file.begin() + 42), "DRVK Free Agents Files Version 1 - Start");
}

TEST_F(OfferSaving, AWrongPasswordSavesNothing)
{
    Own().Password = "0Cc175b9c0f1b6a831c399e269772661"; // of "a"
    Open();
    Offer(1);
    Machine.Type("b");
    EXPECT_THAT(Save(), ElementsAre(Box{48, "Password is incorrect!"}));
    EXPECT_FALSE(fs::exists(Path));
    EXPECT_EQ(Machine.WaitCount, 0);
    Machine.Type("a");
    EXPECT_EQ(Save().size(), 1U);
    EXPECT_TRUE(fs::exists(Path));
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Password Required!"}, Question{"Password Required!"}));
}

TEST_F(OfferSaving, WithoutAnOfferItSaysSoAndTheOldFileIsGone)
{
    WriteWhole(Path, {'o', 'l', 'd'});
    Open();
    EXPECT_THAT(Save(), ElementsAre(Box{48, "No Offer to Save!"}));
    EXPECT_THAT(WaitAtBoxes, ElementsAre(true)) << "the wait screen goes behind this box";
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_FALSE(fs::exists(Path));
}

TEST_F(OfferSaving, AnOfferBelowTheLeastSalaryIsNoneAndGetsNoMessageOfItsOwn)
{
    Open();
    Offer(1);
    Offer(2);
    OfferOf(1).Salary = LeagueData.MinSalary - 1;
    EXPECT_THAT(Save(),
                ElementsAre(Box{64, "Skater 2 was offer $750,000 for 2 year(s) with $0 in bonus.\r\n" + SavedLine()}));
}

TEST_F(OfferSaving, ADurationOfZeroClearsAnOffer)
{
    Open();
    Enter(Offers().txtOffer, "750000");
    Enter(Offers().txtDuration, "2");
    Enter(Offers().txtDuration, "0");
    EXPECT_THAT(Save(), ElementsAre(Box{48, "No Offer to Save!"}));
}

TEST_F(OfferSaving, ASalaryOfZeroClearsNone)
{
    Open();
    Enter(Offers().txtOffer, "750000");
    Enter(Offers().txtDuration, "2");
    Enter(Offers().txtOffer, "0");
    EXPECT_THAT(Save(),
                ElementsAre(Box{64, "Skater 1 was offer $750,000 for 2 year(s) with $0 in bonus.\r\n" + SavedLine()}));
}

TEST_F(OfferSaving, ExactlyTheOffersLeftAreSavedAndOneMoreRefusesTheWholeFile)
{
    LeagueData.MaxOffers = 4;
    Own().OffersMade = 1;
    Open();
    Offer(1);
    Offer(2);
    Offer(10001);
    EXPECT_EQ(Save().size(), 1U);
    EXPECT_TRUE(fs::exists(Path));
    Offer(3);
    EXPECT_THAT(Save(), ElementsAre(Box{48, "There is more that 3 offers!"}));
    EXPECT_THAT(WaitAtBoxes, ElementsAre(true));
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_FALSE(fs::exists(Path)) << "the file of the first save is gone by then";
}

TEST_F(OfferSaving, AnOwnPlayerNeverCountsAlsoInTheOffSeason)
{
    LeagueData.OffSeason = true;
    LeagueData.OffersLeft = 1;
    Open();
    EXPECT_EQ(Of(Offers().lblMaxOffer), "You can make 1 offers in total.");
    Offer(1);
    Offer(4);
    EXPECT_EQ(Save().front().Kind, 64);
    EXPECT_TRUE(fs::exists(Path));
}

TEST_F(OfferSaving, TheNineHundredAndNinetySeventhOfferIsSilentlyLeftOut)
{
    LeagueData.MaxOffers = 2000;
    for (int index = 1; index <= 997; ++index)
        FreeSkater(index);
    Open();
    for (int index = 1; index <= 996; ++index)
        Offer(index);
    std::string told;
    for (const Box& page : Save())
        told += page.Text;
    EXPECT_NE(told.find("Skater 996 was"), std::string::npos);
    EXPECT_EQ(Unwrapped(ReadWhole(Path)).size(), 999 * Slot);
    const ByteVector before = ReadWhole(Path);
    Offer(997);
    told.clear();
    for (const Box& page : Save())
        told += page.Text;
    EXPECT_EQ(told.find("Skater 997 was"), std::string::npos);
    EXPECT_TRUE(ReadWhole(Path) == before);
}

TEST_F(OfferSaving, ALongReportIsShownInPages)
{
    LeagueData.MaxOffers = 100;
    for (int index = 1; index <= 30; ++index)
        FreeSkater(index, 6).Name = "Somebody With Quite A Name " + std::to_string(10 + index);
    Open();
    for (int index = 1; index <= 30; ++index)
        Offer(index);
    // A line has 82 characters: the first page ends within the break at 901, the second before the one at 1803.
    const auto line = [](int index) {
        return "Somebody With Quite A Name " + std::to_string(10 + index) +
               " was offer $750,000 for 2 year(s) with $0 in bonus.";
    };
    ASSERT_EQ(line(1).size() + 2, 82U);
    const auto lines = [&](int from, int to) {
        std::string all;
        for (int index = from; index <= to; ++index)
            all += line(index) + (index < to ? "\r\n" : "");
        return all;
    };
    EXPECT_THAT(Save(), ElementsAre(Box{64, lines(1, 11) + "\r"}, Box{64, lines(12, 22)},
                                    Box{64, lines(23, 30) + "\r\n" + SavedLine()}));
}

TEST_F(OfferSaving, AFailedCompressionIsToldAndLeavesTheWaitScreen)
{
    Open();
    Offer(1);
    WriteWhole(Path, {'o', 'l', 'd'});
    Machine.FailFileOperation(4, failure::DiskFull);
    EXPECT_THAT(Save(), ElementsAre(Box{16, "61 - Disk full in Zlib Compress!"}));
    EXPECT_TRUE(Machine.WaitShown);
    EXPECT_EQ(fs::remove_all(Machine.InFolder("Earlier")), 2U) << "the folder, and what the save would have replaced";
    EXPECT_TRUE(fs::is_empty(Machine.Folder()));
}

TEST_F(OfferSaving, AnyOtherFailureClosesTheWaitScreenBeforeItIsReported)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    Open();
    Offer(1);
    Machine.FailFileOperation(3, failure::PermissionDenied);
    EXPECT_THAT(Save(), ElementsAre(Box{16, "70 - Permission denied in cmdSaveToFile!"}));
    EXPECT_THAT(WaitAtBoxes, ElementsAre(false));
    EXPECT_TRUE(fs::is_empty(Machine.Folder()));
}

TEST_F(OfferSaving, ANameThatNoFileMayHaveIsReported)
{
    Own().Name = "A/B";
    Open();
    Offer(1);
    EXPECT_THAT(Save(), ElementsAre(Box{16, "75 - Path/File access error in cmdSaveToFile!"}));
    EXPECT_FALSE(Machine.WaitShown);
}

TEST_F(OfferSaving, SavingActsOnTheBoxThatStillHasTheFocus)
{
    Open();
    Enter(Offers().txtOffer, "750000");
    TypeInto(Offers().txtDuration, "4");
    EXPECT_THAT(Save(),
                ElementsAre(Box{64, "Skater 1 was offer $750,000 for 4 year(s) with $0 in bonus.\r\n" + SavedLine()}));
}

TEST_F(OfferSaving, ARefusedTextHoldsTheSaveBack)
{
    Open();
    Offer(1);
    TypeInto(Offers().txtDuration, "x");
    EXPECT_THAT(Save(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_FALSE(fs::exists(Path));
}

} // namespace
} // namespace dravik
