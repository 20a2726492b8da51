#pragma once

#include "machine/DiskFiles.h"

#include <deque>
#include <functional>
#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dravik {

// A message box as a test sees it. The title defaults to the program's.
struct Box {
    int Kind;
    std::string Text;
    std::string Title = "Dravik Hockey Simulator Client";

    bool operator==(const Box&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Box& box);

// An input box as a test sees it.
struct Question {
    std::string Prompt;
    std::string Title = "Dravik Hockey Simulator Client";
    std::string Default = {};

    bool operator==(const Question&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Question& question);

// A line that news or log was told, as a test sees it. `To` is "league", "log", or the team: "team 5".
struct News {
    std::string To;
    std::string Text;

    bool operator==(const News&) const = default;
};
std::ostream& operator<<(std::ostream& out, const News& news);

// A machine that answers from a script and records what it was asked. Files are real ones, in a folder of the test's own
// that is removed with it; any file operation can be made to fail. It is strict: at its end it fails the test that it
// belongs to over whatever `LeftOver` says.
class ScriptedPlatform : public DiskFiles {
public:
    ScriptedPlatform();
    ~ScriptedPlatform() override;

    // The answers to come, in order. A box without an answer returns Ok, or Yes where it asks; an input box without one
    // returns the empty text; an open dialog without one is cancelled.
    void Answer(int button) { buttons.push_back(button); }
    void Type(const std::string& text) { typed.push_back(text); }
    void Choose(const std::string& path) { chosen.push_back(path); }

    // What was shown and asked so far; who asks for it has looked at it. `Boxes` clears nothing; `TakeBoxes` does.
    [[nodiscard]] const std::vector<Box>& Boxes() const
    {
        seenBoxes = boxes.size();
        return boxes;
    }
    [[nodiscard]] std::vector<Box> TakeBoxes();
    // Clears the boxes that were looked at, and fails the running test over any that nobody looked at.
    void ClearSeenBoxes();
    // Throws away what was shown so far, whatever it is, for the reason `why`: only for a test that shows boxes by the
    // hundred on its way to something else.
    void ForgetBoxes(std::string_view why);
    // Whether the wait screen was up while each of these boxes was shown.
    [[nodiscard]] const std::vector<bool>& WaitAtBoxes() const { return waitAtBoxes; }
    [[nodiscard]] const std::vector<Question>& Questions() const
    {
        seenQuestions = questions.size();
        return questions;
    }
    [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& Dialogs() const
    {
        seenDialogs = dialogs.size();
        return dialogs;
    }

    // In words: the boxes, and the questions and dialogs without an answer in the script, that nobody has looked at; the
    // answers that nobody took, and the failures that nobody met.
    [[nodiscard]] std::vector<std::string> LeftOver() const;

    // What news and log were told so far, in order; `TakeNews` clears it. `ErasedPlayers` are pairs of id and team.
    [[nodiscard]] const std::vector<News>& ToldNews() const { return news; }
    std::vector<News> TakeNews();
    [[nodiscard]] const std::vector<std::pair<int, int>>& ErasedPlayers() const { return erased; }

    // The file operations done so far, by name ("open", "create", "read", "write", "flush", "close", "length", "rename",
    // "delete", "find"). From the n-th on (counted from 1), or only then, they fail with `number`. `FailNoMore` takes back
    // a failure that no operation has met yet.
    [[nodiscard]] const std::vector<std::string>& FileOperations() const { return operations; }
    void FailFileOperation(std::size_t n, int number);
    void FailAllFrom(std::size_t n, int number)
    {
        FailFileOperation(n, number);
        failOn = true;
    }
    void FailNoMore()
    {
        failAt = 0;
        failOn = false;
    }
    // A write that fails has half of its bytes on the disk by then, as on a disk that fills up.
    bool TearsWrites = false;
    // Called, if set, in the place of a failure, before it: what ends the process here shows what a crash leaves.
    std::function<void()> AtFault;

    // The test's folder, and a path in it.
    [[nodiscard]] std::string Folder() const { return folder; }
    [[nodiscard]] std::string InFolder(const std::string& name) const { return folder + PathSeparator + name; }

    bool WaitShown = false;
    int WaitCount = 0;
    bool OtherInstance = false;
    std::map<std::string, std::string> Settings; // of section "Settings"; of others as "Section/Key"
    std::vector<std::string> OpenedLocations;
    int SaveSettingFailure = 0; // the number that SaveSetting fails with, if any
    // Called, if set, while these happen: "box", "wait up", "wait down", "setting" and the key that was stored.
    std::function<void(const std::string& event)> OnEvent;

    int MessageBox(const std::string& text, int kind, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override;
    std::string OpenFileDialog(const std::string& folder, const std::string& filter) override;
    std::string GetSetting(const std::string& section, const std::string& key, const std::string& otherwise) override;
    void SaveSetting(const std::string& section, const std::string& key, const std::string& value) override;
    std::string ProgramFolder() override { return folder; }
    std::string Version() override { return "9.8.7"; }
    bool AnotherInstanceRuns() override { return OtherInstance; }
    void ShowWait() override;
    void CloseWait() override;
    int OpenLocation(const std::string& location, int showMode) override;
    // A fixed form in place of a locale's: "$1,234.50", "-$5.00", and "$1,235"; "1234.50".
    std::string Currency(double amount) const override;
    std::string CurrencyNoDecimals(double amount) const override;
    std::string Fixed(double value, int decimals) const override;
    std::string LongDate(double days) const override;
    std::string ShortTime(double days) const override;
    std::array<std::uint8_t, 16> Md5(std::string_view bytes) override;
    void LeagueNews(std::string_view text) override { news.push_back({"league", std::string(text)}); }
    void TeamNews(int team, std::string_view text) override;
    void WriteLog(std::string_view text) override { news.push_back({"log", std::string(text)}); }
    void PlayerErased(int id, int team) override { erased.emplace_back(id, team); }

    std::unique_ptr<File> OpenFile(const std::string& path) override;
    std::unique_ptr<File> CreateFile(const std::string& path) override;
    std::int64_t FileLength(const std::string& path) override;
    void RenameFile(const std::string& from, const std::string& to) override;
    void DeleteFile(const std::string& path) override;
    std::optional<std::string> FindEntry(const std::string& path) override;

    // Notes one file operation and fails if it is its turn; `beforeFault` is then called first.
    void Count(const std::string& operation, const std::function<void()>& beforeFault = {});

private:
    void Tell(const std::string& event);
    [[nodiscard]] std::vector<std::string> UnseenBoxes() const;
    // Whether a file operation is to fail that has not come yet.
    [[nodiscard]] bool FailureIsAhead() const { return failAt > operations.size(); }

    std::string folder;
    std::deque<int> buttons;
    std::deque<std::string> typed;
    std::deque<std::string> chosen;
    std::vector<Box> boxes;
    std::vector<bool> waitAtBoxes;
    std::vector<Question> questions;
    std::vector<std::pair<std::string, std::string>> dialogs;
    std::set<std::size_t> unansweredQuestions; // by their places
    std::set<std::size_t> unansweredDialogs;
    mutable std::size_t seenBoxes = 0; // and those before it have been looked at
    mutable std::size_t seenQuestions = 0;
    mutable std::size_t seenDialogs = 0;
    std::vector<News> news;
    std::vector<std::pair<int, int>> erased;
    std::vector<std::string> operations;
    std::size_t failAt = 0;
    int failNumber = 0;
    bool failOn = false;
    std::vector<int> unmetFailures; // replaced by another one before an operation met them
    bool settingFailed = false;
};

} // namespace dravik
