#include "screens/platform/Application.h"
#include "league/Failure.h"
#include "support/SmallLeague.h"

#include <QPushButton>
#include <QTest>

#include <functional>
#include <new>
#include <stdexcept>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The application of all tests is the program's own.
class ApplicationTest : public SmallLeague {
protected:
    // Clicks a button whose handler does `act`.
    static void ClickOn(std::function<void()> act)
    {
        QPushButton button("Press");
        QObject::connect(&button, &QPushButton::clicked, [&act] { act(); });
        button.show();
        QTest::mouseClick(&button, Qt::LeftButton);
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
    ClickOn([] { throw 5; });
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ApplicationTest, AnEventThatIsHandledAnswersAsTheToolkitDoes)
{
    struct Answering : QObject {
        bool Answer = false;
        bool event(QEvent* /*event*/) override { return Answer; }
    } object;
    QEvent asked(QEvent::User);
    EXPECT_FALSE(QApplication::sendEvent(&object, &asked));
    object.Answer = true;
    EXPECT_TRUE(QApplication::sendEvent(&object, &asked));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
