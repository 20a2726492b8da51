#include "desk/PlaceOnLine.h"
#include "rules/LineEligibility.h"
#include "rules/LineJudge.h"
#include "rules/PlayingLines.h"
#include "rules/StatRows.h"
#include "screens/lines/LinesScreen.h"
#include "screens/lines/UnitWindow.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "session/Session.h"

// The slots and headings of the board: who stands there, what a press does, and what they tell.
namespace dravik {

bool LinesScreen::TakesPicked(const BoardSlot& slot) const
{
    return lstPlayer->Chosen() != nullptr &&
           TakesSomebody(slot.Slot, Kind.Side, SelectedPerson(), static_cast<int>(selectedPosition));
}

QString LinesScreen::WordsOfPlacing(int index) const
{
    const QListWidgetItem* chosen = lstPlayer->Chosen();
    const QString where = TabLine->Slots[static_cast<std::size_t>(index)].Label->Where();
    return "Place " + (chosen != nullptr ? chosen->text() + ", " : QString()) + where + Subject();
}

void LinesScreen::Slot_Click(int index)
{
    if (lstPlayer->Chosen() != nullptr)
        PlaceIn(index, SelectedPerson(), static_cast<int>(selectedPosition));
}

bool LinesScreen::MayDropOn(const SlotLabel& label) const
{
    const int index = IndexOf(label);
    return index < static_cast<int>(TabLine->Slots.size()) &&
           TakesPicked(TabLine->Slots[static_cast<std::size_t>(index)]);
}

void LinesScreen::ShowSlots()
{
    Lines& lines = ShownLines();
    for (BoardSlot& slot : TabLine->Slots)
        ShowIn(slot, slot.In(lines));
}

void LinesScreen::ShowIn(BoardSlot& slot, long long id)
{
    QString name;
    if (id != 0 || Kind.ShowsPlaceholder)
        OnPerson(OpenLeague, slot.Whom(id), [&](const auto& person) { name = ToQString(person.Name.Trimmed()); });
    slot.OnLabels([&name](SlotLabel& label) { label.SetName(name); });
    slot.Shown = static_cast<int>(id);
}

void LinesScreen::RefreshMarks()
{
    RunEvent("RefreshMarks", [this] {
        if (!HasLineDay(OwnNumber(), ShownDay()))
            return;
        Lines& lines = ShownLines();
        for (const BoardSlot& slot : TabLine->Slots)
            RefreshMark(slot, slot.In(lines));
        for (const BoardHeading& heading : TabLine->Parts.Headings)
            RefreshAverage(heading);
        lstPlayer->viewport()->update(); // the entries tell how many slots they hold
        if (Sheet != nullptr)
            ShowOnSheet();
        if (UnitWindow* units = UnitWindow::On(*this))
            units->ShowAnew();
    });
}

void LinesScreen::RefreshMark(const BoardSlot& slot, long long id)
{
    // Whoever was taken out by the judge still stands there by name.
    const bool isWiped = id == 0 && slot.Shown != 0;
    const PersonId who = slot.Whom(id);
    const bool isRefused = isWiped || IsRefusedInLines(OpenLeague, OwnNumber(), Kind.Side, who);
    const auto mark = isRefused                       ? SlotLabel::Mark::Refused
                      : id == 0                       ? SlotLabel::Mark::Empty
                      : FindsTwice(said, slot.Word()) ? SlotLabel::Mark::Twice
                                                      : SlotLabel::Mark::Filled;
    const QString overall = id == 0 ? QString() : OverallOf(who);
    const PersonSigns signs = SignsIn(slot, who);
    const QString ownPosition = signs.Has(Sign::OutOfPosition) ? AsideOf(who).front() : QString();
    slot.OnLabels([&](SlotLabel& label) {
        label.SetMark(mark);
        label.SetAside(overall);
        label.SetPicked(id != 0 && who == SelectedPerson());
        label.SetSigns(signs, ownPosition);
    });
}

QStringList LinesScreen::FindingsOn(const BoardSlot& slot) const
{
    QStringList words;
    for (const LineFinding& finding : said.Findings)
        if (finding.Slots[slot.Word()])
            words << ToQString(WordsOf(OpenLeague, said, finding));
    words.removeDuplicates();
    return words;
}

// The overall of a line beside its heading. A line with somebody in it who has none is left without.
void LinesScreen::RefreshAverage(const BoardHeading& heading)
{
    QString words;
    const Lines& lines = ShownLines();
    bool isWhole = static_cast<bool>(LeagueData.ShowOverall);
    for (const GroupMember& member : heading.Group->Group.Members) {
        const long long skater = At(lines, SlotOf(member.Field, heading.Number, member.Place));
        isWhole = isWhole && !OverallOf(PersonIn<Player>(static_cast<int>(skater))).isEmpty();
    }
    if (isWhole)
        words = "average " +
                QString::number(AveragesOf(OpenLeague, Machine(), lines, heading.Group->Group, heading.Number).Overall);
    if (heading.Average->text() != words)
        heading.Average->setText(words);
    const QString spoken = heading.Label->text() + (words.isEmpty() ? QString() : ", " + words);
    if (heading.Label->accessibleName() != spoken)
        heading.Label->setAccessibleName(spoken);
}

void LinesScreen::Heading_Click(int index)
{
    const BoardHeading& heading = TabLine->Parts.Headings[static_cast<std::size_t>(index)];
    RunEvent(heading.Group->Heading, [&] {
        const GroupAverages averages =
            AveragesOf(OpenLeague, Machine(), ShownLines(), heading.Group->Group, heading.Number);
        lblPlaying->clear(); // the panel speaks of a line now
        frmStat->SetName({});
        frmStat->ShowPosition("T");
        frmStat->setTitle(ToQString(heading.Group->Prefix) + heading.Label->text());
        frmStat->ShowRows(
            SkaterStatRows(LeagueData, averages.Ratings, static_cast<int>(PlayerStatCount), averages.Overall));
        frmStat->HoldAgainstPinned(PersonIn<Player>(0));
    });
}

QString LinesScreen::SlotsOf(PersonId who) const
{
    if (who.IsGoalie)
        return {};
    return ToQString(PlayingLines(OpenLeague, OwnNumber(), who.Slot, ShownDay(), Kind.Side));
}

void LinesScreen::TellOfSlot(const BoardSlot& slot)
{
    const long long standing = slot.In(ShownLines());
    const long long id = standing != 0 ? standing : slot.Shown;
    const PersonId who = slot.Whom(id);
    const QString words = id == 0 ? QString() : DescriptionOf(who, SlotsOf(who), FindingsOn(slot));
    slot.OnLabels([&words](SlotLabel& label) { label.setToolTip(words); });
}

void LinesScreen::TellOfEntry(PickList& people, const QPoint& point)
{
    QListWidgetItem* pointed = people.itemAt(point);
    if (pointed == nullptr)
        return;
    const PersonId who = EntryPerson(pointed->data(entry::NumberRole).toInt());
    const QString words = DescriptionOf(who, SlotsOf(who));
    if (!words.isEmpty())
        pointed->setToolTip(words);
}

} // namespace dravik
