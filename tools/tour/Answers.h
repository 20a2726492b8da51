#pragma once

#include <deque>
#include <functional>
#include <QDialog>
#include <QObject>
#include <QStringList>
#include <utility>

namespace dravik::tour {

// Sits before the screen in the general manager's place: answers each dialog as it comes up, in the order in which the
// answers were given. A dialog that nobody expects, or that says something else, is noted and dismissed.
class Answers : public QObject {
public:
    Answers();

    // The next dialog: a message box with this text, whose default button is pressed; an input box with this prompt; the
    // open dialog.
    void Confirm(const QString& text) { expected.push_back({"msgBox", text, {}}); }
    void Type(const QString& prompt, const QString& answer) { expected.push_back({"inputBox", prompt, answer}); }
    void Choose(const QString& path) { expected.push_back({"dlgCommon", {}, path}); }
    // The dialog of that name, which is looked at and then dismissed.
    void LookAt(const QString& dialog, std::function<void(QDialog&)> look)
    {
        expected.push_back({dialog, {}, {}, std::move(look)});
    }

    // While on, any message box is confirmed, whatever it says: what a judge finds depends on the league.
    void ConfirmAll(bool on) { confirmsAll = on; }

    // What went otherwise than expected since the last call, dialogs that never came included.
    QStringList TakeComplaints();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Expected {
        QString Dialog;
        QString Says;
        QString Answer;
        std::function<void(QDialog&)> Look = {};
    };

    void Answer(QDialog& dialog);

    std::deque<Expected> expected;
    QStringList complaints;
    bool confirmsAll = false;
};

} // namespace dravik::tour
