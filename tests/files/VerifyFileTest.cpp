#include "files/VerifyFile.h"

#include "session/Session.h"
#include "support/ClientFileBytes.h"
#include "support/SmallLeague.h"

#include <filesystem>
#include <initializer_list>
#include <string_view>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t LinesSlot = 3470;
constexpr std::size_t OfferSlot = 1014;
constexpr std::size_t RankSlot = 12;

ByteVector Word(long long value, std::size_t width = 2)
{
    ByteVector bytes(width);
    for (std::size_t at = 0; at < width; ++at)
        bytes[at] = static_cast<unsigned char>(value >> 8 * at);
    return bytes;
}

ByteVector TextBytes(std::string_view text) { return {text.begin(), text.end()}; }

ByteVector Magic(std::string_view text)
{
    ByteVector bytes = Word(static_cast<long long>(text.size()));
    bytes.insert(bytes.end(), text.begin(), text.end());
    return bytes;
}

// Puts each record at the beginning of a slot; the last ends with its record.
class SlotsOfFile {
public:
    explicit SlotsOfFile(std::size_t length) : slot(length) {}

    void Add(const ByteVector& record)
    {
        bytes.resize(records * slot);
        bytes.insert(bytes.end(), record.begin(), record.end());
        ++records;
    }
    [[nodiscard]] const ByteVector& Bytes() const { return bytes; }
    [[nodiscard]] ByteVector Filled() const
    {
        ByteVector filled = bytes;
        filled.resize(records * slot);
        return filled;
    }

private:
    std::size_t slot;
    std::size_t records = 0;
    ByteVector bytes;
};

SlotsOfFile DraftFile(std::initializer_list<int> ids, int team = 7)
{
    SlotsOfFile file(RankSlot);
    file.Add(Magic("DRVKFDFV1S"));
    file.Add(TextBytes("SMALL"));
    file.Add(Word(team));
    for (const int id : ids)
        file.Add(Word(id));
    for (std::size_t rank = ids.size(); rank < 1001; ++rank)
        file.Add(Word(0));
    file.Add(Magic("DRVKFDFV1E"));
    return file;
}

ByteVector Offer(int id, int team = 7, int years = 1)
{
    ByteVector offer(OfferSlot, ' ');
    const auto put = [&](std::size_t at, const ByteVector& word) {
        std::copy(word.begin(), word.end(), offer.begin() + static_cast<std::ptrdiff_t>(at));
    };
    put(0, Word(id));
    put(2, Word(team));
    put(4, Word(750000, 4));
    put(8, Word(years));
    put(10, Word(0, 4));
    return offer;
}

SlotsOfFile OfferFile(const std::vector<ByteVector>& offers)
{
    SlotsOfFile file(OfferSlot);
    file.Add(Magic("DRVK Free Agents Files Version 1 - Start"));
    file.Add(TextBytes("SMALL"));
    file.Add(Word(7));
    for (const ByteVector& offer : offers)
        file.Add(offer);
    return file;
}

// A league and files of its team 7, written by hand, as plain slot files unless a test says otherwise.
class VerifyFileTest : public SmallLeague {
protected:
    VerifyFileTest()
    {
        TeamMaker made(7);
        LeagueData.LeagueCode = "SMALL";
        for (int division = 1; division <= 6; ++division)
            LeagueData.Division[division].Conference = 1;
        Teams[7].Division = 1;
        for (RosterChange& change : RosterChanges)
            change.Status = status::Pro;
        for (RosterChange& change : RosterChangesGoalie)
            change.Status = status::Pro;
    }

    VerifiedFile Verified(const ByteVector& bytes)
    {
        const std::string path = Machine.InFolder("File");
        WriteSparse(path, bytes);
        return VerifyFile(Machine, path);
    }
    std::vector<std::string> Findings(const ByteVector& bytes)
    {
        const VerifiedFile verified = Verified(bytes);
        EXPECT_EQ(verified.Count, static_cast<long long>(verified.Findings.size()));
        return verified.Findings;
    }
    void ExpectSound(const ByteVector& bytes, SystemFile kind, int team, bool isPlain = true)
    {
        const VerifiedFile verified = Verified(bytes);
        EXPECT_EQ(verified.Kind, kind);
        EXPECT_EQ(verified.IsPlain, isPlain);
        EXPECT_EQ(verified.LeagueCode, "SMALL");
        EXPECT_EQ(verified.Team, team);
        EXPECT_THAT(verified.Findings, IsEmpty());
        EXPECT_EQ(verified.Count, 0);
    }
    static std::string WrongLength(std::size_t length)
    {
        return "Its length is wrong: " + std::to_string(length) + " bytes";
    }
    static ByteVector Cut(const ByteVector& bytes, std::size_t length)
    {
        return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)};
    }
    static ByteVector FilledTo(ByteVector bytes, std::size_t length)
    {
        bytes.resize(length);
        return bytes;
    }
};

