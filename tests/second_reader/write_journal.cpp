// Writes the journal of a random evening and tells beside it as JSON what the league came to.
//
//     write_journal FILE EXPECTED.json SEED STEPS

#include "desk/JournalWriter.h"
#include "session/Session.h"
#include "support/RandomLeague.h"
#include "Writer.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

namespace dravik {
namespace {

constexpr int Own = 7;
constexpr int Other = 8;

class Evening {
public:
    Evening(unsigned seed, const char* path) : dice(seed), file(path, std::ios::binary)
    {
        LeagueData.LeagueCode = "AB\xE9 9";
        for (Team& team : Teams)
            team.Password = std::string(32, 'p');
        beginning = Copy(OpenLeague);
        history.Join(*market);
        history.Begin();
        history.TellTo(&writer);
    }

    void Play(int steps)
    {
        for (int step = 1; step <= steps; ++step) {
            const auto turn = dice.Roll(1, 10);
            if (turn == 1)
                ChangeSomething(); // outside of a step
            else if (turn == 2)
                Save();
            else if (turn == 3)
                history.Undo();
            else if (turn == 4)
                history.Redo();
            else if (turn == 5)
                Keep();
            TakeStep(step, 2 * step == steps ? Other : team);
        }
        for (auto undone = dice.Roll(0, 3); undone > 0; --undone)
            history.Undo();
    }

    void Tell(std::ostream& out)
    {
        history.TellTo(nullptr);
        out << "{\"total\": [";
        const char* separator = "";
        const auto tell = [&](int table, std::size_t at, unsigned before, unsigned after) {
            out << separator << '[' << table << ", " << at << ", " << before << ", " << after << ']';
            separator = ", ";
        };
        for (int table = 1; SizeOf(DeskTable(table)) != 0; ++table) {
            const unsigned char* before = FirstByteOf({*beginning, emptyMarket.get()}, DeskTable(table));
            const unsigned char* after = FirstByteOf({OpenLeague, market.get()}, DeskTable(table));
            for (std::size_t at = 0; at < SizeOf(DeskTable(table)); ++at)
                if (before[at] != after[at] && !IsPassword(table, at))
                    tell(table, at, before[at], after[at]);
        }
        out << "], \"saved\": [" << saved << "], \"kept\": [" << kept << "], \"undone\": [";
        std::string words;
        int redone = 0;
        for (; history.ToRedo() != nullptr; ++redone) {
            TellWords(out, redone == 0, history.ToRedo()->Label);
            history.Redo();
        }
        for (; redone > 0; --redone)
            history.Undo();
        out << "], \"done\": [";
        for (bool isFirst = true; history.ToUndo() != nullptr; isFirst = false) {
            TellWords(out, isFirst, history.ToUndo()->Label);
            history.Undo();
        }
        out << "]}\n";
    }

    [[nodiscard]] bool IsWritten() { return !writer.HasStopped() && file.flush(); }

private:
    static bool IsPassword(int table, std::size_t at)
    {
        const std::size_t place = at % sizeof(Team);
        const std::size_t first = offsetof(Team, Password);
        return DeskTable(table) == DeskTable::Teams && place >= first && place < first + sizeof(Team::Password);
    }
    static void TellWords(std::ostream& out, bool isFirst, const StepLabel& label)
    {
        out << (isFirst ? "[" : ", [");
        TellText(out, label.Words);
        out << ", ";
        TellText(out, label.Where);
        out << ", " << label.Team << ", " << label.Drag << ']';
    }

    void TakeStep(int number, int forTeam)
    {
        team = forTeam;
        const OpenStep step =
            history.Open({.Words = "Step \xE9 " + std::to_string(number),
                          .Where = number % 2 == 0 ? "Roster" : "Lines",
                          .Team = team,
                          .Drag = static_cast<std::uint64_t>(dice.Chance(30) ? (1ULL << 40) + 1 : 0)});
        for (auto changes = dice.Roll(0, 3); changes > 0; --changes)
            ChangeSomething();
    }
    void ChangeSomething()
    {
        const int offer = static_cast<int>(dice.Roll(1, 11000));
        switch (dice.Roll(1, 6)) {
        case 1:
            Teams[dice.Roll(1, 100)].Password = std::string(32, static_cast<char>('a' + dice.Roll(0, 9)));
            break;
        case 2: { // a whole record, its password included
            Team& all = Teams[dice.Roll(1, 100)];
            for (std::size_t i = 0; i < sizeof all; ++i)
                reinterpret_cast<unsigned char*>(&all)[i] = static_cast<unsigned char>(dice.Roll(0, 3));
            break;
        }
        case 3: { // many that lie alike
            const auto value = static_cast<int>(dice.Roll(0, 255));
            for (long long slot = 10; slot < 10 + dice.Roll(2, 400); ++slot)
                Players[slot].Age = value;
            break;
        }
        case 4:
            history.Watch(offer);
            market->Offers[offer].Salary = dice.Roll(1, 5000000);
            break;
        case 5:
            market->Ranking[dice.Roll(0, 1000)] = dice.Roll(0, 300);
            break;
        default:
            reinterpret_cast<unsigned char*>(&OpenLeague)[dice.Roll(0, sizeof(Tables) - 1)] ^= 0x55U;
        }
    }
    void Save()
    {
        const auto file = static_cast<SavedFile>(dice.Roll(1, 3));
        writer.Saved(file, team);
        Note(saved, file);
    }
    void Keep()
    {
        const auto file = static_cast<SavedFile>(dice.Roll(2, 3));
        writer.Kept(file, team);
        Note(kept, file);
    }
    void Note(std::string& in, SavedFile file) const
    {
        constexpr const char* names[] = {"lines", "offers", "draft"};
        if (writer.HasBegun())
            in += std::string(in.empty() ? "" : ", ") + "[\"" + names[static_cast<int>(file) - 1] + "\", " +
                  std::to_string(team) + ']';
    }

    static JournalHead Head()
    {
        JournalHead head{.LeagueCode = "AB\xE9 9", .Beginning = {}, .FileDate = 45999.5, .Begun = 46000.25};
        for (std::size_t i = 0; i < head.Beginning.size(); ++i)
            head.Beginning.at(i) = static_cast<std::uint8_t>(i * 17);
        return head;
    }

    Dice dice;
    std::ofstream file;
    std::unique_ptr<Market> market = MakeMarket();
    std::unique_ptr<Market> emptyMarket = MakeMarket();
    std::unique_ptr<Tables> beginning;
    History history{OpenLeague};
    JournalWriter writer{Head(),
                         {},
                         [this](std::string_view bytes) {
                             file << bytes;
                             return !file.fail();
                         },
                         [] { return 46000.5; }};
    std::string saved;
    std::string kept;
    int team = Own;
};

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::cerr << "usage: " << argv[0] << " FILE EXPECTED.json SEED STEPS\n";
        return 2;
    }
    dravik::Evening evening(static_cast<unsigned>(std::atoi(argv[3])), argv[1]);
    evening.Play(std::atoi(argv[4]));
    std::ofstream expected(argv[2]);
    evening.Tell(expected);
    return evening.IsWritten() && expected.flush() ? 0 : 1;
}
