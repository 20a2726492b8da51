#pragma once

#include <QToolButton>
#include <QWidget>

namespace dravik {

// The two small commands that take back the last step and do it again. Each says in its tooltip, and to a screen reader, what
// it would do; without such a step it is closed. They take no focus, so that the tab key goes its way as without them.
class HistoryCommands : public QWidget {
    Q_OBJECT

public:
    explicit HistoryCommands(QWidget* parent = nullptr);

    // Shows what both would do, in words; without words there is nothing to do, and `whyNothing` says why where that is known.
    void Show(const QString& undo, const QString& redo, const QString& whyNothing = {});

    // Says for a moment, beside the commands, what was done: it may be on another day, or on another screen.
    void Tell(const QString& words);

signals:
    void Undo();
    void Redo();

private:
    QToolButton* cmdUndo;
    QToolButton* cmdRedo;
};

} // namespace dravik
