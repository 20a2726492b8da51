#include "Evening.h"
#include "files/DraftFile.h"
#include "files/OffersFile.h"
#include "screens/main/frmAbout.h"
#include "screens/main/GuideWindow.h"
#include "screens/market/frmDraft.h"
#include "screens/market/WhatIfWindow.h"
#include "screens/platform/CodePage.h"
#include "screens/player/frmEditPlayer.h"
#include "screens/team/frmTicket.h"
#include "session/Session.h"

#include <iostream>
#include <QApplication>
#include <QFileInfo>
#include <QToolButton>

// What the evening does beside the team: prices, offers, the draft, the ratings, the small screens.
namespace dravik::tour {

void Evening::ShowTickets()
{
    Team().cmdTicketArena->click();
    QApplication::processEvents();
    auto* tickets = static_cast<frmTicket*>(stage.Find(Window::Ticket));
    Require(tickets != nullptr && tickets->isVisible(), "the ticket screen opens");
    Int16& price = Teams[plan.Team].TicketPrice[1];
    const long long wanted = price + 1;
    tickets->txtTicket[1]->setFocus();
    tickets->txtTicket[1]->setText(QString::number(wanted));
    tickets->cmdExit->setFocus();
    Require(price == wanted, "the price is stored");
    Photograph(Window::Ticket, "tickets");
    Leave(Window::Ticket, Team(), tickets->cmdExit);
}

void Evening::RankDraft()
{
    LeagueData.FantasyDraft = true;
    stage.Open(Window::Draft, Main());
    auto& draft = *static_cast<frmDraft*>(stage.Find(Window::Draft));
    Require(draft.isVisible(), "the draft screen opens");
    Photograph(Window::Draft, "draft-first");
    constexpr int wanted = 4;
    Require(draft.lstPlayers->count() >= wanted, "there are players without a team");
    for (int row = 0; row < wanted; ++row) {
        draft.lstPlayers->setCurrentRow(row * (draft.lstPlayers->count() / wanted));
        draft.cmdChoose->click();
    }
    draft.lstDraftList->setCurrentRow(2);
    const QString favourite = draft.lstDraftList->currentItem()->text();
    draft.cmdUp->click();
    draft.cmdUp->click();
    Require(draft.lstDraftList->item(0)->text() == favourite, "the third moves to the top");
    NoComplaints("the draft list is made");
    Photograph(Window::Draft, "draft");
    draft.lstDraftList_DblClick();
    auto* viewer = static_cast<frmEditPlayer*>(stage.Find(Window::EditPlayer));
    Require(viewer != nullptr && viewer->isVisible() && !draft.isVisible(), "the player viewer opens");
    Leave(Window::EditPlayer, draft, viewer->cmdExit);
    const QString target = PathToDesktop(DraftFilePath(dravik::OpenLeague, Machine(), plan.Team));
    ExpectPassword();
    answers.Confirm("Fantasy Draft File save for " + TeamName() + " succesfully at\n" + target);
    draft.cmdSaveToFile->click();
    NoComplaints("the draft file is saved");
    Require(QFileInfo(target).size() > 0, "the draft file lies on disk");
    std::cout << "saved " << target.toStdString() << '\n';
    Leave(Window::Draft, Main(), draft.cmdExit);
}

void Evening::ExportTheRatings()
{
    answers.Confirm("Are you sure you want to output a Rating CSV file of your league?");
    answers.Confirm("Output done in " + plan.Out);
    Main().mnuOutputRatingCSV->trigger();
    NoComplaints("the ratings are exported");
    for (const char* name : {"/PlayersRatings.csv", "/CoachesRatings.csv"})
        Require(QFileInfo(plan.Out + name).size() > 0, "the ratings lie on disk");
}

void Evening::BringBackTheWork()
{
    // A last change that nobody saves.
    const Tables& league = dravik::OpenLeague;
    EnterOffice();
    const QString address = "scouts@example.org";
    Fill(Team().txtEmail, address);
    LeaveOffice();
    Require(ToQString(league.Teams[plan.Team].Email.Trimmed()) == address, "the address is stored");
    answers.Choose(plan.League);
    Main().mnuOpen->trigger();
    NoComplaints("the league opens again");
    Require(ToQString(league.Teams[plan.Team].Email.Trimmed()) != address, "it is as the file has it");
    auto* bringBack = Main().findChild<QPushButton*>("cmdBringBack");
    Require(bringBack->isVisible(), "the unsaved work is offered");
    Choose();
    Photograph(Window::Main, "main-unsaved");
    ExpectPassword();
    bringBack->click();
    NoComplaints("the work is brought back");
    Require(!bringBack->isVisible(), "and offered no longer");
    Require(ToQString(league.Teams[plan.Team].Email.Trimmed()) == address, "the change is there again");
}

void Evening::ShowAbout()
{
    Main().mnuAbout->trigger();
    auto* about = static_cast<frmAbout*>(stage.Find(Window::About));
    Require(about != nullptr && about->isVisible() && Main().isVisible(), "the about screen opens beside the main one");
    Photograph(Window::About, "about");
    Leave(Window::About, Main(), about->cmdExit);
}

void Evening::ReadGuide()
{
    Main().mnuGuide->trigger();
    GuideWindow* guide = stage.Guide();
    Require(guide != nullptr && guide->isVisible() && Main().isVisible(), "the guide opens beside the main screen");
    int part = 0;
    for (const char* chapter : {"the-guide", "4-set-the-lines", "signs"}) {
        QApplication::processEvents();
        Require(guide->GoTo(chapter), "the guide has its chapters");
        const QString name = QString("guide-%1").arg(++part);
        Require(camera.Photograph(*guide, name, guide->size()), "pictures of the guide are written");
    }
    guide->close();
}

void Evening::ShowEmptyScreens()
{
    for (const auto& [window, picture] : {std::pair(Window::Coach, "coach"), std::pair(Window::Prospect, "prospect")}) {
        stage.Open(window, Main());
        Require(stage.Find(window) != nullptr && stage.Find(window)->isVisible(), "an empty screen opens");
        Photograph(window, picture);
        stage.Find(window)->close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Require(Main().isVisible(), "the main screen comes back");
    }
}

void Evening::MakeOffers()
{
    Choose();
    ExpectPassword();
    answers.ConfirmAll(true); // the first of the list may be somebody whom only his own team may sign
    Main().mnuFreeAgents->trigger();
    QApplication::processEvents();
    Require(stage.Find(Window::FreeAgent) != nullptr && stage.Find(Window::FreeAgent)->isVisible(), "the offers open");
    int made = 0;
    for (int row = 0; row < Offers().lstPlayers->count() && made < 2; ++row) {
        Offers().lstPlayers->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
        if (!Offers().txtOffer->isEnabled())
            continue;
        ++made;
        Fill(Offers().txtOffer, QString::number(LeagueData.MinSalary + 250000LL * made));
        Fill(Offers().txtDuration, QString::number(made + 1));
        Fill(Offers().txtBonus, "50000");
        Offers().txtComment->setFocus();
        Offers().txtComment->setPlainText(
            "Top line center and first unit on the power play. Your old linemates are here.");
        Offers().lstPlayers->setFocus();
    }
    answers.ConfirmAll(false);
    Require(made == 2, "two people can be made an offer");
    NoComplaints("the offers are made");
    Photograph(Window::FreeAgent, "offers");
    Offers().cmdWhatIf->click();
    Require(Offers().WhatIf != nullptr && Offers().WhatIf->isVisible(), "what the offers come to comes up");
    Require(camera.Photograph(*Offers().WhatIf, "offers-what-if", {560, 500}), "pictures of it are written");
    Offers().WhatIf->close();
    Offers().chkShowPlayerWithOffer->click();
    Require(Offers().lstPlayers->count() == 2, "those with an offer are listed alone");
    Photograph(Window::FreeAgent, "offers-made");
    const QString target = PathToDesktop(OffersFilePath(dravik::OpenLeague, Machine(), plan.Team));
    ExpectPassword();
    answers.ConfirmAll(true); // a report in pages
    Offers().cmdSaveToFile->click();
    QApplication::processEvents();
    answers.ConfirmAll(false);
    Require(QFileInfo(target).size() > 0, "the offer file lies on disk");
    std::cout << "saved " << target.toStdString() << '\n';
    Offers().cmdExit->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    NoComplaints("the offers are saved");
    Require(stage.Find(Window::FreeAgent) == nullptr && Main().isVisible(), "the main screen comes back");
    BringBackOffers();
}

// The screen begins without an offer; those of before come back by one press, and go again by one.
void Evening::BringBackOffers()
{
    ExpectPassword();
    answers.ConfirmAll(true);
    Main().mnuFreeAgents->trigger();
    QApplication::processEvents();
    Require(Offers().cmdBringBack->isVisible(), "the offers of before can be brought back");
    Photograph(Window::FreeAgent, "offers-kept");
    Offers().cmdBringBack->click();
    Offers().chkShowPlayerWithOffer->click();
    Require(Offers().lstPlayers->count() == 2 && !Offers().cmdBringBack->isVisible(), "they are back");
    Photograph(Window::FreeAgent, "offers-brought-back");
    Offers().lstPlayers->setFocus();
    Offers().findChild<QToolButton*>("cmdUndo")->click();
    Require(Offers().lstPlayers->count() == 0 && Offers().cmdBringBack->isVisible(), "the step is undone");
    Photograph(Window::FreeAgent, "offers-undone");
    answers.ConfirmAll(false);
    Leave(Window::FreeAgent, Main(), Offers().cmdExit);
    NoComplaints("the offers are brought back");
}

void Evening::Fill(EditBox* box, const QString& text)
{
    box->setFocus();
    box->setText(text);
}

} // namespace dravik::tour
