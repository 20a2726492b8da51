// Random presses on the real windows, all undone and all done again: undone, every byte is that of the beginning; done again, that
// of the end. DRAVIK_UNDONE_WALKS names how many walks instead of the usual ones, DRAVIK_UNDONE_PRESSES how many presses each.

#include "OnEveryScreen.h"
#include "OnHistory.h"
#include "screens/panels/SlotLabel.h"
#include "session/OpenHistory.h"
#include "session/OpenMarket.h"
#include "support/LeagueImage.h"

#include <cstdlib>
#include <QCheckBox>
#include <QScrollBar>
#include <random>
#include <set>

namespace dravik {
namespace {

int FromEnvironment(const char* name, int usual)
{
    const char* text = std::getenv(name);
    return text != nullptr ? std::atoi(text) : usual;
}

// A league with a market of its own, which follows what is told of the beginning: what is changed in front of the first step
// belongs there.
class Beginning final : public HistoryWatcher {
public:
    Beginning() : league(Copy(OpenLeague)), market(std::make_unique<Market>(OpenMarket())) {}

    void Closed(const Step& /*step*/) noexcept override { ++Steps; }
    void Merged(const Step& /*into*/, const ByteDifference& /*more*/) noexcept override {}
    void Folded(const Step* into, const ByteDifference& more) noexcept override
    {
        if (into == nullptr)
            Put({*league, market.get()}, more, DifferenceEnd::After);
    }
    void Undone(const Step& /*step*/) noexcept override {}
    void Redone(const Step& /*step*/) noexcept override {}
    void Ended(HistoryEnd /*why*/) noexcept override { HasEnded = true; }

    [[nodiscard]] Tables& League() const { return *league; }
    [[nodiscard]] dravik::Market& OwnMarket() const { return *market; }

    int Steps = 0;
    bool HasEnded = false;

private:
    std::unique_ptr<Tables> league;
    std::unique_ptr<Market> market;
};

// A state of the desk. Who was looked at among the offers is no part of it.
ByteVector ImageOfDesk(const Tables& league, const Market& market)
{
    auto offers = std::make_unique<OfferTable>(market.Offers);
    for (FreeAgentOffer& offer : *offers)
        offer.Id = 0;
    ByteVector image = ImageOf(league);
    for (const ByteVector& more : {ImageOf(*offers), ImageOf(market.Ranking)})
        image.insert(image.end(), more.begin(), more.end());
    return image;
}
ByteVector ImageOfDesk() { return ImageOfDesk(OpenLeague, OpenMarket()); }

class UndoneWalk : public OnEveryScreen {
protected:
    UndoneWalk()
    {
        Machine.OnEvent = [this](const std::string& event) {
            if (event == "box" && Roll(4) == 0)
                Machine.Answer(button::No);
        };
    }
    ~UndoneWalk() override { TellJournal(nullptr); }

    [[nodiscard]] int Roll(int count) { return static_cast<int>(dice() % static_cast<unsigned>(count)); }
    template <class T>
    T* OneOf(const std::vector<T*>& all)
    {
        return all.empty() ? nullptr : all[static_cast<std::size_t>(Roll(static_cast<int>(all.size())))];
    }

    // What of one kind can be pressed on a screen.
    template <class T>
    static std::vector<T*> Pressable(const Screen& screen)
    {
        // Those that leave the screen, ask for a file, a name or a password, or write a file.
        static const std::set<QString> passedOver = {"cmdExit",     "CmdRoster",   "cmdLines",      "cmdFarmLines",
                                                     "cmdProspect", "cmdLoadFile", "cmdSaveToFile", "cmdLoad",
                                                     "cmdSearch",   "cmdFindNext", "cmdPassword",   "cmdTicketArena"};
        std::vector<T*> found;
        for (T* widget : screen.findChildren<T*>())
            if (widget->isVisible() && widget->isEnabled() && passedOver.count(widget->objectName()) == 0)
                found.push_back(widget);
        return found;
    }

