#pragma once

#include <QPushButton>
#include <QWidget>

namespace dravik {

class ElidedLabel;

// The muted line beside a command that saves: since when something is not saved, or when it was saved, and where to. It takes no
// room as long as there is nothing to say, and its commands none but behind a save. They take no focus, so that the tab key
// goes its way as without them.
class SaveLine : public QWidget {
    Q_OBJECT

public:
    explicit SaveLine(QWidget* parent = nullptr);

    // Shows `words`, and behind them the commands for the file at `path`, which lies on the disk; none where that is empty.
    void Show(const QString& words, const QString& path);

signals:
    void ShowInFolder();
    void CopyPath();

private:
    ElidedLabel* lblSaved;
    QPushButton *cmdShowInFolder, *cmdCopyPath;
};

} // namespace dravik
