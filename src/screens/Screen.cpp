#include "screens/Screen.h"

#include "league/Reporting.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/EntryList.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/CodePage.h"
#include "screens/Stage.h"

#include <algorithm>
#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <utility>

namespace dravik {

bool RunEvent(const QString& name, const std::function<void()>& routine)
{
    try {
        return Reporting(" in " + FromQString(name) + "!", routine);
    } catch (...) {
        // Not even the report could be shown.
        return false;
    }
}

namespace {

// A layout within a layout keeps an older hint until what it lies in is activated: inner ones first.
void WorkOutHints(const QWidget& window)
{
    const QList<QWidget*> panels = window.findChildren<QWidget*>();
    for (auto panel = panels.rbegin(); panel != panels.rend(); ++panel)
        if (QLayout* layout = (*panel)->layout()) {
            layout->invalidate();
            layout->activate();
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
}

void Screen::CentreOnScreen()
{
    if (isMaximized() || isFullScreen())
        return;
    const QRect area = screen()->availableGeometry();
    // A window that has not been shown yet has no frame to measure.
    QSize frame = frameGeometry().size() - size();
    if (frame.isEmpty())
        frame = {0, style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this)};
    resize(size().boundedTo(area.size() - frame));
    move(area.topLeft() +
         QPoint((area.width() - frameGeometry().width()) / 2, (area.height() - frameGeometry().height()) / 2));
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
    resize(size().expandedTo(sizeHint()));
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

void Screen::Open(std::string_view name) { Owner.Open(name, *this); }

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
    // the press goes no further, nor does the second one of a double click.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        const auto* button = qobject_cast<QPushButton*>(watched);
        const auto* box = dynamic_cast<LeavingBox*>(focusWidget());
        if (button != nullptr && box != nullptr && (button->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus)
            return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

QPushButton* Screen::MakeCommand(const QString& name, const QString& caption, std::function<void()> click)
{
    auto* command = new QPushButton(caption, this);
    command->setObjectName(name);
    command->setAutoDefault(true); // Enter presses the command that has the focus
    command->installEventFilter(this);
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
    connect(box, &EditBox::LostFocus, this, [name, run = std::move(lostFocus)] { RunEvent(name + "_LostFocus", run); });
    return box;
}

bool Screen::SettleFocus()
{
    auto* box = dynamic_cast<LeavingBox*>(focusWidget());
    return box == nullptr || box->Settle();
}

} // namespace dravik
