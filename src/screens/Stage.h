#pragma once

#include "league/PersonId.h"
#include "screens/Window.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <QPointer>
#include <string_view>
#include <vector>

namespace dravik {

class frmMain;
class frmSquad;
class frmTeam;
class GuideWindow;
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

    // The guide stands for itself, beside whatever is in front.
    void ShowGuide(const Screen& asking);
    [[nodiscard]] GuideWindow* Guide() const { return guide.get(); }

    // The squad table stands beside the screen in front. Shows it, and goes back from it; none is made before it is asked for.
    void ShowSquad(const Screen& asking);
    void BackFromSquad();
    // Has it show the tables once more, if it is seen.
    void ShowSquadAnew();
    [[nodiscard]] frmSquad* Squad() const { return squad.get(); }

    // What it can do on the screen in front. The team whose screens are open behind its password, 0 without one:
    [[nodiscard]] int ProvedTeam() const;
    // what its command is called there, nothing where there is none; whether that screen lists somebody, by his common number (a
    // prospect's slot + 20000);
    [[nodiscard]] std::string_view PickCaption() const;
    [[nodiscard]] bool Lists(int commonId) const;
    // chooses him in that list as a press on him does, and on a lines screen puts him into the slot that has the focus, if one
    // has; or shows the record of a skater or goalie, from which one comes back to where one was, whoever was chosen there.
    void Pick(int commonId);
    void ShowRecord(PersonId who);
    // Whether a record that the viewer shows may show its flags, which are a team's decisions: not where the squad table showed it,
    // unless it is of the team whose screens are open.
    [[nodiscard]] bool ShowsFlagsOf(PersonId who) const;

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

    // The window whose screen is in front of the others; none before the start.
    [[nodiscard]] std::optional<Window> InFront() const;
    // Whom the viewer comes back to.
    [[nodiscard]] Window BehindViewer() const;

    // Where one was when the squad table showed a record, and who was chosen there.
    struct LookedFrom {
        Window At;
        PersonId Chosen;
    };

    std::optional<LookedFrom> lookedFrom;
    std::unique_ptr<frmSquad> squad;
    std::unique_ptr<GuideWindow> guide;
    std::map<Window, Factory> provided;
    std::map<Window, std::unique_ptr<Screen>> screens;
    std::vector<QPointer<Screen>> disposed; // closed, and deleted as soon as the events at hand are done
    const Screen* loading = nullptr;
    bool ended = false;
};

} // namespace dravik
