#include "OnViewer.h"
#include "support/LeagueImage.h"

#include <QHelpEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>

// What looking at a record shows and leaves alone.
namespace dravik {
namespace {

class Viewing : public OnViewer {};

TEST_F(Viewing, ARepairIsNoChangeThatTheOpenerMustRebuildFor)
{
    PutSkater(20, 9, 0, status::Pro);
    const frmEditPlayer& viewer = Show(7);
    EXPECT_EQ(Players[20].Position, 1);
    EXPECT_FALSE(viewer.Changed());
    EXPECT_THAT(Machine.Boxes(), ::testing::ElementsAre(Box{48, "Skater 20 has no position! He's now center."}));
}

TEST_F(Viewing, ViewingChangesNoByteOfTheTables)
{
    Tilton().Condition = 90;
    Tilton().Injury = "Knee";
    Tilton().Suspension = 2;
    MainWithLeague();
    const auto tables = [] {
        ByteVector all = FiveTables();
        for (const ByteVector& bytes :
             {ImageOf(LeagueData), ImageOf(Coaches), ImageOf(RosterChanges), ImageOf(RosterChangesGoalie)})
            all.insert(all.end(), bytes.begin(), bytes.end());
        return all;
    };
    const ByteVector before = tables();
    Modified = false;
    for (const bool isGoalie : {false, true}) {
        frmEditPlayer& viewer = Show(7, isGoalie);
        for (QWidget* control : ClosedControls(viewer))
            if (control->isVisible())
                Click(control);
        EXPECT_FALSE(viewer.Changed());
        Click(viewer.cmdExit);
        EXPECT_TRUE(tables() == before) << isGoalie;
    }
    EXPECT_FALSE(Modified);
}

TEST_F(Viewing, NamesTeamsAndInjuriesOfFortyWideLettersStandWhole)
{
    const std::string longest(40, 'W');
    Tilton().Name = longest;
    Teams[5].Name = longest;
    Tilton().Condition = 80;
    Tilton().Injury = longest;
    frmEditPlayer& viewer = Show(7);
    viewer.resize(1280, 720);
    Settle();
    for (const EditBox* box : {viewer.txtName, viewer.txtTeam, viewer.txtInjury}) {
        constexpr int frames = 8;
        EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->text()) + frames)
            << box->objectName().toStdString();
    }
    EXPECT_EQ(viewer.findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(Viewing, AClosedBoxThatIsTooNarrowTellsItsWholeText)
{
    Tilton().Name = std::string(39, 'W') + "i";
    frmEditPlayer& viewer = Show(7);
    viewer.resize(640, 500);
    Settle();
    QHelpEvent help(QEvent::ToolTip, QPoint(2, 2), viewer.txtName->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(viewer.txtName, &help);
    EXPECT_TRUE(QToolTip::text().contains(QString(39, 'W') + "i"));
    QToolTip::hideText();
}

} // namespace
} // namespace dravik
