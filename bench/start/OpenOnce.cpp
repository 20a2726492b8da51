// Opens a client file once, in a process that has touched nothing of the tables yet, and prints the milliseconds that it took.
//
//     open_once FILE

#include "bench/Ratio.h"
#include "session/OpenLeagueClient.h"
#include "session/Session.h"
#include "support/OpenedWindow.h"
#include "support/ScriptedPlatform.h"

#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: open_once FILE\n";
        return 2;
    }
    dravik::ScriptedPlatform machine;
    dravik::UseMachine(machine);
    dravik::TempFile = machine.InFolder("ClientTemp.dvt");
    dravik::OpenedWindow window;
    std::cout << 1e3 * dravik::Seconds([&] { dravik::OpenLeagueClient(argv[1], window); }) << '\n';
    return window.Calls.empty() ? 1 : 0;
}
