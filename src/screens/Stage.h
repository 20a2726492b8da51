#pragma once

#include "screens/Window.h"

#include <functional>
#include <map>
#include <memory>
#include <QPointer>
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

    // Opens `window` and hides `opener` unless it stands beside it. A screen that closes itself while loading brings back
    // whom it would bring back later. The main window, which is started and not opened, fails with 5.
    void Open(Window window, Screen& opener);
    // Closes a screen.
    void Close(Screen& screen);

    // What makes a screen. `Provide` puts another maker in the place of the program's own: tests watch the stage with it.
    using Factory = std::function<std::unique_ptr<Screen>(Stage&)>;
    void Provide(Window window, Factory factory);

    // The screen of that window if it is loaded.
    [[nodiscard]] Screen* Find(Window window) const;

    // What the window of a screen is called, where something was done there ("Farm Lines"); nothing for one that no stage made.
    [[nodiscard]] std::string_view NameOf(const Screen& screen) const;

    // Has all screens show the tables once more, after bytes of them were put back. They judge as they show, and what they
    // repair then does not last: the tables stay as they were put back.
    void ShowAnew();
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
    // Shows the screen that stands behind the closed one.
    void ShowBehind(Window closed);
    void ShowReturningTo(Window window);
    void Dispose(std::unique_ptr<Screen> screen);

    std::map<Window, Factory> provided;
    std::map<Window, std::unique_ptr<Screen>> screens;
    std::vector<QPointer<Screen>> disposed; // closed, and deleted as soon as the events at hand are done
    const Screen* loading = nullptr;
    bool ended = false;
};

} // namespace dravik
