#include "league/Arithmetic.h"
#include "league/Platform.h"
#include "screens/EventGuard.h"
#include "screens/frmEditPlayer.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "session/Routines.h"

#include <algorithm>

// What the boxes of the record editor do when the focus leaves them.
namespace dravik {

namespace {

// A limit of a number, and what a number beyond it becomes.
struct Bound {
    long long At;
    long long Becomes;
};

// The limits of a number. What is above the upper one is cut first.
struct Limits {
    std::optional<Bound> Above = {};
    std::optional<Bound> Below = {};

    [[nodiscard]] double Applied(double value) const
    {
        if (Above && value > static_cast<double>(Above->At))
            value = static_cast<double>(Above->Becomes);
        if (Below && value < static_cast<double>(Below->At))
            value = static_cast<double>(Below->Becomes);
        return value;
    }
};

constexpr Limits AtLeastOne() { return {.Below = Bound{1, 1}}; }
constexpr Limits BelowOneIsZero() { return {.Below = Bound{1, 0}}; }
constexpr Limits ContractYears() { return {.Above = Bound{9, 9}, .Below = Bound{1, 0}}; }
constexpr Limits UpTo99() { return {.Above = Bound{99, 99}, .Below = Bound{0, 0}}; }
constexpr Limits UpTo100() { return {.Above = Bound{100, 100}, .Below = Bound{0, 0}}; }

Limits SalariesOfLeague()
{
    const long long most = LeagueData.MaxSalary;
    const long long least = LeagueData.MinSalary;
    return {.Above = Bound{most, most}, .Below = Bound{least, least}};
}

std::string TeamName(long long team) { return team == 0 ? std::string() : Teams[team].Name.Trimmed(); }

// " in txtAge!", and " in txtStats!" for every box of that row.
std::string Ending(const QString& control) { return " in " + FromQString(control.section('(', 0, 0)) + "!"; }

} // namespace

struct frmEditPlayer::NumberField {
    EditBox* frmEditPlayer::*Box;
    Limits (*Range)();
    long long (*Read)(const Person&);
    void (*Store)(const Person&, long long);
};

struct frmEditPlayer::TextField {
    EditBox* frmEditPlayer::*Box;
    InputMode Mode;
    std::size_t Width;
    std::string (*Read)(const Person&);
    void (*Store)(const Person&, const std::string&);
};

namespace {

using Person = frmEditPlayer::Person;
using NumberField = frmEditPlayer::NumberField;
using TextField = frmEditPlayer::TextField;

template <auto OfSkater, auto OfGoalie>
constexpr NumberField Number(EditBox* frmEditPlayer::*box, Limits (*range)())
{
    return {box, range,
            [](const Person& person) -> long long {
                return person.IsGoalie ? static_cast<long long>(Goalies[person.Id].*OfGoalie)
                                       : static_cast<long long>(Players[person.Id].*OfSkater);
            },
            [](const Person& person, long long value) {
                if (person.IsGoalie)
                    Goalies[person.Id].*OfGoalie = value;
                else
                    Players[person.Id].*OfSkater = value;
            }};
}

template <std::size_t N, Text<N> Player::*OfSkater, Text<N> Goalie::*OfGoalie>
constexpr TextField Words(EditBox* frmEditPlayer::*box, InputMode mode)
{
    return {box, mode, N,
            [](const Person& person) {
                return (person.IsGoalie ? Goalies[person.Id].*OfGoalie : Players[person.Id].*OfSkater).Trimmed();
            },
            [](const Person& person, const std::string& text) {
                (person.IsGoalie ? Goalies[person.Id].*OfGoalie : Players[person.Id].*OfSkater) = text;
            }};
}

// The boxes of the record. The height alone sinks to 0.
// clang-format off
constexpr TextField Name      = Words<40, &Player::Name, &Goalie::Name>(&frmEditPlayer::txtName, InputMode::NumbersAndLetters);
constexpr TextField Country   = Words<3, &Player::Country, &Goalie::Country>(&frmEditPlayer::txtCountry, InputMode::Letters);
constexpr TextField Injury    = Words<40, &Player::Injury, &Goalie::Injury>(&frmEditPlayer::txtInjury, InputMode::NumbersAndLetters);

constexpr NumberField Age        = Number<&Player::Age, &Goalie::Age>(&frmEditPlayer::txtAge, AtLeastOne);
constexpr NumberField Weight     = Number<&Player::Weight, &Goalie::Weight>(&frmEditPlayer::txtWeight, AtLeastOne);
constexpr NumberField Height     = Number<&Player::Height, &Goalie::Height>(&frmEditPlayer::txtHeight, BelowOneIsZero);
constexpr NumberField Contract   = Number<&Player::Contract, &Goalie::Contract>(&frmEditPlayer::txtContract, ContractYears);
constexpr NumberField Salary     = Number<&Player::Salary, &Goalie::Salary>(&frmEditPlayer::txtSalary, SalariesOfLeague);
constexpr NumberField Condition  = Number<&Player::Condition, &Goalie::Condition>(&frmEditPlayer::txtCondition, UpTo100);
constexpr NumberField Suspension = Number<&Player::Suspension, &Goalie::Suspension>(&frmEditPlayer::txtSuspension, UpTo99);
// clang-format on

// The injury stands apart: it is shown as the condition allows, and no new record has one.
constexpr const TextField* Texts[] = {&Name, &Country};
constexpr const NumberField* Numbers[] = {&Age, &Weight, &Height, &Contract, &Salary, &Condition, &Suspension};

// What a new record must hold, and takes over, in this order behind the texts. The suspension is no part of it.
constexpr const NumberField* NewNumbers[] = {&Age, &Weight, &Height, &Contract, &Salary, &Condition};

double Typed(const EditBox* box) { return LeadingNumber(FromQString(box->text())); }

bool IsEmpty(const EditBox* box) { return box->text().isEmpty(); }

} // namespace

void frmEditPlayer::ShowFields(const Person& person)
{
    for (const TextField* field : Texts)
        (this->*field->Box)->setText(ToQString(field->Read(person)));
    for (const NumberField* field : Numbers)
        (this->*field->Box)->setText(Shown(field->Read(person)));
}

// What all boxes have in common: a text is judged, a new record keeps it for later, an empty one is restored, as one is
// that fails to be stored, and any other is taken.
void frmEditPlayer::LeaveBox(EditBox* box, InputMode mode, const std::function<void(const Person&)>& restore,
                             const std::function<void(const std::string&)>& take)
{
    if (ListEventGuard)
        return;
    Reporting(Ending(box->objectName()), [&] {
        const std::string text = FromQString(box->text());
        if (!text.empty() && !CheckInput(text, mode, false)) {
            const EventGuard guard;
            box->TakeFocusBack();
            return;
        }
        if (NewPlayerMode || NewGoalieMode)
            return;
        if (text.empty()) {
            if (const auto person = ShownPerson())
                restore(*person);
            return;
        }
        try {
            take(text);
        } catch (...) {
            if (IsPersonShown()) // no box beside the one that tells the failure
                restore(*ShownPerson());
            throw;
        }
    });
}

void frmEditPlayer::LeaveNumber(const NumberField& field, const Rule& follow, const Allowance& allows)
{
    EditBox* box = this->*field.Box;
    const auto restore = [&](const Person& person) { box->setText(Shown(field.Read(person))); };
    LeaveBox(box, InputMode::Numbers, restore, [&](const std::string& text) {
        const long long now = RoundToInt32(field.Range().Applied(LeadingNumber(text)));
        box->setText(Shown(now));
        const auto person = ShownPerson();
        if (!person)
            return;
        if (allows && !allows(*person, now)) {
            restore(*person);
            return;
        }
        const long long before = field.Read(*person);
        field.Store(*person, now);
        Modified = true;
        if (follow)
            follow(*person, before, now);
    });
}

void frmEditPlayer::LeaveText(const TextField& field, const std::function<void()>& follow)
{
    EditBox* box = this->*field.Box;
    const auto restore = [&](const Person& person) { box->setText(ToQString(field.Read(person))); };
    LeaveBox(box, field.Mode, restore, [&](const std::string& text) {
        const std::string cut = text.substr(0, field.Width);
        box->setText(ToQString(cut));
        const auto person = ShownPerson();
        if (!person)
            return;
        field.Store(*person, cut);
        restore(*person);
        Modified = true;
        if (follow)
            follow();
    });
}

void frmEditPlayer::txtName_LostFocus()
{
    LeaveText(Name, [this] { RewriteEntry(); });
}

void frmEditPlayer::txtCountry_LostFocus() { LeaveText(Country); }
void frmEditPlayer::txtInjury_LostFocus() { LeaveText(Injury); }
void frmEditPlayer::txtAge_LostFocus() { LeaveNumber(Age); }
void frmEditPlayer::txtWeight_LostFocus() { LeaveNumber(Weight); }
void frmEditPlayer::txtHeight_LostFocus() { LeaveNumber(Height); }
void frmEditPlayer::txtSalary_LostFocus() { LeaveNumber(Salary); }

void frmEditPlayer::txtContract_LostFocus()
{
    LeaveNumber(Contract, {}, [](const Person& person, long long years) {
        const bool plays = On(person, [](const auto& record) { return record.Team != 0; });
        if (years != 0 || !plays || LeagueData.OffSeason)
            return true;
        ShowBox("Zero year contract is not allowed for players who are playing in a team.", box::Information);
        return false;
    });
}

void frmEditPlayer::txtCondition_LostFocus()
{
    LeaveNumber(Condition, [this](const Person& person, long long before, long long now) {
        ChangeCondition(person, before, now);
    });
}

void frmEditPlayer::ChangeCondition(const Person& person, long long before, long long now)
{
    constexpr int injuredBelow = 95;
    if (now >= injuredBelow) { // wherever it comes from: whoever is fit has no injury
        txtInjury->setEnabled(false);
        txtInjury->clear();
        Injury.Store(person, "");
    } else if (before >= injuredBelow) {
        txtInjury->setEnabled(true);
        txtInjury->setFocus();
        Changed = true;
        Injury.Store(person, "Unknown"); // until the box, which has the focus now, is left with a text
        Bench(person);
    }
}

void frmEditPlayer::txtSuspension_LostFocus()
{
    LeaveNumber(Suspension,
                [this](const Person& person, long long before, long long now) { Suspend(person, before, now); });
}

void frmEditPlayer::Suspend(const Person& person, long long before, long long now)
{
    if (before != 0 || now <= 0)
        return;
    Changed = true;
    Bench(person);
    On(person, [now](const auto& record) {
        LeagueNews(record.Name.Trimmed() + " from " + TeamName(record.Team) + " suspended for " + std::to_string(now) +
                   " game(s)");
    });
}

// Takes a person who can no longer play out of the dressed ones and out of the lines of his team.
void frmEditPlayer::Bench(const Person& person)
{
    // The goalie form of an id is the index + 10000 everywhere else. Here it is + 100, which names a skater: whoever has
    // that number leaves the lines, and the goalie stays in them.
    constexpr int goalieForm = 100;
    On(person, [&person](auto& record) {
        if (record.Status == status::Pro)
            record.Status = status::Scratch;
        if (record.Team != 0)
            WipePlayerFromTeamLines(static_cast<int>(record.Team),
                                    person.IsGoalie ? person.Id + goalieForm : person.Id);
    });
}

void frmEditPlayer::txtStats_LostFocus(int index)
{
    EditBox* box = txtStats[index];
    const auto restore = [&](const Person& person) {
        box->setText(Shown(On(person, [index](const auto& record) -> long long { return record.Stats[index]; })));
    };
    LeaveBox(box, InputMode::Numbers, restore, [&](const std::string& text) {
        const long long rating = RoundToInt16(LeadingNumber(text));
        box->setText(Shown(rating));
        const auto person = ShownPerson();
        if (!person)
            return;
        On(*person, [&](auto& record) { record.Stats[index] = rating; });
        ratings->SetRating(index, static_cast<int>(rating));
        Modified = true;
        ShowOverall();
    });
}

void frmEditPlayer::optPosition_Click(int index)
{
    Reporting(" in optPosition!", [&] {
        if (!PositionEventsOn || NewPlayerMode || NewGoalieMode)
            return;
        const auto person = ShownPerson();
        if (!person || person->IsGoalie)
            return;
        Player& player = Players[person->Id];
        player.Position = index;
        PlayerPosition = index;
        LeagueNews(player.Name.Trimmed() + " position was change to " + std::string(PositionName[index]));
        RewriteEntry();
    });
}

void frmEditPlayer::CopyFlag(Boolean Player::*ofSkater, Boolean Goalie::*ofGoalie, const QCheckBox* box)
{
    Reporting(Ending(box->objectName()), [&] {
        if (NewPlayerMode || NewGoalieMode)
            return;
        const auto person = ShownPerson();
        if (!person)
            return;
        Boolean& flag = person->IsGoalie ? Goalies[person->Id].*ofGoalie : Players[person->Id].*ofSkater;
        flag = box->isChecked();
    });
}

void frmEditPlayer::chkRookie_Click() { CopyFlag(&Player::Rookie, &Goalie::Rookie, chkRookie); }
void frmEditPlayer::chkNoTrade_Click() { CopyFlag(&Player::NoTrade, &Goalie::NoTrade, chkNoTrade); }
void frmEditPlayer::chkNoApplyRerate_Click()
{
    CopyFlag(&Player::NoApplyRerate, &Goalie::NoApplyRerate, chkNoApplyRerate);
}

bool frmEditPlayer::IsNewRecordFilled(int ratings) const
{
    const auto filled = [this](const auto* field) { return !IsEmpty(this->*field->Box); };
    return std::all_of(std::begin(Texts), std::end(Texts), filled) &&
           std::all_of(std::begin(NewNumbers), std::end(NewNumbers), filled) &&
           std::none_of(txtStats.begin(), txtStats.begin() + ratings, IsEmpty);
}

void frmEditPlayer::StoreNewFields(const Person& person)
{
    for (const TextField* field : Texts)
        field->Store(person, FromQString((this->*field->Box)->text()));
    for (const NumberField* field : NewNumbers)
        field->Store(person, RoundToInt32(Typed(this->*field->Box)));
    On(person, [this](auto& record) {
        record.Team = 0;
        for (int row = record.Stats.first; row <= record.Stats.last; ++row)
            record.Stats[row] = RoundToInt16(Typed(txtStats[row]));
    });
}

void frmEditPlayer::ClearBoxes()
{
    for (const TextField* field : Texts)
        (this->*field->Box)->clear();
    for (const NumberField* field : Numbers)
        (this->*field->Box)->clear();
    txtInjury->clear();
    txtTeam->clear();
    for (EditBox* box : txtStats)
        box->clear();
}

} // namespace dravik
