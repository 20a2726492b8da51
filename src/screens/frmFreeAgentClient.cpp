#include "screens/frmFreeAgentClient.h"

#include "league/Arithmetic.h"
#include "league/Platform.h"
#include "league/ReportPages.h"
#include "screens/BehindWait.h"
#include "screens/EventGuard.h"
#include "screens/panels/NameSearch.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/Stage.h"
#include "session/Routines.h"

#include <QApplication>
#include <QSignalBlocker>
#include <utility>

// The list, the person chosen in it, the four boxes of his offer, and the offer file.
namespace dravik {

namespace {

Team& OwnTeam() { return Teams[CurrentTeam]; }

int OwnNumber() { return static_cast<int>(CurrentTeam); }

std::string Money(long long amount) { return Machine().CurrencyNoDecimals(static_cast<double>(amount)); }

// A person in use whose contract is out, or who belongs to nobody where the league lets those be made offers.
template <class Person>
bool CanBeMadeAnOffer(const Person& person)
{
    if (!person.InUse)
        return false;
    return person.Team != 0 ? person.Contract == 0 : static_cast<bool>(LeagueData.OfferRuleFlag);
}

template <class Person>
bool IsYoung(const Person& person)
{
    return person.Age < LeagueData.UFAAge;
}

// A young skater whom nobody owns goes without a mark; a young goalie has his star either way.
std::string EntryText(const Player& player)
{
    const bool isMarked = IsYoung(player) && player.Team != 0;
    return player.Name.Trimmed() + " (" + std::string(PositionName[player.Position]) + ")" + (isMarked ? "-RFA" : "");
}
std::string EntryText(const Goalie& keeper) { return keeper.Name.Trimmed() + " (G)" + (IsYoung(keeper) ? "*" : ""); }

template <class Person>
int EntryId(const Person& person)
{
    return PersonIn<Person>(static_cast<int>(person.Number)).CommonId();
}

StatRows RowsOf(const Player& /*player*/, int index) { return SkaterStatRows(index); }
StatRows RowsOf(const Goalie& /*keeper*/, int index) { return GoalieStatRows(index); }

double NumberIn(const EditBox* box) { return LeadingNumber(FromQString(box->text())); }

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
        QStringList words;
        if (OfferTable::Has(id) && offers[id].Id != 0 && IsOffer(offers[id]))
            words << ToQString(Money(offers[id].Salary) + " x " + std::to_string(offers[id].Duration));
        if (LeagueData.ShowOverall)
            words << OverallOf(PersonOf(id));
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
            ShowIntegrityFailure();
            chkShowPlayerWithOffer->setEnabled(false); // the list stays empty
            return;
        }
        lblInfo->setText("Don't use a comma, a period or a dollar sign ($) in the salary, duration and bonus text box. "
                         "-- You need to fill the salary and duration textbox for a offer to be save.");
        League& league = LeagueData;
        const auto tellLimit = [&](const char* words) {
            lblMaxOffer->setText("You can make " + QString::number(league.OffersLeft) + words);
        };
        if (!league.OffSeason) {
            constexpr int usual = 100;
            if (league.MaxOffers == 0)
                league.MaxOffers = usual;
            league.OffersLeft = league.MaxOffers - OwnTeam().OffersMade;
            tellLimit(" offers to players you do not owned.");
        } else
            tellLimit(" offers in total.");
        for (FreeAgentOffer& offer : FreeAgentOffers)
            offer = {};
        ShowTally();
        SetTitle(ToQString(ProgramTitle) + " - Free Agent Client");
        lblTeam->setText("Free Agents Offer For : " + ToQString(OwnTeam().Name.Trimmed()));
        ShowPlayer();
    });
}

void frmFreeAgentClient::ShowPlayer()
{
    Reporting(" in ShowPlayer!", [this] {
        lstPlayers->Empty();
        for (long long index = 1; index <= PlayerTable::last; ++index)
            ListPerson(Players[index]);
        for (long long index = 1; index <= GoalieTable::last; ++index)
            ListPerson(Goalies[index]);
        if (lstPlayers->count() > 0)
            Choose(0);
        else
            ShowNobody();
    });
}

