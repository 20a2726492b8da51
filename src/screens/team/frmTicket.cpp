#include "screens/team/frmTicket.h"

#include "desk/Arena.h"
#include "desk/TicketPrices.h"
#include "machine/Reporting.h"
#include "screens/ElementName.h"
#include "screens/EventGuard.h"
#include "screens/panels/Crest.h"
#include "screens/panels/ElidedLabel.h"
#include "screens/panels/KeptWords.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/WhyClosed.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <QGroupBox>

namespace dravik {

namespace {

constexpr QSize DefaultSize(560, 360);
constexpr int DigitIndent = 4; // of the digits in a box
constexpr const char* LevelCaption[] = {"Level 1 :", "Level 2 :", "Level 3 :", "Level 4 :", "Luxury Box :"};

// A box whose text was refused gets the focus back, without an event of its own.
void Refuse(EditBox* box)
{
    const EventGuard guard;
    box->TakeFocusBack();
}

// Shows what came of a number.
void ShowTyped(EditBox* box, const TypedNumber& typed)
{
    if (typed.Shown)
        box->setText(Shown(*typed.Shown));
    if (!typed.Accepted)
        Refuse(box);
}

// The name with the crest beside it: the sheet is no wider than a long name, and where that would lose a letter the crest goes.
class TitleRow : public QWidget {
public:
    TitleRow(CrestLabel* itsCrest, QLabel* itsTitle, QWidget* parent) :
        QWidget(parent), crest(itsCrest), title(itsTitle)
    {
        QHBoxLayout* row = MakeRow({crest, title}, Margin);
        row->setContentsMargins(0, 0, 0, 0);
        setLayout(row);
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
            crest->setVisible(crest->sizeHint().width() + Margin + title->sizeHint().width() <= width());
        return QWidget::event(event);
    }

private:
    CrestLabel* const crest;
    QLabel* const title;
};

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

    TellWhyClosed({txtArena}, kept::Arena);
    for (EditBox* box : txtArenaCapacity)
        TellWhyClosed({box}, kept::Arena);
    for (EditBox* box : txtTicket)
        TellWhyClosed({box}, ToQString(PricesKeptWords));

    // On a large window the sheet stays a sheet.
    auto* sheet = new QWidget(this);
    sheet->setMaximumWidth(DefaultSize.width());
    QVBoxLayout* column = MakePage(sheet, Margin);
    column->addWidget(new TitleRow(MakeOwnCrest(*lblTitle, sheet), lblTitle, sheet));
    column->addWidget(MakeArenaGroup());
    column->addLayout(MakeFooter({}, {MakeHistoryCommands(), cmdExit}));
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
    Reporting(Machine(), " in FormLoad FrmTicket!", [this] {
        CentreOnScreen();
        if (!TeamTable::Has(CurrentTeam)) {
            Machine().ShowIntegrityFailure();
            Unload();
            return;
        }
        const Team& team = OwnTeam();
        const QString name = Shown(team.Name);
        SetTitle(ToQString(ProgramTitle) + " - " + name + " - Ticket & Arena");
        lblTitle->setText(name);
        ShowBoxes();
        txtArena->setEnabled(false);
        for (EditBox* box : txtArenaCapacity)
            box->setEnabled(false);
        if (!ManagerSetsPrices(LeagueData))
            for (EditBox* box : txtTicket)
                box->setEnabled(false);
        ShowTotal();
    });
}

void frmTicket::ShowBoxes()
{
    const Team& team = OwnTeam();
    txtArena->setText(Shown(team.ArenaName));
    for (int level = 1; level <= 5; ++level) {
        txtArenaCapacity[level]->setText(Shown(team.ArenaCapacity[level]));
        txtTicket[level]->setText(Shown(team.TicketPrice[level]));
    }
}

void frmTicket::ShowAnew()
{
    ShowBoxes();
    ShowTotal();
}

void frmTicket::ShowTotal() { lblArenaCapacityTotal->setText(Shown(TotalCapacity(OwnTeam()))); }

void frmTicket::txtTicket_LostFocus(int level)
{
    EditBox* box = txtTicket[level];
    if (!ListEventGuard)
        ShowTyped(box, SetTicketPrice(OpenWork(), OwnNumber(), level, FromQString(box->text())));
}

void frmTicket::txtArenaCapacity_LostFocus(int level)
{
    if (ListEventGuard)
        return;
    Reporting(Machine(), " in txtArenaCapacity_LostFocus!", [&] {
        EditBox* box = txtArenaCapacity[level];
        ShowTyped(box, SetArenaCapacity(OpenWork(), OwnNumber(), level, FromQString(box->text())));
        ShowTotal();
    });
}

void frmTicket::txtArena_LostFocus()
{
    if (ListEventGuard)
        return;
    if (NameArena(OpenWork(), OwnNumber(), FromQString(txtArena->text())))
        txtArena->setText(Shown(OwnTeam().ArenaName));
    else
        Refuse(txtArena);
}

void frmTicket::cmdExit_Click() { Unload(); }

} // namespace dravik
