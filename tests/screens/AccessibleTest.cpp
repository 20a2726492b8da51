#include "OnEveryScreen.h"
#include "screens/main/GuideWindow.h"
#include "screens/panels/DayStrip.h"
#include "screens/panels/LinkLabel.h"
#include "screens/panels/RatingBar.h"
#include "screens/panels/SlotLabel.h"
#include "screens/panels/TypedTag.h"
#include "screens/panels/Verdict.h"

#include <private/qguiapplication_p.h>
#include <QAbstractButton>
#include <QAccessible>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QRegularExpression>
#include <QSignalSpy>
#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

QAccessibleInterface& Reader(QObject& object) { return *QAccessible::queryAccessibleInterface(&object); }

std::string NameOf(QObject& object) { return Reader(object).text(QAccessible::Name).toStdString(); }

// What a screen reader is told, in order, as long as this lives.
class Listening {
public:
    Listening() : wasActive(QAccessible::isActive())
    {
        Desktop().setActive(true);
        before = QAccessible::installUpdateHandler(&Hear);
    }
    ~Listening()
    {
        Desktop().setActive(wasActive);
        QAccessible::installUpdateHandler(before);
        heard.clear();
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;

    static int Count(QAccessible::Event type, const QObject& object)
    {
        return static_cast<int>(std::count(heard.begin(), heard.end(), std::pair(type, &object)));
    }

private:
    // Nothing is told while no screen reader is there, which only the platform below the toolkit can say.
    static QPlatformAccessibility& Desktop() { return *QGuiApplicationPrivate::platformIntegration()->accessibility(); }

    static void Hear(QAccessibleEvent* event) { heard.emplace_back(event->type(), event->object()); }

    bool wasActive;
    QAccessible::UpdateHandler before;
    static inline std::vector<std::pair<QAccessible::Event, const QObject*>> heard;
};

// Shown in a window of its own, which has the focus.
template <class Widget, class... Arguments>
struct Shown {
    explicit Shown(Arguments... arguments) : Panel(new Widget(arguments..., &Window))
    {
        Window.resize(400, 200);
        Window.show();
        Window.activateWindow();
        QApplication::processEvents();
    }
    QWidget Window;
    Widget* Panel;
};

TEST(Accessible, ASlotIsAButtonThatSaysLinePlacePersonOverallAndMark)
{
    Shown<SlotLabel, QString, QString> shown("Line 1, C", "C");
    SlotLabel& slot = *shown.Panel;
    EXPECT_EQ(Reader(slot).role(), QAccessible::Button);
    EXPECT_EQ(NameOf(slot), "Line 1, C:  (empty)");
    slot.SetName("Ward Tilton");
    slot.SetAside("78");
    slot.SetMark(SlotLabel::Mark::Filled);
    EXPECT_EQ(NameOf(slot), "Line 1, C: Ward Tilton, overall 78");
    slot.SetMark(SlotLabel::Mark::Refused);
    EXPECT_EQ(NameOf(slot), "Line 1, C: Ward Tilton, overall 78 (may not play)");
}

TEST(Accessible, ThePressActionPressesAsTheHandDoes)
{
    Shown<SlotLabel, QString, QString> shown("Line 1, C", "C");
    SlotLabel& slot = *shown.Panel;
    QSignalSpy presses(&slot, &PressLabel::Pressed);
    QAccessibleActionInterface* action = Reader(slot).actionInterface();
    ASSERT_NE(action, nullptr);
    EXPECT_TRUE(action->actionNames().contains(QAccessibleActionInterface::pressAction()));
    action->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses.count(), 1);
    EXPECT_TRUE(slot.hasFocus());
    slot.setEnabled(false);
    EXPECT_FALSE(action->actionNames().contains(QAccessibleActionInterface::pressAction()));
    action->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses.count(), 1);
}

