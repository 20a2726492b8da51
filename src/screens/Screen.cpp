#include "screens/Screen.h"

#include "machine/Location.h"
#include "machine/Paths.h"
#include "machine/Reporting.h"
#include "screens/Looks.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/EntryList.h"
#include "screens/panels/HistoryCommands.h"
#include "screens/panels/KeptPlace.h"
#include "screens/panels/KeySheet.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/SaveLine.h"
#include "screens/platform/CodePage.h"
#include "screens/Stage.h"
#include "session/OpenHistory.h"
#include "session/OpenSaves.h"
#include "session/Session.h"

#include <algorithm>
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QScreen>
#include <QShortcut>
#include <utility>

namespace dravik {

bool RunEvent(const QString& name, const std::function<void()>& routine)
{
    try {
        // A machine is asked for only where there is something to tell.
        const auto failed = FailureIn(routine);
        if (failed)
            ReportFailure(Machine(), *failed, " in " + FromQString(name) + "!");
        return !failed;
    } catch (...) {
        // Not even the report could be shown.
        return false;
    }
}

namespace {

// What was done for another team is shown to nobody who works on this one, and not turned by him.
bool IsOwn(const Step* step) { return step != nullptr && step->Label.Team == OwnNumber(); }

// What became of a step, in front of its words.
std::string_view Outcome(Turned turned, bool back)
{
    switch (turned) {
    case Turned::Done:
        return back ? "Undone: " : "Done again: ";
    case Turned::Changed:
        return "What it would replace has changed since: ";
    case Turned::NoRoom:
        return "There is no room for it: ";
    default:
        return "Not now: ";
    }
}

// A layout within a layout keeps an older hint until what it lies in is activated: inner ones first.
void WorkOutHints(const QWidget& window)
{
    const QList<QWidget*> panels = window.findChildren<QWidget*>();
    for (auto panel = panels.rbegin(); panel != panels.rend(); ++panel) {
        if (QLayout* layout = (*panel)->layout()) {
            layout->invalidate();
            layout->activate();
        }
        (*panel)->updateGeometry(); // a page that scrolls hears nothing of what it holds
    }
}

} // namespace

Screen::Screen(Stage& stage, const QString& name) : Owner(stage)
{
    setObjectName(name);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*old*/, QWidget* now) {
        auto* list = qobject_cast<EntryList*>(now);
        if (list != nullptr && list->window() == this)
            lastList = list;
    });
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, [this] {
        if (!SettleFocus())
            return;
        if (keySheet == nullptr)
            keySheet = new KeySheet(objectName(), this);
        keySheet->Open();
    });
    connect(new QShortcut(QKeySequence("Ctrl+T"), this), &QShortcut::activated, this, [this] {
        if (SettleFocus())
            RunEvent("frmSquad", [this] { Owner.ShowSquad(*this); });
    });
    if (name == "frmAbout") // nothing comes up beside it
        return;
    connect(new QShortcut(QKeySequence("Shift+F1"), this), &QShortcut::activated, this, [this] {
        if (SettleFocus())
            Owner.ShowGuide(*this);
    });
    if (name != "frmMain") // which remembers its place once it shows a league
        new KeptPlace(*this);
    for (const auto& [key, look] : {std::pair("Ctrl+Shift+C", Look::Calendar), std::pair("Ctrl+Shift+G", Look::Graphs)})
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, [this, opened = look] {
            if (SettleFocus())
                RunEvent("Look", [&] {
                    OpenLook(opened, Owner, *this,
                             [this](const QString& words, const auto& change) { RunStep(words, change); });
                });
        });
}

void Screen::CentreOnScreen()
{
    if (isMaximized() || isFullScreen())
        return;
    const QRect area = screen()->availableGeometry();
    const QSize frame = FrameSizeOf(*this);
    PlaceByProgram(*this, [&] {
        resize(size().boundedTo(area.size() - frame));
        const QPoint middle = area.topLeft() + QPoint((area.width() - frameGeometry().width()) / 2,
                                                      (area.height() - frameGeometry().height()) / 2);
        move(FittedInto({middle, size()}, {area}, frame).topLeft());
    });
    PutKept(*this);
}

