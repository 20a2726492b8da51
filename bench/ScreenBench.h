#pragma once

#include "bench/Ratio.h"
#include "league/ClientVariable.h"
#include "screens/platform/Palettes.h"
#include "screens/Screen.h"
#include "screens/Stage.h"
#include "support/ScriptedPlatform.h"

#include <benchmark/benchmark.h>
#include <QApplication>

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
    void Open(const char* name)
    {
        CallerScreen = "Main";
        stage.Open(name, *stage.Find("Main"));
        QApplication::processEvents();
        stage.Find(name)->grab();
    }
    template <class Form>
    Form& On(const char* name)
    {
        return *static_cast<Form*>(stage.Find(name));
    }

    ScriptedPlatform machine;
    Stage stage;
};

// The `main` of a bench of screens: draws without a display unless another platform is asked for.
inline int RunScreenBenchmarks(
    int argc, char** argv, void (*prepare)() = [] {})
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    UseLightLook();
    prepare();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace dravik
