#pragma once

#include "desk/Differences.h"
#include "screens/panels/Crest.h"
#include "screens/panels/EntryList.h"

#include <functional>
#include <QLabel>
#include <vector>

namespace dravik {

// One difference as a list shows it: its sign and its words, whom it is about in bold where he is of the own team, and the team
// at the right edge.
struct ChangeEntry {
    DifferenceTone Tone = DifferenceTone::News;
    bool IsOwn = false;
    QString Subject;
    QString Words;
    QString Team;
    Crest Crested = {}; // beside the team
};

// Draws the sign of a tone into `area`, each in a shape of its own: a cross, a tick, a triangle up or down, a coin, a dot. The
// colours fit `ground`, where words are `front`.
void PaintTone(QPainter& painter, DifferenceTone tone, const QRectF& area, const QColor& front, const QColor& ground);

// A quiet list of differences under a heading of its own, as high as its entries up to `mostRows`, and scrolled beyond. It takes no
// room while there are none. Enter or a double click on an entry calls what `WhenOpened` was given; the entries' numbers count
// them from 0.
class ChangeList : public QWidget {
public:
    ChangeList(const QString& name, int mostRows, QWidget* parent);

    // Shows these in the place of all others.
    void Tell(const QString& heading, const std::vector<ChangeEntry>& entries);
    void WhenOpened(std::function<void(int entry)> opened) { open = std::move(opened); }
    [[nodiscard]] EntryList* List() const { return list; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void FitRows();

    QLabel* lblHeading;
    EntryList* list;
    int most;
    std::function<void(int entry)> open;
};

// The entries for what `team` (0 = none) is told of a league, whose teams are named as there.
std::vector<ChangeEntry> EntriesOf(const Tables& league, const std::vector<Difference>& told, int team);

} // namespace dravik
