#include "terminal/MarketOptions.h"

namespace dravik::terminal {

void AddMarket(CLI::App& command, MarketOptions& options, const std::string& ending)
{
    AddLeague(command, options.League);
    command.add_option("--team", options.Team, "the team, by number, name or abbreviation")
        ->type_name("N|NAME")
        ->required();
    CLI::Option_group* way = command.add_option_group("Way");
    way->add_option("--read", options.Read, "show this file as comma-separated values")->type_name("FILE" + ending);
    CLI::Option* csv = way->add_option("--csv", options.Csv, "write a file from this table")->type_name("FILE.csv");
    way->require_option(1);
    CLI::Option* out = command.add_option("--out", options.Out, "the file that is written")->type_name("FILE" + ending);
    csv->needs(out);
    out->needs(csv);
    AddPasswords(command, options.PasswordFile);
    AddJson(command, options.AsJson);
}

} // namespace dravik::terminal
