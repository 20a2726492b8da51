#include "screens/frmTicket.h"

#include "league/Arithmetic.h"
#include "screens/ElementName.h"
#include "screens/EventGuard.h"
#include "screens/panels/ElidedLabel.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/CodePage.h"
#include "session/Routines.h"

#include <QGroupBox>

namespace dravik {

namespace {

constexpr QSize DefaultSize(560, 360);
constexpr int DigitIndent = 4; // of the digits in a box
constexpr const char* LevelCaption[] = {"Level 1 :", "Level 2 :", "Level 3 :", "Level 4 :", "Luxury Box :"};

Team& OwnTeam() { return Teams[CurrentTeam]; }

double ValueOf(const EditBox* box) { return LeadingNumber(FromQString(box->text())); }

// Whether the text may be taken. A box whose text may not gets the focus back, without an event of its own.
bool TextPasses(EditBox* box, InputMode mode, bool required)
{
    if (CheckInput(FromQString(box->text()), mode, required))
        return true;
    const EventGuard guard;
    box->TakeFocusBack();
    return false;
}

} // namespace

frmTicket::frmTicket(Stage& stage) : Screen(stage, "frmTicket"), lblTitle(new ElidedLabel(this))
{
    lblTitle->setFont(TitleFont(lblTitle->font()));
    lblTitle->setObjectName("lblTitle");
    txtArena = MakeBox("txtArena", [this] { txtArena_LostFocus(); });
    txtArena->setAccessibleName("Arena Name");
    txtArena->ReadAsLabelWhenClosed();
    for (int level = 1; level <= 5; ++level) {
        txtArenaCapacity[level] =
            MakeBox(ElementName("txtArenaCapacity", level), [this, level] { txtArenaCapacity_LostFocus(level); });
        txtTicket[level] = MakeBox(ElementName("txtTicket", level), [this, level] { txtTicket_LostFocus(level); });
    }
    lblArenaCapacityTotal = new QLabel(this);
    lblArenaCapacityTotal->setObjectName("lblArenaCapacityTotal");
    lblArenaCapacityTotal->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblArenaCapacityTotal->setContentsMargins(0, 0, DigitIndent, 0);
    lblArenaCapacityTotal->setTextInteractionFlags(Qt::TextSelectableByMouse);
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });

    for (const auto* boxes : {&txtArenaCapacity, &txtTicket})
        for (EditBox* box : *boxes) {
            box->setAlignment(Qt::AlignRight);
            box->ReadAsLabelWhenClosed();
        }

    // On a large window the sheet stays a sheet.
    auto* sheet = new QWidget(this);
    sheet->setMaximumWidth(DefaultSize.width());
    QVBoxLayout* column = MakePage(sheet, Margin);
    column->addWidget(lblTitle);
    column->addWidget(MakeArenaGroup());
    column->addWidget(cmdExit, 0, Qt::AlignRight);
    column->addStretch(1);
    auto* content = new QWidget(this);
    auto* middle = new QHBoxLayout(content);
    middle->setContentsMargins(0, 0, 0, 0);
    middle->addStretch(1);
    middle->addWidget(sheet, DefaultSize.width());
    middle->addStretch(1);
    SetPage(content);
    SetTabOrder();
    resize(DefaultSize.expandedTo(content->minimumSizeHint()));
}

