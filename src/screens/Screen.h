#pragma once

#include "screens/Window.h"

#include <functional>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>

namespace dravik {

class EditBox;
class EntryList;
class HistoryCommands;
class KeySheet;
class SaveLine;
class Stage;
enum class SavedFile : unsigned char;

// What all screens have in common. A screen is made and loaded by the stage, shown, hidden while another one that it
// opened is up, and unloaded when it closes. It knows the stage and no other screen.
class Screen : public QMainWindow {
public:
    // `name` is the screen's own ("frmTeam").
    Screen(Stage& stage, const QString& name);

    // Fills the screen from the tables, before it is shown. A screen that cannot be filled calls Unload.
    virtual void FormLoad() = 0;
    // The same for a screen that comes back from one that it opened.
    virtual void ReloadForm() {}
    // Runs each time the stage has brought the screen to the front.
    virtual void FormActivate() {}
    // Runs when the screen closes, whichever way, before another one is shown.
    virtual void FormUnload() {}
    // Runs on the screen that the player viewer returns to, before that one is gone. `changed` tells that the viewer
    // changed something for which lists must be rebuilt.
    virtual void ViewerClosed(bool /*changed*/) {}
    // Shows the tables once more, after bytes of them were put back. What a judge repairs on the way does not last.
    virtual void ShowAnew() {}

    // Shows what the commands of the history would do now, and what is saved.
    void ShowHistory();

    // Puts the window in the middle of its display, no larger than that.
    void CentreOnScreen();
    // Gives the filled window the size at which it shows everything, names in lists included, as far as the display allows,
    // and puts it in the middle. One that fills the display already stays as it is.
    void FitToDisplay();
    // Titles the window. The title is shown as it stands, whatever signs a file's or a team's name holds.
    void SetTitle(const QString& title);
    // Closes the screen. One that is still loading is closed by the stage when its FormLoad has come to an end.
    void Unload();
    [[nodiscard]] bool WantsToUnload() const { return wantsToUnload; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    // Opens another window in front of this one.
    void Open(Window window);

    // Makes the command `name` with its caption. A click runs `click`, and reports what fails with the command's name.
    // A text box that still has the focus acts first; if its text is refused, the click is dropped. From a command that
    // has closed itself the focus goes back to the list that the user is at.
    QPushButton* MakeCommand(const QString& name, const QString& caption, std::function<void()> click);
    // `change` as one step of the history, under `words`: what the manager did ("Wipe Lines, day 3"). Words that depend on the
    // moment come as a routine, which runs before the change.
    std::function<void()> AsStep(std::function<QString()> words, std::function<void()> change);
    std::function<void()> AsStep(const QString& words, std::function<void()> change);
    // What the changes of the screen's boxes are about, behind their words: ", day 3".
    [[nodiscard]] virtual QString Subject() const { return {}; }
    // The words of the step that a change in a box is.
    [[nodiscard]] QString WordsOfChange(const QWidget& box) const;
    // Runs `change` as such a step. Those of one drag, which has a number above 0, are one step.
    void RunStep(const QString& words, const std::function<void()>& change, quint64 drag = 0);
    // The two commands of the history, for the footer, with their keys.
    QWidget* MakeHistoryCommands();
    // The line beside the command that saves `file`, which goes with what is done and saved.
    QWidget* MakeSaveLine(SavedFile file);
    // Makes `page` what the window shows, with `footer`, if there is one, below it: where the window is too small the page
    // scrolls, and the footer stays. Call it once, when both are filled.
    void SetPage(QWidget* page, QLayout* footer = nullptr);
    // Makes the text box `name`; `lostFocus` runs when it loses the focus, as a step that is named after the box.
    EditBox* MakeBox(const QString& name, std::function<void()> lostFocus);
    // Lets the text box that has the focus act; false when it keeps the focus.
    bool SettleFocus();
    // Runs what a text box of any kind does when it loses the focus. If that brings up a dialog, the press of the mouse
    // that took the focus away still runs its command.
    void Leave(const std::function<void()>& lostFocus);

    Stage& Owner;

private:
    // Which way the history goes.
    enum class Way { Back, Again };
    // Puts back the last step, or puts the next one again, and says which it was, or why it was not.
    void Turn(Way way);

    // The list that the user is at: the one he chose in, else the one that had the focus last, or none.
    [[nodiscard]] EntryList* ListAtHand() const;

    KeySheet* keySheet = nullptr; // F1, made when it is asked for
    HistoryCommands* history = nullptr;
    SaveLine* saveLine = nullptr;
    SavedFile fileOfLine{};
    bool wantsToUnload = false;
    bool unloaded = false;
    QPointer<EntryList> lastList;    // that had the focus
    int timesBlocked = 0;            // how often a dialog came up in front
    bool pressIsInterrupted = false; // by a dialog, between the change of the focus and the press that changed it
};

// Runs an event routine, reporting what fails under `name`; nothing goes further. True when it came to its end.
bool RunEvent(const QString& name, const std::function<void()>& routine);

} // namespace dravik
