#pragma once

#include "screens/Screen.h"

namespace dravik {

// The screen behind the command for a team's prospects. The command is hidden, and the screen is empty.
class frmProspect : public Screen {
public:
    explicit frmProspect(Stage& stage);

    void FormLoad() override { CentreOnScreen(); }
};

} // namespace dravik