void Screen::FitToDisplay()
{
    if (isMaximized() || isFullScreen())
        return;
    // All lists of a screen take the same width, since entries move between them.
    const QList<EntryList*> lists = findChildren<EntryList*>();
    int widest = 0;
    for (const EntryList* list : lists)
        widest = std::max(widest, list->WidthOfWidestEntry());
    for (EntryList* list : lists)
        list->AskForWidth(widest);
    WorkOutHints(*this);
    PlaceByProgram(*this, [this] { resize(size().expandedTo(sizeHint())); });
    CentreOnScreen();
}

// Tabs may have passed other lists on the way to the command.
EntryList* Screen::ListAtHand() const
{
    const auto holdsChoice = [](const EntryList* list) {
        return list != nullptr && list->currentItem() != nullptr && list->currentItem()->isSelected();
    };
    if (holdsChoice(lastList))
        return lastList;
    const QList<EntryList*> lists = findChildren<EntryList*>();
    const auto found = std::find_if(lists.begin(), lists.end(), holdsChoice);
    return found == lists.end() ? lastList.data() : *found;
}

void Screen::SetPage(QWidget* page, QLayout* footer) { setCentralWidget(MakeScrollingPage(page, footer, this)); }

// The toolkit takes "[*]" for the place of a mark of unsaved changes, and two of them for the sign itself.
void Screen::SetTitle(const QString& title) { setWindowTitle(QString(title).replace("[*]", "[*][*]")); }

void Screen::Unload()
{
    wantsToUnload = true;
    if (Owner.IsLoading(*this))
        return;
    close();
}

void Screen::Open(Window window) { Owner.Open(window, *this); }

void Screen::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (unloaded)
        return;
    unloaded = true;
    SettleFocus();
    RunEvent("Form_Unload", [this] { FormUnload(); });
    RunEvent("Form_Unload", [this] { Owner.Closed(*this); });
}

