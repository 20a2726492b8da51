#include "screens/panels/HistoryCommands.h"

#include "screens/panels/Layouts.h"

#include <QTextDocument>
#include <QToolTip>

namespace dravik {

namespace {

QToolButton* MakeArrow(const QString& name, QChar arrow, QWidget* parent)
{
    auto* command = new QToolButton(parent);
    command->setObjectName(name);
    command->setText(arrow);
    QFont large = command->font(); // the signs are drawn smaller than letters
    large.setPointSizeF(large.pointSizeF() * 1.5);
    command->setFont(large);
    command->setAutoRaise(true);
    command->setFocusPolicy(Qt::NoFocus);
    return command;
}

// A name with a tag in it stays a name.
void Describe(QToolButton& command, const QString& words, const QString& nothing, const QString& key)
{
    command.setEnabled(!words.isEmpty());
    const QString said = words.isEmpty() ? nothing : words;
    command.setAccessibleName(said);
    command.setToolTip(Qt::convertFromPlainText(said + " (" + key + ")"));
}

} // namespace

HistoryCommands::HistoryCommands(QWidget* parent) :
    QWidget(parent), cmdUndo(MakeArrow("cmdUndo", QChar(0x21B6), this)),
    cmdRedo(MakeArrow("cmdRedo", QChar(0x21B7), this))
{
    setObjectName("HistoryCommands");
    auto* row = MakeRow({cmdUndo, cmdRedo}, 0);
    row->setContentsMargins(0, 0, 0, 0);
    setLayout(row);
    connect(cmdUndo, &QToolButton::clicked, this, &HistoryCommands::Undo);
    connect(cmdRedo, &QToolButton::clicked, this, &HistoryCommands::Redo);
    Show({}, {});
}

void HistoryCommands::Show(const QString& undo, const QString& redo, const QString& whyNothing)
{
    Describe(*cmdUndo, undo, whyNothing.isEmpty() ? "Nothing to undo" : whyNothing, "Ctrl+Z");
    Describe(*cmdRedo, redo, "Nothing to redo", "Ctrl+Shift+Z");
}

void HistoryCommands::Tell(const QString& words)
{
    QToolTip::showText(mapToGlobal(QPoint(0, 0)), Qt::convertFromPlainText(words), this);
}

} // namespace dravik
