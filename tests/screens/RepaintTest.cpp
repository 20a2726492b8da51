#include "OnStage.h"
#include "PartReadAs.h"
#include "screens/panels/DayStrip.h"
#include "screens/panels/PayrollBar.h"
#include "screens/panels/RatingBar.h"
#include "screens/panels/SlotLabel.h"
#include "screens/panels/Verdict.h"

#include <QVBoxLayout>

namespace dravik {
namespace {

// Counts the events of a type that a widget is sent.
class Counted : public QObject {
public:
    Counted(QWidget& widget, QEvent::Type type) : wanted(type) { widget.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        times += event->type() == wanted ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
    [[nodiscard]] int Times() const { return times; }

private:
    QEvent::Type wanted;
    int times = 0;
};

// A widget that paints itself, alone in a window that is in front.
class Repaint : public OnStage {
protected:
    template <class Widget>
    static Widget& Shown(QWidget& window, Widget* widget)
    {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(widget);
        window.resize(400, 200);
        window.show();
        window.activateWindow();
        Settle();
        return *widget;
    }

    // What `change` makes the widget ask for.
    template <class Change>
    static bool IsPaintedAnewBy(const Change& change, QWidget& widget)
    {
        const Counted paints(widget, QEvent::Paint);
        change();
        Settle();
        return paints.Times() > 0;
    }
};

TEST_F(Repaint, ASlotIsPaintedAnewForWhateverItShows)
{
    QWidget window;
    SlotLabel& slot = Shown(window, new SlotLabel("Line 1, C", "C", &window));
    EXPECT_TRUE(IsPaintedAnewBy([&] { slot.SetName("Ward Tilton"); }, slot));
    EXPECT_TRUE(IsPaintedAnewBy([&] { slot.SetMark(SlotLabel::Mark::Twice); }, slot));
    EXPECT_TRUE(IsPaintedAnewBy([&] { slot.SetAside("78"); }, slot));
    EXPECT_TRUE(IsPaintedAnewBy([&] { slot.SetPicked(true); }, slot));
    EXPECT_TRUE(IsPaintedAnewBy([&] { slot.SetDropTarget(true); }, slot));
    EXPECT_FALSE(IsPaintedAnewBy([&] { slot.SetDropTarget(true); }, slot));
}

TEST_F(Repaint, WhatIsPressedLikeAButtonIsPaintedAnewWhenTheFocusComesAndGoes)
{
    QWidget window;
    PressLabel& label = Shown(window, new PressLabel(&window));
    label.clearFocus();
    Settle();
    EXPECT_TRUE(IsPaintedAnewBy([&] { label.setFocus(); }, label));
    EXPECT_TRUE(IsPaintedAnewBy([&] { label.clearFocus(); }, label));
}

TEST_F(Repaint, ABarIsPaintedAnewForAnotherRating)
{
    QWidget window;
    RatingBar& bar = Shown(window, new RatingBar(&window));
    EXPECT_TRUE(IsPaintedAnewBy([&] { bar.SetValue(78); }, bar));
    EXPECT_FALSE(IsPaintedAnewBy([&] { bar.SetValue(78); }, bar));
}

TEST_F(Repaint, ThePayrollIsPaintedAnewForAnotherStanding)
{
    QWidget window;
    PayrollBar& panel = Shown(window, new PayrollBar(&window));
    panel.Show({.Pro = 100, .Farm = 0, .Total = 100, .Cap = 200});
    Settle();
    QWidget* bar = PartReadAs(panel, "Payroll");
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(IsPaintedAnewBy([&] { panel.Show({.Pro = 150, .Farm = 0, .Total = 150, .Cap = 200}); }, *bar));
}

TEST_F(Repaint, TheDaysArePaintedAnewForOtherGamesAndAnotherDay)
{
    QWidget window;
    DayStrip& strip = Shown(window, new DayStrip(&window));
    EXPECT_TRUE(IsPaintedAnewBy([&] { strip.SetGames({"vs ABC"}); }, strip));
    EXPECT_TRUE(IsPaintedAnewBy([&] { strip.setValue(4); }, strip));
}

TEST_F(Repaint, AVerdictIsPaintedAnewWhereItsSignAloneChanges)
{
    QWidget window;
    VerdictLabel& verdict = Shown(window, new VerdictLabel(&window));
    verdict.Tell("Lines", true);
    Settle();
    EXPECT_TRUE(IsPaintedAnewBy([&] { verdict.Tell("Lines", false); }, verdict));
}

// Whose room changes tells the layout that it lies in.
TEST_F(Repaint, AVerdictTellsItsLayoutOfTheRoomThatItKeeps)
{
    QWidget window;
    VerdictLabel& verdict = Shown(window, new VerdictLabel(&window));
    const Counted asked(window, QEvent::LayoutRequest);
    verdict.KeepRoomFor({"Lines are Incomplete"});
    Settle();
    EXPECT_GT(asked.Times(), 0);
    EXPECT_GE(verdict.width(), verdict.fontMetrics().horizontalAdvance("Lines are Incomplete"));
}

} // namespace
} // namespace dravik
