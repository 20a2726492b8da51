#pragma once

#include "desk/Evening.h"

#include <array>
#include <functional>
#include <QPushButton>
#include <QWidget>

class QLabel;

namespace dravik {

class ElidedLabel;

// What an evening is for, a row each: its sign, what it is, how far it is, whether that is saved, and the command that goes there.
// The signs differ in shape: a tick, a number on a disc, a triangle, a dash.
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
    [[nodiscard]] QPushButton* CommandOf(EveningTask task) const { return rows.at(IndexOf(task)).Command; }

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Row {
        QWidget* Sign = nullptr;
        ElidedLabel* Words = nullptr;
        ElidedLabel* SavedWords = nullptr;
        QPushButton* Command = nullptr;
    };
    static std::size_t IndexOf(EveningTask task) { return static_cast<std::size_t>(task); }

    // The commands are as narrow as their words, so that those beside them have room.
    void FitCommands();

    std::array<Row, EveningTasks> rows;
};

} // namespace dravik
