#pragma once

#include <functional>
#include <map>
#include <memory>
#include <QPointer>
#include <string>
#include <string_view>
#include <vector>

namespace dravik {

class frmMain;
class frmTeam;
class Screen;

// Knows all screens, and is the only one who does. Screens stand in front of each other: one that opens another is hidden
// and comes back when the other unloads, as `CallerScreen` and `ViewerReturnMode` say. What a screen does to another one is
// an operation of the stage.
class Stage {
public:
    Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    // Makes and shows the main screen. False when another instance runs: the program is to end at once.
    bool Start();

    // Opens the screen `name` ("Roster") and hides `opener` unless that screen stands beside it. A screen that closes
    // itself while loading brings back whom it would bring back later. A name of no screen fails with 5.
    void Open(std::string_view name, Screen& opener);
    // Closes a screen.
    void Close(Screen& screen);

    // What makes a screen. `Provide` puts another maker in the place of the program's own: tests watch the stage with it.
    using Factory = std::function<std::unique_ptr<Screen>(Stage&)>;
    void Provide(std::string_view name, Factory factory);

    // The screen of that name if it is loaded. "Main" is the main screen.
    [[nodiscard]] Screen* Find(std::string_view name) const;

    // Lists the teams anew on the main screen.
    void PlaceTeam();
    // Makes the command available that saves the lines file, since day 1 of the pro lines has passed.
    void EnableSaveToFile();
    // Tells the screen that the player viewer returns to that the viewer closes, and whether it changed something.
    void ViewerClosed(bool changed);

    // For the screens themselves: whether one is being loaded, and what happens when one has closed.
    [[nodiscard]] bool IsLoading(const Screen& screen) const { return loading == &screen; }
    void Closed(Screen& screen);

private:
    [[nodiscard]] frmMain* Main() const;
    [[nodiscard]] frmTeam* Team() const;
    // Fills a new screen. One whose filling fails is shown as far as it came.
    void Load(Screen& screen);
    void Show(Screen& screen);
    // Shows the screen that stands behind the closed screen `name`.
    void ShowBehind(std::string_view name);
    void ShowReturningTo(std::string_view name);
    void Dispose(std::unique_ptr<Screen> screen);

    std::map<std::string, Factory, std::less<>> provided;
    std::map<std::string_view, std::unique_ptr<Screen>> screens;
    std::vector<QPointer<Screen>> disposed; // closed, and deleted as soon as the events at hand are done
    const Screen* loading = nullptr;
    bool ended = false;
};

} // namespace dravik