TEST(Accessible, ALinkCanBePressedToo)
{
    Shown<LinkLabel, QString> shown("The web site");
    QSignalSpy clicks(shown.Panel, &LinkLabel::Clicked);
    EXPECT_EQ(Reader(*shown.Panel).role(), QAccessible::Link);
    EXPECT_EQ(NameOf(*shown.Panel), "The web site");
    Reader(*shown.Panel).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.count(), 1);
}

TEST(Accessible, TheStripOfDaysSaysDayOpponentAndVerdict)
{
    DayStrip strip;
    strip.setAccessibleName("Day");
    EXPECT_EQ(Reader(strip).role(), QAccessible::Slider);
    EXPECT_EQ(NameOf(strip), "Day 1");
    strip.SetGames({"vs AAA", "at BBB"});
    strip.SetVerdict("Lines are Complete");
    strip.setValue(2);
    EXPECT_EQ(NameOf(strip), "Day 2, at BBB, Lines are Complete");
    strip.setValue(3);
    strip.SetVerdict("Lines are Incomplete");
    EXPECT_EQ(NameOf(strip), "Day 3, Lines are Incomplete");
    QAccessibleValueInterface* value = Reader(strip).valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue().toInt(), 3);
    EXPECT_EQ(value->minimumValue().toInt(), 1);
    EXPECT_EQ(value->maximumValue().toInt(), 10);
    EXPECT_EQ(value->minimumStepSize().toInt(), 1);
    value->setCurrentValue(5);
    EXPECT_EQ(strip.value(), 5);
}

TEST(Accessible, AnotherDayGameOrVerdictIsTold)
{
    DayStrip strip;
    const Listening reader;
    strip.setValue(2);
    EXPECT_EQ(Listening::Count(QAccessible::NameChanged, strip), 1);
    strip.SetGames({"vs AAA", "at BBB"});
    EXPECT_EQ(Listening::Count(QAccessible::NameChanged, strip), 2);
    strip.SetVerdict("Lines are Complete");
    strip.SetVerdict("Lines are Complete");
    EXPECT_EQ(Listening::Count(QAccessible::NameChanged, strip), 3);
}

TEST(Accessible, AChangedVerdictIsAnnounced)
{
    VerdictLabel verdict;
    EXPECT_EQ(Reader(verdict).role(), QAccessible::AlertMessage);
    const Listening reader;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    const auto announced = QAccessible::Announcement;
#else
    const auto announced = QAccessible::Alert;
#endif
    verdict.Tell("Lines are Complete", true);
    EXPECT_EQ(Listening::Count(announced, verdict), 1);
    EXPECT_EQ(NameOf(verdict), "Lines are Complete");
    verdict.Tell("Lines are Complete", true);
    EXPECT_EQ(Listening::Count(announced, verdict), 1);
    verdict.Tell("Lines are Incomplete", false);
    EXPECT_EQ(Listening::Count(announced, verdict), 2);
    EXPECT_EQ(NameOf(verdict), "Lines are Incomplete");
}

TEST(Accessible, WhatASearchOfTheGuideCameToIsAnnounced)
{
    GuideWindow guide;
    const Listening reader;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    const auto announced = QAccessible::Announcement;
#else
    const auto announced = QAccessible::Alert;
#endif
    guide.txtFind->setText("payroll");
    EXPECT_TRUE(guide.FindNext(false));
    EXPECT_EQ(Listening::Count(announced, *guide.lblFound), 0) << "the text itself tells the place";
    guide.txtFind->setText("xyzzy");
    EXPECT_FALSE(guide.FindNext(false));
    EXPECT_EQ(Listening::Count(announced, *guide.lblFound), 1);
    EXPECT_EQ(NameOf(*guide.lblFound), "Not found");
}

