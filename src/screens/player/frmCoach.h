#pragma once

#include "screens/Screen.h"

namespace dravik {

// The screen behind the commands for the coaches. They are hidden, since the league changes coaches itself, and the screen
// is empty.
class frmCoach : public Screen {
public:
    explicit frmCoach(Stage& stage);

    void FormLoad() override { CentreOnScreen(); }
};

} // namespace dravik
