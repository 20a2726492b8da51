#include "rules/People.h"
#include "screens/LinesScreen.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "session/Routines.h"

#include <algorithm>

// The slots and headings of the board: who stands there, what a press does, and what they tell.
namespace dravik {

bool LinesScreen::TakesPicked(Takes rule) const
{
    switch (rule) {
    case Takes::Skater:
        return !SelectedIsGoalie;
    case Takes::Forward:
        return !SelectedIsGoalie && SelectedPosition >= position::Center && SelectedPosition <= position::RightWing;
    case Takes::Defense:
        return !SelectedIsGoalie && SelectedPosition == position::Defense;
    case Takes::Goalie:
        return SelectedIsGoalie;
    }
    return false;
}

void LinesScreen::Slot_Click(int index)
{
    BoardSlot& slot = TabLine->Slots[static_cast<std::size_t>(index)];
    RunEvent(slot.Name, [&] {
        if (lstPlayer->Chosen() == nullptr || !TakesPicked(slot.Rule))
            return;
        slot.In(ShownLines()) = SelectedPlayer;
        ShowIn(slot, SelectedPlayer);
        Check();
    });
}

bool LinesScreen::MayDropOn(const SlotLabel& label) const
{
    const auto slot = std::find_if(TabLine->Slots.begin(), TabLine->Slots.end(),
                                   [&label](const BoardSlot& other) { return other.Label == &label; });
    return slot != TabLine->Slots.end() && lstPlayer->Chosen() != nullptr && TakesPicked(slot->Rule);
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
    slot.Label->SetName(name);
    slot.Shown = static_cast<int>(id);
}

void LinesScreen::RefreshMarks()
{
    RunEvent("RefreshMarks", [this] {
        if (!HasLineDay(static_cast<int>(CurrentTeam), static_cast<int>(Day)))
            return;
        Lines& lines = ShownLines();
        for (const BoardSlot& slot : TabLine->Slots)
            RefreshMark(slot, slot.In(lines));
        for (const BoardHeading& heading : TabLine->Headings)
            RefreshAverage(heading);
    });
}

void LinesScreen::RefreshMark(const BoardSlot& slot, long long id)
{
    // Whoever was taken out by the judge still stands there by name.
    const bool isWiped = id == 0 && slot.Shown != 0;
    const bool isRefused = isWiped || IsRefused(slot, id);
    slot.Label->SetMark(isRefused           ? SlotLabel::Mark::Refused
                        : id == 0           ? SlotLabel::Mark::Empty
                        : IsUsedTwice(slot) ? SlotLabel::Mark::Twice
                                            : SlotLabel::Mark::Filled);
    slot.Label->SetAside(id == 0 ? QString() : OverallOf(slot.Whom(id)));
    slot.Label->SetPicked(id != 0 && id == SelectedPlayer && slot.IsGoalies() == SelectedIsGoalie);
}

// Whether the judge found whoever stands there a second time where he may stand but once.
bool LinesScreen::IsUsedTwice(const BoardSlot& slot) const
{
    return std::any_of(said.Findings.begin(), said.Findings.end(), [&](const LineFinding& finding) {
        const bool isDouble = finding.Fault == LineFault::Double || finding.Fault == LineFault::LinesShared ||
                              finding.Fault == LineFault::SameGoalies;
        return isDouble && finding.Slots[slot.Word()];
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

// Whether the judge of these lines would take the person out. In a league without farm teams nobody judges their lines.
bool LinesScreen::IsRefused(const BoardSlot& slot, long long id) const
{
    if (id == 0 || (Kind.Side == Side::Farm && !LeagueData.FarmEnabled))
        return false;
    if (!slot.Whom(id).HasSlot())
        return true;
    bool isRefused = false;
    OnPerson(OpenLeague, slot.Whom(id), [&](const auto& person) {
        isRefused = person.Status != Kind.Status || person.Team != CurrentTeam || !IsDressable(person);
    });
    return isRefused;
}

// The overall of a line beside its heading. A line with somebody in it who has none is left without.
void LinesScreen::RefreshAverage(const BoardHeading& heading)
{
    QString words;
    const Lines& lines = ShownLines();
    bool isWhole = static_cast<bool>(LeagueData.ShowOverall);
    for (const GroupMember& member : heading.Group->Members) {
        const long long skater = At(lines, SlotOf(member.Field, heading.Number, member.Place));
        isWhole = isWhole && !OverallOf(PersonIn<Player>(static_cast<int>(skater))).isEmpty();
    }
    if (isWhole)
        words = "average " + QString::number(AveragesOf(lines, *heading.Group, heading.Number).Overall);
    if (heading.Average->text() != words)
        heading.Average->setText(words);
    const QString spoken = heading.Label->text() + (words.isEmpty() ? QString() : ", " + words);
    if (heading.Label->accessibleName() != spoken)
        heading.Label->setAccessibleName(spoken);
}

void LinesScreen::Heading_Click(int index)
{
    const BoardHeading& heading = TabLine->Headings[static_cast<std::size_t>(index)];
    RunEvent(heading.Group->Heading, [&] {
        const GroupAverages averages = AveragesOf(ShownLines(), *heading.Group, heading.Number);
        lblPlaying->clear(); // the panel speaks of a line now
        frmStat->SetName({});
        frmStat->ShowPosition("T");
        frmStat->setTitle(ToQString(heading.Group->Prefix) + heading.Label->text());
        frmStat->ShowRows(SkaterStatRows(averages.Ratings, averages.Overall));
    });
}

QString LinesScreen::SlotsOf(PersonId who) const
{
    if (who.IsGoalie)
        return {};
    return ToQString(Kind.PlayOnLineString(static_cast<int>(CurrentTeam), who.Slot, static_cast<int>(Day)));
}

void LinesScreen::TellOfSlot(const BoardSlot& slot)
{
    const long long standing = slot.In(ShownLines());
    const long long id = standing != 0 ? standing : slot.Shown;
    const PersonId who = slot.Whom(id);
    slot.Label->setToolTip(id == 0 ? QString() : DescriptionOf(who, SlotsOf(who), FindingsOn(slot)));
}

void LinesScreen::TellOfEntry(const QPoint& point)
{
    QListWidgetItem* pointed = lstPlayer->itemAt(point);
    if (pointed == nullptr)
        return;
    const PersonId who = EntryPerson(pointed->data(entry::NumberRole).toInt());
    const QString words = DescriptionOf(who, SlotsOf(who));
    if (!words.isEmpty())
        pointed->setToolTip(words);
}

} // namespace dravik
