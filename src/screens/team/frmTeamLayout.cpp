#include "screens/Looks.h"
#include "screens/panels/ChangeList.h"
#include "screens/panels/Crest.h"
#include "screens/panels/ElidedLabel.h"
#include "screens/panels/KeptWords.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/WhyClosed.h"
#include "screens/team/EveningRows.h"
#include "screens/team/frmTeam.h"
#include "session/OpenSaves.h"

#include <QGroupBox>

// What the team screen is made of and where it stands.
namespace dravik {

namespace {

constexpr QSize DefaultSize(1080, 700);
constexpr const char* LongestCaption = "General Manager";

QGroupBox* MakeGroup(const char* name, const QString& caption, QWidget* parent)
{
    auto* group = new QGroupBox(caption, parent);
    group->setObjectName(name);
    return group;
}

QFrame* MakeRule(QWidget* parent)
{
    auto* rule = new QFrame(parent);
    rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return rule;
}

void Embolden(QLabel* label) { label->setFont(HeadingFont(label->font())); }

} // namespace

frmTeam::frmTeam(Stage& stage) : Screen(stage, "frmTeam")
{
    MakeControls();

    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content, Margin);

    QHBoxLayout* header = MakeRow({MakeOwnCrest(*lblTitle, content), lblTitle, lblDivision, lblConference}, Margin);
    header->addStretch(1);
    column->addLayout(header);

    QVBoxLayout* identity = MakeColumn({MakeProGroup(), MakeFarmGroup(), MakeContactGroup()}, Margin);
    identity->addStretch(1);
    QVBoxLayout* money = MakeColumn({MakeFinanceGroup(), MakeProjectionGroup()}, Margin);
    money->addStretch(1);
    column->addLayout(MakeRow({MakeCommandGroup(), MakeFileGroup()}, Margin));
    QHBoxLayout* columns = MakeRow({}, Margin);
    // The last column has the longest words.
    columns->addLayout(identity, 5);
    columns->addLayout(money, 5);
    columns->addWidget(MakeEveningColumn(), 6);
    column->addLayout(columns, 1);

    const auto makeLook = [this](const char* name, const QString& caption, Look look) {
        QPushButton* command = MakeCommand(name, caption, [this, look] {
            OpenLook(look, Owner, *this, [this](const QString& words, const auto& change) { RunStep(words, change); });
        });
        command->setFocusPolicy(Qt::NoFocus);
        return command;
    };
    QPushButton* calendar = makeLook("cmdCalendar", "&Calendar", Look::Calendar);
    QPushButton* graphs = makeLook("cmdGraphs", "&Graphs", Look::Graphs);

    SetPage(content, MakeFooter({cmdPassword, cmdProspect, calendar, graphs}, {MakeHistoryCommands(), cmdExit}));

    TellWhyClosed({cmdFarmLines}, "The league plays without farm teams.");
    TellWhyClosed({cmdSaveToFile}, "The lines of day 1 are not complete on both sides.");
    TellWhyClosed({txtTeamName, txtAbbre, txtCity, txtGm, txtFarmTeamName, txtFarmAbbre, txtProMorale, txtFarmMorale},
                  kept::Team);
    CloseWhatTheLeagueKeeps();
    SetTabOrder();
    ShowSaveHint({}, {});
    resize(DefaultSize.expandedTo(content->minimumSizeHint()));
}

