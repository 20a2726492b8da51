#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace dravik {

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
};

// Reads the client file `path` into the tables and shows the league in `window`. It has no result: a file that is
// missing or not whole is told in a critical box and leaves the tables empty and the window as it was.
void OpenLeagueClient(const std::string& path, MainWindow& window);

} // namespace dravik
