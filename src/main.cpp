#include "league/Platform.h"
#include "screens/platform/Application.h"
#include "screens/platform/Palettes.h"
#include "screens/platform/QtPlatform.h"
#include "screens/Stage.h"

int main(int argc, char** argv)
{
    const dravik::Application application(argc, argv);
    dravik::UseLookOfDesktop();
    dravik::QtPlatform platform;
    dravik::UseMachine(platform);
    dravik::Stage stage;
    return stage.Start() ? dravik::Application::exec() : 0;
}
