#pragma once

#include "desk/Evening.h"

#include <array>
#include <functional>
#include <QPushButton>
#include <QWidget>

class QLabel;

namespace dravik {

// What an evening is for, a row each: its sign, what it is, how far it is, whether that is saved, and the command that goes there.
// The signs differ in shape: a tick, a number on a disc, an exclamation mark in a ring, a dash. The tab key passes the commands over, as most
// of them stand elsewhere on the screen too; `Enter` goes to the first.
class EveningRows : public QWidget {
public:
    // `makeCommand(task, name)` makes the command of a row.
    EveningRows(const std::function<QPushButton*(EveningTask task, const QString& name)>& makeCommand, QWidget* parent);

    // How a task's file stands: in words, and whether something of it is not saved.
    struct Saved {
        QString Words;
        bool IsUnsaved = false;
    };
    void Show(const EveningItem& item, const Saved& saved);
    // Gives the focus to the first command that is open.
    void Enter();
    [[nodiscard]] QPushButton* CommandOf(EveningTask task) const { return rows.at(IndexOf(task)).Command; }

protected:
    // Up and Down go from command to command.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row {
        QWidget* Sign = nullptr;
        QLabel* Words = nullptr;
        QLabel* SavedWords = nullptr;
        QPushButton* Command = nullptr;
    };
    static std::size_t IndexOf(EveningTask task) { return static_cast<std::size_t>(task); }

    std::array<Row, EveningTasks> rows;
};

} // namespace dravik
