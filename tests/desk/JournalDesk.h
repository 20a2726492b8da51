#pragma once

#include "desk/BringBack.h"
#include "desk/JournalWriter.h"
#include "HistoryDesk.h"

#include <memory>
#include <string>

namespace dravik {

// A history whose journal is a text. It begins with team 5 in the league, and a market that nothing is on.
class JournalDesk : public HistoryDesk {
protected:
    JournalDesk()
    {
        LeagueData.LeagueCode = "AB\xE9 9";
        OwnTeam.Password = Secret;
        beginning = Copy(OpenLeague);
        history.Join(*market);
        history.Begin();
        history.TellTo(&writer);
    }

    static constexpr const char* Secret = "0123456789abcdef0123456789abcdef";

    static JournalHead Head()
    {
        JournalHead head{.LeagueCode = "AB\xE9 9", .Beginning = {}, .FileDate = 45999.5, .Begun = 46000.25};
        head.Beginning.fill(7);
        return head;
    }
    JournalWriter::Sink Sink()
    {
        return [this](std::string_view bytes) {
            ends.push_back(written.size() + bytes.size());
            written += bytes;
            return true;
        };
    }
    JournalWriter::Clock Clock()
    {
        return [this] { return now; };
    }

    // What is read of the bytes that were written.
    [[nodiscard]] JournalRead Read() const
    {
        const JournalOutcome outcome = ReadJournal(written);
        EXPECT_EQ(outcome.Refused, "");
        EXPECT_TRUE(outcome.Journal);
        return outcome.Journal.value_or(JournalRead());
    }
    // The program was ended and started again: the league is as it was opened, and nobody writes.
    void StartAgain()
    {
        history.TellTo(nullptr);
        OpenLeague = *beginning;
        EmptyMarket(*market);
        history.Begin();
    }
    // A manager looks at a person whom he may make an offer, and makes him one in a step.
    void OfferTo(int id, int salary)
    {
        market->Offers[id].Id = id;
        history.Watch(id);
        const OpenStep step = history.Open(Label("Offer"));
        market->Offers[id].Salary = salary;
        market->Offers[id].Duration = 2;
    }

    // Ranks a person first, by his number, or with 0 nobody.
    void Rank(int id)
    {
        const OpenStep step = history.Open(Label("Rank"));
        market->Ranking[0] = id;
    }

    std::string written;
    std::vector<std::size_t> ends; // of what was written at once
    double now = 46000.5;
    std::unique_ptr<Market> market = MakeMarket();
    std::unique_ptr<Tables> beginning;
    JournalWriter writer{Head(), {}, Sink(), Clock()};
};

} // namespace dravik
