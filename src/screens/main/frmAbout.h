#pragma once

#include "screens/panels/LinkLabel.h"
#include "screens/Screen.h"

namespace dravik {

// The address of the product's web site. The product has none yet; this one is reserved and leads nowhere.
inline constexpr const char* WebSite = "https://www.example.org/";

class ThirdPartyPage;

// Who this program is: thanks, version, web site, and the page of what others wrote. It stands before the main screen, which
// waits until it is closed.
class frmAbout : public Screen {
public:
    explicit frmAbout(Stage& stage);

    void FormLoad() override;

    void lblWebSite_Click();
    void lblThirdParty_Click();
    void cmdExit_Click();

    QLabel *lblThank, *lblVersion;
    LinkLabel *lblWebSite, *lblThirdParty;
    QPushButton* cmdExit;

private:
    ThirdPartyPage* page = nullptr; // made when it is asked for
};

} // namespace dravik
