// Reading offer and draft files back: what was written comes back to the byte, and anything else is refused whole.

#include "files/DraftFile.h"
#include "files/OffersFile.h"
#include "session/Session.h"
#include "support/ClientFileBytes.h"
#include "support/FreeAgents.h"
#include "support/Routines.h"

#include <cstring>
#include <filesystem>
#include <memory>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t OfferSlot = 1014;
constexpr std::size_t DraftSlot = 12;

bool AreSame(const FreeAgentOffer& one, const FreeAgentOffer& other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

class MarketFilesReadTest : public SmallLeague {
protected:
    MarketFilesReadTest()
    {
        TeamMaker own(5);
        TeamMaker others(6);
        Teams[5].Name = "New York";
        LeagueData.OffersLeft = 1000;
        FreeSkater(7);
        FreeGoalie(1000);
        for (const int id : {7, 11000}) {
            FreeAgentOffer& offer = Table()[id];
            offer.Id = id;
            offer.Salary = 750000 + id;
            offer.Duration = 3;
            offer.Bonus = -1;
        }
        Table()[7].Comment = "Come home";
        Ranking[0] = 20300;
        Ranking[1] = 7;
        Ranking[2] = 11000;
    }

    OfferTable& Table() { return *offers; }
    void Plain(bool plain) { Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No"; }

    std::string WrittenOffersFile()
    {
        std::string path = Machine.InFolder("NewYork.dvf");
        EXPECT_EQ(WriteOffersFile(5, path, Table()).Outcome, OffersFileWrite::Saved);
        return path;
    }
    std::string WrittenDraftFile()
    {
        std::string path = Machine.InFolder("NewYork.dvd");
        EXPECT_TRUE(WriteDraftFile(5, Ranking, path));
        return path;
    }

    // Reads the offer file, over some that stand there already; what is refused leaves none.
    TeamFileRead ReadOffers(int team = 5, const std::string& name = "NewYork.dvf")
    {
        Read.assign(3, FreeAgentOffer{});
        const TeamFileRead outcome =
            dravik::ReadOffersFile(OpenLeague, OpenFiles(), team, Machine.InFolder(name), Read);
        EXPECT_TRUE(outcome == TeamFileRead::Loaded || Read.empty());
        return outcome;
    }
    TeamFileRead ReadRanking(int team = 5, const std::string& name = "NewYork.dvd")
    {
        Ranked[5] = 5;
        const TeamFileRead outcome =
            dravik::ReadDraftFile(OpenLeague, OpenFiles(), team, Machine.InFolder(name), Ranked);
        EXPECT_TRUE(outcome == TeamFileRead::Loaded || IsSame(Ranked, {}));
        return outcome;
    }
    static bool IsSame(const DraftRanking& one, const DraftRanking& other)
    {
        return std::memcmp(&one, &other, sizeof one) == 0;
    }
    bool ReadIsWritten()
    {
        return Read.size() == 2 && AreSame(Read[0], Table()[7]) && AreSame(Read[1], Table()[11000]);
    }

    // The plain file with another byte or two at a place of a record.
    static ByteVector With(ByteVector file, std::size_t slot, std::size_t record, std::size_t offset, int word)
    {
        const std::size_t at = (record - 1) * slot + offset;
        file.at(at) = static_cast<unsigned char>(word & 0xFF);
        file.at(at + 1) = static_cast<unsigned char>(word >> 8 & 0xFF);
        return file;
    }

    std::vector<FreeAgentOffer> Read;
    DraftRanking Ranking;
    DraftRanking Ranked;

private:
    std::unique_ptr<OfferTable> offers = std::make_unique<OfferTable>();
};

TEST_F(MarketFilesReadTest, WhatWasWrittenComesBackPlainAndWrapped)
{
    for (const bool plain : {false, true}) {
        Plain(plain);
        WrittenOffersFile();
        EXPECT_EQ(ReadOffers(), TeamFileRead::Loaded);
        EXPECT_TRUE(ReadIsWritten());
        WrittenDraftFile();
        EXPECT_EQ(ReadRanking(), TeamFileRead::Loaded);
        EXPECT_TRUE(IsSame(Ranked, Ranking));
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(MarketFilesReadTest, AFullFileComesBack)
{
    for (int id = 1; id <= 1000; ++id) {
        Table()[id].Id = id;
        Table()[id].Salary = 750000;
        Table()[id].Duration = 1;
    }
    for (long long rank = 0; rank <= 1000; ++rank)
        Ranking[rank] = rank + 1;
    WrittenOffersFile();
    EXPECT_EQ(ReadOffers(), TeamFileRead::Loaded);
    EXPECT_EQ(Read.size(), 996U);
    EXPECT_EQ(Read.back().Id, 996);
    WrittenDraftFile();
    EXPECT_EQ(ReadRanking(), TeamFileRead::Loaded);
    EXPECT_TRUE(IsSame(Ranked, Ranking));
}

TEST_F(MarketFilesReadTest, AnEmptyRankingIsOne)
{
    Ranking = {};
    WrittenDraftFile();
    EXPECT_EQ(ReadRanking(), TeamFileRead::Loaded);
    EXPECT_TRUE(IsSame(Ranked, {}));
}

TEST_F(MarketFilesReadTest, ThoseOfAnotherTeamOrLeagueOrKindAreRefused)
{
    WrittenOffersFile();
    WrittenDraftFile();
    EXPECT_EQ(ReadOffers(6), TeamFileRead::Refused);
    EXPECT_EQ(ReadRanking(6), TeamFileRead::Refused);
    EXPECT_EQ(ReadOffers(5, "NewYork.dvd"), TeamFileRead::Refused);
    EXPECT_EQ(ReadRanking(5, "NewYork.dvf"), TeamFileRead::Refused);
    LeagueData.LeagueCode = "OTHER";
    EXPECT_EQ(ReadOffers(), TeamFileRead::Refused);
    EXPECT_EQ(ReadRanking(), TeamFileRead::Refused);
    EXPECT_EQ(ReadOffers(5, "None.dvf"), TeamFileRead::Refused);
    EXPECT_EQ(ReadRanking(5, "None.dvd"), TeamFileRead::Refused);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(MarketFilesReadTest, WhatNoOfferFileHoldsIsRefused)
{
    Plain(true);
    const std::string path = WrittenOffersFile();
    const ByteVector whole = ReadWhole(path);
    ASSERT_EQ(whole.size(), 5 * OfferSlot);
    ByteVector more = whole;
    more.resize(6 * OfferSlot); // an offer to nobody
    const ByteVector none(whole.begin(), whole.begin() + 3 * OfferSlot);
    for (const ByteVector& bad : {With(whole, OfferSlot, 4, 0, 0), With(whole, OfferSlot, 4, 0, 11001),
                                  With(whole, OfferSlot, 4, 0, -1), With(whole, OfferSlot, 5, 0, 7),
                                  With(whole, OfferSlot, 5, 0, 6), With(whole, OfferSlot, 5, 2, 6), more, none}) {
        WriteWhole(path, bad);
        EXPECT_EQ(ReadOffers(), TeamFileRead::Refused);
    }
    WriteWhole(path, With(whole, OfferSlot, 3, 500, 0x1234)); // behind the record in its slot
    EXPECT_EQ(ReadOffers(), TeamFileRead::Loaded);
}

TEST_F(MarketFilesReadTest, WhatNoDraftFileHoldsIsRefused)
{
    Plain(true);
    const std::string path = WrittenDraftFile();
    const ByteVector whole = ReadWhole(path);
    ByteVector more = whole;
    more.push_back(0);
    for (const ByteVector& bad :
         {With(whole, DraftSlot, 4, 0, 11001), With(whole, DraftSlot, 4, 0, 20000), With(whole, DraftSlot, 4, 0, 20301),
          With(whole, DraftSlot, 4, 0, -5), With(whole, DraftSlot, 5, 0, 0), With(whole, DraftSlot, 1004, 0, 8),
          With(whole, DraftSlot, 1005, 2, 0), more}) {
        WriteWhole(path, bad);
        EXPECT_EQ(ReadRanking(), TeamFileRead::Refused);
    }
}

TEST_F(MarketFilesReadTest, EveryCutIsRefused)
{
    for (const bool plain : {false, true}) {
        Plain(plain);
        const auto cut = [&](const std::string& path, std::size_t step, const auto& read) {
            const ByteVector whole = ReadWhole(path);
            for (std::size_t length = 0; length < whole.size(); length += length + step < whole.size() ? step : 1) {
                WriteWhole(path, ByteVector(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
                const TeamFileRead outcome = read();
                ASSERT_NE(outcome, TeamFileRead::Loaded) << path << ' ' << length;
                // What gives no byte at all is told where it is decompressed.
                ASSERT_EQ(Machine.TakeBoxes().size(), outcome == TeamFileRead::NotDecompressed ? 1U : 0U);
                ASSERT_TRUE(outcome == TeamFileRead::Refused || !plain);
            }
        };
        cut(WrittenDraftFile(), plain ? 7 : 1, [&] { return ReadRanking(); });
        // A plain file that ends with its first offer is one.
        const std::string path = WrittenOffersFile();
        if (!plain)
            cut(path, 1, [&] { return ReadOffers(); });
        const ByteVector whole = ReadWhole(path);
        for (std::size_t length = 0; plain && length < whole.size(); ++length) {
            WriteWhole(path, ByteVector(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
            ASSERT_EQ(ReadOffers(), length == 4 * OfferSlot ? TeamFileRead::Loaded : TeamFileRead::Refused) << length;
        }
    }
}

TEST_F(MarketFilesReadTest, NoFlippedBitOfAWrapperGivesAnotherContent)
{
    const auto flip = [&](const std::string& path, const auto& read, const auto& isWritten) {
        const ByteVector whole = ReadWhole(path);
        for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
            ByteVector flipped = whole;
            flipped[bit / 8] ^= static_cast<unsigned char>(1U << bit % 8);
            WriteWhole(path, flipped);
            ASSERT_TRUE(read() != TeamFileRead::Loaded || isWritten()) << bit;
            Machine.ForgetBoxes("a wrapper that gives nothing is told");
        }
    };
    flip(
        WrittenOffersFile(), [&] { return ReadOffers(); }, [&] { return ReadIsWritten(); });
    flip(
        WrittenDraftFile(), [&] { return ReadRanking(); }, [&] { return IsSame(Ranked, Ranking); });
}

TEST_F(MarketFilesReadTest, AWorkFileThatWasLeftBehindGoes)
{
    TempFile = Machine.InFolder("Work.dvt");
    WrittenOffersFile();
    WriteWhole(TempFile, ByteVector(10));
    EXPECT_EQ(ReadOffers(), TeamFileRead::Loaded);
    EXPECT_FALSE(std::filesystem::exists(TempFile));
}

} // namespace
} // namespace dravik
