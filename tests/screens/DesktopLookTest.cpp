#include "screens/platform/DesktopLook.h"
#include "screens/platform/FusionLook.h"
#include "screens/platform/Palettes.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QStyleFactory>

namespace dravik {
namespace {

// A desktop that tells what it is told to tell.
class PlayedScheme : public SchemeSource {
public:
    [[nodiscard]] ColourScheme Scheme() const override { return told; }
    void Tell(ColourScheme scheme)
    {
        told = scheme;
        emit Changed();
    }

private:
    ColourScheme told = ColourScheme::Untold;
};

class DesktopLookTest : public ::testing::Test {
protected:
    DesktopLookTest()
    {
        QApplication::setStyle(QStyleFactory::create("Fusion"));
        QApplication::setPalette(QPalette());
    }
    ~DesktopLookTest() override { UseLightLook(); }

    void Start(bool hasLook, ColourScheme told)
    {
        auto scheme = std::make_unique<PlayedScheme>();
        Desktop = scheme.get();
        Desktop->Tell(told);
        Look = std::make_unique<DesktopLook>(hasLook, std::move(scheme));
    }
    static QColor Accent() { return QApplication::palette().color(QPalette::Highlight); }

    PlayedScheme* Desktop = nullptr;
    std::unique_ptr<DesktopLook> Look;
    const QColor Dark = DarkPalette().color(QPalette::Highlight);
    const QColor Light = LightPalette().color(QPalette::Highlight);
};

TEST_F(DesktopLookTest, ABareDesktopGetsTheProgramsOwnLookAsItTells)
{
    Start(false, ColourScheme::Untold);
    EXPECT_EQ(Accent(), Light);
    Start(false, ColourScheme::Light);
    EXPECT_EQ(Accent(), Light);
    Start(false, ColourScheme::Dark);
    EXPECT_EQ(Accent(), Dark);
}

TEST_F(DesktopLookTest, ALookThatFitsWhatIsToldStays)
{
    const QColor given = Accent();
    ASSERT_FALSE(IsDark(QApplication::palette()));
    ASSERT_NE(given, Light);
    for (const ColourScheme told : {ColourScheme::Untold, ColourScheme::Light}) {
        Start(true, told);
        EXPECT_EQ(Accent(), given);
        EXPECT_NE(dynamic_cast<FusionLook*>(QApplication::style()), nullptr);
    }
}

TEST_F(DesktopLookTest, ALightLookOnADesktopThatTellsDarkBecomesDark)
{
    Start(true, ColourScheme::Dark);
    EXPECT_EQ(Accent(), Dark);
}

TEST_F(DesktopLookTest, AChangeIsFollowedThereAndBack)
{
    const QColor given = Accent();
    Start(true, ColourScheme::Untold);
    for (int round = 0; round < 2; ++round) {
        Desktop->Tell(ColourScheme::Dark);
        EXPECT_EQ(Accent(), Dark);
        Desktop->Tell(ColourScheme::Light);
        EXPECT_EQ(Accent(), given);
        Desktop->Tell(ColourScheme::Dark);
        Desktop->Tell(ColourScheme::Untold);
        EXPECT_EQ(Accent(), given);
    }
}

TEST_F(DesktopLookTest, ABareDesktopIsFollowedThereAndBack)
{
    Start(false, ColourScheme::Dark);
    Desktop->Tell(ColourScheme::Light);
    EXPECT_EQ(Accent(), Light);
    Desktop->Tell(ColourScheme::Dark);
    EXPECT_EQ(Accent(), Dark);
}

TEST_F(DesktopLookTest, WithoutAWordTheGivenColoursStay)
{
    const QColor given = Accent();
    const DesktopLook look(true, nullptr);
    EXPECT_EQ(Accent(), given);
}

// The environment of the desktop, for as long as it lives.
class Environment {
public:
    Environment(std::initializer_list<std::pair<const char*, const char*>> wanted)
    {
        for (const char* name :
             {"XDG_CURRENT_DESKTOP", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "DBUS_SESSION_BUS_ADDRESS"}) {
            before.emplace_back(name, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt);
            qunsetenv(name);
        }
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"); // nobody tells of colours
        for (const auto& [name, value] : wanted)
            qputenv(name, value);
    }
    ~Environment()
    {
        for (const auto& [name, value] : before)
            if (value)
                qputenv(name, *value);
            else
                qunsetenv(name);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    std::vector<std::pair<const char*, std::optional<QByteArray>>> before;
};

TEST_F(DesktopLookTest, WithoutADesktopTheProgramBringsItsOwnLook)
{
#ifdef _WIN32
    GTEST_SKIP() << "There is always a desktop there, and no variable speaks of it.";
#endif
    const Environment bare({});
    const auto look = UseLookOfDesktop();
    EXPECT_EQ(Accent(), Light);
}

TEST_F(DesktopLookTest, ADesktopOrAChosenThemeKeepsItsLook)
{
    const QColor given = Accent();
    for (const auto& [name, value] : {std::pair("XDG_CURRENT_DESKTOP", "GNOME"),
                                      {"QT_QPA_PLATFORMTHEME", "own"},
                                      {"QT_STYLE_OVERRIDE", "fusion"}}) {
        const Environment set({{name, value}});
        const auto look = UseLookOfDesktop();
        EXPECT_EQ(Accent(), given) << name;
    }
}

TEST_F(DesktopLookTest, TheDesktopIsAskedUnlessAStyleOrAThemeIsChosen)
{
#ifdef _WIN32
    GTEST_SKIP() << "There is always a desktop there, and no variable speaks of it.";
#endif
    const auto dark = []() -> std::unique_ptr<SchemeSource> {
        auto scheme = std::make_unique<PlayedScheme>();
        scheme->Tell(ColourScheme::Dark);
        return scheme;
    };
    const QColor given = Accent();
    for (const auto& [name, value] : {std::pair("QT_QPA_PLATFORMTHEME", "own"), {"QT_STYLE_OVERRIDE", "fusion"}}) {
        const Environment chosen({{name, value}});
        const auto look = UseLookOfDesktop(dark);
        EXPECT_EQ(Accent(), given) << name;
    }
    for (const char* desktop : {"", "GNOME"}) {
        QApplication::setPalette(QPalette());
        const Environment set({{"XDG_CURRENT_DESKTOP", desktop}});
        const auto look = UseLookOfDesktop(dark);
        EXPECT_EQ(Accent(), Dark) << desktop;
    }
}

} // namespace
} // namespace dravik
