#include "screens/platform/Application.h"
#include "AnswerDialog.h"
#include "league/Failure.h"
#include "support/SmallLeague.h"

#include <QPushButton>
#include <QTimer>

#include <new>
#include <stdexcept>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The tests' own application is a plain one; the last resort is asked directly.
class ApplicationTest : public SmallLeague {
protected:
    // Clicks a button whose handler does `act`, as the event loop would.
    static void ClickOn(std::function<void()> act)
    {
        QPushButton button("Press");
        QObject::connect(&button, &QPushButton::clicked, [&act] { act(); });
        NotifyReporting([&button] {
            button.click();
            return true;
        });
    }
};

TEST_F(ApplicationTest, AFailureInAHandlerIsReportedAndGoesNoFurther)
{
    ClickOn([] { Fail(failure::OutOfRange); });
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Application!"}));
}

TEST_F(ApplicationTest, MemoryThatIsShortAndOtherExceptionsHaveTheirNumbers)
{
    ClickOn([] { throw std::bad_alloc(); });
    ClickOn([] { throw std::logic_error("x"); });
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "7 - Out of memory in Application!"},
                                             Box{16, "5 - Invalid procedure call or argument in Application!"}));
}

TEST_F(ApplicationTest, WhatIsNoExceptionGoesNoFurtherEither)
{
    EXPECT_FALSE(NotifyReporting([]() -> bool { throw 5; }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ApplicationTest, AnEventThatIsHandledAnswersAsTheToolkitDoes)
{
    EXPECT_TRUE(NotifyReporting([] { return true; }));
    EXPECT_FALSE(NotifyReporting([] { return false; }));
}

} // namespace
} // namespace dravik
