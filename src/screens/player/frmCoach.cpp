#include "screens/player/frmCoach.h"

namespace dravik {

namespace {
constexpr QSize DefaultSize(480, 320);
} // namespace

frmCoach::frmCoach(Stage& stage) : Screen(stage, "frmCoach")
{
    SetTitle("Coach");
    resize(DefaultSize);
}

} // namespace dravik
