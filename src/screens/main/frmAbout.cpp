#include "screens/main/frmAbout.h"

#include "machine/Location.h"
#include "machine/Platform.h"
#include "machine/Reporting.h"
#include "screens/main/ThirdPartyPage.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

#include <QGridLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace dravik {

frmAbout::frmAbout(Stage& stage) : Screen(stage, "frmAbout")
{
    // Other screens hide the main screen, and this one shows it on closing: were both open, a team could be chosen behind
    // the back of the other's screens.
    setWindowModality(Qt::ApplicationModal);
    auto* sheet = new QWidget(this);
    QLabel* title = MakeTitle(sheet);
    title->setObjectName("lblTitle");
    title->setText(ToQString(ProgramTitle));
    lblVersion = new MutedLabel(sheet);
    lblVersion->setObjectName("lblVersion");
    lblThank = new QLabel(sheet);
    lblThank->setObjectName("lblThank");
    lblThank->setTextFormat(Qt::PlainText);
    lblWebSite = new LinkLabel(WebSite, sheet);
    lblWebSite->setObjectName("lblWebSite");
    lblWebSite->setAccessibleDescription("Opens the web site");
    connect(lblWebSite, &LinkLabel::Clicked, this, [this] { RunEvent("lblWebSite", [this] { lblWebSite_Click(); }); });
    lblThirdParty = new LinkLabel("What others wrote, and its licences", sheet);
    lblThirdParty->setObjectName("lblThirdParty");
    lblThirdParty->setAccessibleDescription("Shows the page of it in a window");
    connect(lblThirdParty, &LinkLabel::Clicked, this,
            [this] { RunEvent("lblThirdParty", [this] { lblThirdParty_Click(); }); });
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });
    cmdExit->setDefault(true);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, cmdExit, &QPushButton::click);

    auto* column = new QVBoxLayout(sheet);
    column->setContentsMargins(2 * Margin, 2 * Margin, 2 * Margin, Margin);
    column->setSpacing(Gap);
    column->addWidget(title);
    column->addWidget(lblVersion);
    column->addSpacing(Margin);
    column->addWidget(lblThank);
    column->addWidget(lblWebSite, 0, Qt::AlignLeft);
    column->addWidget(lblThirdParty, 0, Qt::AlignLeft);
    column->addSpacing(Margin);
    column->addWidget(cmdExit, 0, Qt::AlignRight);
    auto* content = new QWidget(this);
    auto* middle = new QGridLayout(content);
    middle->setContentsMargins(0, 0, 0, 0);
    middle->addWidget(sheet, 0, 0, Qt::AlignCenter);
    setCentralWidget(content);
    setTabOrder(cmdExit, lblWebSite);
    setTabOrder(lblWebSite, lblThirdParty);
}

void frmAbout::FormLoad()
{
    Reporting(Machine(), " inFormLoad!", [this] {
        SetTitle(ToQString(ProgramTitle) + " - About");
        lblThank->setText("Thank you to everyone who helped me make this software!\n"
                          "And thank you for playing: a league is its general managers.");
        lblVersion->setText("Version : " + ToQString(Machine().Version()));
        resize(sizeHint());
        CentreOnScreen();
        cmdExit->setFocus();
    });
}

void frmAbout::lblWebSite_Click() { OpenLocation(Machine(), FromQString(lblWebSite->text()), NormalWindow); }

void frmAbout::lblThirdParty_Click()
{
    if (page == nullptr)
        page = new ThirdPartyPage(this);
    page->Open();
}

void frmAbout::cmdExit_Click() { Unload(); }

} // namespace dravik
