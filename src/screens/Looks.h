#pragma once

#include <functional>
#include <QString>

namespace dravik {

class Screen;
class Stage;

// The windows of figures that come up beside any screen: the season that is left to the chosen team, and what it looks like in
// graphs.
enum class Look { Calendar, Graphs };

// Runs a change as a step of the history, under its words.
using RunsStep = std::function<void(const QString& words, const std::function<void()>& change)>;

// Has a look come up beside `screen`, or go where it stands in front. They tell what belongs to the team alone: where no password
// was proved, on the main screen, it is asked for, and the look is to be closed before anything else is chosen. Without a team
// that is told. What is changed there is a step of the screen's, and all screens show it.
void OpenLook(Look look, Stage& stage, Screen& screen, const RunsStep& asStep);

// Has the open looks beside `screen` show the tables once more.
void ShowLooksAnew(const Screen& screen);

} // namespace dravik
