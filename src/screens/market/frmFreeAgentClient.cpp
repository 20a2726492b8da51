#include "screens/market/frmFreeAgentClient.h"

#include "desk/FreeAgents.h"
#include "desk/Password.h"
#include "files/OffersFile.h"
#include "machine/Reporting.h"
#include "machine/ReportPages.h"
#include "rules/StatRows.h"
#include "screens/BehindWait.h"
#include "screens/EventGuard.h"
#include "screens/market/WhatIfWindow.h"
#include "screens/panels/TellTakenIn.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/Stage.h"
#include "session/OpenHistory.h"
#include "session/OpenMarket.h"
#include "session/OpenSaves.h"
#include "session/Session.h"

#include <algorithm>
#include <QApplication>
#include <QSignalBlocker>
#include <utility>

// The list, the person chosen in it, the four boxes of his offer, and the offer file.
namespace dravik {

namespace {

std::string Money(long long amount) { return Machine().CurrencyNoDecimals(static_cast<double>(amount)); }

void WatchOffer(int id) { OpenHistory().Watch(id); }

// Shows in a box the number that is taken in the place of its own.
TakesInstead Into(EditBox* box)
{
    return [box](int number) { box->setText(QString::number(number)); };
}

} // namespace

// An entry of the list. What is drawn beside the name is made up when it is drawn: the offer, and the overall where the
// league shows it.
class frmFreeAgentClient::Entry : public EntryItem {
public:
    Entry(const QString& text, int number, const OfferTable& all) : EntryItem(text), id(number), offers(all) {}

