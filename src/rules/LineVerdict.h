#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dravik {

// What a judge of lines may hold against a day.
enum class LineFault {
    Stranger,    // somebody who is not on the roster of these lines
    Unfit,       // somebody injured or suspended
    Empty,       // a slot without anybody
    Double,      // a skater twice in a line, a unit or a list
    LinesShared, // a skater in lines 1 and 2
    SameGoalies, // a goalie who is his own backup
    TooMany,     // more different skaters than the league dresses
    TooFew       // fewer than a line-up needs
};

// One finding: its kind, the slots that it is about as words of the record (a skater's by LineSlot::Word, a goalie's by
// StartGoalieWord and BackupGoalieWord), and where its own words stand in the text, without the line break. A finding about
// somebody who may not stand there holds all slots of the day that he was taken out of; one about all slots together holds
// none.
struct LineFinding {
    LineFault Fault;
    int Person; // a Player index, in the goalies' slots a Goalie index; 0 for an empty slot, and for nobody
    std::bitset<76> Slots;
    std::size_t Begin;
    std::size_t Length;
};

// What a judge of lines said of one day, as far as he came. The findings stand in the order of the text; one that was not
// told to its end, because the judgement failed in the midst of it, is none.
struct LineVerdict {
    bool Complete = false;
    std::optional<int> Failed; // the number of the failure that ended the judgement, which was told
    std::vector<LineFinding> Findings;
    // What he said, shown or not, with a line break behind each finding; "Lines are perfect!" when there was none. Empty when
    // nothing was judged.
    std::string Text;

    explicit operator bool() const { return Complete; }

    // The words of one of the findings.
    [[nodiscard]] std::string_view WordsOf(const LineFinding& finding) const
    {
        return std::string_view(Text).substr(finding.Begin, finding.Length);
    }
};

} // namespace dravik
