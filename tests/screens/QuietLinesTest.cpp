#include "screens/panels/QuietLines.h"
#include "OnMainScreen.h"
#include "screens/panels/Shades.h"
#include "session/Session.h"

#include <filesystem>
#include <QImage>

namespace dravik {
namespace {

constexpr const char* LongWords =
    "The settings could not be written to a file whose path is very, very, very long indeed, "
    "and longer than any window of a usual width that this league is shown in by anybody";

class QuietLinesTest : public OnMainScreen {
protected:
    QLabel& Line(const char* name = "lblDamaged")
    {
        auto* label = Main().findChild<QLabel*>(name);
        EXPECT_NE(label, nullptr) << name;
        return *label;
    }
    int FootOf(const QWidget& widget) { return widget.mapTo(&Main(), QPoint(0, widget.height())).y(); }
};

TEST_F(QuietLinesTest, ALineWithNothingToSayTakesNoRoom)
{
    PutTwelveTeams();
    Main().PlaceTeam();
    Settle();
    const auto& lists = *Main().lstDivision[1];
    const int before = lists.height();
    Main().Tell(QuietLine::Damaged, "This file is not what it was.");
    Settle();
    EXPECT_LT(lists.height(), before);
    Main().Tell(QuietLine::Damaged, {});
    Settle();
    EXPECT_EQ(lists.height(), before);
    EXPECT_FALSE(Line().isVisible());
}

TEST_F(QuietLinesTest, EachKindHasALineOfItsOwn)
{
    Main().Tell(QuietLine::SettingsSetAside, "one");
    Main().Tell(QuietLine::SettingsUnwritten, "two");
    Main().Tell(QuietLine::Damaged, "three");
    Settle();
    EXPECT_EQ(Line("lblSettingsSetAside").text(), "one");
    EXPECT_EQ(Line("lblSettingsUnwritten").text(), "two");
    EXPECT_EQ(Line("lblDamaged").text(), "three");
    Main().Tell(QuietLine::SettingsUnwritten, {});
    Settle();
    EXPECT_TRUE(Line("lblSettingsSetAside").isVisible());
    EXPECT_FALSE(Line("lblSettingsUnwritten").isVisible());
    EXPECT_TRUE(Line("lblDamaged").isVisible());
}

TEST_F(QuietLinesTest, ALineIsSeenInTheEmptyWindowAndInTheFilledOne)
{
    Main().Tell(QuietLine::Damaged, "words");
    Settle();
    EXPECT_TRUE(Line().isVisible());
    EXPECT_LE(FootOf(Line()), Main().height());
    PutTwelveTeams();
    Main().PlaceTeam();
    Settle();
    EXPECT_TRUE(Line().isVisible());
    EXPECT_LE(FootOf(Line()), Main().height());
}

TEST_F(QuietLinesTest, ALineIsNamedWithItsWords)
{
    Main().Tell(QuietLine::Damaged, "words");
    EXPECT_EQ(Line().accessibleName(), "words");
    Main().Tell(QuietLine::Damaged, "others");
    EXPECT_EQ(Line().accessibleName(), "others");
}

TEST_F(QuietLinesTest, ALongLineWidensNoWindowAndStandsWholeInItsTooltip)
{
    const int width = Main().width();
    const int least = Main().minimumSizeHint().width();
    Main().Tell(QuietLine::Damaged, LongWords);
    Settle();
    EXPECT_EQ(Main().width(), width);
    EXPECT_EQ(Main().minimumSizeHint().width(), least);
    EXPECT_LT(Line().width(), Line().fontMetrics().horizontalAdvance(LongWords));
    EXPECT_EQ(Line().toolTip(), Qt::convertFromPlainText(LongWords));
    Main().resize(3000, 400);
    Settle();
    EXPECT_EQ(Line().toolTip(), "") << "all of it is seen";
}

TEST_F(QuietLinesTest, ALineIsPaintedInTheMutedColour)
{
    Main().Tell(QuietLine::Damaged, "words");
    Settle();
    const QImage painted = Line().grab().toImage();
    int darkest = 255;
    for (int y = 0; y < painted.height(); ++y)
        for (int x = 0; x < painted.width(); ++x)
            darkest = std::min(darkest, qGray(painted.pixel(x, y)));
    const int muted = qGray(MutedText(Main().palette()).rgb());
    EXPECT_GE(darkest, muted - 2);
    EXPECT_LT(darkest, qGray(Main().palette().color(QPalette::Window).rgb()) - 40) << "something is painted";
}

TEST_F(QuietLinesTest, APathComesBackWholeFromItsEscapedForm)
{
    Main().Tell(QuietLine::SettingsUnwritten, "in \x1A{416} it");
    EXPECT_EQ(Line("lblSettingsUnwritten").text(), QString::fromUtf8("in \xD0\x96 it"));
}

// The desktop with its settings in a file of the test's folder.
class SettingsOnDesktop : public QuietLinesTest {
protected:
    SettingsOnDesktop() { UseMachine(*desktop); }
    ~SettingsOnDesktop() override { UseMachine(Machine); }

    [[nodiscard]] std::string File() const { return Machine.InFolder("settings.ini"); }

private:
    std::unique_ptr<QtPlatform> desktop = std::make_unique<QtPlatform>(
        QtPlatformPlaces{QString::fromStdString(Machine.InFolder("settings.ini")),
                         QString::fromStdString(Machine.Folder()), QString::fromStdString(Machine.InFolder("lock"))});
};

TEST_F(SettingsOnDesktop, ABrokenSettingsFileAtStartIsNamedInAQuietLine)
{
    const std::string broken = "what a crash left";
    WriteWhole(File(), {broken.begin(), broken.end()});
    EXPECT_EQ(Line("lblSettingsSetAside").text().toStdString(), "The settings could not be read from " + File() +
                                                                    ". The file was set aside as " + File() +
                                                                    ".broken, and a fresh one begun.");
    EXPECT_TRUE(Line("lblSettingsSetAside").isVisible());
    EXPECT_FALSE(Line("lblSettingsUnwritten").isVisible());
    EXPECT_TRUE(ReadWhole(File() + ".broken") == ByteVector(broken.begin(), broken.end()));
}

TEST_F(SettingsOnDesktop, ABrokenSettingsFileThatStaysIsNamedInAQuietLine)
{
    WriteWhole(File(), {'x'});
    std::filesystem::create_directories(File() + ".broken/folder");
    EXPECT_EQ(Line("lblSettingsSetAside").text().toStdString(),
              "The settings could not be read from " + File() + ". The file could not be set aside either.");
}

TEST_F(SettingsOnDesktop, SoundSettingsAtStartSayNothing)
{
    Main();
    EXPECT_FALSE(Main().findChild<QWidget*>("quietLines")->isVisible());
}

} // namespace
} // namespace dravik
