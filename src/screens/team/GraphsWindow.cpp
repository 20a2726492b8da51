#include "screens/team/GraphsWindow.h"

#include "desk/TeamFigures.h"
#include "screens/panels/Crest.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <numeric>

namespace dravik {

namespace {

constexpr QSize UsualSize(1120, 600);
constexpr auto NoOveralls = "The league shows no overalls.";

QString Money(double amount) { return ToQString(Machine().CurrencyNoDecimals(amount)); }

QString Whole(double number) { return QString::number(static_cast<long long>(number)); }

// A mean to one digit, as the locale writes it.
QString Mean(double mean) { return ToQString(Machine().Fixed(mean, 1)); }

QString Figure(const std::optional<int>& number) { return number ? QString::number(*number) : QString("-"); }

std::optional<double> AsBar(const std::optional<int>& number)
{
    return number ? std::optional(static_cast<double>(*number)) : std::nullopt;
}

void Fill(const GraphsWindow::Page& page, const PlotData& data, const QList<QStringList>& rows)
{
    page.lblCaption->setText(data.Caption);
    page.Bars->Show(data);
    page.tblFigures->Show(rows);
    page.Bars->setVisible(!rows.isEmpty());
    page.tblFigures->setVisible(!rows.isEmpty());
}

void TellNothing(const GraphsWindow::Page& page, const QString& why)
{
    Fill(page, {.Caption = why, .Categories = {}, .Series = {}, .Mark = {}, .Worded = Whole}, {});
}

} // namespace

GraphsWindow::GraphsWindow(QWidget* screen) : LookWindow(screen, Name, UsualSize), tabPages(new QTabWidget(this))
{
    tabPages->setObjectName("tabPages");
    tabPages->setDocumentMode(true); // pages on the ground of the window, which the plots are painted for
    Payroll = MakePage("Payroll", "Payroll", {{"Season", false, true}, {"Payroll"}, {"Cap"}, {"Room"}});
    QList<TableColumn> ages{{"Age", false, true}};
    for (const std::string_view position : PositionName)
        ages << TableColumn{ToQString(position)};
    ages << TableColumn{"All"};
    Ages = MakePage("Ages", "Ages", ages);
    Days = MakePage("Days", "Ten Days",
                    {{"Day"}, {"Opponent", false, true}, {"Lines"}, {"Theirs"}, {"Goalie"}, {"Theirs"}});
    Ranks = MakePage("Ranks", "Ranks", {{"", false, true}, {"Rank", false}, {"Yours"}, {"Median"}, {"Best"}});
    QVBoxLayout* column = dravik::MakePage(this);
    column->addWidget(tabPages);
    tabPages->setFocus(); // the arrows turn the pages; letters with Alt are those of the screen
}

GraphsWindow::Page GraphsWindow::MakePage(const QString& name, const QString& title, const QList<TableColumn>& columns)
{
    auto* sheet = new QWidget(tabPages);
    Page page{.lblCaption = new QLabel(sheet), .Bars = new Plot(sheet), .tblFigures = new FigureTable(columns, sheet)};
    page.lblCaption->setObjectName("lbl" + name);
    page.lblCaption->setTextFormat(Qt::PlainText);
    page.lblCaption->setWordWrap(true);
    page.Bars->setObjectName("plt" + name);
    page.tblFigures->setObjectName("tbl" + name);
    page.tblFigures->setAccessibleName(title);
    QVBoxLayout* column = dravik::MakePage(sheet);
    column->addWidget(page.lblCaption);
    QHBoxLayout* row = MakeRow({}, 2 * Margin);
    row->addWidget(page.Bars, 1); // the table takes the room of its words, as far as the graph can spare it
    row->addWidget(page.tblFigures);
    column->addLayout(row, 1);
    column->addStretch(0);
    tabPages->addTab(sheet, title);
    return page;
}

void GraphsWindow::ShowAnew()
{
    SetTitle(Shown(OwnTeam().Name) + " - Graphs");
    ShowPayroll();
    ShowAges();
    ShowDays();
    ShowRanks();
}

// A payroll or a cap beyond 32 bits has no place on a scale.
void GraphsWindow::ShowPayroll()
{
    std::vector<CapStanding> years;
    try {
        years = PayrollByYears(OpenLeague, OwnNumber());
    } catch (const Failure&) {
        TellNothing(Payroll, "The payroll is beyond what can be reckoned.");
        return;
    }
    PlotData data{.Caption =
                      "Payroll, this season and what contracts bind in the seasons behind it, if nobody is signed or "
                      "released.",
                  .Categories = {},
                  .Series = {{.Name = "Payroll", .Values = {}}},
                  .Mark = {},
                  .Worded = Money};
    QList<QStringList> rows;
    for (const CapStanding& year : years) {
        const QString season = rows.isEmpty() ? QString("This season") : QString("+%1").arg(rows.size());
        data.Categories << season;
        data.Series[0].Values << static_cast<double>(year.Total);
        rows << QStringList{season, Money(static_cast<double>(year.Total)),
                            year.Cap ? Money(static_cast<double>(*year.Cap)) : QString("-"),
                            year.Cap ? Money(static_cast<double>(*year.Cap - year.Total)) : QString("-")};
    }
    if (years.front().Cap)
        data.Mark = PlotMark{"Cap", static_cast<double>(*years.front().Cap)};
    Fill(Payroll, data, rows);
}

void GraphsWindow::ShowAges()
{
    const dravik::Ages ages = AgesOf(OpenLeague, OwnNumber());
    PlotData data{.Caption = "How many people are of an age, by position, pro team, scratches and farm together.",
                  .Categories = {},
                  .Series = {},
                  .Mark = {},
                  .Worded = Whole};
    for (const std::string_view position : PositionName)
        data.Series << PlotSeries{.Name = ToQString(position), .Values = {}};
    QList<QStringList> rows;
    for (std::size_t band = 0; band < ages.size(); ++band) {
        data.Categories << ToQString(AgeRows[band].Words);
        QStringList row{data.Categories.last()};
        for (std::size_t position = 0; position < ages[band].size(); ++position) {
            data.Series[static_cast<qsizetype>(position)].Values << ages[band][position];
            row << QString::number(ages[band][position]);
        }
        row << QString::number(std::accumulate(ages[band].begin(), ages[band].end(), 0));
        rows << row;
    }
    Fill(Ages, data, rows);
}

void GraphsWindow::ShowDays()
{
    const std::vector<DayStrength> days = StrengthOfDays(OpenLeague, OwnNumber());
    if (days.empty()) {
        TellNothing(Days, NoOveralls);
        return;
    }
    PlotData data{
        .Caption = "Mean overall of your lines and pairs, and your goalie, on the ten days, beside the opponent's best "
                   "eighteen skaters and his best goalie.",
        .Categories = {},
        .Series = {{.Name = "Your lines", .Values = {}},
                   {.Name = "Their skaters", .Values = {}},
                   {.Name = "Your goalie", .Values = {}},
                   {.Name = "Their goalie", .Values = {}}},
        .Mark = {},
        .BeginsAtZero = false,
        .Worded = Whole};
    QList<QStringList> rows;
    for (const DayStrength& day : days) {
        const std::optional<int> figures[] = {day.Own, day.Opponent.Skaters, day.Goalie, day.Opponent.Goalie};
        data.Categories << QString("Day %1").arg(rows.size() + 1);
        QStringList row{QString::number(rows.size() + 1), day.OpponentNumber && TeamTable::Has(*day.OpponentNumber)
                                                              ? Shown(Teams[*day.OpponentNumber].Name)
                                                              : QString("-")};
        for (qsizetype series = 0; series < data.Series.size(); ++series) {
            data.Series[series].Values << AsBar(figures[series]);
            row << Figure(figures[series]);
        }
        rows << row;
    }
    Fill(Days, data, rows);
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const auto opponent = days[static_cast<std::size_t>(row)].OpponentNumber;
        Days.tblFigures->item(row, 1)->setData(
            entry::CrestRole,
            QVariant::fromValue(opponent && TeamTable::Has(*opponent) ? CrestOf(Teams[*opponent]) : Crest()));
    }
}

