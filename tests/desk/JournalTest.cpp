#include "JournalDesk.h"

#include <cmath>
#include <stdexcept>

// What a journal tells of a history, and what is read of one that is not whole.
namespace dravik {
namespace {

class JournalTest : public JournalDesk {
protected:
    // An entry as it would stand behind what was written so far.
    void Append(JournalKind kind, const std::string& told, double time = 46001)
    {
        const JournalEntryHead head{
            .Length = static_cast<long long>(told.size()), .Kind = static_cast<long long>(kind), .Time = time};
        const std::string bytes = std::string(reinterpret_cast<const char*>(&head), sizeof head) + told;
        written += bytes + WriteSeal(SealOver(Read().Sealed, bytes));
    }
    // Whether such an entry is taken.
    bool IsTaken(JournalKind kind, const std::string& told, double time = 46001)
    {
        const std::string before = written;
        Append(kind, told, time);
        const bool isTaken = Read().Whole == written.size();
        EXPECT_TRUE(isTaken || Read().Whole == before.size());
        written = before;
        return isTaken;
    }
    // What was told last.
    [[nodiscard]] std::string LastTold() const
    {
        const std::size_t begin = ends.size() > 1 ? ends[ends.size() - 2] : JournalHeadSize();
        return written.substr(begin + sizeof(JournalEntryHead),
                              written.size() - begin - sizeof(JournalEntryHead) - SealSize);
    }
    static std::string Fingerprint(const JournalRead& read)
    {
        std::string all;
        const auto add = [&](const ByteDifference& difference) {
            all.append(difference.Stored().begin(), difference.Stored().end());
            all += '|';
        };
        add(read.Beginning);
        for (const Step& step : read.Steps) {
            all += step.Label.Words + '|' + step.Label.Where + '|' + std::to_string(step.Label.Team) + '|';
            add(step.Change);
        }
        return all + std::to_string(read.Done);
    }
};

// What an earlier version of the program has sealed is whole to this one.
TEST(SealTest, IsTheSameNumberForEver)
{
    EXPECT_EQ(SealOver(0, ""), 0xA8C7F832281A39C5U);
    EXPECT_EQ(SealOver(0, "Gulls"), 0x142039CBF287666EU);
    EXPECT_EQ(SealOver(0x0123456789ABCDEFU, "Gulls\xE9"), 0x0ADE3D1067C1F935U);
    EXPECT_EQ(WriteSeal(0x0123456789ABCDEFU), "\xEF\xCD\xAB\x89\x67\x45\x23\x01");
    EXPECT_EQ(ReadSeal("\xEF\xCD\xAB\x89\x67\x45\x23\x01"), 0x0123456789ABCDEFU);
}

TEST_F(JournalTest, NothingIsWrittenBeforeTheFirstStep)
{
    Rename("Old Arena");
    history.Fold();
    writer.Saved(SavedFile::Lines, Own);
    EXPECT_EQ(written, "");
    EXPECT_FALSE(writer.HasBegun());
    Pay(90);
    EXPECT_TRUE(writer.HasBegun());
    EXPECT_EQ(ends.size(), 1U) << "the head, the beginning and the step are written at once";
    const auto head = ReadJournal(std::string_view(written).substr(0, JournalHeadSize())).Journal;
    ASSERT_TRUE(head);
    EXPECT_EQ(head->Steps.size(), 0U);
    EXPECT_EQ(head->Done, 0U);
}

TEST_F(JournalTest, AStepIsReadAsItWasClosed)
{
    {
        const OpenStep step =
            history.Open({.Words = "Pay \xC9ric", .Where = "Roster", .Team = Own, .Drag = 1ULL << 40});
        OwnTeam.Cash = 7;
    }
    const JournalRead read = Read();
    ASSERT_EQ(read.Steps.size(), 1U);
    EXPECT_EQ(read.Done, 1U);
    EXPECT_EQ(read.Steps[0].Label.Words, "Pay \xC9ric");
    EXPECT_EQ(read.Steps[0].Label.Where, "Roster");
    EXPECT_EQ(read.Steps[0].Label.Team, Own);
    EXPECT_EQ(read.Steps[0].Label.Drag, 1ULL << 40);
    EXPECT_TRUE(std::ranges::equal(read.Steps[0].Change.Stored(), history.ToUndo()->Change.Stored()));
    EXPECT_TRUE(read.Beginning.IsEmpty());
    EXPECT_EQ(read.Head.LeagueCode.Raw(), Head().LeagueCode.Raw());
    EXPECT_EQ(read.Head.Beginning, Head().Beginning);
    EXPECT_EQ(read.Head.FileDate, 45999.5);
    EXPECT_EQ(read.Head.Begun, 46000.25);
    EXPECT_EQ(read.Whole, written.size());
    EXPECT_EQ(read.Ledger.Teams(), std::vector{Own});
}

TEST_F(JournalTest, WordsThatAreTooLongAreCut)
{
    {
        const OpenStep step = history.Open(Label(std::string(40000, 'w')));
        OwnTeam.Cash = 7;
    }
    EXPECT_EQ(Read().Steps.at(0).Label.Words, std::string(32767, 'w'));
}

TEST_F(JournalTest, WhatDiffersFromTheBeginningAlreadyStandsInFrontOfTheFirstStep)
{
    Rename("A");
    history.Fold();
    Rename("B");
    Pay(90);
    const JournalRead read = Read();
    EXPECT_EQ(read.Steps.size(), 1U);
    const Text<25> after = "B";
    const auto run = RunReader(read.Beginning.Stored()).Next();
    ASSERT_TRUE(run);
    EXPECT_EQ(run->Table, DeskTable::Teams);
    EXPECT_EQ(static_cast<char>(run->After.front()), after.Raw().front());
}

TEST_F(JournalTest, StepsOfOneDragAreOneStep)
{
    Pay(90, 3);
    Pay(80, 3);
    ASSERT_EQ(Read().Steps.size(), 1U);
    EXPECT_EQ(Read().Steps[0].Label.Words, "Pay 80");
    EXPECT_TRUE(std::ranges::equal(Read().Steps[0].Change.Stored(), history.ToUndo()->Change.Stored()));
}

TEST_F(JournalTest, AStepThatTookItselfBackIsGone)
{
    Pay(90);
    Pay(80, 3);
    Pay(90, 3);
    EXPECT_EQ(Read().Steps.size(), 1U);
    EXPECT_EQ(Read().Done, 1U);
    Rename("New");
    history.Fold();
    Pay(70);
    Rename("Newer");
    history.Fold();
    EXPECT_EQ(Read().Steps.size(), 2U);
    EXPECT_TRUE(std::ranges::equal(Read().Steps[1].Change.Stored(), history.ToUndo()->Change.Stored()));
}

TEST_F(JournalTest, WhatWasUndoneCanBeRedone)
{
    Pay(90);
    Pay(80);
    Pay(70);
    history.Undo();
    history.Undo();
    EXPECT_EQ(Read().Done, 1U);
    EXPECT_EQ(Read().Steps.size(), 3U);
    history.Redo();
    EXPECT_EQ(Read().Done, 2U);
    Pay(60);
    EXPECT_EQ(Read().Done, 3U);
    EXPECT_EQ(Read().Steps.size(), 3U);
    EXPECT_EQ(Read().Steps.back().Label.Words, "Pay 60");
}

TEST_F(JournalTest, AnotherTeamLeavesTheFirstOnesWorkInTheBeginning)
{
    Pay(90);
    {
        const OpenStep step = history.Open(Label("Rename", 0, 6));
        Teams[6].Name = "Others";
    }
    const JournalRead read = Read();
    ASSERT_EQ(read.Steps.size(), 1U);
    EXPECT_EQ(read.Steps[0].Label.Team, 6);
    EXPECT_FALSE(read.Beginning.IsEmpty());
    EXPECT_EQ(read.Ledger.Teams(), (std::vector{Own, 6}));
    ASSERT_TRUE(read.Unsaved);
    EXPECT_EQ(read.Unsaved->Team, 6);
}

// ---- Passwords ---------------------------------------------------------------------------------------------------------

TEST_F(JournalTest, NoPasswordStandsInIt)
{
    const std::string other(32, '8');
    Rename("New");
    OwnTeam.Password = std::string(32, '7'); // somebody's, outside of a step
    {
        const OpenStep step = history.Open(Label("Change Password", 4));
        OwnTeam.Password = other;
    }
    {
        const OpenStep step = history.Open(Label("Change Password", 4));
        OwnTeam.Password = "";
        OwnTeam.Cash = 3;
    }
    OwnTeam.Password = other;
    history.Fold();
    history.Undo();
    history.Redo();
    for (const std::string& part : {std::string(Secret).substr(0, 6), std::string("777777"), std::string("888888")})
        EXPECT_EQ(written.find(part), std::string::npos);
    EXPECT_EQ(Read().Steps.size(), 1U);
    EXPECT_EQ(Read().Whole, written.size());
    const auto first = RunReader(Read().Steps[0].Change.Stored()).Next();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->Offset,
              reinterpret_cast<unsigned char*>(&OwnTeam.Cash) - reinterpret_cast<unsigned char*>(&Teams));
}

TEST_F(JournalTest, APasswordAloneIsAStepWithoutAChange)
{
    Pay(90);
    {
        const OpenStep step = history.Open(Label("Change Password"));
        OwnTeam.Password = "";
    }
    EXPECT_EQ(Read().Steps.size(), 2U);
    EXPECT_TRUE(Read().Steps[1].Change.IsEmpty());
    history.Undo();
    history.Undo();
    EXPECT_EQ(Read().Done, 0U);
    EXPECT_FALSE(Read().Unsaved);
}

TEST_F(JournalTest, AnEntryWithAPasswordInItIsNone)
{
    Pay(90);
    DifferenceWriter difference;
    const auto at = static_cast<std::size_t>(reinterpret_cast<unsigned char*>(&OwnTeam.Password) -
                                             reinterpret_cast<unsigned char*>(&Teams));
    const unsigned char bytes[] = {1, 2};
    difference.Add(DeskTable::Teams, at + 31, {bytes, 1}, {bytes + 1, 1});
    const ByteDifference made = difference.Finish();
    EXPECT_FALSE(IsTaken(JournalKind::Folded, '\0' + std::string(made.Stored().begin(), made.Stored().end())));
}

// ---- What is unsaved -----------------------------------------------------------------------------------------------------

TEST_F(JournalTest, WhatWasDoneIsUnsavedUntilItsFileIsSaved)
{
    now = 46100.5;
    Pay(90);
    ASSERT_TRUE(Read().Unsaved);
    EXPECT_EQ(Read().Unsaved->Team, Own);
    EXPECT_EQ(Read().Unsaved->Time, 46100.5);
    writer.Saved(SavedFile::Offers, Own);
    writer.Saved(SavedFile::Lines, Own + 1);
    EXPECT_TRUE(Read().Unsaved);
    writer.Saved(SavedFile::Lines, Own);
    EXPECT_FALSE(Read().Unsaved);
    now = 46100.75;
    Pay(80);
    ASSERT_TRUE(Read().Unsaved);
    EXPECT_EQ(Read().Unsaved->Time, 46100.75);
}

TEST_F(JournalTest, WorkThatIsTakenBackToWhatWasSavedIsNotUnsaved)
{
    Pay(90);
    history.Undo();
    EXPECT_FALSE(Read().Unsaved);
    history.Redo();
    writer.Saved(SavedFile::Lines, Own);
    history.Undo();
    EXPECT_TRUE(Read().Unsaved) << "the file holds what was undone";
    history.Redo();
    EXPECT_FALSE(Read().Unsaved);
}

TEST_F(JournalTest, OffersAndTheRankingAreUnsavedByThemselves)
{
    OfferTo(17, 500000);
    writer.Saved(SavedFile::Lines, Own);
    EXPECT_TRUE(Read().Unsaved);
    writer.Saved(SavedFile::Offers, Own);
    EXPECT_FALSE(Read().Unsaved);
    Rank(17);
    EXPECT_TRUE(Read().Unsaved);
    writer.Saved(SavedFile::Ranking, Own);
    EXPECT_FALSE(Read().Unsaved);
}

TEST_F(JournalTest, WorkThatTakesBackWhatStoodOnTheMarketBeforeItIsNotUnsaved)
{
    market->Ranking[0] = 17; // outside of any step
    history.Fold();
    Rank(0);
    EXPECT_FALSE(Read().Beginning.IsEmpty());
    EXPECT_FALSE(Read().Unsaved);
    Rank(18);
    EXPECT_TRUE(Read().Unsaved);
}

TEST_F(JournalTest, WhatWasKeptIsUnsavedThoughItsScreenBeginsAnew)
{
    Rank(17);
    writer.Kept(SavedFile::Ranking, Own);
    Rank(0);
    ASSERT_TRUE(Read().Unsaved);
    ASSERT_EQ(Read().Ledger.AllKept().size(), 1U);
    EXPECT_EQ(Read().Ledger.AllKept()[0].Team, Own);
    EXPECT_EQ(Read().Ledger.AllKept()[0].File, SavedFile::Ranking);
    EXPECT_EQ(MarketOf(Read().Ledger.AllKept()[0])->Ranking[0], 17);
    Rank(18);
    writer.Saved(SavedFile::Ranking, Own);
    EXPECT_FALSE(Read().Unsaved);
}

TEST_F(JournalTest, WhatWasSavedAndKeptIsNotUnsavedWhenItsScreenBeginsAnew)
{
    OfferTo(17, 500000);
    writer.Saved(SavedFile::Offers, Own);
    writer.Kept(SavedFile::Offers, Own);
    {
        const OpenStep step = history.Open(Label("Begin new offers"));
        market->Offers[17] = {};
    }
    EXPECT_FALSE(Read().Unsaved);
    OfferTo(18, 500000);
    EXPECT_TRUE(Read().Unsaved);
}

TEST_F(JournalTest, OffersThatWereTakenBackWithoutBeingKeptAreNoWork)
{
    OfferTo(17, 500000);
    {
        const OpenStep step = history.Open(Label("Delete"));
        market->Offers[17] = {};
    }
    EXPECT_FALSE(Read().Unsaved);
    EXPECT_TRUE(Read().Ledger.AllKept().empty());
}

TEST_F(JournalTest, LookingAtAPersonBehindTheSaveIsNoWork)
{
    OfferTo(17, 500000);
    writer.Saved(SavedFile::Offers, Own);
    {
        const OpenStep step = history.Open(Label("Offer"));
        market->Offers[17].Salary = 600000;
    }
    history.Undo();
    history.Watch(18);
    market->Offers[18].Id = 18;
    history.Fold();
    EXPECT_FALSE(Read().Unsaved);
}

TEST_F(JournalTest, KeptOffersAreThePeopleSInWhoseRowsTheyStand)
{
    OfferTo(17, 500000);
    OfferTo(11000, 600000);
    writer.Kept(SavedFile::Offers, Own);
    ASSERT_EQ(Read().Ledger.AllKept().size(), 1U);
    const auto kept = MarketOf(Read().Ledger.AllKept()[0]);
    EXPECT_EQ(kept->Offers[17].Id, 17);
    EXPECT_EQ(kept->Offers[17].Salary, 500000);
    EXPECT_EQ(kept->Offers[11000].Id, 11000);
    EXPECT_EQ(kept->Offers[11000].Duration, 2);
    EXPECT_EQ(kept->Offers[18].Id, 0);
}

TEST_F(JournalTest, WhatIsBroughtBackIsKept)
{
    Rank(17);
    JournalWriter(Read().Sealed, Sink(), Clock()); // it goes on
    ASSERT_EQ(Read().Ledger.AllKept().size(), 1U);
    EXPECT_EQ(MarketOf(Read().Ledger.AllKept()[0])->Ranking[0], 17);
}

TEST_F(JournalTest, WhatIsRepairedBehindTheSaveIsNoWorkByItself)
{
    Pay(90);
    writer.Saved(SavedFile::Lines, Own);
    Rename("Repaired");
    history.Fold();
    EXPECT_FALSE(Read().Unsaved);
    Pay(80);
    EXPECT_TRUE(Read().Unsaved);
}

TEST_F(JournalTest, TheTeamThatWorkedLastIsTheOneWhoseWorkIsUnsaved)
{
    Pay(90);
    now += 1;
    {
        const OpenStep step = history.Open(Label("Rename", 0, 6));
        Teams[6].Name = "Others";
    }
    writer.Saved(SavedFile::Lines, 6);
    ASSERT_TRUE(Read().Unsaved);
    EXPECT_EQ(Read().Unsaved->Team, Own);
    EXPECT_EQ(Read().Unsaved->Time, now - 1);
}

// ---- What is not whole ---------------------------------------------------------------------------------------------------

// Of everything that an entry can tell, one.
class SmallJournal : public JournalTest {
protected:
    SmallJournal()
    {
        Rename("Arena");
        Pay(90);
        Pay(80, 2);
        Pay(70, 2);
        Rename("Other Arena");
        history.Fold();
        Pay(60);
        history.Undo();
        history.Redo();
        writer.Saved(SavedFile::Lines, Own);
        {
            const OpenStep step = history.Open(Label("Rename", 0, 6));
            Teams[6].Name = "Others";
        }
        // What is read behind each of the entries.
        for (std::size_t length = JournalHeadSize(); length <= written.size(); ++length) {
            const auto read = ReadJournal(std::string_view(written).substr(0, length)).Journal;
            if (read && read->Whole == length)
                states[length] = Fingerprint(*read);
        }
    }
    // Whether what is read of `bytes` is what stood behind some whole entries that are all in front of `where`.
    void ExpectWholeBefore(std::string_view bytes, std::size_t where)
    {
        const JournalOutcome outcome = ReadJournal(bytes);
        if (where < JournalHeadSize()) {
            EXPECT_FALSE(outcome.Journal);
            EXPECT_NE(outcome.Refused, "");
            return;
        }
        ASSERT_TRUE(outcome.Journal);
        const auto last = std::prev(states.upper_bound(where));
        EXPECT_EQ(outcome.Journal->Whole, last->first);
        EXPECT_EQ(Fingerprint(*outcome.Journal), last->second);
    }