template <class Person>
void frmFreeAgentClient::ListPerson(const Person& person)
{
    if (!CanBeMadeAnOffer(person))
        return;
    const std::string text = EntryText(person);
    const int id = EntryId(person);
    if (chkShowPlayerWithOffer->isChecked() && !IsOffer(FreeAgentOffers[id]))
        return;
    lstPlayers->addItem(new Entry(ToQString(text), id, FreeAgentOffers));
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

void frmFreeAgentClient::FormUnload() { ShowWaitingBox(); }

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
        Reporting(" in LstPlayers Click.", show);
}

void frmFreeAgentClient::lstPlayers_Click()
{
    ShowWaitingBox();
    Reporting(" in LstPlayers Click.", [this] {
        Stats->HideRows();
        const QListWidgetItem* current = lstPlayers->currentItem();
        if (current == nullptr)
            return;
        OfferIndex = current->data(entry::NumberRole).toInt();
        const PersonId who = PersonOf(static_cast<int>(OfferIndex));
        // The last slot of the goalies can be listed and not be shown.
        if (who.IsGoalie && who.Slot >= GoalieTable::last)
            Tell(ShowIntegrityFailure);
        else
            OnPerson(OpenLeague, who, [&](const auto& person) { ShowPerson(person, who.Slot); });
    });
}

template <class Person>
void frmFreeAgentClient::ShowPerson(const Person& person, int index)
{
    if (!person.InUse) {
        Tell(ShowIntegrityFailure);
        return;
    }
    const std::string name = person.Name.Trimmed();
    Stats->ShowRows(RowsOf(person, index));
    Stats->SetName(ToQString(name));
    txtAge->setText(QString::number(person.Age));
    txtSalary->setText(QString::number(person.Salary));
    txtSalary->setToolTip(ToQString(Money(person.Salary)));
    lblStatus->setText(IsYoung(person) && person.Team != 0 ? "Status : RFA" : "Status : UFA");
    if (person.Age < LeagueData.RFAAge && person.Team != 0 && person.Team != CurrentTeam) {
        EnableOffer(false);
        for (EditBox* box : {txtOffer, txtDuration, txtBonus})
            box->setText("0");
        txtComment->clear();
        const std::string words =
            name + " is not allowed to sign with another team that " + Teams[person.Team].Name.Trimmed() + ".";
        Tell([words] { ShowBox(words, box::Warning); });
        return;
    }
    FreeAgentOffer& offer = OfferAtHand();
    offer.Id = OfferIndex;
    if (!txtOffer->isEnabled())
        EnableOffer(true);
    txtOffer->setText(QString::number(offer.Salary));
    txtDuration->setText(QString::number(offer.Duration));
    txtBonus->setText(QString::number(offer.Bonus));
    txtComment->setPlainText(ToQString(offer.Comment.Trimmed()));
}

void frmFreeAgentClient::EnableOffer(bool enabled)
{
    for (QWidget* box : std::initializer_list<QWidget*>{txtOffer, txtDuration, txtBonus, txtComment})
        box->setEnabled(enabled);
}

void frmFreeAgentClient::lstPlayers_DblClick()
{
    RunEvent("lstPlayers_DblClick", [this] {
        const QListWidgetItem* current = lstPlayers->currentItem();
        if (current == nullptr)
            return;
        SelectPerson(PersonOf(current->data(entry::NumberRole).toInt()));
        constexpr int fromOffers = 3;
        ViewerReturnMode = fromOffers;
        Open("EditPlayer");
        ShowWaitingBox(); // in front of the record
    });
}

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

bool frmFreeAgentClient::Accepts(LeavingBox& box, const QString& text, InputMode mode)
{
    if (CheckInput(FromQString(text), mode, false))
        return true;
    const EventGuard guard;
    box.TakeFocusBack();
    return false;
}