void GraphsWindow::ShowRanks()
{
    if (!LeagueData.ShowOverall) {
        TellNothing(Ranks, NoOveralls);
        return;
    }
    const auto ranks = RanksOf(OpenLeague, OwnNumber());
    QStringList who;
    for (const StrongInRow& row : StrongInTable)
        who << QString(row.Words).toLower() + " " + row.BestOf;
    PlotData data{.Caption = "Mean overall of a team's best in each position, and your rank in the league: " +
                             who.join("; ") + ".",
                  .Categories = {},
                  .Series = {{.Name = "Yours", .Values = {}},
                             {.Name = "Median of the league", .Values = {}},
                             {.Name = "Best of the league", .Values = {}}},
                  .Mark = {},
                  .BeginsAtZero = false,
                  .Worded = Mean};
    QList<QStringList> rows;
    for (std::size_t at = 0; at < ranks.size(); ++at) {
        const PositionRank& rank = ranks[at];
        const bool isAny = rank.Teams > 0;
        const QString place = rank.Mean ? QString("%1 of %2").arg(rank.Rank).arg(rank.Teams) : QString("-");
        data.Categories << QString(StrongInTable[at].Words) + ": " + place;
        data.Series[0].Values << rank.Mean;
        data.Series[1].Values << (isAny ? std::optional(rank.Median) : std::nullopt);
        data.Series[2].Values << (isAny ? std::optional(rank.Best) : std::nullopt);
        rows << QStringList{StrongInTable[at].Words, place, rank.Mean ? Mean(*rank.Mean) : QString("-"),
                            isAny ? Mean(rank.Median) : QString("-"), isAny ? Mean(rank.Best) : QString("-")};
    }
    Fill(Ranks, data, rows);
}

} // namespace dravik
