#include "Evening.h"
#include "machine/Clock.h"
#include "screens/platform/Application.h"
#include "screens/platform/QtPlatform.h"
#include "session/OpenChanges.h"
#include "session/OpenJournal.h"
#include "session/Session.h"

#include <iostream>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QLocale>

// The tour of the screens: an evening on a sample league, in a folder of its own.
namespace dravik::tour {

namespace {

// The application knows none of its arguments, as the program has none.
Plan Parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Drives the client's screens through a typical evening, without a display.");
    parser.addHelpOption();
    const QCommandLineOption league("league", "The client file to open.", "file");
    const QCommandLineOption out("out", "The folder for pictures and saved files.", "folder");
    const QCommandLineOption team("team", "The team to work on, 1 to 100.", "number", "3");
    const QCommandLineOption password("password", "Its password.", "text", "puck");
    parser.addOptions({league, out, team, password});
    parser.process(arguments);
    if (!parser.isSet(league) || !parser.isSet(out) || !TeamTable::Has(parser.value(team).toInt()))
        parser.showHelp(2);
    return {QFileInfo(parser.value(league)).absoluteFilePath(), QDir(parser.value(out)).absolutePath(),
            parser.value(team).toInt(), parser.value(password)};
}

int Run(const Plan& plan)
{
    if (!QFileInfo(plan.League).isFile()) {
        std::cerr << "tour: there is no " << plan.League.toStdString() << '\n';
        return 1;
    }
    if (!QDir().mkpath(plan.Out)) {
        std::cerr << "tour: cannot make " << plan.Out.toStdString() << '\n';
        return 1;
    }
    // Nothing of the user's own is touched: settings, files and lock lie with the pictures. Each tour starts afresh.
    const QtPlatformPlaces places{plan.Out + "/settings.ini", plan.Out, plan.Out + "/tour.lock"};
    QFile::remove(places.SettingsFile);
    QtPlatform platform(places);
    UseMachine(platform);
    const QString journals = plan.Out + "/journal";
    QDir(journals).removeRecursively();
    KeepJournals(QFile::encodeName(journals).toStdString(), LocalTime);
    const QString leagues = plan.Out + "/leagues";
    QDir(leagues).removeRecursively();
    KeepDigests(QFile::encodeName(leagues).toStdString());
    try {
        Evening(plan).Spend();
    } catch (const StepFailed& failed) {
        std::cerr << "tour: this did not come true: " << failed.what() << '\n';
        return 1;
    } catch (const std::exception& failed) {
        std::cerr << "tour: ended by a failure: " << failed.what() << '\n';
        return 1;
    }
    return 0;
}

QtMessageHandler usualHandler = nullptr;

// Without a display some wishes of a window cannot be met, which is no news here.
void TellUnlessWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith("This plugin does not support"))
        usualHandler(type, context, message);
}

} // namespace

} // namespace dravik::tour

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication::setDesktopSettingsAware(false);
    dravik::tour::usualHandler = qInstallMessageHandler(dravik::tour::TellUnlessWithoutDisplay);
    const dravik::Application application(argc, argv);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    QApplication::setFont(QFont("DejaVu Sans", 9));
    return dravik::tour::Run(dravik::tour::Parse(arguments));
}
