#include "sample-league/Command.h"
#include "session/Session.h"

#include <iostream>

int main(int argc, char** argv)
{
    dravik::sample::ToolMachine machine;
    dravik::UseMachine(machine);
    return dravik::sample::Run(machine, {argv + 1, argv + argc}, std::cout, std::cerr);
}