void frmFreeAgentClient::txtOffer_LostFocus()
{
    Reporting(" in txtOffer LostFocus.", [this] {
        // A 0 leaves the salary of before in the offer.
        if (!Accepts(*txtOffer, txtOffer->text(), InputMode::Numbers) || NumberIn(txtOffer) == 0)
            return;
        const long long most = LeagueData.MaxSalary;
        const long long least = LeagueData.MinSalary;
        if (NumberIn(txtOffer) > static_cast<double>(most)) {
            ShowBox("Maximum Salary is " + Money(most), box::Warning);
            txtOffer->setText(QString::number(most));
        }
        if (NumberIn(txtOffer) < static_cast<double>(least)) {
            ShowBox("Minimum Salary is " + Money(least), box::Warning);
            txtOffer->setText(QString::number(least));
        }
        OfferAtHand().Salary = RoundToInt32(NumberIn(txtOffer));
        ShowTally();
    });
}

void frmFreeAgentClient::txtDuration_LostFocus()
{
    Reporting(" in txtDuration LostFocus.", [this] {
        if (!Accepts(*txtDuration, txtDuration->text(), InputMode::Numbers))
            return;
        constexpr int most = 9;
        if (NumberIn(txtDuration) > most) {
            ShowBox("Maximum Contract Duration is " + std::to_string(most) + " years.", box::Warning);
            txtDuration->setText(QString::number(most));
        }
        if (NumberIn(txtDuration) < 0)
            txtDuration->setText("0");
        OfferAtHand().Duration = RoundToInt16(NumberIn(txtDuration));
        ShowTally();
    });
}

void frmFreeAgentClient::txtBonus_LostFocus()
{
    RunEvent("txtBonus_LostFocus", [this] {
        if (!Accepts(*txtBonus, txtBonus->text(), InputMode::Numbers))
            return;
        OfferAtHand().Bonus = RoundToInt32(NumberIn(txtBonus));
        ShowTally();
    });
}

void frmFreeAgentClient::txtComment_LostFocus()
{
    RunEvent("txtComment_LostFocus", [this] {
        const QString text = txtComment->toPlainText();
        if (Accepts(*txtComment, text, InputMode::NumbersAndLetters))
            OfferAtHand().Comment = FromQString(text);
    });
}

void frmFreeAgentClient::cmdSearch_Click()
{
    ShowWaitingBox();
    Reporting(" in cmdSearch!", [this] {
        const int row = SearchPlayer(*lstPlayers);
        if (row >= 0)
            Choose(row);
    });
}

void frmFreeAgentClient::cmdSaveToFile_Click()
{
    ShowWaitingBox();
    Reporting(" in cmdSaveToFile!", [this] {
        if (!CheckPassword(OwnNumber()))
            return;
        std::string report;
        BehindWait([&] {
            const std::string target = OffersFilePath(OwnNumber());
            const SavedOffers saved = WriteOffersFile(OwnNumber(), target, FreeAgentOffers);
            switch (saved.Outcome) {
            case OffersFileWrite::NotCompressed:
                return false;
            case OffersFileWrite::NoOffer:
                ShowBox("No Offer to Save!", box::Warning);
                break;
            case OffersFileWrite::TooMany:
                ShowBox("There is more that " + std::to_string(LeagueData.OffersLeft) + " offers!", box::Warning);
                break;
            case OffersFileWrite::Saved:
                report = saved.Report + "Client league file save for " + OwnTeam().Name.Trimmed() + " succesfully at " +
                         target + std::string(LineBreak);
                break;
            }
            return true;
        });
        for (const std::string& page : ReportPages(report))
            ShowBox(page, box::Information);
    });
}

void frmFreeAgentClient::cmdExit_Click() { Unload(); }

void frmFreeAgentClient::ShowTally()
{
    const OffersTally tally = TallyOffers(OwnNumber(), FreeAgentOffers);
    lblOffersMade->Tell(QString("%1 of %2 offers to others made")
                            .arg(tally.ToOthers)
                            .arg(static_cast<long long>(LeagueData.OffersLeft)),
                        tally.ToOthers <= LeagueData.OffersLeft);
    lblOffersCost->setText(QString("%1 in all: %2 a season, %3 in bonus")
                               .arg(tally.Count)
                               .arg(ToQString(Money(tally.Salaries)), ToQString(Money(tally.Bonuses))));
    lstPlayers->viewport()->update();
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
