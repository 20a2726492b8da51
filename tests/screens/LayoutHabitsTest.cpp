#include "OnEveryScreen.h"
#include "screens/panels/Shades.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QGroupBox>
#include <set>

namespace dravik {
namespace {

// What the layouts of every screen have in common.
class LayoutHabits : public OnEveryScreen {
protected:
    // The widgets that a layout or one within it takes care of.
    static void Collect(const QLayout& layout, std::set<const QWidget*>& widgets)
    {
        for (int at = 0; at < layout.count(); ++at) {
            QLayoutItem* item = layout.itemAt(at);
            if (const QWidget* widget = item->widget())
                widgets.insert(widget);
            else if (const QLayout* inner = item->layout())
                Collect(*inner, widgets);
        }
    }

    static std::string Named(const QObject& object)
    {
        std::string path =
            object.objectName().isEmpty() ? object.metaObject()->className() : object.objectName().toStdString();
        return object.parent() == nullptr ? path : Named(*object.parent()) + "/" + path;
    }
};

TEST_F(LayoutHabits, NothingStandsBesideTheLayouts)
{
    int seen = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        QList<QWidget*> panels = screen.findChildren<QWidget*>();
        panels.prepend(&screen);
        for (const QWidget* panel : panels) {
            if (panel->layout() == nullptr)
                continue;
            std::set<const QWidget*> widgets;
            Collect(*panel->layout(), widgets);
            widgets.insert(panel->layout()->menuBar());
            for (const QWidget* widget : panel->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
                seen += static_cast<int>(widgets.count(widget));
                EXPECT_TRUE(widget->isHidden() || widget->isWindow() || widgets.count(widget) == 1)
                    << name << ": " << Named(*widget);
            }
        }
    });
    EXPECT_GT(seen, 1000);
}

TEST_F(LayoutHabits, NothingInALayoutLiesOverAnother)
{
    int seen = 0;
    const auto look = [&](Screen& screen, const std::string& name) {
        QList<QWidget*> panels = screen.findChildren<QWidget*>();
        panels.prepend(&screen);
        for (const QWidget* panel : panels) {
            if (panel->layout() == nullptr || !panel->isVisible())
                continue;
            std::set<const QWidget*> widgets;
            Collect(*panel->layout(), widgets);
            for (const QWidget* one : widgets)
                for (const QWidget* other : widgets) {
                    if (one == other || !one->isVisible() || !other->isVisible())
                        continue;
                    ++seen;
                    EXPECT_FALSE(one->geometry().intersects(other->geometry()))
                        << name << ": " << Named(*one) << " and " << Named(*other);
                }
        }
    };
    EachScreen(look);
    LeagueData.OffSeason = true; // whom a team protects is asked then alone
    EachScreen(look);
    EXPECT_GT(seen, 1000);
}

TEST_F(LayoutHabits, TheRoomBelowTheGroupsOfAPageOfLinesIsLeftEmpty)
{
    int seen = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        const auto* box = screen.findChild<QWidget*>("txtPullGoalerMinGoal");
        if (box == nullptr || !box->isVisible())
            return;
        ++seen;
        const QWidget* group = box->parentWidget();
        EXPECT_EQ(group->height(), group->sizeHint().height()) << name;
        EXPECT_LT(group->geometry().bottom() + 2 * Margin, group->parentWidget()->height()) << name;
    });
    EXPECT_GT(seen, 1);
}

TEST_F(LayoutHabits, TheGroupsOfATallTeamScreenAreNoTallerThanTheirContent)
{
    int seen = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        if (!name.starts_with("Team"))
            return;
        screen.resize(1280, 1200);
        Settle();
        for (const char* group : {"grpPro", "grpFarm", "grpContact", "grpFinance", "grpProjection"}) {
            const auto* box = screen.findChild<QGroupBox*>(group);
            ASSERT_NE(box, nullptr) << group;
            ++seen;
            EXPECT_LE(box->height(), box->sizeHint().height()) << name << ": " << group;
        }
    });
    EXPECT_GT(seen, 0);
}

TEST_F(LayoutHabits, EveryGapAndMarginIsOneOfTheHouses)
{
    const std::set<int> gaps{0, Gap / 2, Gap, Margin, 2 * Gap, 2 * Margin};
    int seen = 0;
    const auto expectOne = [&](int distance, const std::string& where) {
        ++seen;
        EXPECT_EQ(gaps.count(distance), 1U) << where << ": " << distance;
    };
    EachScreen([&](Screen& screen, const std::string& name) {
        for (const QLayout* layout : screen.findChildren<QLayout*>()) {
            int parts = 0;
            for (int at = 0; at < layout->count(); ++at)
                parts += layout->itemAt(at)->spacerItem() == nullptr ? 1 : 0;
            const auto* box = qobject_cast<const QBoxLayout*>(layout);
            const auto* grid = qobject_cast<const QGridLayout*>(layout);
            const std::string where = name + ": " + Named(*layout);
            if (box != nullptr && parts > 1)
                expectOne(box->spacing(), where);
            if (grid != nullptr && grid->columnCount() > 1)
                expectOne(grid->horizontalSpacing(), where);
            if (grid != nullptr && grid->rowCount() > 1)
                expectOne(grid->verticalSpacing(), where);
            if (box == nullptr && grid == nullptr)
                continue;
            const QMargins margins = layout->contentsMargins();
            for (const int margin : {margins.left(), margins.top(), margins.right(), margins.bottom()})
                expectOne(margin, where + ", margin");
        }
    });
    EXPECT_GT(seen, 1000);
}

TEST_F(LayoutHabits, InARowACommandIsAsWideAsItsWordsUnlessAGroupIsSharedOut)
{
    int seen = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        for (const QHBoxLayout* row : screen.findChildren<QHBoxLayout*>())
            for (int at = 0; at < row->count(); ++at) {
                const auto* button = qobject_cast<const QAbstractButton*>(row->itemAt(at)->widget());
                const bool sharesGroup = qobject_cast<const QGroupBox*>(row->parentWidget()) != nullptr;
                if (button == nullptr || !button->isVisible() || sharesGroup)
                    continue;
                ++seen;
                EXPECT_EQ(button->width(), button->sizeHint().width()) << name << ": " << Named(*button);
            }
    });
    EXPECT_GT(seen, 20);
}

} // namespace
} // namespace dravik
