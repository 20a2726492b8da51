#include "screens/ElementName.h"
#include "screens/panels/Crest.h"
#include "screens/panels/KeptWords.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/WhyClosed.h"
#include "screens/Pins.h"
#include "screens/player/frmEditPlayer.h"
#include "session/Session.h"

#include <algorithm>
#include <QEvent>
#include <QGroupBox>
#include <QShortcut>

// What the player viewer is made of and where it stands.
namespace dravik {

namespace {

constexpr QSize DefaultSize(1120, 600);
constexpr int MostListRows = 8;
constexpr const char* LongestCaption = "Suspension :";
constexpr const char* WidestAmount = "-2147483648";
constexpr const char* WidestNumber = "-999999";

// Puts a caption and what it names into the next row of a grid.
void AddRow(QGridLayout* grid, const QString& caption, QWidget* field)
{
    const int row = grid->rowCount();
    auto* label = new MutedLabel(caption, field->parentWidget());
    label->setBuddy(field);
    field->setAccessibleName(caption.section(':', 0, 0).trimmed());
    grid->addWidget(label, row, CaptionColumn);
    // A box of fixed width keeps to the left of the column, and the column its width.
    const bool isFixed = field->minimumWidth() == field->maximumWidth();
    grid->addWidget(field, row, FieldColumn, isFixed ? Qt::AlignLeft : Qt::Alignment());
}

// Puts what has a caption of its own under the fields.
void AddBelow(QGridLayout* grid, std::initializer_list<QWidget*> widgets)
{
    for (QWidget* widget : widgets)
        grid->addWidget(widget, grid->rowCount(), FieldColumn, Qt::AlignLeft);
}

// Has the rows of groups that stand side by side stand level, however high the groups are.
void LevelRows(std::initializer_list<QWidget*> groups)
{
    int rows = 0;
    int height = 0;
    for (const QWidget* group : groups) {
        const auto* grid = static_cast<QGridLayout*>(group->layout());
        rows = std::max(rows, grid->rowCount());
        for (int item = 0; item < grid->count(); ++item)
            height = std::max(height, grid->itemAt(item)->sizeHint().height());
    }
    for (QWidget* group : groups) {
        auto* grid = static_cast<QGridLayout*>(group->layout());
        while (grid->rowCount() < rows) { // a row with nothing in it would have neither spacing nor a share
            auto* filler = new QWidget(group);
            filler->setFixedHeight(height);
            grid->addWidget(filler, grid->rowCount(), CaptionColumn);
        }
        for (int row = 1; row < rows; ++row) { // the first row of a grid stays empty
            grid->setRowMinimumHeight(row, height);
            grid->setRowStretch(row, 1);
        }
    }
}

} // namespace

frmEditPlayer::frmEditPlayer(Stage& stage) : Screen(stage, "frmEditPlayer")
{
    MakeBoxes();
    MakeOptions();
    MakeCommands();

    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content, Margin);
    column->addWidget(lstPlayer);

    // The groups with names and injuries have the wide column: forty letters of any width stand there whole.
    auto* body = new QGridLayout;
    body->setSpacing(Margin);
    body->setColumnStretch(0, 2);
    body->setColumnStretch(1, 1);
    body->addWidget(MakeIdentityGroup(), 0, 0);
    body->addWidget(MakeStatsGroup(), 0, 1);
    QWidget* condition = MakeConditionGroup();
    QWidget* contract = MakeContractGroup();
    LevelRows({condition, contract});
    body->addWidget(condition, 1, 0);
    body->addWidget(contract, 1, 1);
    // What a tall window has left, the rows share.
    body->setRowStretch(0, 2);
    body->setRowStretch(1, 1);
    column->addLayout(body, 1);

    SetPage(content, MakeFooter({chkEdit, cmdSearch, cmdNewPlayer, cmdNewGoaler, cmdErase}, {cmdExit}));

