#include "screens/platform/Application.h"

#include <gmock/gmock.h>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontDatabase>
#include <QLocale>
#include <QStyleFactory>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>

#include <array>
#include <optional>

namespace {

// A test that closes the main screen ends the program for the whole process: every dialog from then on would return at
// once, unanswered. An event loop of the program's own takes that back before the next test.
class ProgramOfEachTest : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*test*/) override
    {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
        // The test mouse remembers a button until it goes up again, and a double click of its own never lets go: every
        // later press would carry that button along, and a scroll bar, for one, refuses a press with two.
        QTestPrivate::qtestMouseButtons = Qt::NoButton;
    }
};

// Has the application, which is made next, run without a window system, on one display: the smallest that every screen has to
// fit. The toolkit is told of it in `file`. It takes no path with a colon, as one with a drive has, so the program stands in
// the file's folder for as long as this object is there.
class OnSmallDisplay {
public:
    explicit OnSmallDisplay(QFile& file) : before(QDir::currentPath())
    {
        file.write(R"({"windowFrameMargins": false, "screens": [{"name": "small", "x": 0, "y": 0, "width": 1280,
                   "height": 800, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        file.close();
        const QFileInfo described(file);
        QDir::setCurrent(described.absolutePath());
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + described.fileName().toLocal8Bit());
    }
    OnSmallDisplay(const OnSmallDisplay&) = delete;
    OnSmallDisplay& operator=(const OnSmallDisplay&) = delete;
    ~OnSmallDisplay() { QDir::setCurrent(before); }

private:
    QString before;
};

// Not every platform of the toolkit finds the system's fonts. DRAVIK_TESTS_FONTS names a folder that holds them then.
void AddFonts()
{
    const QString folder = qEnvironmentVariable("DRAVIK_TESTS_FONTS");
    if (folder.isEmpty())
        return;
    for (const QFileInfo& font : QDir(folder).entryInfoList({"*.ttf"}, QDir::Files))
        QFontDatabase::addApplicationFont(font.filePath());
}

} // namespace

// One application for all tests, without a window system, and with the same display, style, font and locale on every
// machine. DRAVIK_TESTS_PLATFORM names another platform of the toolkit, to see the tests on the display that is there.
int main(int argc, char** argv)
{
    QTemporaryFile display;
    if (!display.open())
        return 1;
    std::optional<OnSmallDisplay> small;
    if (const QByteArray platform = qgetenv("DRAVIK_TESTS_PLATFORM"); platform.isEmpty())
        small.emplace(display);
    else
        qputenv("QT_QPA_PLATFORM", platform);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication::setDesktopSettingsAware(false);
    // A dialog of the system's own shows its boxes to nobody.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // The program has no command line: these are to mean nothing.
    char reverse[] = "-reverse";
    char sheet[] = "-stylesheet";
    char file[] = "nothing.qss";
    std::array<char*, 5> arguments{argv[0], reverse, sheet, file, nullptr};
    const dravik::Application application(static_cast<int>(arguments.size()) - 1, arguments.data());
    small.reset();
    AddFonts();
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setFont(QFont("DejaVu Sans", 10));
    // Each test opens and closes its own windows; the last one to close does not end the application.
    QApplication::setQuitOnLastWindowClosed(false);

    testing::InitGoogleMock(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new ProgramOfEachTest);
    return RUN_ALL_TESTS();
}