TEST(Accessible, WhatIsTypedInAListIsAnnouncedLetterByLetter)
{
    Shown<EntryList> shown;
    EntryList& list = *shown.Panel;
    list.Add("Ward Tilton", 5);
    list.Add("Pia Vos", 6);
    list.setFocus();
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    const auto announced = QAccessible::Announcement;
#else
    const auto announced = QAccessible::Alert;
#endif
    const Listening reader;
    QTest::keyClick(&list, 'v');
    auto& tag = *list.findChild<TypedTag*>();
    EXPECT_EQ(Reader(tag).role(), QAccessible::AlertMessage);
    EXPECT_EQ(NameOf(tag), "Typed: v");
    EXPECT_EQ(Listening::Count(announced, tag), 1);
    EXPECT_EQ(Listening::Count(QAccessible::Focus, list), 1) << "the entry that it leads to";
    QTest::keyClick(&list, 'v');
    EXPECT_EQ(Listening::Count(announced, tag), 1) << "the same letter again is no new text";
    QTest::keyClick(&list, 'x');
    EXPECT_EQ(NameOf(tag), "Typed: vx: not found");
    EXPECT_EQ(Listening::Count(announced, tag), 2);
    QTest::keyClick(&list, Qt::Key_Escape);
    EXPECT_TRUE(Reader(tag).state().invisible);
}

TEST(Accessible, ABarSaysItsRatingAndNumber)
{
    RatingBar bar;
    bar.setAccessibleName("SK");
    bar.SetValue(78);
    EXPECT_EQ(Reader(bar).role(), QAccessible::ProgressBar);
    EXPECT_EQ(NameOf(bar), "SK");
    EXPECT_EQ(Reader(bar).text(QAccessible::Value), "78");
    EXPECT_TRUE(Reader(bar).state().readOnly);
    QAccessibleValueInterface* value = Reader(bar).valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue().toInt(), 78);
    EXPECT_EQ(value->minimumValue().toInt(), 0);
    EXPECT_EQ(value->maximumValue().toInt(), 99);
    const Listening reader;
    bar.SetValue(78);
    EXPECT_EQ(Listening::Count(QAccessible::ValueChanged, bar), 0);
    bar.SetValue(60);
    EXPECT_EQ(Listening::Count(QAccessible::ValueChanged, bar), 1);
}

TEST(Accessible, AnEntrySaysWhatIsPaintedBesideItsName)
{
    EntryList list;
    list.Add("Ward Tilton (C) *", 5, {"C", "78"});
    list.Add("Pia Vos", 6);
    list.resize(200, 100);
    list.show();
    QApplication::processEvents();
    ASSERT_EQ(Reader(list).childCount(), 2);
    EXPECT_EQ(Reader(list).child(0)->text(QAccessible::Name), "Ward Tilton (C) *, C, 78");
    EXPECT_EQ(Reader(list).child(1)->text(QAccessible::Name), "Pia Vos");
    EXPECT_EQ(list.item(0)->text(), "Ward Tilton (C) *");
}

class AccessibleScreens : public OnEveryScreen {
protected:
    void Walk(QAccessibleInterface& at, const std::function<void(QAccessibleInterface&)>& use)
    {
        if (at.state().invisible)
            return;
        use(at);
        for (int child = 0; child < at.childCount(); ++child)
            if (QAccessibleInterface* below = at.child(child))
                Walk(*below, use);
    }
};

TEST_F(AccessibleScreens, WhateverTakesTheFocusHasANameAndWhatIsPressedAnAction)
{
    std::map<QAccessible::Role, int> seen;
    EachScreen([&](Screen& screen, const std::string& name) {
        Walk(Reader(screen), [&](QAccessibleInterface& at) {
            ++seen[at.role()];
            const std::string spoken = at.text(QAccessible::Name).toStdString();
            const std::string which =
                name + ": " + (at.object() == nullptr ? spoken : at.object()->objectName().toStdString());
            if (at.state().focusable && at.role() != QAccessible::Window) {
                EXPECT_NE(spoken, "") << which << " of role " << at.role();
                EXPECT_FALSE(QRegularExpression("&\\w").match(QString::fromStdString(spoken)).hasMatch())
                    << which << ": " << spoken;
            }
            if (at.role() == QAccessible::Button && !at.state().disabled && at.object() != nullptr) {
                ASSERT_NE(at.actionInterface(), nullptr) << which;
                EXPECT_TRUE(at.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()) ||
                            at.actionInterface()->actionNames().contains(QAccessibleActionInterface::showMenuAction()))
                    << which;
            }
            if (at.role() == QAccessible::ProgressBar) {
                EXPECT_NE(spoken, "") << which;
                EXPECT_NE(at.text(QAccessible::Value), "") << which;
                ASSERT_NE(at.valueInterface(), nullptr) << which;
            }
        });
    });
    for (const auto role : {QAccessible::Button, QAccessible::ProgressBar, QAccessible::Slider, QAccessible::ListItem,
                            QAccessible::AlertMessage, QAccessible::EditableText, QAccessible::CheckBox,
                            QAccessible::Link, QAccessible::PageTab})
        EXPECT_GT(seen[role], 0) << role;
}

