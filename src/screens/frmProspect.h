#pragma once

#include "screens/Screen.h"

namespace dravik {

// Where a team's prospects will be shown. The command that leads here is hidden, and the screen is empty.
class frmProspect : public Screen {
public:
    explicit frmProspect(Stage& stage);

    void FormLoad() override { CentreOnScreen(); }
};

} // namespace dravik
