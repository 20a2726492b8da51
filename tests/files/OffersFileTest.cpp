#include "files/OffersFile.h"

#include "league/Failure.h"
#include "support/ClientFileBytes.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <filesystem>
#include <memory>
#include <numeric>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

constexpr std::size_t Slot = 1014;

// Team 5, the New York, makes offers; the people it makes them to are of team 6 unless a test says otherwise.
class OffersFileTest : public SmallLeague {
protected:
    OffersFileTest()
    {
        TeamMaker made(5);
        TeamMaker others(6);
        Teams[5].Name = "New York";
        CurrentTeam = 5;
        LeagueData.OffersLeft = 1000;
        Path = Machine.InFolder("NewYork.dvf");
    }

    void Plain() { Machine.Settings["SkipZIPClient"] = "YES"; }

    // An offer that is worth saving, to a person of team `team`.
    FreeAgentOffer& Offer(int id, int team = 6)
    {
        if (id > GoalieOffset)
            PutGoalie(id - GoalieOffset, team, status::Farm).Contract = 0;
        else
            PutSkater(id, team, position::Center, status::Farm).Contract = 0;
        FreeAgentOffer& offer = Offers[id];
        offer.Id = id;
        offer.Salary = 750000;
        offer.Duration = 3;
        offer.Bonus = 1000;
        return offer;
    }
    void OfferTo(int first, int last)
    {
        for (int id = first; id <= last; ++id)
            Offer(id);
    }

    SavedOffers Save() { return WriteOffersFile(5, Path, Offers); }
    ByteVector SavedPlain()
    {
        Plain();
        EXPECT_EQ(Save().Outcome, OffersFileWrite::Saved);
        return ReadWhole(Path);
    }

