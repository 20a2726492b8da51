#include "screens/platform/Application.h"
#include "league/Failure.h"
#include "support/SmallLeague.h"

#include <QApplication>
#include <QEvent>
#include <QObject>

#include <functional>
#include <new>
#include <stdexcept>
#include <utility>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The application of all tests is the program's own.
class ApplicationTest : public SmallLeague {
protected:
    // Sends an event to an object whose handler does `act`. A bare event, since the toolkit leaks a little of its own when
    // an exception runs through its handling of the mouse.
    static bool Handle(std::function<bool()> act)
    {
        struct Handler : QObject {
            std::function<bool()> Act;
            bool event(QEvent* /*event*/) override { return Act(); }
        } handler;
        handler.Act = std::move(act);
        QEvent event(QEvent::User);
        return QApplication::sendEvent(&handler, &event);
    }
};

TEST_F(ApplicationTest, TheToolkitsOwnArgumentsMeanNothing)
{
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(qApp->styleSheet(), "");
    EXPECT_EQ(QApplication::arguments().size(), 1);
}

TEST_F(ApplicationTest, AFailureInAHandlerIsReportedAndGoesNoFurther)
{
    EXPECT_FALSE(Handle([]() -> bool { Fail(failure::OutOfRange); }));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Application!"}));
}

TEST_F(ApplicationTest, MemoryThatIsShortAndOtherExceptionsHaveTheirNumbers)
{
    EXPECT_FALSE(Handle([]() -> bool { throw std::bad_alloc(); }));
    EXPECT_FALSE(Handle([]() -> bool { throw std::logic_error("x"); }));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "7 - Out of memory in Application!"},
                                             Box{16, "5 - Invalid procedure call or argument in Application!"}));
}

TEST_F(ApplicationTest, WhatIsNoExceptionGoesNoFurtherEither)
{
    EXPECT_FALSE(Handle([]() -> bool { throw 5; }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ApplicationTest, AnEventThatIsHandledAnswersAsTheToolkitDoes)
{
    EXPECT_TRUE(Handle([] { return true; }));
    EXPECT_FALSE(Handle([] { return false; }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
