// A load of offers or of a draft list whose file operations fail: what is read is all that the file holds, or nothing.

#include "files/DraftFile.h"
#include "files/OffersFile.h"
#include "session/Session.h"
#include "support/FileFaultReaders.h"
#include "support/Routines.h"

#include <cstring>
#include <memory>
#include <random>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MarketFilesFaultTest : public FileFaultReaders {
protected:
    // Runs `load` over `path`, with the work file of a crash beside it, once for each operation that the fault befalls;
    // `isAll` and `isNothing` look at what was read.
    void EachOperation(const std::string& path, const Work& load, const std::function<bool()>& isAll,
                       const std::function<bool()>& isNothing)
    {
        WriteWhole(TempFile, {'o', 'l', 'd'});
        const Operations operations = OperationsOf(load);
        ASSERT_GT(operations.size(), 5U);
        ASSERT_EQ(Operations(operations.begin(), operations.begin() + 5),
                  (Operations{"find", "delete", "find", "find", "open"}));
        for (std::size_t n = 1; n <= operations.size(); ++n) {
            const std::string& operation = operations[n - 1];
            SCOPED_TRACE(std::to_string(n) + " " + operation);
            WriteWhole(TempFile, {'o', 'l', 'd'});
            const Outcome outcome = RunWith(Fault(), n, load);
            Machine.CloseWait();
            if (outcome.Killed)
                continue;
            // Whether the file is there is looked for once; the other searches find what they need without.
            const bool passes = operation == "find" && n != 3;
            EXPECT_EQ(outcome.Done, passes);
            EXPECT_TRUE(passes ? isAll() : isNothing());
            const bool told = !Plain() && operation != "find" && operation != "delete";
            EXPECT_EQ(outcome.Thrown, told || operation == "find" ? 0 : Fault().Number);
            EXPECT_EQ(outcome.Boxes, told ? std::vector{Fault().ToldWith(" in Zlib Decompress!")} : std::vector<Box>{});
        }
        EXPECT_TRUE(Run(load).Done);
        EXPECT_TRUE(isAll());
        EXPECT_THAT(FileNames(), ElementsAre(std::filesystem::path(path).filename().string()));
    }
};

TEST_P(MarketFilesFaultTest, ALoadOfOffersGivesEverythingOrNothing)
{
    std::mt19937 random(3);
    auto offers = std::make_unique<OfferTable>();
    for (int id = 1; id <= 150; ++id) { // more than one read, wrapped too
        FreeAgentOffer& offer = (*offers)[id];
        PutSkater(id, 6, position::Center, status::Farm);
        offer.Id = id;
        offer.Salary = 750000;
        offer.Duration = 3;
        std::string comment(1000, ' ');
        for (char& letter : comment)
            letter = static_cast<char>('!' + random() % 90);
        offer.Comment = comment;
    }
    LeagueData.OffersLeft = 1000;
    const std::string path = Machine.InFolder("Team5.dvf");
    ASSERT_EQ(WriteOffersFile(5, path, *offers).Outcome, OffersFileWrite::Saved);
    std::vector<FreeAgentOffer> read;
    const auto load = [&] { return ReadOffersFile(OpenLeague, OpenFiles(), 5, path, read) == TeamFileRead::Loaded; };
    const auto isAll = [&] {
        return read.size() == 150 && std::memcmp(read.data(), &(*offers)[1], 150 * sizeof(FreeAgentOffer)) == 0;
    };
    EachOperation(path, load, isAll, [&] { return read.empty(); });
}

TEST_P(MarketFilesFaultTest, ALoadOfADraftListGivesEverythingOrNothing)
{
    DraftRanking ranking;
    for (long long rank = 0; rank <= 1000; ++rank)
        ranking[rank] = 1001 - rank;
    const std::string path = Machine.InFolder("Team5.dvd");
    ASSERT_TRUE(WriteDraftFile(5, ranking, path));
    DraftRanking read;
    const auto load = [&] { return ReadDraftFile(OpenLeague, OpenFiles(), 5, path, read) == TeamFileRead::Loaded; };
    const auto isRead = [&](const DraftRanking& wanted) { return std::memcmp(&read, &wanted, sizeof read) == 0; };
    EachOperation(
        path, load, [&] { return isRead(ranking); }, [&] { return isRead({}); });
}

INSTANTIATE_TEST_SUITE_P(All, MarketFilesFaultTest, EveryFileFault(), FileFaultReaders::Name);

} // namespace
} // namespace dravik
