#include "screens/panels/PassingTag.h"

#include "screens/panels/Shades.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QPushButton>

namespace dravik {
namespace {

constexpr int Padding = 6;

class PassingTagTest : public testing::Test {
protected:
    PassingTagTest()
    {
        window.resize(600, 400);
        command.setGeometry(200, 300, 100, 30);
        window.show();
    }

    // What `words` put above the command.
    QLabel* Said(const QString& words)
    {
        PassingTag::Say(command, words);
        return window.findChild<QLabel*>("lblPassing");
    }
    static int WidthOf(const QLabel& tag) { return tag.fontMetrics().horizontalAdvance(tag.text()) + 2 * Padding + 1; }

    QWidget window;
    QPushButton command{&window};
};

TEST_F(PassingTagTest, StandsInTheMiddleAboveItsCommand)
{
    const QLabel* tag = Said("Saved: Gulls.dvl");
    ASSERT_NE(tag, nullptr);
    EXPECT_TRUE(tag->isVisible());
    EXPECT_EQ(tag->text(), "Saved: Gulls.dvl");
    EXPECT_EQ(tag->accessibleName(), "Saved: Gulls.dvl");
    EXPECT_TRUE(tag->testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(tag->width(), WidthOf(*tag));
    EXPECT_EQ(tag->height(), tag->fontMetrics().height() + 2 * Padding);
    EXPECT_EQ(tag->x(), command.geometry().center().x() - tag->width() / 2);
    EXPECT_EQ(tag->y() + tag->height(), command.y() - Gap / 2);
}

TEST_F(PassingTagTest, StaysInItsWindow)
{
    command.move(0, 0);
    const QLabel* tag = Said("Saved: Gulls.dvl");
    EXPECT_EQ(tag->pos(), QPoint(Gap, Gap));
    command.move(500, 300);
    EXPECT_EQ(Said("Saved: Harbour City Gulls.dvl")->geometry().right(), 599 - Gap);
    const QString words(300, 'w');
    tag = Said(words);
    EXPECT_EQ(tag->text(), words) << "the middle gives way where it is painted alone";
    EXPECT_EQ(tag->x(), Gap);
    EXPECT_EQ(tag->width(), 600 - 2 * Gap);
}

TEST_F(PassingTagTest, AWindowHasOneAtATime)
{
    const QLabel* first = Said("Saved: Gulls.dvl");
    EXPECT_EQ(Said("Saved: Gulls.dvo"), first);
    EXPECT_EQ(window.findChildren<QLabel*>("lblPassing").size(), 1);
    EXPECT_EQ(first->text(), "Saved: Gulls.dvo");
}

TEST_F(PassingTagTest, PassesAfterEightSecondsOfTheLastWords)
{
    const QLabel* tag = Said("Saved: Gulls.dvl");
    auto* end = tag->findChild<QTimer*>();
    ASSERT_NE(end, nullptr);
    EXPECT_TRUE(end->isActive());
    EXPECT_TRUE(end->isSingleShot());
    EXPECT_EQ(end->interval(), 8000);
    end->setInterval(0);
    while (end->isActive())
        QApplication::processEvents();
    EXPECT_FALSE(tag->isVisible());
    EXPECT_TRUE(Said("Saved: Gulls.dvl")->isVisible());
    EXPECT_EQ(end->interval(), 8000);
}

TEST_F(PassingTagTest, WordsArePaintedWholeBetweenTheEdges)
{
    QLabel* tag = Said("WWW");
    const QImage painted = tag->grab().toImage();
    tag->setText("");
    const QImage empty = tag->grab().toImage();
    int first = painted.width();
    int last = 0;
    for (int x = 0; x < painted.width(); ++x)
        for (int y = 0; y < painted.height(); ++y)
            if (painted.pixel(x, y) != empty.pixel(x, y)) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    EXPECT_GE(first, Padding - 1);
    EXPECT_LE(last, painted.width() - Padding);
    EXPECT_GT(last - first, painted.width() - 2 * Padding - 8) << "three letters, and no sign that some are left out";
}

} // namespace
} // namespace dravik
