#include "sample-league/Command.h"

#include "league/Failure.h"
#include "sample-league/ClientFileWriter.h"
#include "sample-league/SampleLeague.h"

#include <charconv>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string_view>

namespace dravik::sample {

namespace {

constexpr std::string_view Usage =
    R"(usage: sample-league [options]

Writes a client file with a made-up league: 30 teams, their farms, free agents
and a calendar. The same options always make the same file.

  --seed N         another league for every N from 0 on (default 1)
  --out FILE       where to write it (default sample.dvs)
  --plain          write the plain slot file, without the compressed wrapper
  --divisions 4|6  four or six divisions (default 6)
  --off-season     between two seasons: entry draft open, no calendar
  --deadline       late in the season, behind the trade deadline
  --full           use every slot of players, goalies, coaches and prospects
  --help           show this and exit

Teams 3, 7 and 12 ask for a password: "puck", "blue line" and "IceBox1".
)";

// An argument that is not understood.
struct BadArgument : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Order {
    SampleOptions League;
    std::string Out = "sample.dvs";
    bool Plain = false;
    bool Help = false;
};

template <class Number>
Number NumberOf(const std::string& option, const std::string& text)
{
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end)
        throw BadArgument(option + " needs a whole number from 0 on, not \"" + text + "\"");
    return number;
}

Order Parse(const std::vector<std::string>& arguments)
{
    Order order;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& option = arguments[i];
        const auto value = [&]() -> const std::string& {
            if (i + 1 == arguments.size() || arguments[i + 1].empty())
                throw BadArgument(option + " needs a value");
            return arguments[++i];
        };
        if (option == "--seed")
            order.League.Seed = NumberOf<std::uint64_t>(option, value());
        else if (option == "--out")
            order.Out = value();
        else if (option == "--plain")
            order.Plain = true;
        else if (option == "--divisions")
            order.League.Divisions = NumberOf<int>(option, value());
        else if (option == "--off-season")
            order.League.OffSeason = true;
        else if (option == "--deadline")
            order.League.Deadline = true;
        else if (option == "--full")
            order.League.Full = true;
        else if (option == "--help" || option == "-h")
            order.Help = true;
        else
            throw BadArgument("unknown argument \"" + option + "\"");
    }
    if (order.League.Divisions != 4 && order.League.Divisions != 6)
        throw BadArgument("--divisions is 4 or 6");
    if (order.League.OffSeason && order.League.Deadline)
        throw BadArgument("--off-season and --deadline exclude each other");
    return order;
}

void Write(const Order& order, ToolMachine& machine)
{
    machine.UsePlainFiles(order.Plain);
    MakeSampleLeague(order.League);
    if (!WriteClientFile(order.Out))
        throw std::runtime_error(machine.LastCritical());
}

} // namespace

int Run(ToolMachine& machine, const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    Order order;
    try {
        order = Parse(arguments);
    } catch (const BadArgument& bad) {
        err << "sample-league: " << bad.what() << "\nTry sample-league --help.\n";
        return 2;
    }
    if (order.Help) {
        out << Usage;
        return 0;
    }
    try {
        Write(order, machine);
    } catch (const std::exception& failed) {
        err << "sample-league: cannot write " << order.Out << ": " << failed.what() << '\n';
        return 1;
    }
    out << "Wrote " << order.Out << '\n';
    return 0;
}

} // namespace dravik::sample