QWidget* frmTicket::MakeArenaGroup()
{
    constexpr int captions = 0;
    constexpr int capacities = 1;
    constexpr int prices = 2;
    auto* group = new QGroupBox("Arena", this);
    auto* grid = new QGridLayout(group);
    SetGroupMargins(grid);
    grid->setHorizontalSpacing(Margin);
    grid->setVerticalSpacing(Gap);
    grid->setColumnStretch(capacities, 1);
    grid->setColumnStretch(prices, 1);
    const auto caption = [&](const QString& text, int row, int column, Qt::Alignment alignment = {}) {
        auto* label = new MutedLabel(text, group);
        label->setTextFormat(Qt::PlainText);
        if (column != captions)
            label->setContentsMargins(0, 0, DigitIndent, 0);
        grid->addWidget(label, row, column, alignment);
    };

    caption("Arena Name:", 0, captions);
    grid->addWidget(txtArena, 0, capacities, 1, 2);
    const QString capacityHeading = "Level Capacity";
    const QString priceHeading = "Level Ticket Price";
    caption(capacityHeading, 1, capacities, Qt::AlignRight);
    caption(priceHeading, 1, prices, Qt::AlignRight);
    for (int level = 1; level <= 5; ++level) {
        const QString name = LevelCaption[level - 1];
        const int row = level + 1;
        caption(name, row, captions);
        grid->addWidget(txtArenaCapacity[level], row, capacities);
        grid->addWidget(txtTicket[level], row, prices);
        txtArenaCapacity[level]->setAccessibleName(name + " " + capacityHeading);
        txtTicket[level]->setAccessibleName(name + " " + priceHeading);
    }
    const int last = grid->rowCount();
    caption("Total Capacity :", last, captions);
    grid->addWidget(lblArenaCapacityTotal, last, capacities);
    return group;
}

void frmTicket::SetTabOrder()
{
    QList<QWidget*> order{txtArena};
    for (const auto* boxes : {&txtArenaCapacity, &txtTicket})
        for (EditBox* box : *boxes)
            order << box;
    order << cmdExit;
    ChainTabs(order);
}

void frmTicket::FormLoad()
{
    Reporting(" in FormLoad FrmTicket!", [this] {
        CentreOnScreen();
        if (!TeamTable::Has(CurrentTeam)) {
            ShowIntegrityFailure();
            Unload();
            return;
        }
        const Team& team = OwnTeam();
        const QString name = ToQString(team.Name.Trimmed());
        SetTitle(ToQString(ProgramTitle) + " - " + name + " - Ticket & Arena");
        lblTitle->setText(name);
        txtArena->setText(ToQString(team.ArenaName.Trimmed()));
        for (int level = 1; level <= 5; ++level) {
            txtArenaCapacity[level]->setText(QString::number(team.ArenaCapacity[level]));
            txtTicket[level]->setText(QString::number(team.TicketPrice[level]));
        }
        txtArena->setEnabled(false);
        for (EditBox* box : txtArenaCapacity)
            box->setEnabled(false);
        if (LeagueData.TicketRuleFlag)
            for (EditBox* box : txtTicket)
                box->setEnabled(false);
        ShowTotal();
    });
}

void frmTicket::ShowTotal()
{
    long long total = 0;
    for (const Int32& capacity : OwnTeam().ArenaCapacity)
        total += capacity;
    lblArenaCapacityTotal->setText(QString::number(total));
}

void frmTicket::txtTicket_LostFocus(int level)
{
    EditBox* box = txtTicket[level];
    if (ListEventGuard || !TextPasses(box, InputMode::Numbers, true))
        return;
    Int16& price = OwnTeam().TicketPrice[level];
    constexpr int lowest = 1;
    constexpr int highest = 999;
    try {
        const int value = RoundToInt16(ValueOf(box));
        if (value > highest)
            box->setText(QString::number(highest));
        if (value < lowest)
            box->setText(QString::number(lowest));
        price = RoundToInt16(ValueOf(box));
        Modified = true;
    } catch (const Failure&) {
        box->setText(QString::number(price));
    }
}

void frmTicket::txtArenaCapacity_LostFocus(int level)
{
    if (ListEventGuard)
        return;
    Reporting(" in txtArenaCapacity_LostFocus!", [&] {
        EditBox* box = txtArenaCapacity[level];
        if (TextPasses(box, InputMode::Numbers, true)) {
            constexpr int most = 99999;
            if (ValueOf(box) > most)
                box->setText(QString::number(most));
            OwnTeam().ArenaCapacity[level] = RoundToInt32(ValueOf(box));
            Modified = true;
        }
        ShowTotal();
    });
}

void frmTicket::txtArena_LostFocus()
{
    if (ListEventGuard || !TextPasses(txtArena, InputMode::NumbersAndLetters, false))
        return;
    OwnTeam().ArenaName = FromQString(txtArena->text());
    txtArena->setText(ToQString(OwnTeam().ArenaName.Trimmed()));
    Modified = true;
}

void frmTicket::cmdExit_Click() { Unload(); }

} // namespace dravik