    static void Put(ByteVector& bytes, std::size_t at, long long value, int width)
    {
        for (int i = 0; i < width; ++i)
            bytes.at(at + static_cast<std::size_t>(i)) = static_cast<unsigned char>(value >> 8 * i);
    }
    static void Put(ByteVector& bytes, std::size_t at, std::string_view text)
    {
        std::copy(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
    }
    // The slots that a file of these offers has, built by hand.
    static ByteVector Slots(const std::vector<FreeAgentOffer>& offers)
    {
        ByteVector bytes(Slot * (3 + offers.size()));
        Put(bytes, 0, 40, 2);
        Put(bytes, 2, "DRVK Free Agents Files Version 1 - Start");
        Put(bytes, Slot, "SMALL");
        Put(bytes, 2 * Slot, 5, 2);
        std::size_t at = 3 * Slot;
        for (const FreeAgentOffer& offer : offers) {
            Put(bytes, at, offer.Id, 2);
            Put(bytes, at + 2, offer.Team, 2);
            Put(bytes, at + 4, offer.Salary, 4);
            Put(bytes, at + 8, offer.Duration, 2);
            Put(bytes, at + 10, offer.Bonus, 4);
            Put(bytes, at + 14, offer.Comment.Raw());
            at += Slot;
        }
        return bytes;
    }
    // The ids that stand in a plain file.
    static std::vector<int> Ids(const ByteVector& file)
    {
        std::vector<int> ids;
        for (std::size_t at = 3 * Slot; at < file.size(); at += Slot)
            ids.push_back(file.at(at) | file.at(at + 1) << 8);
        return ids;
    }
    bool FolderIsEmpty() { return fs::is_empty(Machine.Folder()); }

    std::string Path;
    std::unique_ptr<OfferTable> table = std::make_unique<OfferTable>();
    OfferTable& Offers = *table;
};

TEST_F(OffersFileTest, ThePathIsTheTeamsNameWithoutSpaces)
{
    EXPECT_EQ(OffersFilePath(5), Path);
    Teams[6].Name = "A/B";
    EXPECT_THROW((void)OffersFilePath(6), Failure);
    EXPECT_THROW((void)OffersFilePath(0), Failure);
    EXPECT_THROW((void)OffersFilePath(101), Failure);
}

TEST_F(OffersFileTest, ThePlainFileIsTheSlotFile)
{
    FreeAgentOffer& first = Offer(7);
    first.Salary = 1234567;
    first.Duration = 9;
    first.Bonus = -5;
    first.Comment = "A word \xE9";
    Offer(10003).Bonus = 2147483647;
    const ByteVector file = SavedPlain();
    EXPECT_EQ(file.size(), 5070U);
    EXPECT_EQ(Offers[7].Team, 5);
    EXPECT_TRUE(file == Slots({Offers[7], Offers[10003]}));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersFileTest, TheFileStartsWithTheTwoByteLength40)
{
    Offer(1);
    const ByteVector file = SavedPlain();
    EXPECT_EQ(file[0], 40);
    EXPECT_EQ(file[1], 0);
    EXPECT_EQ(std::string(file.begin() + 2, file.begin() + 42), "DRVK Free Agents Files Version 1 - Start");
    EXPECT_EQ(file[42], 0);
}

TEST_F(OffersFileTest, TheWrappedFileIsThatOfCompress2)
{
    OfferTo(1, 3);
    Offers[2].Comment = "For two";
    EXPECT_EQ(Save().Outcome, OffersFileWrite::Saved);
    EXPECT_TRUE(ReadWhole(Path) == Wrapped(Slots({Offers[1], Offers[2], Offers[3]})));
}

TEST_F(OffersFileTest, ACommentNeverEditedIsZeroBytesAndAnEditedOneIsPaddedWithBlanks)
{
    Offer(1);
    Offer(2).Comment = "Please";
    Offer(3).Comment = "";
    const ByteVector file = SavedPlain();
    const auto comment = [&](std::size_t record) {
        const auto at = file.begin() + static_cast<std::ptrdiff_t>((record - 1) * Slot + 14);
        return std::string(at, at + 1000);
    };
    EXPECT_EQ(comment(4), std::string(1000, '\0'));
    EXPECT_EQ(comment(5), "Please" + std::string(994, ' '));
    EXPECT_EQ(comment(6), std::string(1000, ' '));
}

TEST_F(OffersFileTest, TheOffersStandInAscendingOrderOfTheirIds)
{
    for (const int id : {10999, 3, 10000, 10001, 1, 9999})
        Offer(id);
    EXPECT_THAT(Ids(SavedPlain()), ElementsAre(1, 3, 9999, 10000, 10001, 10999));
}

TEST_F(OffersFileTest, AnOfferWithoutAYearIsNotWritten)
{
    Offer(1).Duration = 0;
    Offer(2).Duration = 1;
    Offer(3).Duration = -1;
    EXPECT_THAT(Ids(SavedPlain()), ElementsAre(2));
}

TEST_F(OffersFileTest, AnOfferBelowTheLeastSalaryIsNotWrittenAndOneAtItIs)
{
    Offer(1).Salary = LeagueData.MinSalary - 1;
    Offer(2).Salary = LeagueData.MinSalary;
    EXPECT_THAT(Ids(SavedPlain()), ElementsAre(2));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersFileTest, AnOfferWithoutAnIdIsNotWritten)
{
    Offer(1).Id = 0;
    Offer(2);
    EXPECT_THAT(Ids(SavedPlain()), ElementsAre(2));
    EXPECT_TRUE(IsOffer(LeagueData, Offers[1])) << "it says enough all the same";
    EXPECT_EQ(Offers[1].Team, 0);
}

TEST_F(OffersFileTest, NineHundredAndNinetySixOffersFit)
{
    OfferTo(1, 996);
    std::vector<int> all(996);
    std::iota(all.begin(), all.end(), 1);
    EXPECT_EQ(Ids(SavedPlain()), all);
    EXPECT_EQ(fs::file_size(Path), 999 * Slot);
}

TEST_F(OffersFileTest, TheNineHundredAndNinetySeventhIsSilentlyLeftOut)
{
    OfferTo(1, 997);
    Offer(10500);
    const SavedOffers saved = Save();
    EXPECT_EQ(saved.Outcome, OffersFileWrite::Saved);
    EXPECT_EQ(Unwrapped(ReadWhole(Path)).size(), 999 * Slot);
    EXPECT_EQ(saved.Report.find("Skater 997 "), std::string::npos);
    EXPECT_NE(saved.Report.find("Skater 996 "), std::string::npos);
    EXPECT_EQ(Offers[996].Team, 5);
    EXPECT_EQ(Offers[997].Team, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersFileTest, WhoIsLeftOutDoesNotCount)
{
    OfferTo(1, 1100);
    LeagueData.OffersLeft = 996;
    EXPECT_EQ(TallyOffers(5, Offers), (OffersTally{996, 996, 996 * 750000, 996 * 1000}));
    EXPECT_EQ(Save().Outcome, OffersFileWrite::Saved);
}

TEST_F(OffersFileTest, ExactlyTheOffersLeftAreSavedAndOneMoreRefusesTheWholeFile)
{
    LeagueData.OffersLeft = 2;
    OfferTo(1, 2);
    EXPECT_EQ(Save().Outcome, OffersFileWrite::Saved);
    EXPECT_TRUE(fs::exists(Path));
    Offer(3);
    EXPECT_EQ(Save().Outcome, OffersFileWrite::TooMany);
    EXPECT_TRUE(FolderIsEmpty()) << "the file of the first save is gone by then";
    EXPECT_EQ(Offers[3].Team, 5);
}

TEST_F(OffersFileTest, AnOfferToAnOwnPlayerNeverCounts)
{
    LeagueData.OffersLeft = 1;
    Offer(1, 5);
    Offer(10001, 5);
    Offer(2);
    EXPECT_EQ(TallyOffers(5, Offers), (OffersTally{3, 1, 2250000, 3000}));
    EXPECT_EQ(Save().Outcome, OffersFileWrite::Saved);
    Goalies[1].Team = 0;
    EXPECT_EQ(TallyOffers(5, Offers).ToOthers, 2) << "a goalie of nobody is not owned";
    EXPECT_EQ(Save().Outcome, OffersFileWrite::TooMany);
}

TEST_F(OffersFileTest, WithoutAnOfferTheOldFileIsGone)
{
    WriteWhole(Path, {'o', 'l', 'd'});
    WriteWhole(TempFile, {1});
    const SavedOffers saved = Save();
    EXPECT_EQ(saved.Outcome, OffersFileWrite::NoOffer);
    EXPECT_EQ(saved.Report, "");
    EXPECT_TRUE(FolderIsEmpty());
}

TEST_F(OffersFileTest, TheReportHasALineOnEachOffer)
{
    Offer(1);
    FreeAgentOffer& goalie = Offer(10002);
    goalie.Salary = 1234567;
    goalie.Duration = 1;
    goalie.Bonus = 0;
    Goalies[2].Name = "  Piet Vos ";
    Offer(3).Duration = 0;
    EXPECT_EQ(Save().Report, "Skater 1 was offer $750,000 for 3 year(s) with $1,000 in bonus.\r\n"
                             "Piet Vos was offer $1,234,567 for 1 year(s) with $0 in bonus.\r\n");
}

TEST_F(OffersFileTest, SavingTwiceRewritesTheWholeFile)
{
    OfferTo(1, 9);
    EXPECT_EQ(Save().Outcome, OffersFileWrite::Saved);
    for (int id = 2; id <= 9; ++id)
        Offers[id].Duration = 0;
    EXPECT_EQ(Save().Outcome, OffersFileWrite::Saved);
    EXPECT_TRUE(Unwrapped(ReadWhole(Path)) == Slots({Offers[1]}));
    EXPECT_EQ(std::distance(fs::directory_iterator(Machine.Folder()), fs::directory_iterator()), 1);
}

TEST_F(OffersFileTest, AFailedCompressionIsToldAndTheOldFileIsGone)
{
    WriteWhole(Path, {'o', 'l', 'd'});
    Offer(1);
    Machine.FailFileOperation(3, failure::DiskFull);
    EXPECT_EQ(Save().Outcome, OffersFileWrite::NotCompressed);
    EXPECT_EQ(Machine.FileOperations()[2], "write");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "61 - Disk full in Zlib Compress!"}));
    EXPECT_TRUE(FolderIsEmpty());
}