TEST_F(VerifyFileTest, FilesOfEveryKindAreSoundWithTheirLastSlotFilledOrNot)
{
    const ByteVector client = ClientSlots();
    ExpectSound(client, SystemFile::Client, 0);
    ExpectSound(FilledTo(client, 16903 * LinesSlot), SystemFile::Client, 0);
    const ByteVector lines = LinesSlots(7);
    ExpectSound(lines, SystemFile::Lines, 7);
    ExpectSound(FilledTo(lines, 11005 * LinesSlot), SystemFile::Lines, 7);
    ExpectSound(DraftFile({5, 10001, 20001}).Bytes(), SystemFile::Draft, 7);
    ExpectSound(DraftFile({5, 10001, 20001}).Filled(), SystemFile::Draft, 7);
    ExpectSound(OfferFile({Offer(5), Offer(10001)}).Bytes(), SystemFile::Offers, 7);
}

TEST_F(VerifyFileTest, WrappedFilesAreReadThroughTheirWrapper)
{
    ExpectSound(Wrapped(DraftFile({5}).Bytes()), SystemFile::Draft, 7, false);
    ExpectSound(Wrapped(OfferFile({Offer(5)}).Bytes()), SystemFile::Offers, 7, false);

    ByteVector wrong = Wrapped(DraftFile({5}).Bytes());
    wrong.back() ^= 1U;
    EXPECT_THAT(Findings(wrong),
                ElementsAre("Its stream is damaged: it does not come to its end, or does not fit its checksum"));
    ByteVector longer = Wrapped(DraftFile({5}).Bytes());
    const ByteVector length = Word(12061, 4);
    std::copy(length.begin(), length.end(), longer.begin());
    EXPECT_THAT(Findings(longer), ElementsAre("The length that its wrapper tells is wrong: 12061 bytes"));
}

TEST_F(VerifyFileTest, AFileThatEndsTooSoonSaysInFrontOfWhat)
{
    const ByteVector client = ClientSlots();
    constexpr struct {
        std::size_t Records;
        const char* Words;
    } places[] = {{1, "the league"},          {2, "Prospect 1"},  {301, "Prospect 300"},   {302, "Team 1"},
                  {401, "Team 100"},          {402, "Player 1"},  {10401, "Player 10000"}, {10402, "Goalie 1"},
                  {11401, "Goalie 1000"},     {11402, "Coach 1"}, {11901, "Coach 500"},    {11902, "ScheduleRow 1"},
                  {16901, "ScheduleRow 5000"}};
    for (const auto& [records, words] : places)
        EXPECT_THAT(Findings(Cut(client, records * LinesSlot)),
                    ElementsAre(std::string("It ends in front of ") + words, WrongLength(records * LinesSlot)));
    const ByteVector lines = LinesSlots(7);
    constexpr struct {
        std::size_t Records;
        const char* Words;
    } linesPlaces[] = {{3, "the team"},
                       {4, "RosterChange of skater 1"},
                       {10003, "RosterChange of skater 10000"},
                       {10004, "RosterChange of goalie 1"},
                       {11003, "RosterChange of goalie 1000"}};
    for (const auto& [records, words] : linesPlaces)
        EXPECT_THAT(Findings(Cut(lines, records * LinesSlot)),
                    ElementsAre(std::string("It ends in front of ") + words, WrongLength(records * LinesSlot)));
    const ByteVector draft = DraftFile({5}).Bytes();
    constexpr struct {
        std::size_t Records;
        const char* Words;
    } ranks[] = {{1, "the league's code"}, {2, "the number of the team"}, {3, "rank 1"}, {1003, "rank 1001"}};
    for (const auto& [records, words] : ranks)
        EXPECT_THAT(Findings(Cut(draft, records * RankSlot)),
                    ElementsAre(std::string("It ends in front of ") + words, WrongLength(records * RankSlot)));
}

