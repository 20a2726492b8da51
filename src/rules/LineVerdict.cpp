#include "rules/LineVerdict.h"

#include "league/Positions.h"
#include "machine/Message.h"
#include "rules/LineRules.h"

#include <algorithm>
#include <string_view>

namespace dravik {

namespace {

// What names the slot of a field in the message of its being empty.
enum class Naming { Position, Defense, Caption };

struct EmptyWords {
    std::string_view Head;
    Naming Tail;
    std::string_view Caption = {};
};

EmptyWords EmptyWordsOf(LineField field, const LineRules& rules)
{
    switch (field) {
    case LineField::NormalForward:
        return {"Normal line # ", Naming::Position};
    case LineField::NormalDefense:
        return {"Normal line # ", Naming::Defense};
    case LineField::PPForward:
        return {rules.PPForwardHead, Naming::Position};
    case LineField::PPDefense:
        return {"PP line ", Naming::Defense};
    case LineField::PKForward:
        return {"PK line ", Naming::Position};
    case LineField::PKDefense:
        return {"PK line ", Naming::Defense};
    case LineField::FourVsFourForward:
        return {"4 vs 4 line ", Naming::Position};
    case LineField::FourVsFourDefense:
        return {"4 vs 4 line ", Naming::Defense};
    case LineField::PK3Forward:
        return {"PK3 line ", Naming::Caption, rules.PK3ForwardCaption};
    case LineField::PK3Defense:
        return {"PK3 line ", Naming::Defense};
    case LineField::ExtraForward:
        return {"Extra Forward #", Naming::Caption};
    case LineField::ExtraDefense:
        return {"Extra Defense #", Naming::Caption};
    case LineField::PenaltyShot:
        return {"Penalty Shot Player #", Naming::Caption};
    }
    Fail(failure::OutOfRange);
}

// What is said behind the name of a skater who stands twice in one line, unit or list, by the field of the first slot that holds
// him. Two defensemen of a unit have words of their own; the lists are not numbered.
struct DoubleWords {
    LineField Field;
    std::string_view Words;
    bool IsNumbered;
};
constexpr DoubleWords Doubles[] = {
    {LineField::NormalForward, " is used twice in Normal line #", true},
    {LineField::NormalDefense, " is used twice in Normal line #", true},
    {LineField::PPForward, " is used twice in PP line#", true},
    {LineField::PPDefense, " is used twice PP in line#", true},
    {LineField::PKForward, " is used twice in PK line#", true},
    {LineField::PKDefense, " is used twice PK in line#", true},
    {LineField::FourVsFourForward, " is used twice in 4 vs 4 line#", true},
    {LineField::FourVsFourDefense, " is used twice 4 vs 4 in line#", true},
    {LineField::PK3Forward, " is used twice in PK3 line#", true},
    {LineField::PK3Defense, " is used twice PK3 in line#", true},
    {LineField::ExtraForward, " is used twice in Extra Forward", false},
    {LineField::ExtraDefense, " is used twice in Extra Defense", false},
    {LineField::PenaltyShot, " is used twice in Extra Penalty Shot", false},
};

bool IsOfGoalies(const LineFinding& finding)
{
    return finding.Slots[StartGoalieWord] || finding.Slots[BackupGoalieWord];
}

std::string NameIn(const Tables& league, const LineFinding& finding)
{
    return IsOfGoalies(finding) ? league.Goalies[finding.Person].Name.Trimmed()
                                : league.Players[finding.Person].Name.Trimmed();
}

std::string WordsOfEmpty(const LineRules& rules, const LineFinding& finding)
{
    if (finding.Slots[StartGoalieWord])
        return "Starting Goaler is empty.";
    if (finding.Slots[BackupGoalieWord])
        return "Backup Goaler is empty.";
    const EmptyWords words = EmptyWordsOf(finding.At.Field, rules);
    const std::string number = std::to_string(finding.At.Number);
    std::string text = std::string(words.Head) + number;
    switch (words.Tail) {
    case Naming::Position:
        text += " ";
        text += PositionName[finding.At.Place];
        break;
    case Naming::Defense: // the line or unit once more, not the defenseman
        text += " Defense #" + number;
        break;
    case Naming::Caption:
        text += words.Caption;
        break;
    }
    return text + " is empty.";
}

std::string WordsOfDouble(const LineFinding& finding)
{
    const auto* words = std::find_if(std::begin(Doubles), std::end(Doubles),
                                     [&](const DoubleWords& entry) { return entry.Field == finding.At.Field; });
    return std::string(words->Words) + (words->IsNumbered ? std::to_string(finding.At.Number) : "");
}

} // namespace

// The pro judge, too, speaks of the farm roster.
std::string WordsOf(const Tables& league, const LineVerdict& verdict, const LineFinding& finding)
{
    switch (finding.Fault) {
    case LineFault::Stranger:
        return NameIn(league, finding) + " is not on farm roster for this team.";
    case LineFault::Unfit:
        return NameIn(league, finding) + " is injured or suspended.";
    case LineFault::Empty:
        return WordsOfEmpty(*verdict.Rules, finding);
    case LineFault::Double:
        return NameIn(league, finding) + WordsOfDouble(finding);
    case LineFault::LinesShared:
        return NameIn(league, finding) + " is used twice in lines 1 and 2.";
    case LineFault::SameGoalies:
        return "Starting Goalie and BackUp Goalie are the same";
    case LineFault::TooMany:
        return "More that " + std::to_string(finding.Limit) + " Players Found";
    case LineFault::TooFew:
        return "Not Enough Players Found. Minimum is " + std::to_string(finding.Limit);
    }
    Fail(failure::OutOfRange);
}

std::string TextOf(const Tables& league, const LineVerdict& verdict)
{
    std::string text;
    for (const LineFinding& finding : verdict.Findings) {
        text += WordsOf(league, verdict, finding);
        text += LineBreak;
    }
    if (verdict.Ended)
        text += verdict.Findings.empty() ? "Lines are perfect!" : verdict.Rules->Closing;
    return text;
}

} // namespace dravik
