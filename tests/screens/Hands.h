#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <string>
#include <utility>

namespace dravik {

// Answers the real dialogs, one after the other, as they come up.
class Hands : public QObject {
public:
    Hands() { qApp->installEventFilter(this); }

    void Next(const QString& dialog, std::function<void(QDialog&)> act) { todo.emplace_back(dialog, std::move(act)); }
    // Answers an input box that asks `prompt`.
    void Type(const QString& prompt, const QString& answer)
    {
        Next("inputBox", [prompt, answer](QDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QLabel*>("lblPrompt")->text(), prompt);
            QTest::keyClicks(dialog.findChild<QLineEdit*>("txtAnswer"), answer);
            QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
        });
    }
    void TypePassword(const QString& password) { Type("Password Required!", password); }
    void Choose(const std::string& path)
    {
        Next("dlgCommon", [path](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
            dialog.accept();
        });
    }
    // Reads a message box and presses its button.
    void Read(const QString& text) { PressButton(text, "cmdOk"); }
    // Says yes to a question.
    void Agree(const QString& question) { PressButton(question, "cmdYes"); }
    [[nodiscard]] bool AreIdle() const { return todo.empty(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* dialog = qobject_cast<QDialog*>(watched);
        if (event->type() == QEvent::Show && dialog != nullptr && dialog->objectName() != "frmWait")
            QTimer::singleShot(0, dialog, [this, dialog] { Act(*dialog); });
        return false;
    }

private:
    void PressButton(const QString& text, const char* button)
    {
        Next("msgBox", [text, button](QDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QLabel*>("qt_msgbox_label")->text(), text);
            EXPECT_EQ(dialog.windowTitle(), "Dravik Hockey Simulator Client");
            QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
        });
    }

    void Act(QDialog& dialog)
    {
        if (todo.empty() || todo.front().first != dialog.objectName()) {
            const auto* words = dialog.findChild<QLabel*>("qt_msgbox_label");
            ADD_FAILURE() << "Nobody expects " << dialog.objectName().toStdString() << ": "
                          << (words == nullptr ? std::string() : words->text().toStdString());
            dialog.reject();
            return;
        }
        const auto act = std::move(todo.front().second);
        todo.pop_front();
        act(dialog);
    }

    std::deque<std::pair<QString, std::function<void(QDialog&)>>> todo;
};

} // namespace dravik
