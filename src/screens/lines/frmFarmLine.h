#pragma once

#include "screens/lines/LinesScreen.h"

namespace dravik {

// The lines of the farm team. A league that requires no farm roster lets its slots be filled with the placeholder.
class frmFarmLine : public LinesScreen {
public:
    explicit frmFarmLine(Stage& stage);

protected:
    void ListMore() override;
    void ShowPicked() override;
    void ShowPickedName(const QString& name) override;
    void CheckInTurn() override;
};

} // namespace dravik