TEST_F(VerifyFileTest, WrongMagicsAndWhatStandsBehindTheEndAreTold)
{
    ByteVector draft = DraftFile({5}).Bytes();
    draft.back() = 'X';
    EXPECT_THAT(Findings(draft), ElementsAre("The end magic is wrong"));
    draft = DraftFile({5}).Bytes();
    draft[0] = 11; // the text is right, its length is not
    EXPECT_THAT(Findings(draft), ElementsAre("The start magic is wrong"));
    draft = DraftFile({5}).Filled();
    draft.push_back('m');
    EXPECT_THAT(Findings(draft), ElementsAre("It goes on behind its end", WrongLength(1005 * RankSlot + 1)));

    ByteVector client = ClientSlots();
    client.back() = 'X';
    EXPECT_THAT(Findings(client), ElementsAre("The end magic is wrong"));
    client = ClientSlots();
    client[0] = 0;
    EXPECT_THAT(Findings(client), ElementsAre("The start magic is wrong"));
    ByteVector lines = LinesSlots(7);
    lines.back() = 'X';
    EXPECT_THAT(Findings(lines), ElementsAre("The end magic is wrong"));
    lines = LinesSlots(7);
    lines[0] = 0;
    EXPECT_THAT(Findings(lines), ElementsAre("The start magic is wrong"));
    ByteVector offers = OfferFile({Offer(5)}).Bytes();
    offers[0] = 0;
    EXPECT_THAT(Findings(offers), ElementsAre("The start magic is wrong"));
}

TEST_F(VerifyFileTest, RecordsThatCannotBeAreToldByTheirPlace)
{
    LeagueData.ShowOverall.SetWord(3);
    Teams[7].ProMorale = 101;
    PutSkater(9, 7, position::Center, status::Pro).Condition = 101;
    PutGoalie(4, 7, status::Pro).Suspension = 100;
    Coaches[500].InUse.SetWord(2);
    GameSchedule[2].ProGame.SetWord(4);
    EXPECT_THAT(Findings(ClientSlots()), ElementsAre("League, ShowOverall: 3 is neither true nor false",
                                                     "Team 7, ProMorale: 101 is not from 0 to 100",
                                                     "Player 9, Condition: 101 is not from 0 to 100",
                                                     "Goalie 4, Suspension: 100 is not from 0 to 99",
                                                     "Coach 500, InUse: 2 is neither true nor false",
                                                     "ScheduleRow 2, ProGame: 4 is neither true nor false"));

    RosterChanges[10000].Status = 3;
    RosterChangesGoalie[1].Protected.SetWord(9);
    EXPECT_THAT(Findings(LinesSlots(7)),
                ElementsAre("Team 7, ProMorale: 101 is not from 0 to 100",
                            "RosterChange of skater 10000, Status: 3 is not from 0 to 2",
                            "RosterChange of goalie 1, Protected: 9 is neither true nor false"));
}

TEST_F(VerifyFileTest, ATeamIsOneOfAHundred)
{
    for (const int team : {0, 101})
        EXPECT_THAT(Findings(DraftFile({5}, team).Bytes()),
                    ElementsAre("The team's number: " + std::to_string(team) + " is not from 1 to 100"));
    for (const int team : {1, 100})
        EXPECT_THAT(Findings(DraftFile({5}, team).Bytes()), IsEmpty());
}

TEST_F(VerifyFileTest, OffersComeInTheOrderOfTheirIds)
{
    EXPECT_THAT(Findings(OfferFile({Offer(5), Offer(5), Offer(4), Offer(11000, 8), Offer(11001, 7, 10)}).Bytes()),
                ElementsAre("FreeAgentOffer 2, Id: 5 stands behind 5", "FreeAgentOffer 3, Id: 4 stands behind 5",
                            "FreeAgentOffer 4, Team: 8 is not the team of the file",
                            "FreeAgentOffer 5, Id: 11001 is not from 1 to 11000",
                            "FreeAgentOffer 5, Duration: 10 is not from 1 to 9"));
}

