#include "screens/player/frmProspect.h"

namespace dravik {

namespace {
constexpr QSize DefaultSize(480, 320);
} // namespace

frmProspect::frmProspect(Stage& stage) : Screen(stage, "frmProspect")
{
    SetTitle("Prospect");
    resize(DefaultSize);
}

} // namespace dravik
