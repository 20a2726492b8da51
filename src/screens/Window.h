#pragma once

namespace dravik {

// The windows of the program, as screens ask for them and the stage opens them.
enum class Window {
    Main,
    Team,
    Roster,
    Line,
    FarmLine,
    FreeAgent,
    Draft,
    Ticket,
    EditPlayer,
    About,
    Coach,
    Prospect,
    Compare
};

} // namespace dravik