void frmTeam::MakeControls()
{
    lblTitle = new ElidedLabel(this);
    lblTitle->setFont(TitleFont(lblTitle->font()));
    lblTitle->setObjectName("lblTitle");
    lblDivision = new ElidedLabel(this, ElidedLabel::Words::Muted);
    lblDivision->setObjectName("lblDivision");
    lblConference = new ElidedLabel(this, ElidedLabel::Words::Muted);
    lblConference->setObjectName("lblConference");
    lblSaveHint = new MutedLabel(this);
    lblSaveHint->setObjectName("lblSaveHint");
    lblSaveHint->setTextFormat(Qt::PlainText);
    signSaveHint = new WarningSign(this);
    signSaveHint->setObjectName("signSaveHint");
    // The screen keeps its shape when the hint goes.
    QSizePolicy keepsPlace = lblSaveHint->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    lblSaveHint->setSizePolicy(keepsPlace);
    lblSaveHint->setMinimumHeight(lblSaveHint->fontMetrics().height());

    txtTeamName = MakeBox("txtTeamName", [this] { txtTeamName_LostFocus(); });
    txtAbbre = MakeBox("txtAbbre", [this] { txtAbbre_LostFocus(); });
    txtCity = MakeBox("txtCity", [this] { txtCity_LostFocus(); });
    txtGm = MakeBox("txtGm", [this] { txtGm_LostFocus(); });
    txtProMorale = MakeBox("txtProMorale", [this] { txtProMorale_LostFocus(); });
    txtFarmTeamName = MakeBox("txtFarmTeamName", [this] { txtFarmTeamName_LostFocus(); });
    txtFarmAbbre = MakeBox("txtFarmAbbre", [this] { txtFarmAbbre_LostFocus(); });
    txtFarmMorale = MakeBox("txtFarmMorale", [this] { txtFarmMorale_LostFocus(); });
    txtMessenger = MakeBox("txtMessenger", [this] { txtMessenger_LostFocus(); });
    txtEmail = MakeBox("txtEmail", [this] { txtEmail_LostFocus(); });

    lblCoach = MakeFigure("lblCoach", false);
    lblFarmCoach = MakeFigure("lblFarmCoach", false);
    lblLoadLine = MakeFigure("lblLoadLine", false);
    lblFinance = MakeFigure("lblFinance");
    lblProPayRoll = MakeFigure("lblProPayRoll");
    lblFarmPayRoll = MakeFigure("lblFarmPayRoll");
    lblGameLeft = MakeFigure("lblGameLeft");
    lblHGLeft = MakeFigure("lblHGLeft");
    lblAverageAttendance = MakeFigure("lblAverageAttendance");
    lblAverageIncome = MakeFigure("lblAverageIncome");
    lblEstimatedRevenue = MakeFigure("lblEstimatedRevenue");
    lblExpensesPerGame = MakeFigure("lblExpensesPerGame");
    lblEstimatedSeasonExpense = MakeFigure("lblEstimatedSeasonExpense");
    lblEstimatedBankAccount = MakeFigure("lblEstimatedBankAccount");

    CmdRoster = MakeCommand("CmdRoster", "&Roster", [this] { CmdRoster_Click(); });
    cmdLines = MakeCommand("cmdLines", "&Lines", [this] { cmdLines_Click(); });
    cmdFarmLines = MakeCommand("cmdFarmLines", "&Farm Lines", [this] { cmdFarmLines_Click(); });
    cmdTicketArena = MakeCommand("cmdTicketArena", "&Tickets && Arena", [this] { cmdTicketArena_Click(); });
    cmdSaveToFile = MakeCommand("cmdSaveToFile", "&Save Lines", [this] { cmdSaveToFile_Click(); });
    cmdLoadFile = MakeCommand("cmdLoadFile", "L&oad Lines ...", AsStep("Load Lines", [this] { cmdLoadFile_Click(); }));
    cmdTakeLines = MakeCommand("cmdTakeLines", "Ta&ke Lines From ...", [this] { cmdTakeLines_Click(); });
    cmdTakeLines->setFocusPolicy(Qt::NoFocus);
    MakeTakeMenu();
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });
    cmdChangeFinance = MakeCommand("cmdChangeFinance", "Change &Bank Account ...",
                                   AsStep("Change Bank Account", [this] { cmdChangeFinance_Click(); }));
    cmdPayrollBonus = MakeCommand("cmdPayrollBonus", "Payroll Bo&nus ...",
                                  AsStep("Payroll Bonus", [this] { cmdPayrollBonus_Click(); }));
    cmdPassword =
        MakeCommand("cmdPassword", "Change &Password ...", AsStep("Change Password", [this] { cmdPassword_Click(); }));
    cmdChangeCoach = MakeCommand("cmdChangeCoach", "Change Coach", [this] { cmdChangeCoach_Click(); });
    cmdFarmChangeCoach = MakeCommand("cmdFarmChangeCoach", "Change Coach", [this] { cmdFarmChangeCoach_Click(); });
    cmdFirePro = MakeCommand("cmdFirePro", "Fire Coach", AsStep("Fire Coach", [this] { cmdFirePro_Click(); }));
    cmdFireFarm =
        MakeCommand("cmdFireFarm", "Fire Coach", AsStep("Fire Coach of the farm", [this] { cmdFireFarm_Click(); }));
    cmdProspect = MakeCommand("cmdProspect", "Prospects", [this] { cmdProspect_Click(); });
    for (QPushButton* command : {cmdFarmChangeCoach, cmdFireFarm})
        command->setAccessibleName("Farm: " + command->text());
}

