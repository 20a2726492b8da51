#include "screens/market/WhatIfWindow.h"

#include "desk/WhatIf.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>

namespace dravik {

namespace {

constexpr QSize UsualSize(560, 500);

// A figure of a team; none where the league has none.
using FigureOf = std::function<std::optional<long long>(const TeamStanding&)>;

long long CoachesIn(const CapStanding& payroll)
{
    return payroll.Total - payroll.Pro - (LeagueData.FarmPayrollInCap ? payroll.Farm : 0);
}

QString Money(std::optional<long long> amount)
{
    return amount ? ToQString(Machine().CurrencyNoDecimals(static_cast<double>(*amount))) : QString("-");
}

// With its sign, so that nobody takes a loss for a gain.
QString Difference(long long amount, const std::function<QString(long long)>& words)
{
    if (amount == 0)
        return {};
    return amount > 0 ? "+" + words(amount) : QString(QChar(0x2212)) + words(-amount);
}

QStringList CountRow(const QString& words, long long now, long long then)
{
    return {words, QString::number(now), QString::number(then),
            Difference(then - now, [](long long count) { return QString::number(count); })};
}

QStringList MoneyRow(const QString& words, const AllTaken& taken, const FigureOf& figure)
{
    const auto now = figure(taken.Now);
    const auto then = figure(taken.Then);
    return {words, Money(now), Money(then),
            now && then ? Difference(*then - *now, [](long long amount) { return Money(amount); }) : QString()};
}

QList<QStringList> RowsOf(const AllTaken& taken)
{
    const char* positions[] = {"Centers", "Left wings", "Right wings", "Defensemen", "Goalies"};
    QList<QStringList> rows;
    for (std::size_t at = 0; at < taken.Now.People.size(); ++at)
        rows << CountRow(positions[at], taken.Now.People[at], taken.Then.People[at]);
    const auto all = [](const PeopleByPosition& people) { return std::accumulate(people.begin(), people.end(), 0); };
    rows << CountRow("People in all", all(taken.Now.People), all(taken.Then.People));
    using Standing = const TeamStanding&;
    rows << MoneyRow("Pro payroll", taken, [](Standing team) { return team.Payroll.Pro; });
    if (LeagueData.FarmPayrollInCap)
        rows << MoneyRow("Farm payroll", taken, [](Standing team) { return team.Payroll.Farm; });
    if (LeagueData.CoachPayrollInCap)
        rows << MoneyRow("Coaches", taken, [](Standing team) { return CoachesIn(team.Payroll); });
    rows << MoneyRow("Payroll this season", taken, [](Standing team) { return team.Payroll.Total; });
    rows << MoneyRow("Salary cap", taken, [](Standing team) { return team.Payroll.Cap; });
    rows << MoneyRow("Room under the cap", taken, [](Standing team) -> std::optional<long long> {
        if (!team.Payroll.Cap)
            return std::nullopt;
        return *team.Payroll.Cap - team.Payroll.Total;
    });
    rows << MoneyRow("Bank account", taken, [](Standing team) { return team.Money; });
    rows << MoneyRow("Expenses per game", taken, [](Standing team) { return team.PerGame; });
    return rows;
}

} // namespace

WhatIfWindow::WhatIfWindow(QWidget* screen, const OfferTable& offers) : LookWindow(screen, Name, UsualSize), all(offers)
{
    lblOffers = MakeHeading({}, this);
    lblOffers->setObjectName("lblOffers");
    lblHint = new MutedLabel(this);
    lblHint->setObjectName("lblHint");
    lblHint->setWordWrap(true);
    tblFigures = new FigureTable({{"", false, true}, {"Now"}, {"Then"}, {"Difference"}}, this);
    tblFigures->setObjectName("tblFigures");
    tblFigures->setAccessibleName("With all offers taken");
    QVBoxLayout* column = MakePage(this);
    column->addWidget(lblOffers);
    column->addWidget(lblHint);
    column->addWidget(tblFigures, 1);
}

// What does not fit the league's figures has no row.
void WhatIfWindow::ShowAnew()
{
    SetTitle(Shown(OwnTeam().Name) + " - What If");
    try {
        const AllTaken taken = WithAllOffersTaken(OpenLeague, OwnNumber(), all);
        lblOffers->setText(QString("With all offers taken: %1").arg(taken.Offers));
        lblHint->setText("Your own stay where they stand, others count among the scratches. The bank account pays the "
                         "bonuses. Nothing changes by looking.");
        tblFigures->Show(RowsOf(taken));
    } catch (const Failure&) {
        lblOffers->setText("With all offers taken");
        lblHint->setText("This is beyond what can be reckoned.");
        tblFigures->Show({});
    }
}

} // namespace dravik
