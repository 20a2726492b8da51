#include "screens/platform/CodePage.h"
#include "screens/platform/QtPlatform.h"

#include <cstdio>
#include <QCoreApplication>
#include <QFileInfo>

// Names the league that the client opens at its first start. A client that has opened one already keeps it: only an empty
// `LastLoadLeague` is filled.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        (void)std::fputs("usage: remember-league FILE\n", stderr);
        return 2;
    }
    const QFileInfo league(arguments.at(1));
    if (!league.isFile()) {
        (void)std::fputs("remember-league: there is no such file\n", stderr);
        return 1;
    }
    dravik::QtPlatform platform;
    if (platform.GetSetting("Settings", "LastLoadLeague", {}).empty())
        platform.SaveSetting("Settings", "LastLoadLeague", dravik::PathToProgram(league.absoluteFilePath()));
    return 0;
}
