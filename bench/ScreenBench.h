#pragma once

#include "bench/Ratio.h"
#include "screens/platform/Palettes.h"
#include "screens/Screen.h"
#include "screens/Stage.h"
#include "session/Session.h"
#include "support/ScriptedPlatform.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <QApplication>
#include <QScopeGuard>

namespace dravik {

// A program at its main window on a machine without a league to open, whose screens a bench works with.
class ScreenBench {
protected:
    ScreenBench()
    {
        UseMachine(machine);
        stage.Start();
    }

    // Opens a screen from the main window, painted.
    void Open(Window window)
    {
        CallerScreen = caller_screen::Main;
        stage.Open(window, *stage.Find(Window::Main));
        QApplication::processEvents();
        stage.Find(window)->grab();
    }
    template <class Form>
    Form& On(Window window)
    {
        return *static_cast<Form*>(stage.Find(window));
    }

    ScriptedPlatform machine;
    Stage stage;
};

template <class Bench>
std::unique_ptr<Bench> MadeBench;

// The one bench of an executable, made when a measurement first asks for it.
template <class Bench>
Bench& TheBench()
{
    if (MadeBench<Bench> == nullptr)
        MadeBench<Bench> = std::make_unique<Bench>();
    return *MadeBench<Bench>;
}

// The `main` of a bench of screens: draws without a display unless another platform is asked for. The screens of the bench go
// before the application that they live in.
template <class Bench>
int RunScreenBenchmarks(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QScopeGuard leave([] { MadeBench<Bench>.reset(); });
    UseLightLook();
    return RunBenchmarks(argc, argv);
}

} // namespace dravik
