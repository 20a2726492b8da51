#include "desk/LinesOfAllDays.h"

#include "desk/LineMakers.h"
#include "desk/TeamCheck.h"
#include "league/Failure.h"
#include "machine/Message.h"
#include "rules/LineJudge.h"

#include <algorithm>

namespace dravik {

namespace {

// Keeps to itself what it is told to show, and passes on what nobody sees. Asked a question it fails, as a mute voice does.
class Overhearing final : public Voice {
public:
    explicit Overhearing(Voice& voice) : behind(voice) { MessagesAllowed = voice.MessagesAllowed; }

    int MessageBox(const std::string& text, int kind, const std::string& title) override
    {
        const int answer = mute.MessageBox(text, kind, title);
        if (std::find(Heard.begin(), Heard.end(), text) == Heard.end())
            Heard.push_back(text);
        return answer;
    }
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override
    {
        return mute.InputBox(prompt, title, text);
    }
    void LeagueNews(std::string_view text) override { behind.LeagueNews(text); }
    void TeamNews(int team, std::string_view text) override { behind.TeamNews(team, text); }
    void WriteLog(std::string_view text) override { behind.WriteLog(text); }
    void PlayerErased(int id, int team) override { behind.PlayerErased(id, team); }

    std::vector<std::string> Heard; // each text once, in the order of their first time

private:
    Voice& behind;
    MuteVoice mute;
};

// The judge of a screen of lines: of the shown day, and on the pro's screen of the first day behind it.
LineVerdict JudgeAsShown(const Work& work, int team, Side side, int day)
{
    LineVerdict verdict = JudgeDay(work, team, side, day, false);
    if (side == Side::Pro)
        CheckLine(work, team, false, 1, false);
    return verdict;
}

std::vector<std::string> WordsOfAll(const Tables& league, const LineVerdict& verdict)
{
    std::vector<std::string> words;
    for (const LineFinding& finding : verdict.Findings)
        words.push_back(WordsOf(league, verdict, finding));
    if (verdict.Failed)
        words.emplace_back(Failure(*verdict.Failed).what());
    return words;
}

std::string InARow(const std::vector<int>& days)
{
    std::string row;
    for (std::size_t place = 0; place < days.size(); ++place)
        row += (place == 0 ? "" : place + 1 == days.size() ? " and " : ", ") + std::to_string(days[place]);
    return (days.size() == 1 ? "day " : "days ") + row;
}

// A box has room for a few lines a day.
constexpr std::size_t FindingsTold = 3;

std::string Indented(std::string text)
{
    for (std::size_t at = text.find(LineBreak); at != std::string::npos; at = text.find(LineBreak))
        text.replace(at, LineBreak.size(), " ");
    return "  " + text;
}

std::vector<std::string> ReportOf(const RepairedDays& days)
{
    if (days.Mended.empty() && days.Left.empty())
        return {"All days are complete."};
    std::vector<std::string> lines;
    if (!days.Mended.empty())
        lines.push_back("Mended: " + InARow(days.Mended) + ".");
    // Days with the same findings stand together.
    std::vector<DayLeft> left = days.Left;
    while (!left.empty()) {
        const std::vector<std::string> findings = left.front().Findings;
        std::vector<int> alike;
        std::erase_if(left, [&](const DayLeft& day) {
            const bool isAlike = day.Findings == findings;
            if (isAlike)
                alike.push_back(day.Day);
            return isAlike;
        });
        lines.push_back("Still incomplete: " + InARow(alike) + ".");
        for (std::size_t place = 0; place < std::min(findings.size(), FindingsTold); ++place)
            lines.push_back(Indented(findings[place]));
        if (findings.size() > FindingsTold)
            lines.push_back("  and " + std::to_string(findings.size() - FindingsTold) + " more.");
    }
    if (!days.Told.empty())
        lines.emplace_back("Told meanwhile:");
    for (const std::string& text : days.Told)
        lines.push_back(Indented(text));
    return lines;
}

} // namespace

DayVerdicts LookAtAllDays(const Tables& league, const Formats& shown, int team, Side side, Tables& scratch)
{
    scratch = league;
    return LookAtDaysOn(league, shown, team, side, scratch);
}

RepairedDays RepairAllDays(const Work& work, int team, Side side)
{
    RepairedDays days;
    if (AreMakersClosed(work.League.LeagueData))
        return days;
    Overhearing voice(work.Says);
    const Work quiet{work.League, voice, work.Shown, work.Modified};
    for (int day = 1; day <= LineDays; ++day) {
        if (JudgeAsShown(quiet, team, side, day).Complete)
            continue;
        // A maker tells its success only when messages are allowed, and nobody wants to read it ten times.
        (side == Side::Pro ? AutoLinesPartial : AutoLinesFarm)(quiet, team, false, day);
        const LineVerdict left = JudgeAsShown(quiet, team, side, day);
        if (left.Complete)
            days.Mended.push_back(day);
        else
            days.Left.push_back({day, WordsOfAll(work.League, left)});
    }
    days.Told = std::move(voice.Heard);
    return days;
}

void RepairAllDaysAndTell(const Work& work, int team, Side side)
{
    if (AreMakersClosed(work.League.LeagueData))
        return;
    std::string text;
    for (const std::string& line : ReportOf(RepairAllDays(work, team, side)))
        text += line + std::string(LineBreak);
    text.resize(text.size() - LineBreak.size());
    work.Says.ShowBox(text, box::Information);
}

} // namespace dravik
