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

void AppendEmpty(std::string& text, const LineRules& rules, const LineFinding& finding)
{
    if (finding.Slots[StartGoalieWord]) {
        text += "Starting Goaler is empty.";
        return;
    }
    if (finding.Slots[BackupGoalieWord]) {
        text += "Backup Goaler is empty.";
        return;
    }
    const EmptyWords words = EmptyWordsOf(finding.At.Field, rules);
    text += words.Head;
    text += std::to_string(finding.At.Number);
    switch (words.Tail) {
    case Naming::Position:
        text += ' ';
        text += PositionName[finding.At.Place];
        break;
    case Naming::Defense: // the line or unit once more, not the defenseman
        text += " Defense #";
        text += std::to_string(finding.At.Number);
        break;
    case Naming::Caption:
        text += words.Caption;
        break;
    }
    text += " is empty.";
}

void AppendDouble(std::string& text, const LineFinding& finding)
{
    const auto* words = std::find_if(std::begin(Doubles), std::end(Doubles),
                                     [&](const DoubleWords& entry) { return entry.Field == finding.At.Field; });
    text += words->Words;
    if (words->IsNumbered)
        text += std::to_string(finding.At.Number);
}

// The pro judge, too, speaks of the farm roster.
void Append(std::string& text, const Tables& league, const LineRules& rules, const LineFinding& finding)
{
    switch (finding.Fault) {
    case LineFault::Stranger:
        text += NameIn(league, finding);
        text += " is not on farm roster for this team.";
        return;
    case LineFault::Unfit:
        text += NameIn(league, finding);
        text += " is injured or suspended.";
        return;
    case LineFault::Empty:
        AppendEmpty(text, rules, finding);
        return;
    case LineFault::Double:
        text += NameIn(league, finding);
        AppendDouble(text, finding);
        return;
    case LineFault::LinesShared:
        text += NameIn(league, finding);
        text += " is used twice in lines 1 and 2.";
        return;
    case LineFault::SameGoalies:
        text += "Starting Goalie and BackUp Goalie are the same";
        return;
    case LineFault::TooMany:
        text += "More that ";
        text += std::to_string(finding.Limit);
        text += " Players Found";
        return;
    case LineFault::TooFew:
        text += "Not Enough Players Found. Minimum is ";
        text += std::to_string(finding.Limit);
        return;
    }
    Fail(failure::OutOfRange);
}

} // namespace

bool FindsTwice(const LineVerdict& verdict, std::size_t word)
{
    return std::any_of(verdict.Findings.begin(), verdict.Findings.end(), [word](const LineFinding& finding) {
        const bool isDouble = finding.Fault == LineFault::Double || finding.Fault == LineFault::LinesShared ||
                              finding.Fault == LineFault::SameGoalies;
        return isDouble && finding.Slots[word];
    });
}

std::string WordsOf(const Tables& league, const LineVerdict& verdict, const LineFinding& finding)
{
    std::string text;
    Append(text, league, *verdict.Rules, finding);
    return text;
}

std::string TextOf(const Tables& league, const LineVerdict& verdict)
{
    constexpr std::size_t usualLength = 64;
    std::string text;
    text.reserve(verdict.Findings.size() * usualLength + usualLength);
    for (const LineFinding& finding : verdict.Findings) {
        Append(text, league, *verdict.Rules, finding);
        text += LineBreak;
    }
    if (verdict.Ended)
        text += verdict.Findings.empty() ? "Lines are perfect!" : verdict.Rules->Closing;
    return text;
}

} // namespace dravik
