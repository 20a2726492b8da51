#pragma once

#include "screens/panels/ChangeList.h"
#include "screens/Screen.h"

#include <QGridLayout>

namespace dravik {

// The open league and another client file beside each other: what each is, and what is different in the later of them, as far as
// everybody may know it. It stands before the main screen, which waits until it is closed.
class frmCompare : public Screen {
public:
    explicit frmCompare(Stage& stage);

    // Compares the two; without another league the screen closes itself.
    void FormLoad() override;
    void FormUnload() override;

    void cmdExit_Click();

    ChangeList* changes;
    QLabel *lblRemark, *lblNothing;
    QPushButton* cmdExit;

private:
    // Adds a row of the two leagues' figures under a caption.
    void AddRow(const QString& name, const QString& caption, const QString& earlier, const QString& later);

    QGridLayout* figures;
};

} // namespace dravik