    [[nodiscard]] QVariant data(int role) const override
    {
        switch (role) {
        case entry::NumberRole:
            return id;
        case entry::AsideRole:
            return Aside();
        default:
            return EntryItem::data(role);
        }
    }

private:
    [[nodiscard]] QStringList Aside() const
    {
        const PersonId who = PersonOf(id);
        QStringList words;
        const std::string offer = OfferInShort(OpenLeague, Machine(), offers, who);
        if (!offer.empty())
            words << ToQString(offer);
        if (LeagueData.ShowOverall)
            words << OverallOf(who);
        return words;
    }
    int id;
    const OfferTable& offers;
};

void frmFreeAgentClient::FormLoad()
{
    RunEvent("FormLoad frmFreeAgentClient", [this] {
        CentreOnScreen();
        if (!TeamTable::Has(CurrentTeam)) {
            Machine().ShowIntegrityFailure();
            for (QWidget* closed : std::initializer_list<QWidget*>{chkShowPlayerWithOffer, cmdLoad, cmdWhatIf})
                closed->setEnabled(false); // the list stays empty
            return;
        }
        lblInfo->setText("Don't use a comma, a period or a dollar sign ($) in the salary, duration and bonus text box. "
                         "-- You need to fill the salary and duration textbox for a offer to be save.");
        BeginOffers();
        lblMaxOffer->setText(ToQString(OfferLimitWords(LeagueData)));
        ShowTally();
        SetTitle(ToQString(ProgramTitle) + " - Free Agent Client");
        lblTeam->setText("Free Agents Offer For : " + ToQString(OwnTeam().Name.Trimmed()));
        ShowPlayer();
    });
}

// Offers that are given up are a step, so that the way back leads to them.
void frmFreeAgentClient::BeginOffers()
{
    const auto begin = [this] { OpenOffers(OpenWork(), OwnNumber(), offers); };
    const bool areOwn = KeptWork().OffersBy == OwnNumber();
    const std::vector<FreeAgentOffer> given = WrittenOffers(offers);
    for (const FreeAgentOffer& offer : given) // a history that has begun since knows of none of them
        WatchOffer(static_cast<int>(offer.Id));
    if (given.empty())
        begin();
    else if (areOwn)
        RunStep("Begin new offers", begin);
    else
        GiveUpWorkOfOthers(OwnNumber(), begin);
    KeptWork().OffersBy = OwnNumber();
}

void frmFreeAgentClient::ShowPlayer()
{
    Reporting(Machine(), " in ShowPlayer!", [this] {
        lstPlayers->Empty();
        EachFreeAgent(OpenLeague, offers, {.WithOfferOnly = chkShowPlayerWithOffer->isChecked()},
                      [this](const FreeAgent& agent) {
                          lstPlayers->addItem(new Entry(ToQString(agent.Text), agent.Id, offers));
                      });
        if (lstPlayers->count() > 0)
            Choose(0);
        else
            ShowNobody();
    });
}

void frmFreeAgentClient::Choose(int row)
{
    {
        const QSignalBlocker quiet(lstPlayers);
        lstPlayers->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    }
    lstPlayers_Click();
}

void frmFreeAgentClient::ShowNobody()
{
    Stats->ClearNumbers();
    for (EditBox* box : {txtSalary, txtAge, txtOffer, txtDuration, txtBonus})
        box->clear();
    txtSalary->setToolTip({});
    txtComment->clear();
    lblStatus->setText(NoStatus);
    EnableOffer(false);
}

void frmFreeAgentClient::FormUnload()
{
    ShowWaitingBox();
    if (KeptWork().OffersBy != OwnNumber())
        return;
    std::vector<FreeAgentOffer> written = WrittenOffers(offers);
    if (written.empty())
        return;
    KeptWork().Offers[OwnNumber()] = std::move(written);
    NoteKept(SavedFile::Offers, OwnNumber());
}

void frmFreeAgentClient::Tell(std::function<void()> box)
{
    waitingBox = std::move(box);
    if (isPressed)
        secondPress.start(QApplication::doubleClickInterval());
    else
        ShowWaitingBox();
}

void frmFreeAgentClient::ShowWaitingBox()
{
    secondPress.stop();
    if (const auto show = std::exchange(waitingBox, nullptr))
        Reporting(Machine(), " in LstPlayers Click.", show);
}

void frmFreeAgentClient::lstPlayers_Click()
{
    ShowWaitingBox();
    Reporting(Machine(), " in LstPlayers Click.", [this] {
        Stats->HideRows();
        const QListWidgetItem* current = lstPlayers->currentItem();
        if (current == nullptr)
            return;
        offerIndex = current->data(entry::NumberRole).toInt();
        if (const auto who = FreeAgentOf(OpenLeague, static_cast<int>(offerIndex)))
            ShowPerson(*who);
        else
            Tell([] { Machine().ShowIntegrityFailure(); });
        // That the offer is his is no change: whom one looks at stands in no step, and stops no way back.
        OpenHistory().Watch(static_cast<int>(offerIndex));
    });
}

void frmFreeAgentClient::ShowPerson(PersonId who)
{
    OnPerson(OpenLeague, who, [&](const auto& person) {
        Stats->ShowRows(StatRowsOf(who));
        Stats->SetName(ToQString(person.Name.Trimmed()));
        Stats->HoldAgainstPinned(who);
        txtAge->setText(QString::number(person.Age));
        txtSalary->setText(QString::number(person.Salary));
        txtSalary->setToolTip(ToQString(Money(person.Salary)));
    });
    lblStatus->setText(IsRestricted(OpenLeague, who) ? "Status : RFA" : "Status : UFA");
    const FreeAgentOffer* offer = TakeOffer(OpenLeague, OwnNumber(), offers, who);
    if (offer == nullptr) {
        EnableOffer(false);
        for (EditBox* box : {txtOffer, txtDuration, txtBonus})
            box->setText("0");
        txtComment->clear();
        Tell([words = BarredWords(OpenLeague, who)] { Machine().ShowBox(words, box::Warning); });
        return;
    }
    if (!txtOffer->isEnabled())
        EnableOffer(true);
    ShowOffer(*offer);
}

void frmFreeAgentClient::ShowOffer(const FreeAgentOffer& offer)
{
    txtOffer->setText(QString::number(offer.Salary));
    txtDuration->setText(QString::number(offer.Duration));
    txtBonus->setText(QString::number(offer.Bonus));
    txtComment->setPlainText(ToQString(offer.Comment.Trimmed()));
}

// A box that is closed hands the focus on to the next one, whose text would act when that is closed in its turn.
void frmFreeAgentClient::EnableOffer(bool enabled)
{
    const std::initializer_list<QWidget*> boxes{txtOffer, txtDuration, txtBonus, txtComment};
    if (!enabled && std::find(boxes.begin(), boxes.end(), focusWidget()) != boxes.end())
        lstPlayers->setFocus(Qt::OtherFocusReason);
    for (QWidget* box : boxes)
        box->setEnabled(enabled);
}

void frmFreeAgentClient::lstPlayers_DblClick()
{
    RunEvent("lstPlayers_DblClick", [this] {
        const QListWidgetItem* current = lstPlayers->currentItem();
        if (current == nullptr)
            return;
        SelectPerson(PersonOf(current->data(entry::NumberRole).toInt()));
        ViewerReturnMode = return_mode::Offers;
        Open(Window::EditPlayer);
        ShowWaitingBox(); // in front of the record
    });
}

void frmFreeAgentClient::ShowAnew()
{
    ShowTally();
    if (chkShowPlayerWithOffer->isChecked())
        ShowPlayer();
    else if (txtOffer->isEnabled())
        ShowOffer(offers[offerIndex]);
}

QString frmFreeAgentClient::Subject() const { return ": " + NameOf(PersonAtHand()); }

void frmFreeAgentClient::chkShowPlayerWithOffer_Click()
{
    // Its key asks for it a moment before it is ticked. A box that refused its text has the focus back by then and keeps
    // its person shown.
    if (dynamic_cast<LeavingBox*>(focusWidget()) != nullptr) {
        const QSignalBlocker silent(chkShowPlayerWithOffer);
        chkShowPlayerWithOffer->toggle();
        return;
    }
    ShowWaitingBox();
    ShowPlayer();
}

bool frmFreeAgentClient::IsTaken(LeavingBox& box, Entered entered)
{
    if (entered != Entered::Refused)
        return entered == Entered::Stored;
    const EventGuard guard;
    box.TakeFocusBack();
    return false;
}

OfferTable& frmFreeAgentClient::OffersAtHand()
{
    if (PersonAtHand().HasSlot())
        TakeOffer(OpenLeague, OwnNumber(), offers, PersonAtHand());
    return offers;
}

void frmFreeAgentClient::txtOffer_LostFocus()
{
    Reporting(Machine(), " in txtOffer LostFocus.", [this] {
        if (IsTaken(*txtOffer, OfferSalary(OpenWork(), OffersAtHand(), PersonAtHand(), FromQString(txtOffer->text()),
                                           Into(txtOffer))))
            ShowTally();
    });
}

void frmFreeAgentClient::txtDuration_LostFocus()
{
    Reporting(Machine(), " in txtDuration LostFocus.", [this] {
        if (IsTaken(*txtDuration, OfferDuration(OpenWork(), OffersAtHand(), PersonAtHand(),
                                                FromQString(txtDuration->text()), Into(txtDuration))))
            ShowTally();
    });
}

void frmFreeAgentClient::txtBonus_LostFocus()
{
    RunEvent("txtBonus_LostFocus", [this] {
        if (IsTaken(*txtBonus, OfferBonus(OpenWork(), OffersAtHand(), PersonAtHand(), FromQString(txtBonus->text()))))
            ShowTally();
    });
}

void frmFreeAgentClient::txtComment_LostFocus()
{
    RunEvent("txtComment_LostFocus", [this] {
        IsTaken(*txtComment,
                OfferComment(OpenWork(), OffersAtHand(), PersonAtHand(), FromQString(txtComment->toPlainText())));
    });
}

void frmFreeAgentClient::cmdSearch_Click()
{
    ShowWaitingBox();
    Reporting(Machine(), " in cmdSearch!", [this] {
        const int row = search.Ask(*lstPlayers);
        if (row >= 0)
            Choose(row);
    });
}

void frmFreeAgentClient::cmdFindNext_Click()
{
    if (!search.HasAnswer()) {
        cmdSearch_Click();
        return;
    }
    ShowWaitingBox();
    Reporting(Machine(), " in cmdFindNext!", [this] {
        const int row = search.Next(*lstPlayers);
        if (row >= 0)
            Choose(row);
        lstPlayers->setFocus(Qt::OtherFocusReason);
    });
}

void frmFreeAgentClient::cmdSaveToFile_Click()
{
    ShowWaitingBox();
    Reporting(Machine(), " in cmdSaveToFile!", [this] {
        if (!CheckPassword(OpenLeague, Machine(), OwnNumber()))
            return;
        std::optional<std::string> report;
        BehindWait([&] {
            report = SaveOffers(OpenWork(), OpenFiles(), OwnNumber(), offers);
            if (report && !report->empty())
                NoteSaved(SavedFile::Offers, OwnNumber(), OffersFilePath(OpenLeague, Machine(), OwnNumber()));
            return report.has_value();
        });
        for (const std::string& page : ReportPages(report.value_or("")))
            Machine().ShowBox(page, box::Information);
    });
    ShowHistory();
}

void frmFreeAgentClient::cmdBringBack_Click()
{
    ShowWaitingBox();
    Reporting(Machine(), " in cmdBringBack!", [this] {
        TellLeftOut(TakeInOffers(OpenWork(), OwnNumber(), offers, KeptWork().Offers[OwnNumber()], WatchOffer));
        ShowAnew();
    });
}

void frmFreeAgentClient::cmdLoad_Click()
{
    ShowWaitingBox();
    ReportingUnlessCancelled(Machine(), " in cmdLoad!", [this] {
        const std::string path = Machine().OpenFileDialog(Machine().ProgramFolder(),
                                                          "DRVK Offers File (*.dvf) |*.dvf|All Files (*.*) | *.*");
        TellLoaded(
            LoadBehindWait([&] { return LoadOffers(OpenWork(), OpenFiles(), OwnNumber(), path, offers, WatchOffer); }));
        ShowAnew();
    });
}

void frmFreeAgentClient::cmdWhatIf_Click()
{
    ShowWaitingBox();
    if (WhatIf == nullptr)
        WhatIf = new WhatIfWindow(this, offers);
    if (WhatIf->isVisible())
        WhatIf->close();
    else
        WhatIf->Open();
}

void frmFreeAgentClient::cmdExit_Click() { Unload(); }

void frmFreeAgentClient::ShowTally()
{
    const OffersTally tally = TallyOffers(OpenLeague, OwnNumber(), offers);
    lblOffersMade->Tell(QString("%1 of %2 offers to others made")
                            .arg(tally.ToOthers)
                            .arg(static_cast<long long>(LeagueData.OffersLeft)),
                        tally.ToOthers <= LeagueData.OffersLeft);
    lblOffersCost->setText(QString("%1 in all: %2 a season, %3 in bonus")
                               .arg(tally.Count)
                               .arg(ToQString(Money(tally.Salaries)), ToQString(Money(tally.Bonuses))));
    lstPlayers->viewport()->update();
    ShowKept();
    if (WhatIf != nullptr && WhatIf->isVisible())
        WhatIf->ShowAnew();
}

void frmFreeAgentClient::ShowKept()
{
    const auto kept = KeptWork().Offers.find(OwnNumber());
    const bool has = kept != KeptWork().Offers.end();
    if (has)
        cmdBringBack->setText(QString("Bring Bac&k %1 Offers").arg(kept->second.size()));
    cmdBringBack->setVisible(has && WrittenOffers(offers).empty());
}

bool frmFreeAgentClient::eventFilter(QObject* watched, QEvent* event)
{
    // The mouse takes the focus to the list before it presses there. A box that refused its text has it back by now; nobody
    // else is shown before that text is mended.
    if (watched == lstPlayers->viewport()) {
        const bool isPress = event->type() == QEvent::MouseButtonPress;
        if ((isPress || event->type() == QEvent::MouseButtonDblClick) &&
            dynamic_cast<LeavingBox*>(focusWidget()) != nullptr)
            return true;
        if (isPress) {
            isPressed = true;
            QMetaObject::invokeMethod(
                this, [this] { isPressed = false; }, Qt::QueuedConnection);
        }
    }
    return Screen::eventFilter(watched, event);
}

} // namespace dravik