QLabel* frmTeam::MakeFigure(const char* name, bool isNumber)
{
    auto* label = new ElidedLabel(this);
    label->setObjectName(name);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (isNumber)
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

void frmTeam::AddRow(QGridLayout* grid, const QString& caption, QWidget* field, int span)
{
    const int row = grid->rowCount();
    auto* label = new MutedLabel(caption, this);
    label->setObjectName(field->objectName() + "Caption");
    label->setBuddy(field);
    // A label is read by its own text; the name of a figure would hide it.
    if (qobject_cast<EditBox*>(field) != nullptr)
        field->setAccessibleName(QString(caption).remove('&'));
    grid->addWidget(label, row, CaptionColumn);
    grid->addWidget(field, row, FieldColumn, 1, span);
}

QWidget* frmTeam::MakeCommandGroup()
{
    auto* group = MakeGroup("grpTeam", "Team", this);
    auto* commands = new QHBoxLayout(group);
    SetGroupMargins(commands);
    commands->setSpacing(Gap);
    // The way of every evening: as large as the room allows.
    for (QPushButton* command : {CmdRoster, cmdLines, cmdFarmLines, cmdTicketArena}) {
        command->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::MinimumExpanding);
        commands->addWidget(command, 1);
    }
    return group;
}

// What of the lines file is to be taken.
void frmTeam::MakeTakeMenu()
{
    struct Choice {
        const char* Name;
        const char* Words;
        std::vector<Side> Sides;
    };
    const Choice choices[] = {{"mnuTakeBoth", "Pro &and Farm Lines ...", {Side::Pro, Side::Farm}},
                              {"mnuTakePro", "&Pro Lines ...", {Side::Pro}},
                              {"mnuTakeFarm", "&Farm Lines ...", {Side::Farm}}};
    takeMenu = new QMenu(this);
    for (const Choice& choice : choices) {
        QAction* action = takeMenu->addAction(choice.Words);
        action->setObjectName(choice.Name);
        connect(action, &QAction::triggered, this,
                AsStep("Take Lines", [this, sides = choice.Sides] { TakeLinesFrom(sides); }));
    }
    takeMenu->addSeparator();
    mnuMovedOn = takeMenu->addAction("Moved &On by the Days Played Since");
    mnuMovedOn->setObjectName("mnuMovedOn");
    mnuMovedOn->setCheckable(true);
    mnuMovedOn->setChecked(true);
}

QWidget* frmTeam::MakeFileGroup()
{
    auto* group = MakeGroup("grpLinesFile", "Lines File", this);
    QVBoxLayout* column = MakeColumn(group);
    SetGroupMargins(column);
    auto* loads = new MutedLabel("Times Loaded", group);
    loads->setObjectName("lblLoadLineCaption");
    loads->setBuddy(lblLoadLine);
    column->addLayout(MakeFooter({cmdSaveToFile, cmdLoadFile, cmdTakeLines}, {loads, lblLoadLine}));
    column->addWidget(MakeSaveLine(SavedFile::Lines));
    QHBoxLayout* hint = MakeRow({signSaveHint, lblSaveHint});
    hint->setStretch(1, 1);
    column->addLayout(hint);
    column->addStretch(1);
    return group;
}