TEST_F(OffersFileTest, AFailureWithAPlainFileIsThrown)
{
    Plain();
    Offer(1);
    Machine.FailFileOperation(4, failure::PermissionDenied);
    EXPECT_THROW((void)Save(), Failure);
    EXPECT_TRUE(FolderIsEmpty());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersFileTest, WhateverFailsTheFileIsWholeOrNotThere)
{
    OfferTo(1, 40);
    for (const bool plain : {false, true}) {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        fs::remove(Path);
        EXPECT_EQ(Save().Outcome, OffersFileWrite::Saved);
        const ByteVector whole = ReadWhole(Path);
        int failed = 0;
        for (std::size_t n = 1;; ++n) {
            const std::size_t before = Machine.FileOperations().size();
            Machine.FailFileOperation(n, failure::DiskFull);
            bool told = false;
            try {
                told = Save().Outcome == OffersFileWrite::NotCompressed;
                failed += told ? 1 : 0;
            } catch (const Failure&) {
                ++failed;
            }
            Machine.FailNoMore();
            const Box full{16, "61 - Disk full in Zlib Compress!"};
            EXPECT_EQ(Machine.TakeBoxes(), told ? std::vector{full} : std::vector<Box>{}) << n;
            if (fs::exists(Path)) {
                EXPECT_TRUE(ReadWhole(Path) == whole) << n;
            }
            if (Machine.FileOperations().size() - before < n)
                break;
        }
        EXPECT_GE(failed, 5);
    }
}

TEST_F(OffersFileTest, TheTeamIsTheOneThatSaves)
{
    Offer(1);
    Teams[6].Name = "Elsewhere";
    EXPECT_EQ(WriteOffersFile(6, Path, Offers).Outcome, OffersFileWrite::Saved);
    EXPECT_EQ(Offers[1].Team, 6);
    EXPECT_THAT(OffersFilePath(6), ::testing::EndsWith("Elsewhere.dvf"));
}

TEST_F(OffersFileTest, TheLeagueCodeIsWrittenAsItsFiveRawBytes)
{
    Offer(1);
    LeagueData.LeagueCode = "A";
    ByteVector file = SavedPlain();
    const auto code = [&] { return std::string(file.begin() + Slot, file.begin() + Slot + 7); };
    EXPECT_EQ(code(), std::string("A    \0\0", 7));
    LeagueData.LeagueCode = Text<5>();
    file = SavedPlain();
    EXPECT_EQ(code(), std::string(7, '\0'));
}

} // namespace
} // namespace dravik