    std::map<std::size_t, std::string> states;
};

TEST_F(SmallJournal, IsReadToItsEnd)
{
    EXPECT_EQ(Read().Whole, written.size());
    EXPECT_EQ(states.size(), 12U); // the head and eleven entries
}

TEST_F(SmallJournal, OfEveryTruncationTheWholeEntriesAreRead)
{
    for (std::size_t length = 0; length < written.size(); ++length) {
        SCOPED_TRACE(length);
        ExpectWholeBefore(std::string_view(written).substr(0, length), length);
    }
}

TEST_F(SmallJournal, BehindEveryFlippedByteNothingIsRead)
{
    for (std::size_t at = 0; at < written.size(); ++at)
        for (const unsigned flip : {1U, 0x80U, 0xFFU}) {
            SCOPED_TRACE(std::to_string(at) + " flipped by " + std::to_string(flip));
            std::string flipped = written;
            flipped[at] = static_cast<char>(static_cast<unsigned char>(flipped[at]) ^ flip);
            ExpectWholeBefore(flipped, at);
        }
}

TEST_F(SmallJournal, AnEntryThatIsMissingOrStandsElsewhereIsNoticed)
{
    std::vector<std::size_t> bounds;
    for (const auto& [end, state] : states)
        bounds.push_back(end);
    for (std::size_t i = 0; i + 2 < bounds.size(); ++i) {
        SCOPED_TRACE(i);
        const std::string head = written.substr(0, bounds[i]);
        const std::string one = written.substr(bounds[i], bounds[i + 1] - bounds[i]);
        const std::string two = written.substr(bounds[i + 1], bounds[i + 2] - bounds[i + 1]);
        EXPECT_EQ(ReadJournal(head + two).Journal->Whole, head.size());
        EXPECT_EQ(ReadJournal(head + two + one).Journal->Whole, head.size());
        EXPECT_EQ(ReadJournal(head + one + one).Journal->Whole, bounds[i + 1]);
    }
}

TEST_F(JournalTest, WhatIsNoJournalIsRefusedInWords)
{
    EXPECT_EQ(ReadJournal("").Refused, "It is no journal.");
    EXPECT_EQ(ReadJournal(std::string(500, 'x')).Refused, "It is no journal.");
    for (const std::size_t place : {0, 2, 11}) { // the length of its magic, and the first and last letter
        std::string foreign = WriteJournalHead(Head());
        ++foreign[place];
        EXPECT_EQ(ReadJournal(foreign).Refused, "It is no journal.") << place;
    }
    Pay(90);
    std::string other = written.substr(0, JournalHeadSize());
    EXPECT_EQ(ReadJournal(other.substr(0, other.size() - 1)).Refused, "Its beginning is damaged.");
    other[12] = static_cast<char>(other[12] ^ 1); // of the layout, with a seal that fits
    other.replace(other.size() - SealSize, SealSize,
                  WriteSeal(SealOver(0, std::string_view(other).substr(0, other.size() - SealSize))));
    EXPECT_EQ(ReadJournal(other).Refused, "It was written by a program that keeps its tables in another way.");
}

TEST_F(JournalTest, AnEntryThatCannotHaveBeenIsNone)
{
    Pay(90);
    history.Undo();
    const std::string team5("\5\0\0\0", 4);
    EXPECT_FALSE(IsTaken(JournalKind::Undone, "")) << "no step is left";
    EXPECT_TRUE(IsTaken(JournalKind::Redone, ""));
    EXPECT_FALSE(IsTaken(JournalKind::Redone, "x"));
    EXPECT_FALSE(IsTaken(JournalKind::Redone, "", std::nan("")));
    EXPECT_FALSE(IsTaken(JournalKind::Folded, std::string(1, '\0'))) << "into no step";
    EXPECT_TRUE(IsTaken(JournalKind::FoldedIntoBeginning, ""));
    EXPECT_FALSE(IsTaken(JournalKind::FoldedIntoBeginning, "x"));
    EXPECT_TRUE(IsTaken(JournalKind::Ended, ""));
    EXPECT_TRUE(IsTaken(JournalKind::BroughtBack, ""));
    EXPECT_TRUE(IsTaken(JournalKind::Saved, '\1' + team5));
    EXPECT_FALSE(IsTaken(JournalKind::Saved, '\0' + team5));
    EXPECT_FALSE(IsTaken(JournalKind::Saved, '\4' + team5));
    EXPECT_FALSE(IsTaken(JournalKind::Saved, "\1"));
    EXPECT_FALSE(IsTaken(JournalKind::Saved, '\1' + team5 + 'x'));
    EXPECT_FALSE(IsTaken(JournalKind{0}, ""));
    EXPECT_TRUE(IsTaken(JournalKind::Kept, '\2' + team5));
    EXPECT_TRUE(IsTaken(JournalKind::Kept, '\3' + team5));
    EXPECT_FALSE(IsTaken(JournalKind::Kept, '\1' + team5)) << "lines stand on no screen of the market";
    EXPECT_FALSE(IsTaken(JournalKind::Kept, '\4' + team5));
    EXPECT_FALSE(IsTaken(JournalKind{11}, ""));
    history.Redo();
    EXPECT_FALSE(IsTaken(JournalKind::Redone, "")) << "no step is undone";
    EXPECT_TRUE(IsTaken(JournalKind::Folded, std::string(1, '\0')));
    EXPECT_FALSE(IsTaken(JournalKind::Folded, "\2"));
    EXPECT_FALSE(IsTaken(JournalKind::Folded, "\1")) << "something of the step is left";
}

TEST_F(JournalTest, AStepOfAnotherTeamEndsThoseBefore)
{
    Pay(90);
    std::string told = LastTold();
    const std::size_t team = told.find(std::string("\5\0\0\0", 4));
    ASSERT_NE(team, std::string::npos);
    for (std::size_t length = 0; length < team; ++length)
        EXPECT_FALSE(IsTaken(JournalKind::Closed, told.substr(0, length))) << length;
    history.Undo();
    told[team] = 6;
    Append(JournalKind::Closed, told);
    const JournalRead read = Read();
    ASSERT_EQ(read.Steps.size(), 1U) << "the other's cannot be redone any more";
    EXPECT_EQ(read.Steps[0].Label.Team, 6);
    EXPECT_TRUE(read.Beginning.IsEmpty());
}

// A history forgets its oldest steps where there is no room for them, and says nothing of it.
TEST_F(JournalTest, WhatChangesInFrontOfForgottenStepsEndsThem)
{
    Pay(90);
    const ByteDifference paid = Read().Steps[0].Change;
    const ByteDifference back = Reversed(paid);
    Append(JournalKind::FoldedIntoBeginning, std::string(back.Stored().begin(), back.Stored().end()));
    EXPECT_TRUE(Read().Steps.empty());
    EXPECT_TRUE(Read().Beginning.IsEmpty()) << "the one took back the other";
    EXPECT_EQ(Read().Whole, written.size());
}

TEST_F(JournalTest, MoreThanAnEveningComesToIsRefusedInWords)
{
    Pay(90);
    Pay(80);
    const std::size_t size = Read().Steps[0].Change.Stored().size();
    EXPECT_TRUE(ReadJournal(written, 8 * size).Journal);
    const JournalOutcome outcome = ReadJournal(written, size);
    EXPECT_FALSE(outcome.Journal);
    EXPECT_EQ(outcome.Refused, "More is told in it than any evening comes to.");
}

// ---- What stops it -------------------------------------------------------------------------------------------------------

TEST_F(JournalTest, WhatCannotBeWrittenStopsIt)
{
    bool isFull = false;
    int tries = 0;
    JournalWriter full(
        Head(), {},
        [&](std::string_view) {
            ++tries;
            return !isFull;
        },
        Clock());
    history.TellTo(&full);
    Pay(90);
    EXPECT_FALSE(full.HasStopped());
    isFull = true;
    Pay(80);
    EXPECT_TRUE(full.HasStopped());
    isFull = false;
    Pay(70);
    history.Undo();
    full.Saved(SavedFile::Lines, Own);
    EXPECT_EQ(tries, 2);
    EXPECT_EQ(OwnTeam.Cash, 80);
}

TEST_F(JournalTest, AFailureOfTheSinkStopsItToo)
{
    JournalWriter failing(
        Head(), {}, [](std::string_view) -> bool { throw std::runtime_error("full"); }, Clock());
    history.TellTo(&failing);
    Pay(90);
    EXPECT_TRUE(failing.HasStopped());
}

TEST_F(JournalTest, AHistoryWithoutRoomAndAnotherLeagueStopIt)
{
    Pay(90);
    const std::string before = written;
    writer.Ended(HistoryEnd::NoRoom);
    EXPECT_TRUE(writer.HasStopped());
    Pay(80);
    EXPECT_EQ(written, before);
    JournalWriter other(Head(), {}, Sink(), Clock());
    history.TellTo(&other);
    history.Begin();
    EXPECT_TRUE(other.HasStopped());
}

} // namespace
} // namespace dravik