bool Screen::eventFilter(QObject* watched, QEvent* event)
{
    // The mouse takes the focus to the command before it presses it. A box that refused its text has it back by now, and
    // the press goes no further, nor does the second one of a double click. When leaving the box brought up a dialog, the
    // mouse button is up again and nobody tells the command: it runs without having been pressed.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        auto* button = qobject_cast<QAbstractButton*>(watched);
        if (button != nullptr && (button->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus) {
            if (dynamic_cast<LeavingBox*>(focusWidget()) != nullptr)
                return true;
            if (pressIsInterrupted && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
                QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
                return true;
            }
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

bool Screen::event(QEvent* event)
{
    if (event->type() == QEvent::Polish) // all that can be pressed is there
        for (auto* button : findChildren<QAbstractButton*>())
            button->installEventFilter(this);
    if (event->type() == QEvent::WindowBlocked)
        ++timesBlocked;
    if (event->type() == QEvent::Hide && keySheet != nullptr)
        keySheet->close();
    return QMainWindow::event(event);
}

QPushButton* Screen::MakeCommand(const QString& name, const QString& caption, std::function<void()> click)
{
    auto* command = new QPushButton(caption, this);
    command->setObjectName(name);
    command->setAutoDefault(true); // Enter presses the command that has the focus
    connect(command, &QPushButton::clicked, this, [this, command, run = std::move(click)] {
        if (!SettleFocus())
            return;
        command->setFocus(Qt::OtherFocusReason);
        const QPointer<EntryList> list = ListAtHand();
        RunEvent(command->objectName(), run);
        if (!command->isEnabled() && list != nullptr)
            list->setFocus(Qt::OtherFocusReason);
    });
    return command;
}

EditBox* Screen::MakeBox(const QString& name, std::function<void()> lostFocus)
{
    auto* box = new EditBox(this);
    box->setObjectName(name);
    connect(box, &EditBox::LostFocus, this, [this, name, box, run = std::move(lostFocus)] {
        Leave([&] { RunStep(WordsOfChange(*box), [&] { RunEvent(name + "_LostFocus", run); }); });
    });
    return box;
}

std::function<void()> Screen::AsStep(std::function<QString()> words, std::function<void()> change)
{
    return [this, words = std::move(words), change = std::move(change)] { RunStep(words(), change); };
}

std::function<void()> Screen::AsStep(const QString& words, std::function<void()> change)
{
    return AsStep([words] { return words; }, std::move(change));
}

QString Screen::WordsOfChange(const QWidget& box) const
{
    return "Change " + box.accessibleName().remove(" :").remove(':') + Subject();
}

void Screen::RunStep(const QString& words, const std::function<void()>& change, quint64 drag)
{
    const auto showHistory = qScopeGuard([this] {
        ShowHistory();
        Owner.ShowSquadAnew();
    });
    const OpenStep step = OpenHistory().Open({.Words = FromQString(words),
                                              .Where = std::string(Owner.NameOf(*this)),
                                              .Team = static_cast<int>(CurrentTeam),
                                              .Drag = drag});
    change();
}

QWidget* Screen::MakeHistoryCommands()
{
    history = new HistoryCommands(this);
    const auto undo = [this] { Turn(Way::Back); };
    const auto redo = [this] { Turn(Way::Again); };
    connect(history, &HistoryCommands::Undo, this, undo);
    connect(history, &HistoryCommands::Redo, this, redo);
    connect(new QShortcut(QKeySequence("Ctrl+Z"), this), &QShortcut::activated, this, undo);
    for (const char* key : {"Ctrl+Shift+Z", "Ctrl+Y"})
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, redo);
    return history;
}

QWidget* Screen::MakeSaveLine(SavedFile file)
{
    fileOfLine = file;
    saveLine = new SaveLine(this);
    const auto path = [file] { return StateOf(file, static_cast<int>(CurrentTeam)).Path; };
    connect(saveLine, &SaveLine::ShowInFolder, this, [path] {
        const std::string saved = path();
        OpenLocation(Machine(), saved.substr(0, saved.size() - GetFileName(saved).size()), NormalWindow);
    });
    connect(saveLine, &SaveLine::CopyPath, this, [path] { QApplication::clipboard()->setText(PathToDesktop(path())); });
    return saveLine;
}

void Screen::ShowHistory()
{
    if (saveLine != nullptr) {
        const FileState state = StateOf(fileOfLine, static_cast<int>(CurrentTeam));
        saveLine->Show(ToQString(state.Words()), state.UnsavedSince ? QString() : PathToDesktop(state.Path));
    }
    if (history == nullptr)
        return;
    const std::string_view here = Owner.NameOf(*this);
    const History& past = OpenHistory();
    history->Show(IsOwn(past.ToUndo()) ? ToQString(past.UndoWords(here)) : QString(),
                  IsOwn(past.ToRedo()) ? ToQString(past.RedoWords(here)) : QString(),
                  past.IsOutOfRoom() ? ToQString(History::OutOfRoomWords) : QString());
}

void Screen::Turn(Way way)
{
    if (!SettleFocus())
        return;
    RunEvent("History", [this, way] {
        History& past = OpenHistory();
        past.Fold(); // what was changed behind the step belongs to it by now
        const bool back = way == Way::Back;
        const Step* step = back ? past.ToUndo() : past.ToRedo();
        if (!IsOwn(step))
            return;
        const QString words = ToQString(step->Label.Words);
        const Turned turned = back ? past.Undo() : past.Redo();
        if (turned == Turned::Done)
            Owner.ShowAnew();
        history->Tell(ToQString(Outcome(turned, back)) + words);
    });
    ShowHistory();
}

void Screen::Leave(const std::function<void()>& lostFocus)
{
    const int before = timesBlocked;
    lostFocus();
    if (timesBlocked == before)
        return;
    pressIsInterrupted = true;
    // The press that took the focus away, if one did, comes before anything else.
    QMetaObject::invokeMethod(
        this, [this] { pressIsInterrupted = false; }, Qt::QueuedConnection);
}

bool Screen::SettleFocus()
{
    auto* box = dynamic_cast<LeavingBox*>(focusWidget());
    return box == nullptr || box->Settle();
}

} // namespace dravik
