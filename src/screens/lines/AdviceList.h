#pragma once

#include <functional>
#include <QList>
#include <QPushButton>
#include <QWidget>
#include <vector>

class QLabel;
class QScrollArea;

namespace dravik {

class ElidedLabel;

// What a manager is advised, as a list shows it.
struct AdviceEntry {
    QString Words;   // what is weak
    QString Caption; // of the command that mends it, in a word or two
    QString Deed;    // what that does, for its tooltip and a screen reader
};

// A quiet list of advice under a heading of its own, each piece with a sign and the command that follows it. It keeps its room
// whatever it holds, so that nothing moves from one command to the next, and scrolls within; folded away, the heading alone
// stays and says how many there are. Which piece a command follows may change while it has the focus: a double click and a key
// that is held down press it once.
class AdviceList : public QWidget {
public:
    // `makeCommand(row)` makes the command of a row (0 and up), where one is needed for the first time; `fold` is the one of
    // the heading.
    AdviceList(QPushButton* fold, std::function<QPushButton*(int row)> makeCommand, QWidget* parent);

    // Shows these pieces in the place of all others. The command of a row that goes is closed.
    void Tell(const QList<AdviceEntry>& entries);
    void SetFolded(bool folded);
    [[nodiscard]] bool IsFolded() const { return isFolded; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Row {
        QWidget* Panel;
        ElidedLabel* Words;
        QPushButton* Command;
    };

    void AddRow();
    void ShowHeading();
    void FitRows();

    QPushButton* cmdFold;
    std::function<QPushButton*(int row)> make;
    QLabel* lblCount;
    QScrollArea* area;
    QLabel* lblNothing;
    std::vector<Row> rows;
    qsizetype count = 0;
    bool isFolded = false;
};

} // namespace dravik
