#pragma once

#include "NamedStage.h"
#include "screens/main/frmMain.h"
#include "screens/platform/QtPlatform.h"
#include "screens/team/frmTeam.h"
#include "session/Session.h"
#include "support/LineFindings.h"
#include "support/SmallLeague.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace dravik {

// A small league with the stage before it, over the scripted machine. Keys and clicks go through the real widgets.
class OnStage : public SmallLeague {
protected:
    // The main screen, started as the program starts it.
    frmMain& Main()
    {
        if (TheStage.Find(Window::Main) == nullptr) {
            EXPECT_TRUE(TheStage.Start());
            Settle();
        }
        return *static_cast<frmMain*>(TheStage.Find(Window::Main));
    }

    // The main screen with the tables as they stand shown as an open league.
    frmMain& MainWithLeague()
    {
        Main().PlaceTeam();
        Main().ShowLeagueMenus();
        Settle();
        return Main();
    }

    // The screen of `team`, opened from the main screen.
    frmTeam& OpenTeam(int team)
    {
        MainWithLeague();
        CurrentTeam = team;
        Main().mnuViewTeam_Click();
        Settle();
        return *TeamScreen();
    }
    [[nodiscard]] frmTeam* TeamScreen() const { return static_cast<frmTeam*>(TheStage.Find(Window::Team)); }

    // How far a window stands from the middle of its display, across and down together, beyond half its frame: it is placed before it is shown,
    // when nobody knows its frame.
    static int OffTheMiddle(const QWidget& window)
    {
        const QSize frame = window.frameGeometry().size() - window.size();
        const QPoint middle = window.screen()->availableGeometry().center();
        return (window.frameGeometry().center() - middle).manhattanLength() - (frame.width() + frame.height()) / 2;
    }

    // Lets everything happen that is waiting, the deletion of closed screens included.
    static void Settle()
    {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static void Click(QWidget* widget)
    {
        QTest::mouseClick(widget, Qt::LeftButton);
        Settle();
    }
    static void Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(widget, key, modifiers);
        Settle();
    }

    // Goes to a box, opened for the purpose, and puts `text` in it. What leaves it later is up to the test.
    static void TypeInto(EditBox* box, const QString& text)
    {
        box->setEnabled(true);
        box->setFocus();
        ASSERT_TRUE(box->hasFocus());
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        for (const QChar character : text)
            if (character.unicode() < 0x80)
                QTest::keyClick(box, character.toLatin1());
            else
                box->insert(character); // no key of the test keyboard has it
    }

    // A team whose pro and farm lines of day 1 are complete.
    static TeamMaker CompleteTeam(int number)
    {
        TeamMaker maker(number);
        maker.DressesFullRoster();
        TeamMaker farm = TeamMaker(number).FarmsFullRoster();
        FillDay(Teams[number].ProLines[1], maker);
        FillDay(Teams[number].Farm.FarmLines[1], farm);
        return maker;
    }

    // Runs `use` on the desktop's own dialogs, within the program's event loop: without it, a program that has ended once
    // in this process shows none.
    void OnDesktop(const std::function<void()>& use)
    {
        QtPlatform desktop({QString::fromStdString(Machine.InFolder("settings.ini")),
                            QString::fromStdString(Machine.Folder()),
                            QString::fromStdString(Machine.InFolder("lock"))});
        desktop.SetWaitMilliseconds(0);
        UseMachine(desktop);
        QTimer::singleShot(0, qApp, [&use] {
            use();
            QCoreApplication::exit();
        });
        QCoreApplication::exec();
        UseMachine(Machine);
    }

    NamedStage TheStage;
};

} // namespace dravik