TEST_F(AccessibleScreens, EveryEntrySaysItsTextAndItsSecondaryWords)
{
    int withMore = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        for (EntryList* list : screen.findChildren<EntryList*>())
            for (int row = 0; list->isVisible() && row < std::min(list->count(), 20); ++row) {
                QStringList words{list->item(row)->text()};
                words += list->item(row)->data(entry::AsideRole).toStringList();
                withMore += words.size() > 1 ? 1 : 0;
                EXPECT_EQ(Reader(*list).child(row)->text(QAccessible::Name), words.join(", ")) << name;
            }
    });
    EXPECT_GT(withMore, 0);
}

TEST_F(AccessibleScreens, EverySlotAndHeadingOfBothLinesScreensIsAButton)
{
    int slotCount = 0;
    int headingCount = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        for (PressLabel* label : screen.findChildren<PressLabel*>()) {
            if (!label->isVisible())
                continue;
            EXPECT_EQ(Reader(*label).role(), QAccessible::Button) << name;
            const std::string spoken = NameOf(*label);
            EXPECT_EQ(spoken.find(label->text().toStdString()) != std::string::npos, true) << spoken;
            const auto* slot = qobject_cast<const SlotLabel*>(label);
            (slot == nullptr ? headingCount : slotCount) += 1;
            if (slot != nullptr && !slot->Aside().isEmpty()) {
                EXPECT_NE(spoken.find("overall " + slot->Aside().toStdString()), std::string::npos) << spoken;
            }
            if (slot == nullptr)
                if (const auto* average = screen.findChild<QLabel*>(label->objectName().replace('(', "Average("));
                    average != nullptr && !average->text().isEmpty()) {
                    EXPECT_EQ(spoken, (label->text() + ", " + average->text()).toStdString());
                }
        }
    });
    EXPECT_GT(slotCount, 2 * 69);
    EXPECT_GT(headingCount, 2 * 10);
}

TEST_F(AccessibleScreens, TheDayTheVerdictAndThePayrollAreSaidWhereTheyStand)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 50000000;
    int days = 0;
    int payrolls = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        if (const auto* verdict = screen.findChild<VerdictLabel*>("lblComplete"))
            if (auto* strip = dynamic_cast<DayStrip*>(screen.findChild<QAbstractSlider*>("vscDay"))) {
                ++days;
                const std::string spoken = NameOf(*strip);
                EXPECT_EQ(spoken.rfind("Day 1", 0), 0U) << name << ": " << spoken;
                EXPECT_NE(spoken.find(verdict->text().toStdString()), std::string::npos) << name << ": " << spoken;
            }
        const auto* words = screen.findChild<QLabel*>("lblPayroll");
        if (words != nullptr && words->isVisible()) {
            ++payrolls;
            bool isSaid = false;
            Walk(Reader(*words->parentWidget()), [&](QAccessibleInterface& at) {
                isSaid = isSaid || (at.role() == QAccessible::ProgressBar && at.text(QAccessible::Name) == "Payroll" &&
                                    at.text(QAccessible::Value) == words->text());
            });
            EXPECT_TRUE(isSaid) << name;
        }
    });
    EXPECT_GT(days, 2);
    EXPECT_GT(payrolls, 0);
}

} // namespace
} // namespace dravik
