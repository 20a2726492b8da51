#pragma once

#include "screens/Screen.h"

namespace dravik {

// Where coaches will be changed. The league keeps that to itself: the commands that lead here are hidden, and the screen is
// empty.
class frmCoach : public Screen {
public:
    explicit frmCoach(Stage& stage);

    void FormLoad() override { CentreOnScreen(); }
};

} // namespace dravik