    TellWhyClosed({chkEdit,          cmdSearch,   cmdNewPlayer, cmdNewGoaler, cmdErase,   chkRookie,    chkNoTrade,
                   chkNoApplyRerate, optGoaler,   txtName,      txtTeam,      txtCountry, txtAge,       txtWeight,
                   txtHeight,        txtContract, txtSalary,    txtCondition, txtInjury,  txtSuspension},
                  kept::Records);
    for (QRadioButton* option : optPosition)
        TellWhyClosed({option}, kept::Records);
    for (EditBox* box : txtStats)
        TellWhyClosed({box}, kept::Records);
    optGoaler->hide();
    FitList();
    CloseEditor();
    ShadeClosedControls();
    cmdExit->setFocus();
    resize(DefaultSize.expandedTo(content->minimumSizeHint()));
}

void frmEditPlayer::MakeBoxes()
{
    txtName = MakeBox("txtName", [this] { txtName_LostFocus(); });
    txtTeam = MakeBox("txtTeam", [] {});
    txtTeam->setReadOnly(true);
    txtTeam->setFocusPolicy(Qt::NoFocus);
    txtTeam->setEnabled(false);
    txtCountry = MakeBox("txtCountry", [this] { txtCountry_LostFocus(); });
    txtAge = MakeBox("txtAge", [this] { txtAge_LostFocus(); });
    txtWeight = MakeBox("txtWeight", [this] { txtWeight_LostFocus(); });
    txtHeight = MakeBox("txtHeight", [this] { txtHeight_LostFocus(); });
    txtContract = MakeBox("txtContract", [this] { txtContract_LostFocus(); });
    txtSalary = MakeBox("txtSalary", [this] { txtSalary_LostFocus(); });
    txtCondition = MakeBox("txtCondition", [this] { txtCondition_LostFocus(); });
    txtInjury = MakeBox("txtInjury", [this] { txtInjury_LostFocus(); });
    txtSuspension = MakeBox("txtSuspension", [this] { txtSuspension_LostFocus(); });
    for (EditBox* box : {txtName, txtTeam, txtCountry, txtAge, txtWeight, txtHeight, txtContract, txtSalary,
                         txtCondition, txtInjury, txtSuspension})
        box->ReadAsLabelWhenClosed();
    // The numbers of a group stand in one column close to their captions.
    const auto makeNumeric = [](EditBox* box, const char* widest) {
        box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        box->setFixedWidth(box->fontMetrics().horizontalAdvance(widest));
    };
    for (EditBox* box : {txtAge, txtWeight, txtHeight, txtCondition, txtSuspension})
        makeNumeric(box, WidestNumber);
    for (EditBox* box : {txtContract, txtSalary})
        makeNumeric(box, WidestAmount);
    for (int row = StatBoxes::first; row <= StatBoxes::last; ++row) {
        EditBox* box = MakeBox(ElementName("txtStats", row), [this, row] { txtStats_LostFocus(row); });
        makeNumeric(box, WidestNumber);
        box->ReadAsLabelWhenClosed();
        txtStats[row] = box;
    }
}

void frmEditPlayer::MakeOptions()
{
    positions = new QButtonGroup(this);
    const auto makeOption = [this](const QString& name, const QString& caption) {
        auto* option = new QRadioButton(caption, this);
        option->setObjectName(name);
        positions->addButton(option);
        return option;
    };
    const QStringList captions{"Center", "Left Wing", "Right Wing", "Defense"};
    for (int index = position::Center; index <= position::Defense; ++index) {
        optPosition[index] = makeOption(ElementName("optPosition", index), captions[index - 1]);
        connect(optPosition[index], &QRadioButton::toggled, this, [this, index](bool ticked) {
            if (ticked)
                optPosition_Click(index);
        });
    }
    optGoaler = makeOption("optGoaler", "Goalie");

    const auto makeCheck = [this](const char* name, const QString& caption) {
        auto* check = new QCheckBox(caption, this);
        check->setObjectName(name);
        return check;
    };
    chkRookie = makeCheck("chkRookie", "Rookie");
    chkNoTrade = makeCheck("chkNoTrade", "No Trade");
    chkNoApplyRerate = makeCheck("chkNoApplyRerate", "Do Not Apply Rerate");
    chkEdit = makeCheck("chkEdit", "Allow Edition");
    connect(chkRookie, &QCheckBox::clicked, this, [this] { chkRookie_Click(); });
    connect(chkNoTrade, &QCheckBox::clicked, this, [this] { chkNoTrade_Click(); });
    connect(chkNoApplyRerate, &QCheckBox::clicked, this, [this] { chkNoApplyRerate_Click(); });
    connect(chkEdit, &QCheckBox::toggled, this, [this] { chkEdit_Click(); });
}

