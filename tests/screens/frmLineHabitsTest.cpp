#include "Dragging.h"
#include "OnLineScreen.h"
#include "screens/panels/Labels.h"
#include "screens/platform/Palettes.h"

#include <cstring>
#include <map>
#include <QKeySequence>
#include <QTabBar>

namespace dravik {
namespace {

using ::testing::IsEmpty;

// How the lines screens feel: drags step by step, keys, names and sizes.
class LineHabits : public OnLineScreen {
protected:
    int RowOf(LinesScreen& screen, int id, int position) { return screen.lstPlayer->RowOf(EntryNumber(id, position)); }
    // The picture that follows the pointer during a drag.
    static int Ghosts(const LinesScreen& screen)
    {
        int ghosts = 0;
        for (const auto* label : screen.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
            ghosts += label->testAttribute(Qt::WA_TransparentForMouseEvents) ? 1 : 0;
        return ghosts;
    }
    static bool AreSame(const Lines& a, const Lines& b) { return std::memcmp(&a, &b, sizeof(Lines)) == 0; }

    // Both screens, one after the other.
    template <class Visit>
    void EachScreen(Visit&& visit)
    {
        visit(static_cast<LinesScreen&>(Line()));
        Click(Line().cmdExit);
        visit(static_cast<LinesScreen&>(FarmLine()));
    }
};

TEST_F(LineHabits, ASlotShowsThatItWouldTakeWhoIsDraggedOverIt)
{
    frmLine& line = Line();
    SlotLabel* takes = SlotOn(line, LineField::NormalForward, 1, 1);
    SlotLabel* other = SlotOn(line, LineField::NormalForward, 1, 2);
    EntryDragging drag(line.lstPlayer, 0);
    EXPECT_EQ(Ghosts(line), 1);
    EXPECT_EQ(line.lstPlayer->viewport()->cursor().shape(), Qt::ForbiddenCursor);
    drag.MoveTo(takes);
    EXPECT_TRUE(takes->IsDropTarget());
    EXPECT_EQ(line.lstPlayer->viewport()->cursor().shape(), Qt::DragCopyCursor);
    drag.MoveTo(other);
    EXPECT_FALSE(takes->IsDropTarget());
    EXPECT_TRUE(other->IsDropTarget());
    drag.MoveTo(line.cmdExit);
    EXPECT_FALSE(other->IsDropTarget());
    drag.LetGo();
    EXPECT_EQ(Ghosts(line), 0);
    EXPECT_TRUE(line.isVisible());
    EXPECT_FALSE(Modified);
}

TEST_F(LineHabits, ADragEndsWithEscape)
{
    frmLine& line = Line();
    const Lines before = ProDay();
    SlotLabel* label = SlotOn(line, LineField::NormalForward, 1, 2);
    EntryDragging drag(line.lstPlayer, 0);
    drag.MoveTo(label);
    Press(line.lstPlayer, Qt::Key_Escape);
    EXPECT_FALSE(label->IsDropTarget());
    EXPECT_EQ(Ghosts(line), 0);
    drag.LetGo();
    EXPECT_TRUE(AreSame(ProDay(), before));
    EXPECT_FALSE(Modified);
}

TEST_F(LineHabits, APressThatHardlyMovesIsNoDrag)
{
    frmLine& line = Line();
    QWidget* list = line.lstPlayer->viewport();
    const QPoint entry = line.lstPlayer->visualItemRect(line.lstPlayer->item(2)).center();
    QTest::mousePress(list, Qt::LeftButton, {}, entry);
    QMouseEvent move(QEvent::MouseMove, entry + QPoint(2, 1), list->mapToGlobal(QPointF(entry + QPoint(2, 1))),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list, &move);
    EXPECT_EQ(Ghosts(line), 0);
    QTest::mouseRelease(list, Qt::LeftButton, {}, entry);
    EXPECT_EQ(line.lstPlayer->Chosen(), line.lstPlayer->item(2));
}

TEST_F(LineHabits, ADragOverTheEntriesPicksNobodyElse)
{
    frmLine& line = Line();
    EntryDragging drag(line.lstPlayer, 1);
    const long long dragged = SelectedPlayer;
    drag.MoveTo(line.lstPlayer->viewport(), line.lstPlayer->visualItemRect(line.lstPlayer->item(4)).center());
    drag.LetGo();
    EXPECT_EQ(SelectedPlayer, dragged);
    EXPECT_EQ(line.lstPlayer->Chosen(), line.lstPlayer->item(1));
}

TEST_F(LineHabits, ADragOverATabBringsItsPageUp)
{
    frmLine& line = Line();
    line.resize(1280, 800);
    Settle();
    QTabBar* tabs = line.TabLine->tabBar();
    EntryDragging drag(line.lstPlayer, RowOf(line, Pro.GoalieIds[1], position::Goalie));
    constexpr int goalies = 7;
    drag.MoveTo(tabs, tabs->tabRect(goalies).center());
    EXPECT_EQ(line.TabLine->currentIndex(), goalies);
    Settle();
    drag.MoveTo(StartSlot(line).Label);
    drag.LetGo();
    EXPECT_EQ(ProDay().StartGoalie, Pro.GoalieIds[1]);
}

TEST_F(LineHabits, ADragOfTheRightButtonIsNone)
{
    frmLine& line = Line();
    QWidget* list = line.lstPlayer->viewport();
    const QPoint entry = line.lstPlayer->visualItemRect(line.lstPlayer->item(0)).center();
    QTest::mousePress(list, Qt::RightButton, {}, entry);
    QMouseEvent move(QEvent::MouseMove, entry + QPoint(60, 0), list->mapToGlobal(QPointF(entry + QPoint(60, 0))),
                     Qt::NoButton, Qt::RightButton, Qt::NoModifier);
    QApplication::sendEvent(list, &move);
    EXPECT_EQ(Ghosts(line), 0);
    QTest::mouseRelease(list, Qt::RightButton, {}, entry);
}

TEST_F(LineHabits, ARefusedTextHoldsADragBack)
{
    frmLine& line = Line();
    line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
    Settle();
    TypeInto(line.txtPullGoalerMinGoal, "x");
    EntryDragging drag(line.lstPlayer, 0);
    EXPECT_EQ(Ghosts(line), 0);
    EXPECT_EQ(line.lstPlayer->Chosen(), nullptr);
    drag.MoveTo(line.TabLine);
    drag.LetGo();
    EXPECT_TRUE(line.txtPullGoalerMinGoal->hasFocus());
    EXPECT_THAT(Machine.Boxes(), ::testing::ElementsAre(Box{48, "No Valid Input!"}));
}

TEST_F(LineHabits, BothScreensFitASmallDisplayWithAllTheirWords)
{
    Own().Name = "Wexcombe Junction Switchmen of the North";
    Own().Farm.Name = "Wexcombe Junction Switchmen of the South";
    PutGames(10);
    Teams[6].Name = "Saint-Ambrelin Eclaireurs of the Valley.";
    Teams[6].Farm.Name = Teams[6].Name.Trimmed();
    EachScreen([](LinesScreen& screen) {
        screen.resize(1280, 800);
        Settle();
        EXPECT_LE(screen.minimumSizeHint().width(), 1280);
        EXPECT_LE(screen.minimumSizeHint().height(), 800);
        EXPECT_EQ(screen.size(), QSize(1280, 800));
        EXPECT_GE(screen.TabLine->width(), screen.TabLine->tabBar()->sizeHint().width());
        for (int tab = 0; tab < screen.TabLine->count(); ++tab) {
            screen.TabLine->setCurrentIndex(tab);
            Settle();
            for (const auto* label : screen.findChildren<QLabel*>())
                if (label->isVisible() && label != screen.lblPlaying) {
                    EXPECT_GE(label->width(), label->minimumSizeHint().width()) << label->text().toStdString();
                }
            for (const auto* button : screen.findChildren<QPushButton*>())
                if (button->isVisible()) {
                    EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
                }
        }
    });
}

TEST_F(LineHabits, NoLetterCallsTwoControls)
{
    EachScreen([](LinesScreen& screen) {
        std::map<QString, QString> owners;
        const auto take = [&owners](const QString& text) {
            const QString key = QKeySequence::mnemonic(text).toString();
            if (!key.isEmpty()) {
                EXPECT_TRUE(owners.emplace(key, text).second) << text.toStdString();
            }
        };
        for (const auto* command : screen.findChildren<QPushButton*>())
            take(command->text());
        for (const auto* label : screen.findChildren<QLabel*>())
            if (label->buddy() != nullptr)
                take(label->text());
        for (int tab = 0; tab < screen.TabLine->count(); ++tab)
            take(screen.TabLine->tabText(tab));
        EXPECT_GE(owners.size(), 14U);
    });
}

TEST_F(LineHabits, EverySlotAndBoxHasANameOfItsOwnForScreenReaders)
{
    EachScreen([](LinesScreen& screen) {
        std::map<QString, QString> owners;
        for (const BoardSlot& slot : screen.TabLine->Slots)
            EXPECT_TRUE(owners.emplace(slot.Label->accessibleName().section(':', 0, 0), "").second)
                << slot.Label->accessibleName().toStdString();
        for (const QWidget* control : std::initializer_list<QWidget*>{
                 screen.lstPlayer, screen.vscDay, screen.TabLine, screen.txtReasons, screen.hscStats[0],
                 screen.hscStats[1], screen.hscStats[2], screen.txtPullGoalerMinGoal, screen.txtPullGoalerMinPct})
            EXPECT_TRUE(owners.emplace(control->accessibleName(), "").second)
                << control->accessibleName().toStdString();
        EXPECT_FALSE(owners.contains(""));
    });
}

TEST_F(LineHabits, TheTabKeyWalksALineFromLeftToRight)
{
    frmLine& line = Line();
    const std::vector<QWidget*> walk{
        line.findChild<QLabel*>("lblNormalTrio(1)"),  SlotOn(line, LineField::NormalForward, 1, 2),
        SlotOn(line, LineField::NormalForward, 1, 1), SlotOn(line, LineField::NormalForward, 1, 3),
        SlotOn(line, LineField::NormalDefense, 1, 1), SlotOn(line, LineField::NormalDefense, 1, 2),
        line.findChild<QLabel*>("lblNormalTrio(2)")};
    walk.front()->setFocus();
    for (std::size_t i = 0; i + 1 < walk.size(); ++i) {
        ASSERT_TRUE(walk[i]->hasFocus()) << walk[i]->objectName().toStdString();
        Press(walk[i], Qt::Key_Tab);
    }
    EXPECT_TRUE(walk.back()->hasFocus());
}

TEST_F(LineHabits, ALineReadsAsOnTheIce)
{
    frmLine& line = Line();
    const auto at = [&](LineField field, int place) {
        const SlotLabel* label = SlotOn(line, field, 1, place);
        return label->mapTo(&line, label->rect().center());
    };
    const QPoint wing = at(LineField::NormalForward, 2);
    const QPoint center = at(LineField::NormalForward, 1);
    const QPoint right = at(LineField::NormalForward, 3);
    EXPECT_LT(wing.x(), center.x());
    EXPECT_LT(center.x(), right.x());
    EXPECT_EQ(wing.y(), center.y());
    EXPECT_EQ(center.y(), right.y());
    const QPoint first = at(LineField::NormalDefense, 1);
    const QPoint second = at(LineField::NormalDefense, 2);
    EXPECT_LT(first.x(), second.x());
    EXPECT_EQ(first.y(), second.y());
    EXPECT_GT(first.y(), center.y());
}

TEST_F(LineHabits, ARefusedPersonIsTheOneWhoIsRed)
{
    frmLine& line = Line();
    SlotLabel* label = SlotOn(line, LineField::NormalForward, 1, 1);
    for (void (*use)() : {&UseDarkLook, &UseLightLook}) {
        use();
        Settle();
        label->SetMark(SlotLabel::Mark::Filled);
        EXPECT_EQ(Reddish(label), 0);
        label->SetMark(SlotLabel::Mark::Refused);
        EXPECT_GT(Reddish(label), 100);
    }
}

} // namespace
} // namespace dravik
