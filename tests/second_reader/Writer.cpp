#include "Writer.h"

#include "session/Session.h"
#include "support/ScriptedPlatform.h"

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>

namespace dravik {
namespace {

int Run(int argc, char** argv, Saver save)
{
    if (argc != 5 && argc != 6) {
        std::cerr << "usage: " << argv[0] << " wrapped|plain SEED FILE EXPECTED.json [COUNT]\n";
        return 2;
    }
    Random random(static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
    const int team = 1 + static_cast<int>(random() % 100);
    const Order order{.Wrapped = std::string_view(argv[1]) == "wrapped",
                      .Team = team,
                      .Count = argc == 6 ? std::atoi(argv[5]) : 0,
                      .Path = argv[3]};
    ScriptedPlatform machine;
    UseMachine(machine);
    if (!order.Wrapped)
        machine.Settings["SkipZIPClient"] = "YES";
    TempFile = order.Path + ".work"; // on the disk of the file
    LeagueData.LeagueCode = "AB\xE9 9";

    std::ofstream expected(argv[4]);
    if (!save(order, random, expected)) {
        for (const Box& box : machine.Boxes())
            std::cerr << box.Text << "\n";
        return 1;
    }
    return expected.flush() ? 0 : 1;
}

} // namespace

int SaveAndTell(int argc, char** argv, Saver save)
{
    try {
        return Run(argc, argv, save);
    } catch (const std::exception& failed) {
        std::cerr << failed.what() << "\n";
        return 1;
    }
}

void TellHead(std::ostream& out, const Order& order)
{
    out << "{\"wrapped\": " << (order.Wrapped ? "true" : "false") << ", \"team\": " << order.Team << ", \"league\": ";
    TellText(out, LeagueData.LeagueCode.Trimmed());
}

void TellText(std::ostream& out, std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    out << '"';
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80)
            out << c;
        else
            out << "\\u00" << digits[code / 16] << digits[code % 16]; // the code page agrees there from 160 on
    }
    out << '"';
}

} // namespace dravik
