#include "support/LineFindings.h"

namespace dravik {

std::string Told(const std::vector<std::string>& findings)
{
    std::string text;
    for (const std::string& finding : findings)
        text += finding + "\r\n";
    return text;
}

std::vector<std::string> EmptyDayFindings()
{
    return {
        "Normal line # 1 C is empty.",
        "Normal line # 1 LW is empty.",
        "Normal line # 1 RW is empty.",
        "Normal line # 1 Defense #1 is empty.",
        "Normal line # 1 Defense #1 is empty.",
        " is used twice in Normal line #1",
        " is used twice in Normal line #1",
        " is used twice in Normal line #1",
        " is used twice in Normal line #1",
        "Normal line # 2 C is empty.",
        "Normal line # 2 LW is empty.",
        "Normal line # 2 RW is empty.",
        "Normal line # 2 Defense #2 is empty.",
        "Normal line # 2 Defense #2 is empty.",
        " is used twice in Normal line #2",
        " is used twice in Normal line #2",
        " is used twice in Normal line #2",
        " is used twice in Normal line #2",
        "Normal line # 3 C is empty.",
        "Normal line # 3 LW is empty.",
        "Normal line # 3 RW is empty.",
        "Normal line # 3 Defense #3 is empty.",
        "Normal line # 3 Defense #3 is empty.",
        " is used twice in Normal line #3",
        " is used twice in Normal line #3",
        " is used twice in Normal line #3",
        " is used twice in Normal line #3",
        "Normal line # 4 C is empty.",
        "Normal line # 4 LW is empty.",
        "Normal line # 4 RW is empty.",
        "Normal line # 4 Defense #4 is empty.",
        "Normal line # 4 Defense #4 is empty.",
        " is used twice in Normal line #4",
        " is used twice in Normal line #4",
        " is used twice in Normal line #4",
        " is used twice in Normal line #4",
        "PP line 1 C is empty.",
        "PP line 1 LW is empty.",
        "PP line 1 RW is empty.",
        "PP line 1 Defense #1 is empty.",
        "PK line 1 C is empty.",
        "PK line 1 Defense #1 is empty.",
        "4 vs 4 line 1 C is empty.",
        "4 vs 4 line 1 Defense #1 is empty.",
        "PK3 line 1 Defense #1 is empty.",
        "PP line 1 Defense #1 is empty.",
        "PK line 1 LW is empty.",
        "PK line 1 Defense #1 is empty.",
        "4 vs 4 line 1 LW is empty.",
        "4 vs 4 line 1 Defense #1 is empty.",
        "PK3 line 1 Defense #1 is empty.",
        "PK3 line 1 forward is empty.",
        " is used twice in PP line#1",
        " is used twice in PP line#1",
        " is used twice in PP line#1",
        " is used twice PP in line#1",
        " is used twice in PK line#1",
        " is used twice in PK line#1",
        " is used twice PK in line#1",
        " is used twice in 4 vs 4 line#1",
        " is used twice in 4 vs 4 line#1",
        " is used twice 4 vs 4 in line#1",
        " is used twice in PK3 line#1",
        " is used twice PK3 in line#1",
        "PP line 2 C is empty.",
        "PP line 2 LW is empty.",
        "PP line 2 RW is empty.",
        "PP line 2 Defense #2 is empty.",
        "PK line 2 C is empty.",
        "PK line 2 Defense #2 is empty.",
        "4 vs 4 line 2 C is empty.",
        "4 vs 4 line 2 Defense #2 is empty.",
        "PK3 line 2 Defense #2 is empty.",
        "PP line 2 Defense #2 is empty.",
        "PK line 2 LW is empty.",
        "PK line 2 Defense #2 is empty.",
        "4 vs 4 line 2 LW is empty.",
        "4 vs 4 line 2 Defense #2 is empty.",
        "PK3 line 2 Defense #2 is empty.",
        "PK3 line 2 forward is empty.",
        " is used twice in PP line#2",
        " is used twice in PP line#2",
        " is used twice in PP line#2",
        " is used twice PP in line#2",
        " is used twice in PK line#2",
        " is used twice in PK line#2",
        " is used twice PK in line#2",
        " is used twice in 4 vs 4 line#2",
        " is used twice in 4 vs 4 line#2",
        " is used twice 4 vs 4 in line#2",
        " is used twice in PK3 line#2",
        " is used twice PK3 in line#2",
        "Extra Forward #1 is empty.",
        "Extra Defense #1 is empty.",
        "Penalty Shot Player #1 is empty.",
        "Extra Forward #2 is empty.",
        "Extra Defense #2 is empty.",
        "Penalty Shot Player #2 is empty.",
        "Extra Forward #3 is empty.",
        "Extra Defense #3 is empty.",
        "Penalty Shot Player #3 is empty.",
        "Extra Forward #4 is empty.",
        "Extra Defense #4 is empty.",
        "Penalty Shot Player #4 is empty.",
        "Extra Forward #5 is empty.",
        "Extra Defense #5 is empty.",
        "Penalty Shot Player #5 is empty.",
        " is used twice in Extra Forward",
        " is used twice in Extra Forward",
        " is used twice in Extra Forward",
        " is used twice in Extra Forward",
        " is used twice in Extra Defense",
        " is used twice in Extra Defense",
        " is used twice in Extra Defense",
        " is used twice in Extra Defense",
        " is used twice in Extra Penalty Shot",
        " is used twice in Extra Penalty Shot",
        " is used twice in Extra Penalty Shot",
        " is used twice in Extra Penalty Shot",
        "Starting Goaler is empty.",
        "Backup Goaler is empty.",
        "Starting Goalie and BackUp Goalie are the same",
    };
}

std::vector<DoublesCase> DoublesCases()
{
    using enum LineField;
    std::vector<DoublesCase> cases;
    for (int line = 1; line <= 4; ++line) {
        const std::string words = " is used twice in Normal line #" + std::to_string(line);
        cases.push_back(
            {{SlotOf(NormalForward, line, 1), SlotOf(NormalForward, line, 2), SlotOf(NormalForward, line, 3),
              SlotOf(NormalDefense, line, 1), SlotOf(NormalDefense, line, 2)},
             words,
             words});
    }
    for (int unit = 1; unit <= 2; ++unit) {
        const std::string number = std::to_string(unit);
        cases.push_back({{SlotOf(PPForward, unit, 1), SlotOf(PPForward, unit, 2), SlotOf(PPForward, unit, 3),
                          SlotOf(PPDefense, unit, 1), SlotOf(PPDefense, unit, 2)},
                         " is used twice in PP line#" + number,
                         " is used twice PP in line#" + number});
        cases.push_back({{SlotOf(PKForward, unit, 1), SlotOf(PKForward, unit, 2), SlotOf(PKDefense, unit, 1),
                          SlotOf(PKDefense, unit, 2)},
                         " is used twice in PK line#" + number,
                         " is used twice PK in line#" + number});
        cases.push_back({{SlotOf(FourVsFourForward, unit, 1), SlotOf(FourVsFourForward, unit, 2),
                          SlotOf(FourVsFourDefense, unit, 1), SlotOf(FourVsFourDefense, unit, 2)},
                         " is used twice in 4 vs 4 line#" + number,
                         " is used twice 4 vs 4 in line#" + number});
        cases.push_back({{SlotOf(PK3Forward, unit), SlotOf(PK3Defense, unit, 1), SlotOf(PK3Defense, unit, 2)},
                         " is used twice in PK3 line#" + number,
                         " is used twice PK3 in line#" + number});
    }
    const auto list = [&](LineField field, const std::string& words) {
        cases.push_back(
            {{SlotOf(field, 1), SlotOf(field, 2), SlotOf(field, 3), SlotOf(field, 4), SlotOf(field, 5)}, words, words});
    };
    list(ExtraForward, " is used twice in Extra Forward");
    list(ExtraDefense, " is used twice in Extra Defense");
    list(PenaltyShot, " is used twice in Extra Penalty Shot");
    return cases;
}

void FillDay(Lines& lines, const TeamMaker& maker)
{
    const std::vector<int>& all = maker.Skaters;
    FillLines(lines, {all.begin(), all.begin() + 12}, {all.begin() + 12, all.begin() + 18}, maker.GoalieIds);
}

} // namespace dravik
