#pragma once

#include <string>
#include <string_view>

namespace dravik {

// What the main window says without a box and for as long as it holds, a line for each kind.
enum class QuietLine {
    SettingsSetAside,  // the settings file could not be read
    SettingsUnwritten, // a setting could not be written
    Damaged,           // the open client file was damaged on its way
    UnsavedWork,       // what an earlier run did to the open league, and no saved file holds; with commands
    JournalUnwritten,  // what is done would not survive the end of the program
    SamplePasswords    // of the sample league, while that is open
};

// What opening a client file does to the main window. `frmMain` is one; tests have another.
class MainWindow {
public:
    MainWindow() = default;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    virtual ~MainWindow() = default;

    virtual void SetWindowCaption(const std::string& caption) = 0;
    virtual void PlaceTeam() = 0;
    virtual void CentreOnScreen() = 0;
    // Makes `mnuTeam` visible, and `mnuOutputRatingCSV` visible and enabled.
    virtual void ShowLeagueMenus() = 0;
    virtual void SetDraftMenu(bool enabled, std::string_view caption) = 0;
    virtual void SetFreeAgentsMenu(bool enabled) = 0;
    virtual void SetDateLabel(const std::string& text) = 0;
    // Says `text` in the quiet line of its kind until it is told another; the empty text takes the line away.
    virtual void Tell(QuietLine line, const std::string& text) = 0;
    // Shows what changed since the last client file of the league, or that nothing did.
    virtual void ShowChanges() {}
};

// Reads the client file `path` into the open league and shows the league in `window`. It has no result: a file that is
// missing or not whole is told in a critical box and leaves the tables empty and the window as it was. A league that was
// read is made ready before anything of it is shown, so that it is whole whatever fails then. Settings that cannot be written
// are told in a quiet line.
void OpenLeagueClient(const std::string& path, MainWindow& window);

// Says in their quiet lines whether there is work that nobody saved, and whether what is done now is kept.
void TellOfJournal(MainWindow& window);

} // namespace dravik
