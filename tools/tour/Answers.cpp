#include "Answers.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <utility>

namespace dravik::tour {

namespace {

// All but the wait screen and the sheet of keys, which ask nothing.
bool WantsAnswer(const QDialog& dialog)
{
    return dialog.objectName() != "frmWait" && dialog.objectName() != "KeySheet";
}

QString WordsOf(const QDialog& dialog)
{
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog))
        return box->text();
    const auto* prompt = dialog.findChild<QLabel*>("lblPrompt");
    return prompt == nullptr ? QString() : prompt->text();
}

} // namespace

Answers::Answers() { qApp->installEventFilter(this); }

bool Answers::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show)
        if (auto* dialog = qobject_cast<QDialog*>(watched); dialog != nullptr && WantsAnswer(*dialog))
            QTimer::singleShot(0, dialog, [this, dialog] { Answer(*dialog); });
    return QObject::eventFilter(watched, event);
}

void Answers::Answer(QDialog& dialog)
{
    const QString says = WordsOf(dialog);
    if (auto* box = qobject_cast<QMessageBox*>(&dialog); box != nullptr && confirmsAll) {
        box->defaultButton()->click();
        return;
    }
    const bool fits =
        !expected.empty() && expected.front().Dialog == dialog.objectName() && expected.front().Says == says;
    if (!fits) {
        complaints << "unexpected " + dialog.objectName() + ": " + says;
        dialog.reject();
        return;
    }
    const Expected next = expected.front();
    expected.pop_front();
    if (next.Look) {
        next.Look(dialog);
        dialog.reject();
        return;
    }
    if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        box->defaultButton()->click();
        return;
    }
    const char* field = next.Dialog == "dlgCommon" ? "fileNameEdit" : "txtAnswer";
    if (auto* edit = dialog.findChild<QLineEdit*>(field))
        edit->setText(next.Answer);
    dialog.accept();
}

QStringList Answers::TakeComplaints()
{
    for (const Expected& missed : std::exchange(expected, {}))
        complaints << "no " + missed.Dialog + " came: " + missed.Says;
    return std::exchange(complaints, {});
}

} // namespace dravik::tour
