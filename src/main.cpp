#include "league/Platform.h"
#include "screens/platform/Application.h"
#include "screens/platform/QtPlatform.h"

int main(int argc, char** argv)
{
    const dravik::Application application(argc, argv);
    dravik::QtPlatform platform;
    dravik::UseMachine(platform);
    return dravik::Application::exec();
}
