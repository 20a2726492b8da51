#pragma once

#include "screens/panels/LinkLabel.h"
#include "screens/Screen.h"

namespace dravik {

// The address of the product's web site. The product has none yet; this one is reserved and leads nowhere.
inline constexpr const char* WebSite = "https://www.example.org/";

// Who this program is: thanks, version and web site. It stands before the main screen, which
// waits until it is closed.
class frmAbout : public Screen {
public:
    explicit frmAbout(Stage& stage);

    void FormLoad() override;

    void lblWebSite_Click();
    void cmdExit_Click();

    QLabel *lblThank, *lblVersion;
    LinkLabel* lblWebSite;
    QPushButton* cmdExit;
};

} // namespace dravik
