#include "screens/platform/Application.h"

#include <gmock/gmock.h>
#include <QApplication>
#include <QDir>
#include <QFont>
#include <QLocale>
#include <QStyleFactory>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>

#include <array>

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

// Tells the toolkit in `file` of one display, the smallest that every screen has to fit.
void DescribeDisplay(QFile& file)
{
    file.write(R"({"windowFrameMargins": false, "screens": [{"name": "small", "x": 0, "y": 0, "width": 1280,
               "height": 800, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
}

} // namespace

// One application for all tests, without a window system, and with the same display, style, font and locale on every
// machine.
int main(int argc, char** argv)
{
    QTemporaryFile display;
    if (!display.open())
        return 1;
    DescribeDisplay(display);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QDir().relativeFilePath(display.fileName()).toLocal8Bit());
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication::setDesktopSettingsAware(false);
    // The program has no command line: these are to mean nothing.
    char reverse[] = "-reverse";
    char sheet[] = "-stylesheet";
    char file[] = "nothing.qss";
    std::array<char*, 5> arguments{argv[0], reverse, sheet, file, nullptr};
    const dravik::Application application(static_cast<int>(arguments.size()) - 1, arguments.data());
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setFont(QFont("DejaVu Sans", 10));
    // Each test opens and closes its own windows; the last one to close does not end the application.
    QApplication::setQuitOnLastWindowClosed(false);

    testing::InitGoogleMock(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new ProgramOfEachTest);
    return RUN_ALL_TESTS();
}