void frmEditPlayer::MakeCommands()
{
    lstPlayer = new EntryList(this);
    lstPlayer->setObjectName("lstPlayer");
    lstPlayer->setAccessibleName("Players");
    connect(lstPlayer, &QListWidget::currentRowChanged, this, [this] { lstPlayer_Click(); });
    cmdSearch = MakeCommand("cmdSearch", "Search Player", [this] { cmdSearch_Click(); });
    cmdNewPlayer = MakeCommand("cmdNewPlayer", "New Player", [this] { cmdNewPlayer_Click(); });
    cmdNewGoaler = MakeCommand("cmdNewGoaler", "New Goalie", [this] { cmdNewGoaler_Click(); });
    cmdErase = MakeCommand("cmdErase", "Erase", [this] { cmdErase_Click(); });
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });
}

QWidget* frmEditPlayer::MakeIdentityGroup()
{
    auto* group = new QGroupBox("Player", this);
    QGridLayout* grid = MakeFieldGrid(group, LongestCaption);
    AddRow(grid, "Name : ", txtName);
    AddRow(grid, "Team : ", txtTeam);
    const auto crestOfShown = [this] {
        const auto person = txtTeam->text().isEmpty() ? std::nullopt : ShownPerson();
        const long long team =
            !person ? 0 : OnPerson(OpenLeague, *person, [](const auto& record) -> long long { return record.Team; });
        return TeamTable::Has(team) ? CrestOf(Teams[team]) : Crest();
    };
    auto* crest = new CrestLabel(crestOfShown, group);
    crest->hide();
    connect(txtTeam, &QLineEdit::textChanged, crest, [crest, crestOfShown] {
        crest->setVisible(!crestOfShown().IsNone());
        crest->update();
    });
    grid->removeWidget(txtTeam);
    grid->addLayout(MakeRow({crest, txtTeam}), grid->rowCount() - 1, FieldColumn);
    AddRow(grid, "Country :", txtCountry);
    AddRow(grid, "Age : ", txtAge);
    AddRow(grid, "Weight :", txtWeight);
    AddRow(grid, "Height :", txtHeight);
    const int row = grid->rowCount();
    auto* caption = new MutedLabel("Position : ", group);
    caption->setMinimumHeight(optGoaler->sizeHint().height()); // level with the first row of options
    grid->addWidget(caption, row, CaptionColumn, Qt::AlignTop);
    auto* options = new QGridLayout;
    options->setSpacing(Gap);
    for (int index = position::Center; index <= position::Defense; ++index)
        options->addWidget(optPosition[index], (index - 1) / 2, (index - 1) % 2);
    options->addWidget(optGoaler, 2, 0);
    options->setColumnStretch(2, 1); // the options stand together at the left
    grid->addLayout(options, row, FieldColumn);
    AddBelow(grid, {chkRookie});
    return group;
}

QWidget* frmEditPlayer::MakeContractGroup()
{
    auto* group = new QGroupBox("Contract", this);
    QGridLayout* grid = MakeFieldGrid(group, LongestCaption);
    AddRow(grid, "Contract :", txtContract);
    AddRow(grid, "Salary :", txtSalary);
    AddBelow(grid, {chkNoTrade, chkNoApplyRerate});
    return group;
}

QWidget* frmEditPlayer::MakeConditionGroup()
{
    auto* group = new QGroupBox("Condition", this);
    QGridLayout* grid = MakeFieldGrid(group, LongestCaption);
    AddRow(grid, "Condition :", txtCondition);
    AddRow(grid, "Injury :", txtInjury);
    AddRow(grid, "Suspension :", txtSuspension);
    return group;
}

