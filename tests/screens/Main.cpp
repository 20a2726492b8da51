#include "screens/platform/Application.h"

#include <gmock/gmock.h>
#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QStyleFactory>

// One application for all tests, without a window system, and with the same style, font and locale on every machine.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication::setDesktopSettingsAware(false);
    const dravik::Application application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setFont(QFont("DejaVu Sans", 10));
    // Each test opens and closes its own windows; the last one to close does not end the application.
    QApplication::setQuitOnLastWindowClosed(false);

    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
