#include "screens/panels/SaveLine.h"

#include "screens/panels/ElidedLabel.h"
#include "screens/panels/Layouts.h"

#include <QTextDocument>

namespace dravik {

namespace {

QPushButton* MakeFileCommand(const QString& name, const QString& words, QWidget* parent)
{
    auto* command = new QPushButton(words, parent);
    command->setObjectName(name);
    command->setFlat(true);
    command->setFocusPolicy(Qt::NoFocus);
    return command;
}

} // namespace

SaveLine::SaveLine(QWidget* parent) :
    QWidget(parent), lblSaved(new ElidedLabel(this, ElidedLabel::Words::Muted)),
    cmdShowInFolder(MakeFileCommand("cmdShowInFolder", "Show &in Folder", this)),
    cmdCopyPath(MakeFileCommand("cmdCopyPath", "Cop&y Path", this))
{
    lblSaved->setObjectName("lblSaved");
    QHBoxLayout* row = MakeRow({lblSaved, cmdShowInFolder, cmdCopyPath});
    row->setContentsMargins(0, 0, 0, 0);
    setLayout(row);
    // The screen keeps its shape whatever is told.
    QSizePolicy keepsPlace = sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    setSizePolicy(keepsPlace);
    setMinimumHeight(cmdShowInFolder->sizeHint().height());
    connect(cmdShowInFolder, &QPushButton::clicked, this, &SaveLine::ShowInFolder);
    connect(cmdCopyPath, &QPushButton::clicked, this, &SaveLine::CopyPath);
    Show({}, {});
}

void SaveLine::Show(const QString& words, const QString& path)
{
    lblSaved->setText(words);
    for (QPushButton* command : {cmdShowInFolder, cmdCopyPath}) {
        command->setVisible(!path.isEmpty());
        command->setToolTip(path.isEmpty() ? QString() : Qt::convertFromPlainText(path));
    }
    setVisible(!words.isEmpty());
}

} // namespace dravik