QWidget* frmEditPlayer::MakeStatsGroup()
{
    auto* group = new QGroupBox("Stats", this);
    RatingRows::Numbers numbers;
    std::copy(txtStats.begin(), txtStats.end(), numbers.begin());
    ratings = new RatingRows(group, numbers);
    auto* column = new QVBoxLayout(group);
    SetGroupMargins(column);
    column->setSpacing(Gap / 2);
    column->addLayout(ratings);
    cmdPin = new PinCommand(group);
    lblPinned = new PinLine(group);
    QHBoxLayout* foot = MakeRow({});
    foot->addLayout(lblPinned->WithLetGo(), 1);
    foot->addWidget(cmdPin, 0, Qt::AlignRight);
    column->addLayout(foot);
    connect(&NewsOfPins(), &PinNews::Changed, this, [this] { ShowPinned(); });
    connect(new QShortcut(QKeySequence(PinKey), this), &QShortcut::activated, cmdPin, &QToolButton::click);
    LetGoByKey(*this);
    lblStatLabel = ratings->Captions;
    return group;
}

// The one person that a viewer lists is its title. A list to choose from looks like one.
void frmEditPlayer::FitList()
{
    const bool isTitle = lstPlayer->count() <= 1;
    lstPlayer->setFont(isTitle ? TitleFont(font()) : font());
    lstPlayer->setFrameShape(isTitle ? QFrame::NoFrame : QFrame::StyledPanel);
    lstPlayer->setAlternatingRowColors(!isTitle);
    lstPlayer->viewport()->setAutoFillBackground(!isTitle);
    lstPlayer->setVerticalScrollBarPolicy(isTitle ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    lstPlayer->setSelectionMode(isTitle ? QAbstractItemView::NoSelection : QAbstractItemView::SingleSelection);
    constexpr int rowPadding = 8;
    const int rows = std::clamp(lstPlayer->count(), 1, MostListRows);
    lstPlayer->setFixedHeight(rows * (lstPlayer->fontMetrics().height() + rowPadding) + 2 * lstPlayer->frameWidth());
}

void frmEditPlayer::EnableEditor(bool enabled)
{
    for (EditBox* box : {txtName, txtCountry, txtAge, txtWeight, txtHeight, txtCondition, txtInjury, txtContract,
                         txtSalary, txtSuspension})
        box->setEnabled(enabled);
    for (QCheckBox* check : {chkRookie, chkNoTrade, chkNoApplyRerate})
        check->setEnabled(enabled);
    for (EditBox* box : txtStats)
        box->setEnabled(enabled);
    optGoaler->setEnabled(enabled);
    for (QRadioButton* option : optPosition)
        option->setEnabled(enabled);
}

void frmEditPlayer::chkEdit_Click()
{
    EnableEditor(chkEdit->isChecked());
    cmdErase->setEnabled(chkEdit->isChecked());
}

void frmEditPlayer::CloseEditor()
{
    EnableEditor(false);
    for (QPushButton* command : {cmdSearch, cmdNewPlayer, cmdNewGoaler, cmdErase}) {
        command->setEnabled(false);
        command->hide();
    }
    lstPlayer->setEnabled(false);
    chkEdit->setEnabled(false);
    chkEdit->hide();
}

// Everything here is closed to be read, so it keeps the colours of what is open.
void frmEditPlayer::ShadeClosedControls()
{
    const QColor text = palette().color(QPalette::Active, QPalette::WindowText);
    QPalette readable;
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        readable.setColor(QPalette::Disabled, role, text);
    lstPlayer->setPalette(readable);
    readable.setColor(QPalette::Disabled, QPalette::Base, palette().color(QPalette::Active, QPalette::Base));
    for (QWidget* control : QWidgetList{optPosition[1], optPosition[2], optPosition[3], optPosition[4], optGoaler,
                                        chkRookie, chkNoTrade, chkNoApplyRerate})
        control->setPalette(readable);
}

void frmEditPlayer::changeEvent(QEvent* event)
{
    Screen::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShadeClosedControls();
}

} // namespace dravik