TEST_F(VerifyFileTest, AFileHoldsOneTo996Offers)
{
    // Three records and at least one offer; `count` fills the file with as many as it says.
    const auto fileOf = [](int count) {
        std::vector<ByteVector> offers;
        for (int id = 1; id <= count; ++id)
            offers.push_back(Offer(id));
        return OfferFile(offers);
    };
    EXPECT_THAT(Findings(fileOf(1).Bytes()), IsEmpty());
    EXPECT_THAT(Findings(fileOf(996).Bytes()), IsEmpty());
    EXPECT_THAT(Findings(fileOf(997).Bytes()),
                ElementsAre("It holds 997 offers, not from 1 to 996", WrongLength(1000 * OfferSlot)));
    EXPECT_THAT(Findings(fileOf(0).Filled()),
                ElementsAre("It holds 0 offers, not from 1 to 996", WrongLength(3 * OfferSlot)));
    const ByteVector two = fileOf(2).Bytes();
    EXPECT_THAT(Findings(Cut(two, two.size() - 1)),
                ElementsAre("It ends in front of FreeAgentOffer 2", WrongLength(two.size() - 1)));
}

TEST_F(VerifyFileTest, RanksNameSomebodyAndLeaveNoGap)
{
    EXPECT_THAT(Findings(DraftFile({10000, 11000, 20300, 1}).Bytes()), IsEmpty());
    EXPECT_THAT(Findings(DraftFile({20301, 11001, 20000, -1, 5, 0, 6, 7}).Bytes()),
                ElementsAre("rank 1: nobody has the number 20301", "rank 2: nobody has the number 11001",
                            "rank 3: nobody has the number 20000", "rank 4: nobody has the number -1",
                            "rank 7: somebody stands behind an empty rank"));
}

TEST_F(VerifyFileTest, AThousandFindingsAreKeptAndAllAreCounted)
{
    SlotsOfFile file(RankSlot);
    file.Add(Magic("DRVKFDFV1S"));
    file.Add(TextBytes("SMALL"));
    file.Add(Word(101));
    for (int rank = 1; rank <= 1001; ++rank)
        file.Add(Word(-rank));
    file.Add(Magic("DRVKFDFV1X"));
    const VerifiedFile verified = Verified(file.Bytes());
    EXPECT_EQ(verified.Findings.size(), 1000U);
    EXPECT_EQ(verified.Findings.front(), "The team's number: 101 is not from 1 to 100");
    EXPECT_EQ(verified.Findings.back(), "rank 999: nobody has the number -999");
    EXPECT_EQ(verified.Count, 1003);
}

TEST_F(VerifyFileTest, WhatIsNoFileOfTheSystemIsTold)
{
    for (const ByteVector& bytes :
         {ByteVector{}, TextBytes("x"), TextBytes("something else"), Magic("DRVKFDFV2S"), Cut(Magic("DRVKFDFV1S"), 11),
          Wrapped(TextBytes("something else that is long enough"))}) {
        const VerifiedFile verified = Verified(bytes);
        EXPECT_EQ(verified.Kind, SystemFile::Unknown);
        EXPECT_THAT(verified.Findings, ElementsAre("It is no file of the system, or nothing of it is left"));
    }
}

TEST_F(VerifyFileTest, OfAJournalTheKindAloneIsTold)
{
    ByteVector journal = Magic("DRVKJNFV1S");
    journal.resize(100, 0xFF);
    const VerifiedFile verified = Verified(journal);
    EXPECT_EQ(verified.Kind, SystemFile::Journal);
    EXPECT_TRUE(verified.IsPlain);
    EXPECT_THAT(verified.Findings, IsEmpty());
}

TEST_F(VerifyFileTest, APlainFileBeginsWithItsWordBehindTwoBytes)
{
    const std::string path = Machine.InFolder("File");
    const auto isPlain = [&](std::string_view text) {
        WriteWhole(path, TextBytes(text));
        return IsPlainFile(Machine, path);
    };
    EXPECT_TRUE(isPlain("..DRVK"));
    EXPECT_TRUE(isPlain("..DRVK and more"));
    EXPECT_FALSE(isPlain("..DRV"));
    EXPECT_FALSE(isPlain(".DRVK."));
    EXPECT_FALSE(isPlain("..drvk"));
    EXPECT_FALSE(isPlain(""));
}

} // namespace
} // namespace dravik
