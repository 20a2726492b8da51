#pragma once

#include "screens/lines/BoardParts.h"
#include "screens/panels/ElidedLabel.h"
#include "screens/panels/PickList.h"
#include "screens/panels/Verdict.h"

#include <QWidget>

namespace dravik {

// The whole line-up of a day in a window of its own beside the pages: all slots at once, grouped as there. Where it is wide
// enough, the list of people stands beside them. It shows and reports; what a press means is up to the lines screen, whose
// keys go on working while it is in front.
class LineSheet : public QWidget {
    Q_OBJECT
public:
    explicit LineSheet(QWidget* screen);

    // Comes up, at the first time beside the screen where the display has room for both, else in the middle of it.
    void Open();
    // What it tells of the day: the game, the verdict with its sign, and what was found, whole in a tooltip.
    void Tell(const QString& game, const QString& verdict, bool isGood, const QString& reasons);
    // Lists who `people` lists, and chooses who is chosen there, without a word.
    void List(const PickList& people);
    void FollowChoice(const PickList& people);
    // From the list to the slots and back.
    void ChangeSides();

    BoardParts Parts;
    PickList* lstPeople = nullptr;
    QLabel* lblDay = nullptr;
    VerdictLabel* lblVerdict = nullptr;
    ElidedLabel* lblReasons = nullptr;

signals:
    // Escape, which nothing on it had a use for.
    void LeaveAsked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QLayout* MakeHeader();
    // Lines or units of some groups, one below the other, `across` slots wide.
    QVBoxLayout* MakeGroups(std::size_t first, std::size_t last, int across);
    QLayout* MakeGoalies();
    QLayout* MakeLists();
    void Stand();

    QPointer<SlotLabel> lastSlot; // that had the focus
    bool hasStood = false;
};

} // namespace dravik