    // One thing that a manager does.
    void PressSomething(Screen& screen)
    {
        switch (Roll(7)) {
        case 0:
        case 1:
            // A menu waits for its user, and those there are change nothing.
            if (auto* command = OneOf(Pressable<QPushButton>(screen)); command != nullptr && command->menu() == nullptr)
                Click(command);
            break;
        case 2:
            if (auto* slot = OneOf(Pressable<SlotLabel>(screen)))
                Click(slot);
            break;
        case 3:
            if (auto* box = OneOf(Pressable<EditBox>(screen)); box != nullptr && !box->isReadOnly()) {
                box->window()
                    ->activateWindow(); // a window beside the screen may stand in front, and counts as the screen
                ASSERT_TRUE(QTest::qWaitFor([box] { return QApplication::activeWindow() == box->window(); }));
                TypeInto(box, QString::number(Roll(2000000) >> Roll(20)));
                Press(box, Qt::Key_Tab);
            }
            break;
        case 4:
            if (auto* bar = OneOf(Pressable<QAbstractSlider>(screen)))
                Press(bar, Roll(2) == 0 ? Qt::Key_Right : Qt::Key_Left);
            break;
        case 5:
            if (auto* tick = OneOf(Pressable<QCheckBox>(screen)))
                Click(tick);
            break;
        default:
            if (auto* list = OneOf(Pressable<EntryList>(screen)); list != nullptr && list->count() > 0) {
                QListWidgetItem* entry = list->item(Roll(std::min(list->count(), 60)));
                list->scrollToItem(entry);
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(entry).center());
                Settle();
            }
        }
        Machine.ForgetBoxes("what a random press says is not what this is about");
    }

    Screen* OpenSomething()
    {
        static constexpr const char* windows[] = {"Team", "Roster", "Line", "FarmLine", "FreeAgent", "Draft", "Ticket"};
        const char* name = windows[Roll(static_cast<int>(std::size(windows)))];
        CurrentTeam = OwnTeam;
        CallerScreen = "Main";
        TheStage.Open(name, Main());
        Settle();
        Machine.ForgetBoxes("what a screen says at first is not what this is about");
        return TheStage.Find(name);
    }
    void Leave(Screen& screen)
    {
        screen.close();
        Settle();
        if (TeamScreen() != nullptr) // where the tickets return to
            TeamScreen()->close();
        Settle();
        Machine.ForgetBoxes("what a screen says at last is not what this is about");
    }

    void Walk(unsigned seed, int presses)
    {
        dice.seed(seed);
        MainWithLeague();
        CurrentTeam = OwnTeam;
        OpenHistory().Begin();
        Beginning beginning;
        TellJournal(&beginning);
        Screen* screen = OpenSomething();
        for (int press = 0; press < presses; ++press) {
            if (screen == nullptr || Roll(8) == 0) {
                if (screen != nullptr)
                    Leave(*screen);
                screen = OpenSomething();
            }
            if (screen != nullptr)
                PressSomething(*screen);
        }
        if (screen == nullptr || screen->findChild<QToolButton*>("cmdUndo") == nullptr)
            screen = OpenSomething();
        ASSERT_NE(screen, nullptr);
        ASSERT_FALSE(beginning.HasEnded);
        OpenHistory().Fold();
        const ByteVector end = ImageOfDesk();
        const int undone = PressUntilNothing(*screen, "cmdUndo");
        steps += undone;
        EXPECT_TRUE(ImageOfDesk() == ImageOfDesk(beginning.League(), beginning.OwnMarket())) << undone << " undone";
        EXPECT_EQ(PressUntilNothing(*screen, "cmdRedo"), undone);
        EXPECT_TRUE(ImageOfDesk() == end);
        Leave(*screen);
        TellJournal(nullptr);
    }

    // How often it could be pressed.
    int PressUntilNothing(Screen& screen, const char* name)
    {
        QToolButton* command = HistoryCommand(screen, name);
        int pressed = 0;
        for (; command->isEnabled() && pressed < 10000; ++pressed)
            Click(command);
        Machine.ForgetBoxes("what is shown anew may say something");
        return pressed;
    }

    int steps = 0;

private:
    std::mt19937 dice;
};

TEST_F(UndoneWalk, IsTheBeginningAndDoneAgainTheEnd)
{
    const int walks = FromEnvironment("DRAVIK_UNDONE_WALKS", 4);
    const int presses = FromEnvironment("DRAVIK_UNDONE_PRESSES", 60);
    for (int walk = 1; walk <= walks; ++walk) {
        SCOPED_TRACE("walk " + std::to_string(walk));
        ASSERT_NO_FATAL_FAILURE(Walk(static_cast<unsigned>(walk), presses));
        if (HasFailure())
            break;
    }
    EXPECT_GT(steps, walks * presses / 12) << "too few of the presses changed something";
    std::cout << walks << " walks of " << presses << " presses, " << steps << " steps\n";
    // What was asked on the way.
    (void)Machine.Questions();
    (void)Machine.Dialogs();
    (void)Machine.TakeNews();
}

} // namespace
} // namespace dravik
