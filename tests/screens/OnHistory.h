#pragma once

#include "screens/panels/HistoryCommands.h"
#include "screens/Screen.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QTest>
#include <QTextDocument>
#include <QToolButton>
#include <QToolTip>
#include <string>

namespace dravik {

// What the commands of a screen's history say, and the keys and clicks that run them.
inline QToolButton* HistoryCommand(const Screen& screen, const char* name)
{
    auto* command = screen.findChild<QToolButton*>(name);
    EXPECT_NE(command, nullptr) << screen.objectName().toStdString() << ' ' << name;
    return command;
}
inline std::string WordsOn(const Screen& screen, const char* name)
{
    const QToolButton* command = HistoryCommand(screen, name);
    return command->isEnabled() ? command->accessibleName().toStdString() : std::string();
}
inline std::string UndoWords(const Screen& screen) { return WordsOn(screen, "cmdUndo"); }
inline std::string RedoWords(const Screen& screen) { return WordsOn(screen, "cmdRedo"); }

// The words of a tooltip, and what the commands said last of what they did.
inline std::string Plain(const QString& rich)
{
    QTextDocument text;
    text.setHtml(rich);
    return text.toPlainText().toStdString();
}
inline std::string HistoryTold() { return Plain(QToolTip::text()); }

// Presses a key of the whole screen, wherever the focus is on it.
inline void PressScreenKey(Screen& screen, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
{
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    QWidget* target = screen.focusWidget() != nullptr ? screen.focusWidget() : &screen;
    QTest::keyClick(target, key, modifiers);
    QApplication::processEvents();
}
inline void Undo(Screen& screen) { PressScreenKey(screen, Qt::Key_Z); }
inline void Redo(Screen& screen) { PressScreenKey(screen, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

} // namespace dravik
