#pragma once

#include "screens/lines/LinesScreen.h"

namespace dravik {

// The lines of the pro team.
class frmLine : public LinesScreen {
public:
    explicit frmLine(Stage& stage);

    void cmdPartialLine_Click();

    QPushButton* cmdPartialLine;

protected:
    void CloseMakers() override;
    void ShowPickedName(const QString& name) override;
    void CheckInTurn() override;
};

} // namespace dravik