QWidget* frmTeam::MakeProGroup()
{
    auto* group = MakeGroup("grpPro", "Pro Team", this);
    QGridLayout* grid = MakeFieldGrid(group, LongestCaption);
    AddRow(grid, "Name", txtTeamName);
    AddRow(grid, "City", txtCity);
    AddRow(grid, "Abbreviation", txtAbbre);
    AddRow(grid, "General Manager", txtGm);
    AddRow(grid, "Morale", txtProMorale);
    AddRow(grid, "Coach", lblCoach);
    grid->addLayout(MakeRow({cmdChangeCoach, cmdFirePro}), grid->rowCount(), FieldColumn, Qt::AlignLeft);
    return group;
}

QWidget* frmTeam::MakeFarmGroup()
{
    auto* group = MakeGroup("grpFarm", "Farm Team", this);
    QGridLayout* grid = MakeFieldGrid(group, LongestCaption);
    AddRow(grid, "Name", txtFarmTeamName);
    AddRow(grid, "Abbreviation", txtFarmAbbre);
    AddRow(grid, "Morale", txtFarmMorale);
    AddRow(grid, "Coach", lblFarmCoach);
    for (EditBox* box : {txtFarmTeamName, txtFarmAbbre, txtFarmMorale})
        box->setAccessibleName("Farm: " + box->accessibleName());
    grid->addLayout(MakeRow({cmdFarmChangeCoach, cmdFireFarm}), grid->rowCount(), FieldColumn, Qt::AlignLeft);
    return group;
}

QWidget* frmTeam::MakeContactGroup()
{
    auto* group = MakeGroup("grpContact", "Contact", this);
    QGridLayout* grid = MakeFieldGrid(group, LongestCaption);
    AddRow(grid, "&Messenger", txtMessenger);
    AddRow(grid, "&E-mail", txtEmail);
    return group;
}

QWidget* frmTeam::MakeFinanceGroup()
{
    auto* group = MakeGroup("grpFinance", "Finances", this);
    QGridLayout* grid = MakeFieldGrid(group, LongestCaption);
    AddRow(grid, "Bank Account", lblFinance);
    AddRow(grid, "Pro Payroll", lblProPayRoll);
    AddRow(grid, "Farm Payroll", lblFarmPayRoll);
    grid->addLayout(MakeRow({cmdChangeFinance, cmdPayrollBonus}), grid->rowCount(), FieldColumn, Qt::AlignRight);
    return group;
}

QWidget* frmTeam::MakeProjectionGroup()
{
    auto* group = MakeGroup("grpProjection", "Season Projection", this);
    QGridLayout* grid = MakeFieldGrid(group, LongestCaption);
    AddRow(grid, "Home Games Left", lblHGLeft);
    AddRow(grid, "Average Attendance", lblAverageAttendance);
    AddRow(grid, "Average Income", lblAverageIncome);
    AddRow(grid, "Estimated Revenue", lblEstimatedRevenue);
    grid->addWidget(MakeRule(group), grid->rowCount(), CaptionColumn, 1, 2);
    AddRow(grid, "Games Left", lblGameLeft);
    AddRow(grid, "Expenses per Game", lblExpensesPerGame);
    AddRow(grid, "Estimated Expenses", lblEstimatedSeasonExpense);
    grid->addWidget(MakeRule(group), grid->rowCount(), CaptionColumn, 1, 2);
    AddRow(grid, "Estimated Bank Account", lblEstimatedBankAccount);
    Embolden(lblEstimatedBankAccount);
    return group;
}

void frmTeam::SetTabOrder()
{
    const QList<QWidget*> order{CmdRoster,        cmdLines,           cmdFarmLines, cmdTicketArena,  cmdSaveToFile,
                                cmdLoadFile,      txtTeamName,        txtCity,      txtAbbre,        txtGm,
                                txtProMorale,     cmdChangeCoach,     cmdFirePro,   txtFarmTeamName, txtFarmAbbre,
                                txtFarmMorale,    cmdFarmChangeCoach, cmdFireFarm,  txtMessenger,    txtEmail,
                                cmdChangeFinance, cmdPayrollBonus,    cmdPassword,  cmdProspect,     cmdExit};
    ChainTabs(order);
}

} // namespace dravik
