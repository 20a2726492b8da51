#pragma once

#include <gtest/gtest.h>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

namespace dravik {

// Waits in the event loop for the next modal dialog and hands it to `act`, which presses what a user would. A dialog that
// is still up afterwards, or of another kind than `T`, is a failure and is closed, so that no test hangs.
template <class T>
void OnDialog(std::function<void(T&)> act)
{
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* dialog = qobject_cast<T*>(modal);
        if (dialog != nullptr)
            act(*dialog);
        else
            ADD_FAILURE() << "No dialog of this kind is up.";
        if (modal != nullptr && QApplication::activeModalWidget() == modal) {
            ADD_FAILURE() << "The dialog was not answered.";
            modal->close();
        }
    });
}

// Clicks the button of this name with the mouse.
inline void Click(const QWidget& dialog, const char* name)
{
    auto* button = dialog.findChild<QWidget*>(name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
}

// Types a key into whatever has the focus within the dialog.
inline void Press(QWidget& dialog, Qt::Key key)
{
    QWidget* target = dialog.focusWidget();
    QTest::keyClick(target != nullptr ? target : &dialog, key);
}

} // namespace dravik
